#pragma once

#include <string>

/// The system's text for an error code, in the language of the current locale. Safe to call from
/// any thread; the thread's last error code stays as it is.
/// @param nCode an error code as gGetLastError gives it
/// @return the text, without a line end; empty if the system knows no text for the code
[[nodiscard]] std::string gSystemErrorMessage(int nCode);

/// The code of the last system call that failed in this thread (errno).
[[nodiscard]] int gGetLastError() noexcept;

/// Sets the last error code of this thread.
/// @param nCode the code; 0 for no error
void gSetLastError(int nCode) noexcept;
