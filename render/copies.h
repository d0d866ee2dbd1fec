#pragma once

#include <QString>

class PVConfiguration;

/// More copies than these nobody wants.
inline constexpr int maxCopies = 99;

/// How often a document of the print method `method` is wanted, from 1 to `maxCopies`: as the setting
/// `copyNumber` of its kind says. 1 where there is no such method.
int configuredCopies(const QString &method, const PVConfiguration &configuration);
