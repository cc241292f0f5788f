// The one buffer between the text operations and the file.

#include "foundation/TextFile.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <limits>

namespace
{

constexpr std::size_t kBufferSize = 0x100000;

} // namespace

void TTextFile::AllocateBuffer()
{
    if (!mpBuffer) {
        mpBuffer.reset(new char[kBufferSize]); // left unset: a short file touches little of it
    }
}

void TTextFile::ResetBuffer() noexcept
{
    std::string().swap(msLineBuffer);
    mnValid = 0;
    mnBufferPosition = 0;
    mnIndex = 0;
    mbDirty = false;
}

std::string_view TTextFile::Buffered() const noexcept
{
    return mnIndex < mnValid ? std::string_view(mpBuffer.get() + mnIndex, mnValid - mnIndex)
                             : std::string_view();
}

bool TTextFile::WriteOut()
{
    if (mnValid == 0) {
        return true;
    }
    bool bWritten = true;
    if (mbDirty) {
        mbDirty = false;
        try {
            RawSeek(mnBufferPosition);
            RawWrite(mpBuffer.get(), mnValid);
        } catch (const CFileException& rException) {
            KeepWriteError(rException.GetOsError());
            bWritten = false;
        }
    }
    mnBufferPosition += mnIndex;
    mnIndex = 0;
    mnValid = 0;
    try {
        RawSeek(mnBufferPosition);
    } catch (const CFileException&) {
        // What has no positions, such as a pipe, is read on from where it is.
        return bWritten;
    }
    return bWritten;
}

bool TTextFile::FillIfEmpty()
{
    if (mnIndex < mnValid) {
        return true;
    }
    WriteOut();
    AllocateBuffer();
    try {
        mnValid = RawRead(mpBuffer.get(), kBufferSize);
    } catch (const CFileException&) {
        mnValid = 0;
    }
    return mnValid > 0;
}

std::size_t TTextFile::TakeBuffered(char* pOut, std::size_t nCount)
{
    const std::size_t nTaken = Buffered().copy(pOut, nCount);
    mnIndex += nTaken;
    if (mnIndex == mnValid) {
        WriteOut();
    }
    return nTaken;
}

unsigned TTextFile::Read(void* pBuffer, unsigned nCount)
{
    if (!IsOpen()) {
        return 0;
    }
    char* const pOut = static_cast<char*>(pBuffer);
    std::size_t nDone = TakeBuffered(pOut, nCount);
    if (nCount - nDone >= kBufferSize) {
        const std::size_t nDirect = nCount - nDone - kBufferSize;
        std::size_t nRead = 0;
        try {
            nRead = RawRead(pOut + nDone, nDirect);
        } catch (const CFileException&) {
            return static_cast<unsigned>(nDone);
        }
        mnBufferPosition += nRead;
        nDone += nRead;
    }
    if (nDone < nCount && FillIfEmpty()) {
        nDone += TakeBuffered(pOut + nDone, nCount - nDone);
    }
    return static_cast<unsigned>(nDone);
}

bool TTextFile::Put(std::string_view sBytes)
{
    if (!IsOpen()) {
        CFileException::ThrowOsError(EBADF, msFileName.ToAnsi());
    }
    if (sBytes.empty()) {
        return true;
    }
    AllocateBuffer();
    const std::size_t nBuffered = std::min<std::size_t>(sBytes.size(), kBufferSize - mnIndex);
    std::memcpy(mpBuffer.get() + mnIndex, sBytes.data(), nBuffered);
    mnIndex += nBuffered;
    mnValid = std::max(mnValid, mnIndex);
    mbDirty = true;
    const bool bWritten = mnIndex < kBufferSize || WriteOut();
    if (nBuffered < sBytes.size()) {
        RawWrite(sBytes.data() + nBuffered, sBytes.size() - nBuffered);
        mnBufferPosition += sBytes.size() - nBuffered;
    }
    return bWritten;
}

void TTextFile::Write(const void* pBuffer, unsigned nCount)
{
    Put({static_cast<const char*>(pBuffer), nCount});
}

std::uint64_t TTextFile::GetPosition() const
{
    const std::uint64_t nPosition = mnValid > 0 ? mnBufferPosition + mnIndex : RawPosition();
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
    const std::int64_t nMark = MarkSize();
    std::uint64_t nFromPosition = 0; // where the offset counts from
    switch (nFrom) {
    case begin:
        nFromPosition = static_cast<std::uint64_t>(nMark);
        break;
    case current:
        nFromPosition = mnBufferPosition + mnIndex;
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
        WriteOut();
        RawSeek(nTarget);
        mnBufferPosition = nTarget;
    }
    return nTarget - static_cast<std::uint64_t>(nMark);
}

void TTextFile::SetLength(std::uint64_t nNewLength)
{
    if (!WriteOut()) {
        return;
    }
    if (mbInMemory) {
        std::string sText(mpText->Text());
        sText.resize(nNewLength);
        mpText->Empty();
        mpText->AppendUtf8(sText);
    } else {
        CFile::SetLength(nNewLength);
    }
    ApplyMarkRule(mEncoding);
    mnBufferPosition = RawPosition();
}

void TTextFile::LockRange(std::uint64_t nPosition, std::uint64_t nCount)
{
    if (!mbInMemory) {
        CFile::LockRange(nPosition + static_cast<std::uint64_t>(MarkSize()), nCount);
    }
}

void TTextFile::UnlockRange(std::uint64_t nPosition, std::uint64_t nCount)
{
    if (!mbInMemory) {
        CFile::UnlockRange(nPosition + static_cast<std::uint64_t>(MarkSize()), nCount);
    }
}

void TTextFile::Flush()
{
    WriteOut();
    CFile::Flush();
}
