// Under the buffer: the file on the disk or the text in memory, with the mark counted.

#include "foundation/TextFile.h"

#include <algorithm>
#include <cstddef>

unsigned TTextFile::RawRead(void* pBuffer, std::size_t nCount)
{
    if (!mbInMemory) {
        return CFile::Read(pBuffer, static_cast<unsigned>(nCount));
    }
    const std::string_view sText = mpText->Text();
    const std::size_t nFirst = std::min<std::size_t>(mnMemoryPosition, sText.size());
    const std::size_t nRead = sText.copy(static_cast<char*>(pBuffer), nCount, nFirst);
    mnMemoryPosition += nRead;
    return static_cast<unsigned>(nRead);
}

void TTextFile::RawWrite(const char* pBuffer, std::size_t nCount)
{
    if (mbInMemory) {
        WriteIntoMemory({pBuffer, nCount});
    } else {
        CFile::Write(pBuffer, static_cast<unsigned>(nCount));
    }
}

// At the end it appends, inside it takes the place of as many bytes, and a position past the end is
// the end. The result is joined as bytes, because a block may begin or end inside a character.
void TTextFile::WriteIntoMemory(std::string_view sBytes)
{
    const std::string_view sText = mpText->Text();
    const std::size_t nFirst = std::min<std::size_t>(mnMemoryPosition, sText.size());
    if (nFirst == sText.size()) {
        mpText->AppendUtf8(sBytes);
    } else {
        std::string sJoined(sText);
        sJoined.replace(nFirst, sBytes.size(), sBytes);
        mpText->Empty();
        mpText->AppendUtf8(sJoined);
    }
    mnMemoryPosition = nFirst + sBytes.size();
}

void TTextFile::RawSeek(std::uint64_t nPosition)
{
    if (mbInMemory) {
        mnMemoryPosition = nPosition;
    } else {
        CFile::Seek(static_cast<std::int64_t>(nPosition), begin);
    }
}

std::uint64_t TTextFile::RawPosition() const
{
    return mbInMemory ? mnMemoryPosition : CFile::GetPosition();
}

std::uint64_t TTextFile::RawLength() const
{
    return mbInMemory ? mpText->Text().size() : CFile::GetLength();
}
