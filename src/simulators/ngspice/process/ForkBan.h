#pragma once

namespace quorvawiz::ngspice
{

/// Forbids this process, and what it becomes, to start another process; threads are allowed. What
/// tries gets an error. It can't be taken back. It is the second wall behind the netlist's copy
/// without commands. Safe between fork and exec.
/// @return false where the system has no such ban, and then nothing is forbidden
bool gBanFork() noexcept;

} // namespace quorvawiz::ngspice
