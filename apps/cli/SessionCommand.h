#pragma once

namespace quorvawiz::cli
{

/// Runs `session` on the standard input and output until the input ends.
/// Result: the program's exit code. Throws as `CSession::Run`.
int gRunSession();

} // namespace quorvawiz::cli
