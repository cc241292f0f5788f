#include "foundation/StringU.h"
#include "platform/base/Ascii.h"
#include "platform/base/CodePage.h"

#include <algorithm>

namespace
{

int IndexOrNone(std::size_t nFound) noexcept
{
    return nFound == std::string_view::npos ? -1 : static_cast<int>(nFound);
}

char16_t KeepCase(char16_t chChar) noexcept
{
    return chChar;
}

} // namespace

TCharIterator CStringU::Find(char16_t chChar) const noexcept
{
    // Not in UTF-8, where a malformed sequence may decode to an ASCII character.
    if (!IsUtf8()) {
        const std::size_t nFound =
            chChar < 0x100 ? Text().find(static_cast<char>(chChar)) : std::string_view::npos;
        return nFound == std::string_view::npos ? end() : TCharIterator(*this, IndexOrNone(nFound));
    }
    TCharIterator it = begin();
    while (!it.IsEnd() && *it != chChar) {
        ++it;
    }
    return it;
}

TCharIterator CStringU::FindNoCase(char16_t chChar) const noexcept
{
    const char16_t chLower = gToLowerWide(chChar);
    TCharIterator it = begin();
    while (!it.IsEnd() && gToLowerWide(*it) != chLower) {
        ++it;
    }
    return it;
}

int CStringU::Find(const CStringU& rsText) const noexcept
{
    return IndexOrNone(Text().find(rsText.Text()));
}

int CStringU::ReverseFind(const CStringU& rsText) const noexcept
{
    return IndexOrNone(Text().rfind(rsText.Text()));
}

TCharIterator CStringU::FindOneOf(const CStringU& rsSet) const noexcept
{
    TCharIterator it = begin();
    while (!it.IsEnd() && rsSet.Find(*it).IsEnd()) {
        ++it;
    }
    return it;
}

TCharIterator CStringU::FindLastOf(const CStringU& rsSet) const noexcept
{
    TCharIterator it = end();
    while (it.GetIndex() > 0) {
        --it;
        if (!rsSet.Find(*it).IsEnd()) {
            return it;
        }
    }
    return end();
}

int CStringU::ReplaceIn(char16_t chOld, char16_t chNew, char16_t (*pFold)(char16_t) noexcept)
{
    if (chOld == 0 || chNew == 0) {
        return 0;
    }
    const char16_t chFolded = pFold(chOld);
    int nCount = 0;
    if (!IsUtf8() && chNew < 0x80) {
        if (chOld >= 0x80) {
            return 0; // also where its small letter is ASCII, as that of the kelvin sign
        }
        for (char& rchByte : Bytes()) {
            if (pFold(static_cast<unsigned char>(rchByte)) == chFolded) {
                rchByte = static_cast<char>(chNew);
                ++nCount;
            }
        }
        return nCount;
    }
    std::u16string sWide = ToWide();
    for (char16_t& rchUnit : sWide) {
        if (pFold(rchUnit) == chFolded) {
            rchUnit = chNew;
            ++nCount;
        }
    }
    if (nCount > 0) {
        *this = CStringU(sWide);
    }
    return nCount;
}

int CStringU::Replace(char16_t chOld, char16_t chNew)
{
    return ReplaceIn(chOld, chNew, KeepCase);
}

int CStringU::ReplaceNoCase(char16_t chOld, char16_t chNew)
{
    return ReplaceIn(chOld, chNew, gToLowerWide);
}

bool CStringU::StartsWith(const CStringU& rsText) const noexcept
{
    return Text().starts_with(rsText.Text());
}

bool CStringU::EndsWith(const CStringU& rsText) const noexcept
{
    return Text().ends_with(rsText.Text());
}
