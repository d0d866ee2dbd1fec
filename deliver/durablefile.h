#pragma once

#include <string>
#include <string_view>

/// Makes the folder, for the owner alone, unless it is there. False when that fails, and when it is a link or
/// others can change it.
bool makeFolder(const std::string &path);
/// Waits until the names in the folder are on the disk.
bool syncFolder(const std::string &path);
/// Replaces the content of an open file and waits until it is on the disk.
bool rewriteDurably(int descriptor, std::string_view content);
/// The first `most` bytes of a file, "" when it cannot be read.
std::string contentOf(const std::string &path, std::size_t most = 4096);
std::string contentOf(int descriptor, std::size_t most = 4096);
