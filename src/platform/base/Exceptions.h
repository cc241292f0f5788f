#pragma once

#include <stdexcept>

/// The platform's invalid-argument exception: a caller passed an index, a length, a code page or a
/// name outside the documented range. It tells of a defect in the caller; nobody is expected to
/// handle it except the outermost frame.
class CInvalidArgException : public std::invalid_argument
{
public:
    using std::invalid_argument::invalid_argument;
};

/// Throws a CInvalidArgException.
/// @param pWhat the message for the log, in English; null reads as the empty text
[[noreturn]] void gThrowInvalidArg(const char* pWhat);
