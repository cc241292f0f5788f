// Positions, lengths and locks, which leave out the mark.

#include "foundation/TextFile.h"

#include <algorithm>
#include <cerrno>
#include <limits>

std::uint64_t TTextFile::GetPosition() const
{
    const std::uint64_t nPosition = CurrentPosition();
    const auto nMark = static_cast<std::uint64_t>(MarkSize());
    return nPosition - std::min(nPosition, nMark);
}

std::uint64_t TTextFile::GetLength() const
{
    const std::uint64_t nBufferEnd = mnValid > 0 ? mnBufferPosition + mnValid : 0;
    const std::uint64_t nLength = std::max(RawLength(), nBufferEnd);
    const auto nMark = static_cast<std::uint64_t>(MarkSize());
    return nLength - std::min(nLength, nMark);
}

std::uint64_t TTextFile::Seek(std::int64_t nOffset, unsigned nFrom)
{
    if (!IsOpen()) {
        CFileException::ThrowOsError(EBADF, msFileName.ToAnsi());
    }
    const std::int64_t nMark = MarkSize();
    std::uint64_t nFromPosition = 0; // where the offset counts from
    switch (nFrom) {
    case begin:
        nFromPosition = static_cast<std::uint64_t>(nMark);
        break;
    case current:
        nFromPosition = CurrentPosition();
        break;
    case end:
        nFromPosition = static_cast<std::uint64_t>(nMark) + GetLength();
        break;
    default:
        CFileException::ThrowOsError(EINVAL, msFileName.ToAnsi());
    }
    const auto nSignedFrom = static_cast<std::int64_t>(nFromPosition);
    if (nOffset > std::numeric_limits<std::int64_t>::max() - nSignedFrom ||
        nSignedFrom + nOffset < nMark) {
        CFileException::ThrowOsError(EINVAL, msFileName.ToAnsi());
    }
    const auto nTarget = static_cast<std::uint64_t>(nSignedFrom + nOffset);
    if (mnValid > 0 && nTarget >= mnBufferPosition && nTarget <= mnBufferPosition + mnValid) {
        mnIndex = nTarget - mnBufferPosition;
    } else {
        if (IsStream() && nTarget < mnStreamPosition) {
            CFileException::ThrowOsError(ESPIPE, msFileName.ToAnsi()); // and the buffer is kept
        }
        WriteOut();
        RawSeek(nTarget);
    }
    return nTarget - static_cast<std::uint64_t>(nMark);
}

void TTextFile::SetLength(std::uint64_t nNewLength)
{
    if (!WriteOut()) {
        return;
    }
    CFile::Flush();
    if (nNewLength > std::numeric_limits<std::int64_t>::max()) {
        CFileException::ThrowOsError(EINVAL, msFileName.ToAnsi());
    }
    // Cut to nothing it loses what stands in the place of the mark, and gets the mark below.
    const std::uint64_t nRawLength =
        nNewLength == 0 ? 0 : nNewLength + static_cast<std::uint64_t>(MarkSize());
    if (IsInMemory()) {
        RequireRoom(nRawLength);
        mpText->ResizeUtf8(nRawLength);
    } else {
        CFile::SetLength(nRawLength);
    }
    ApplyMarkRule(mEncoding);
}

void TTextFile::LockRange(std::uint64_t nPosition, std::uint64_t nCount)
{
    if (!IsInMemory()) {
        CFile::LockRange(nPosition + static_cast<std::uint64_t>(MarkSize()), nCount);
    }
}

void TTextFile::UnlockRange(std::uint64_t nPosition, std::uint64_t nCount)
{
    if (!IsInMemory()) {
        CFile::UnlockRange(nPosition + static_cast<std::uint64_t>(MarkSize()), nCount);
    }
}

void TTextFile::Flush()
{
    // What was read from a stream and not yet given out can't be had again.
    if (mbDirty || !IsStream()) {
        WriteOut();
    }
    CFile::Flush();
}
