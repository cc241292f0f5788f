#pragma once

namespace quorvawiz::cli
{

/// The program: reads its arguments, runs the command, tells on standard error what went wrong.
/// @param nArguments, ppArguments as main gets them
/// @return the exit code
int gRun(int nArguments, const char* const* ppArguments) noexcept;

} // namespace quorvawiz::cli
