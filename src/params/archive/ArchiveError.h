#pragma once

#include <boost/archive/archive_exception.hpp>

#include <cstdint>

/// Why a params file is refused, and where. Whoever catches the archive library's own exception
/// catches this one too.
class CParamsArchiveError : public boost::archive::archive_exception
{
public:
    /// @param eCode the kind of error, as the library has it
    /// @param nOffset the byte of the file at which it was found, from 0
    /// @param pReason in English, for a log: what is wrong there
    CParamsArchiveError(exception_code eCode, std::uint64_t nOffset, const char* pReason)
        : archive_exception(eCode), mnOffset(nOffset), mpReason(pReason)
    {
    }

    /// The byte of the file, from 0.
    [[nodiscard]] std::uint64_t GetOffset() const noexcept { return mnOffset; }

    /// What is wrong there.
    [[nodiscard]] const char* GetReason() const noexcept { return mpReason; }

private:
    std::uint64_t mnOffset;
    const char* mpReason; // a literal: an exception must not fail to be copied
};
