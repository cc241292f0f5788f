#pragma once

#include "platform/base/StringA.h"

#include <stdexcept>

/// What CFile throws: a system call failed. It keeps the system's error code and the file's name.
class CFileException : public std::runtime_error
{
public:
    /// No error, for a caller that hands in an exception to be filled.
    CFileException();

    /// @param nOsError the system's error code
    /// @param rsFileName the name by which the file was opened, perhaps empty
    explicit CFileException(int nOsError, const CString& rsFileName = {});

    /// The system's error code; 0 for no error.
    [[nodiscard]] int GetOsError() const noexcept { return mnOsError; }

    /// The name by which the file was opened, perhaps empty.
    [[nodiscard]] const CString& GetFileName() const noexcept { return msFileName; }

    /// Writes the system's text for the error.
    /// @param pText room for nMost bytes; the text is zero-terminated, and cut if it must be
    /// @param nMost the room in bytes, at least 1
    /// @return false, and an empty text, if the system knows no text for the error
    bool GetErrorMessage(char* pText, unsigned nMost) const;

    /// Throws one, and makes the code the thread's last error.
    /// @param nOsError the system's error code
    /// @param rsFileName the name by which the file was opened, perhaps empty
    [[noreturn]] static void ThrowOsError(int nOsError, const CString& rsFileName);

private:
    int mnOsError = 0;
    CString msFileName;
};
