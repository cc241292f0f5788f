#include "foundation/Literal.h"
#include "foundation/MarkerRule.h"
#include "foundation/StringU.h"
#include "platform/base/CodePage.h"
#include "platform/base/StringIndex.h"

#include <bitset>

namespace
{

/// The characters of a text, to be asked for one after the other.
class CCharacterSet
{
public:
    explicit CCharacterSet(const CStringU& rsText) noexcept
    {
        for (TCharIterator it = rsText.begin(); !it.IsEnd(); ++it) {
            mUnits.set(*it);
        }
    }

    [[nodiscard]] bool Has(char16_t chUnit) const noexcept { return mUnits.test(chUnit); }

private:
    std::bitset<0x10000> mUnits;
};

char16_t KeepCase(char16_t chChar) noexcept
{
    return chChar;
}

} // namespace

TCharIterator CStringU::Find(TCharacter character) const noexcept
{
    const char16_t chChar = character.mchUnit;
    // Not in UTF-8, where a malformed sequence may decode to an ASCII character.
    if (!IsUtf8()) {
        const std::size_t nFound =
            chChar < 0x100 ? Text().find(static_cast<char>(chChar)) : std::string_view::npos;
        return nFound == std::string_view::npos ? end()
                                                : TCharIterator(*this, static_cast<int>(nFound));
    }
    TCharIterator it = begin();
    while (!it.IsEnd() && *it != chChar) {
        ++it;
    }
    return it;
}

TCharIterator CStringU::FindNoCase(TCharacter character) const noexcept
{
    const char16_t chLower = gToLowerWide(character.mchUnit);
    TCharIterator it = begin();
    while (!it.IsEnd() && gToLowerWide(*it) != chLower) {
        ++it;
    }
    return it;
}

int CStringU::Find(const CStringU& rsText) const noexcept
{
    return gIndexOrNone(Text().find(rsText.Text()));
}

int CStringU::Find(const char* pText) const
{
    return gIndexOrNone(Text().find(CLiteral(pText).Text()));
}

int CStringU::ReverseFind(const CStringU& rsText) const noexcept
{
    return gIndexOrNone(Text().rfind(rsText.Text()));
}

int CStringU::ReverseFind(const char* pText) const
{
    return gIndexOrNone(Text().rfind(CLiteral(pText).Text()));
}

TCharIterator CStringU::FindOneOf(const CStringU& rsSet) const noexcept
{
    const CCharacterSet set(rsSet);
    TCharIterator it = begin();
    while (!it.IsEnd() && !set.Has(*it)) {
        ++it;
    }
    return it;
}

TCharIterator CStringU::FindLastOf(const CStringU& rsSet) const noexcept
{
    const CCharacterSet set(rsSet);
    TCharIterator it = end();
    while (it.GetIndex() > 0) {
        --it;
        if (set.Has(*it)) {
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
        Bytes() = gStoreUnits(sWide);
    }
    return nCount;
}

int CStringU::Replace(TCharacter oldOne, TCharacter newOne)
{
    return ReplaceIn(oldOne.mchUnit, newOne.mchUnit, KeepCase);
}

int CStringU::ReplaceNoCase(TCharacter oldOne, TCharacter newOne)
{
    return ReplaceIn(oldOne.mchUnit, newOne.mchUnit, gToLowerWide);
}

bool CStringU::StartsWith(const CStringU& rsText) const noexcept
{
    return Text().starts_with(rsText.Text());
}

bool CStringU::StartsWith(const char* pText) const
{
    return Text().starts_with(CLiteral(pText).Text());
}

bool CStringU::EndsWith(const CStringU& rsText) const noexcept
{
    return Text().ends_with(rsText.Text());
}

bool CStringU::EndsWith(const char* pText) const
{
    return Text().ends_with(CLiteral(pText).Text());
}
