// The one buffer between the text operations and the file.

#include "foundation/TextFile.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <utility>

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
    std::u16string().swap(msUnitBuffer);
    mnValid = 0;
    mnBufferPosition = 0;
    mnIndex = 0;
    mbDirty = false;
    mnStreamPosition = 0;
}

// Puts what was read from the raw beginning into the buffer.
void TTextFile::KeepRead(std::string_view sBytes)
{
    mnValid = sBytes.copy(mpBuffer.get(), kBufferSize);
    mnBufferPosition = 0;
    mnIndex = 0;
}

std::uint64_t TTextFile::CurrentPosition() const
{
    // Where nothing is buffered the file knows it best, whatever became of the last call.
    return mnValid > 0 && IsOpen() ? mnBufferPosition + mnIndex : RawPosition();
}

std::string_view TTextFile::Buffered() const noexcept
{
    return mnIndex < mnValid ? std::string_view(mpBuffer.get() + mnIndex, mnValid - mnIndex)
                             : std::string_view();
}

bool TTextFile::WriteOut()
{
    if (mnValid == 0 || !IsOpen()) {
        return true;
    }
    bool bWritten = true;
    const std::uint64_t nPosition = mnBufferPosition + mnIndex;
    const std::size_t nValid = std::exchange(mnValid, 0);
    mnIndex = 0;
    try {
        if (std::exchange(mbDirty, false)) {
            bWritten = false;
            RawSeek(mnBufferPosition);
            RawWrite(mpBuffer.get(), nValid);
            bWritten = true;
        }
    } catch (const CFileException& rException) {
        KeepWriteError(rException.GetOsError());
    }
    try {
        RawSeek(nPosition);
    } catch (const CFileException&) {
        // What can't be sought in is read and written on from where it is.
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
        mnBufferPosition = RawPosition();
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
        try {
            nDone += RawRead(pOut + nDone, nDirect);
        } catch (const CFileException&) {
            return static_cast<unsigned>(nDone);
        }
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
    if (mnValid == 0) {
        AllocateBuffer();
        // In memory a place past the end is the end.
        mnBufferPosition = IsInMemory() ? std::min(RawPosition(), RawLength()) : RawPosition();
    }
    const std::size_t nBuffered = std::min<std::size_t>(sBytes.size(), kBufferSize - mnIndex);
    std::memcpy(mpBuffer.get() + mnIndex, sBytes.data(), nBuffered);
    mnIndex += nBuffered;
    mnValid = std::max(mnValid, mnIndex);
    mbDirty = true;
    const bool bWritten = mnIndex < kBufferSize || WriteOut();
    if (nBuffered < sBytes.size()) {
        RawWrite(sBytes.data() + nBuffered, sBytes.size() - nBuffered);
    }
    return bWritten;
}

void TTextFile::Write(const void* pBuffer, unsigned nCount)
{
    Put({static_cast<const char*>(pBuffer), nCount});
}
