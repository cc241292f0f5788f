#pragma once

#include "cli/Failure.h"
#include "cli/Quote.h"

#include <charconv>
#include <string>
#include <system_error>

namespace quorvawiz::cli
{

/// Reads a whole number that an option takes.
/// @param pOption the option, for the message
/// @param rsNumber decimal digits
/// @param nMost the greatest that is allowed
/// @param nLeast the least that is allowed
/// @throws CUsageError for any other text
template <class TNumber>
TNumber gReadWhole(const char* pOption, const std::string& rsNumber, TNumber nMost,
                   TNumber nLeast = 0)
{
    TNumber nNumber = 0;
    const char* const pEnd = rsNumber.data() + rsNumber.size();
    const auto read = std::from_chars(rsNumber.data(), pEnd, nNumber);
    if (read.ec != std::errc() || read.ptr != pEnd || nNumber > nMost || nNumber < nLeast ||
        rsNumber[0] == '-')
        throw CUsageError(std::string(pOption) + " takes a number from " + std::to_string(nLeast) +
                          " to " + std::to_string(nMost) + ", not " + gQuoted(rsNumber));
    return nNumber;
}

} // namespace quorvawiz::cli
