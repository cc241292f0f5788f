// Under the buffer: the file on the disk or the text in memory, with the mark counted.

#include "foundation/TextFile.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <limits>

bool TTextFile::IsStream() const noexcept
{
    return HasHandle() && !HasPositions();
}

unsigned TTextFile::RawRead(void* pBuffer, std::size_t nCount)
{
    if (!IsInMemory()) {
        const unsigned nRead = CFile::Read(pBuffer, static_cast<unsigned>(nCount));
        mnStreamPosition += nRead;
        return nRead;
    }
    const std::string_view sText = mpText->Text();
    const std::size_t nFirst = std::min<std::size_t>(mnMemoryPosition, sText.size());
    const std::size_t nRead = sText.copy(static_cast<char*>(pBuffer), nCount, nFirst);
    mnMemoryPosition += nRead;
    return static_cast<unsigned>(nRead);
}

void TTextFile::RawWrite(const char* pBuffer, std::size_t nCount)
{
    if (IsInMemory()) {
        WriteIntoMemory({pBuffer, nCount});
        return;
    }
    constexpr std::size_t most = 0x40000000; // what a CFile and the system take in one piece
    for (std::size_t nDone = 0; nDone < nCount;) {
        const std::size_t nPiece = std::min(nCount - nDone, most);
        CFile::Write(pBuffer + nDone, static_cast<unsigned>(nPiece));
        nDone += nPiece;
        mnStreamPosition += nPiece;
    }
}

// At the end it appends, inside it takes the place of as many bytes, and a position past the end is
// the end.
void TTextFile::WriteIntoMemory(std::string_view sBytes)
{
    const std::size_t nFirst = std::min<std::size_t>(mnMemoryPosition, mpText->Text().size());
    RequireRoom(nFirst + sBytes.size());
    mpText->OverwriteUtf8(nFirst, sBytes);
    mnMemoryPosition = nFirst + sBytes.size();
}

// A text has no more bytes than its lengths can say.
void TTextFile::RequireRoom(std::uint64_t nSize) const
{
    if (nSize > std::numeric_limits<int>::max()) {
        CFileException::ThrowOsError(EFBIG, msFileName.ToAnsi());
    }
}

void TTextFile::RawSeek(std::uint64_t nPosition)
{
    if (IsInMemory()) {
        mnMemoryPosition = nPosition;
    } else if (HasPositions()) {
        CFile::Seek(static_cast<std::int64_t>(nPosition), begin);
    } else {
        SkipTo(nPosition);
    }
}

// To where it is already, or forward by reading.
void TTextFile::SkipTo(std::uint64_t nPosition)
{
    if (nPosition < mnStreamPosition) {
        CFileException::ThrowOsError(ESPIPE, msFileName.ToAnsi());
    }
    std::array<char, 4096> skipped{};
    unsigned nRead = 1;
    while (mnStreamPosition < nPosition && nRead > 0) {
        const std::uint64_t nLeft = nPosition - mnStreamPosition;
        nRead = RawRead(skipped.data(), std::min<std::uint64_t>(nLeft, skipped.size()));
    }
}

std::uint64_t TTextFile::RawPosition() const
{
    if (IsInMemory()) {
        return mnMemoryPosition;
    }
    return IsStream() ? mnStreamPosition : CFile::GetPosition();
}

std::uint64_t TTextFile::RawLength() const
{
    if (IsInMemory()) {
        return mpText->Text().size();
    }
    return IsStream() ? mnStreamPosition : CFile::GetLength();
}
