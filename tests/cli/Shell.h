#pragma once

#include <string>

/// Runs a line of the shell in which `quorvawiz` is the program that was built.
/// @return what it writes to standard output and standard error, in order
/// Throws std::runtime_error if there is no shell.
std::string gRunShell(const std::string& rsCommand);
