#pragma once

#include <string>

/// The system's text for an error code, in the language of the current locale. Safe to call from
/// any thread; the thread's last error code stays as it is.
/// @param nCode an error code as gGetLastError gives it
/// @return the text in 16-bit units, without a line end; empty if the system knows no text for the
///         code. A byte that is no character of the locale gives U+FFFD
[[nodiscard]] std::u16string gSystemErrorMessageWide(int nCode);

/// The same in the system's code page, with "?" for what has no place in it.
[[nodiscard]] std::string gSystemErrorMessage(int nCode);

/// The code of the last system call that failed in this thread (errno).
[[nodiscard]] int gGetLastError() noexcept;

/// Sets the last error code of this thread.
/// @param nCode the code; 0 for no error
void gSetLastError(int nCode) noexcept;
