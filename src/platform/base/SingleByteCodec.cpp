#include "platform/base/SingleByteCodec.h"

#include <algorithm>
#include <cstddef>

CSingleByteCodec::CSingleByteCodec(const ICodec& rSource)
{
    for (std::size_t nByte = 0; nByte < mUnits.size(); ++nByte) {
        const char chByte = static_cast<char>(nByte);
        std::string_view sByte(&chByte, 1);
        std::u16string sUnit;
        const bool bDefined = rSource.DecodeNext(sByte, sUnit) && sUnit.size() == 1;
        mUnits[nByte] = bDefined ? sUnit[0] : kNoCharacter;

        // Where two bytes have the same character, the source knows which one is written.
        std::u16string_view sRest(sUnit);
        std::string sBack;
        if (bDefined && nByte >= 0x80 && rSource.EncodeNext(sRest, sBack) && sBack.size() == 1) {
            mHighBytes.emplace_back(sUnit[0], sBack[0]);
        }
    }
    std::sort(mHighBytes.begin(), mHighBytes.end());
}

bool CSingleByteCodec::DecodeNext(std::string_view& rsRest, std::u16string& rsOut) const
{
    const char16_t chUnit = mUnits[static_cast<unsigned char>(rsRest.front())];
    rsRest.remove_prefix(1);
    if (chUnit == kNoCharacter) {
        return false;
    }
    rsOut.push_back(chUnit);
    return true;
}

bool CSingleByteCodec::EncodeNext(std::u16string_view& rsRest, std::string& rsOut) const
{
    const char16_t chUnit = rsRest.front();
    rsRest.remove_prefix(gCountFirstUnits(rsRest));
    if (chUnit < 0x80) {
        rsOut.push_back(static_cast<char>(chUnit));
        return true;
    }
    const auto it = std::lower_bound(
        mHighBytes.begin(), mHighBytes.end(), chUnit,
        [](const std::pair<char16_t, char>& rEntry, char16_t ch) { return rEntry.first < ch; });
    if (it == mHighBytes.end() || it->first != chUnit) {
        return false;
    }
    rsOut.push_back(it->second);
    return true;
}
