#pragma once

/// Renders one job: `argv` holds the program name, the input file, the output file, and perhaps a fourth word
/// that nobody reads. With any other number of words it prints the usage line and does nothing.
///
/// Problems show as lines on standard output and in the output file, never as a result: see
/// docs/job-format.md.
void compile(int argc, char **argv);
