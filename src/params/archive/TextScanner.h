#pragma once

#include "params/archive/ArchiveError.h"
#include "params/archive/ByteSource.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

/// Reads the tokens of a text archive: numbers, and texts as their length, one byte and their
/// bytes. White space stands behind every token, the last one too, so that a file that was cut is
/// always told from a whole one. It never needs more memory than the bytes that are really there.
/// Independent of the locale.
class CTextScanner
{
public:
    /// @param rSource the bytes; it outlives this object
    explicit CTextScanner(IByteSource& rSource);

    /// Reads a number of 0 or 1.
    /// @throws CParamsArchiveError for anything else
    [[nodiscard]] bool ReadBool();

    /// Reads a whole number.
    /// @throws CParamsArchiveError for anything else, and for one that is no int
    [[nodiscard]] int ReadInt();

    /// Reads a whole number from 0 on.
    /// @throws CParamsArchiveError for anything else, and for one beyond 64 bits
    [[nodiscard]] std::uint64_t ReadUnsigned();

    /// Reads a number, which may be an infinity or NaN. One that is too small for a double is 0, or
    /// what else is nearest.
    /// @throws CParamsArchiveError for anything else, and for one that is too big for a double
    [[nodiscard]] double ReadDouble();

    /// Reads a text.
    /// @return its bytes, valid until the next token is read
    /// @throws CParamsArchiveError if it is longer than what is left of the file
    [[nodiscard]] std::string_view ReadText();

    /// How many bytes are left at most.
    [[nodiscard]] std::uint64_t GetBytesLeft() const noexcept
    {
        return static_cast<std::uint64_t>(mpEnd - mpAt) + mnUnread;
    }

    /// Refuses the file at the token that was read last.
    /// @param eCode, pReason as CParamsArchiveError takes them
    [[noreturn]] void Refuse(boost::archive::archive_exception::exception_code eCode,
                             const char* pReason) const;

private:
    [[noreturn]] void RefuseEnd() const;
    void ToToken();
    void EndToken(const char* pEnd);
    bool Fill();
    template <class T> T ReadNumber(const char* pReason);
    std::string_view ReadLongText(std::uint64_t nLength);
    [[nodiscard]] std::uint64_t OffsetOf(const char* pAt) const noexcept;

    IByteSource& mrSource;
    std::unique_ptr<char[]> mpBuffer;
    const char* mpAt;           // what isn't used yet of the buffer
    const char* mpEnd;          // behind the last byte in the buffer
    std::uint64_t mnUnread;     // what the source has still, at most
    std::uint64_t mnFilled = 0; // what came from the source
    std::uint64_t mnToken = 0;  // where the last token began
    bool mbCrLf;
    std::string msLong;
};
