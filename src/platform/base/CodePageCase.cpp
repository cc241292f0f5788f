#include "platform/base/CodePageCase.h"

#include "platform/base/Ascii.h"
#include "platform/base/AsciiRuns.h"
#include "platform/base/CodePage.h"
#include "platform/base/Codec.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace
{

struct TCaseMapping {
    char (*pMapAscii)(char) noexcept;
    char16_t (*pMapWide)(char16_t) noexcept;
};

void AppendMapped(std::string_view& rsRest, const ICodec& rCodec, const TCaseMapping& rMapping,
                  std::string& rsOut)
{
    const std::string_view sBefore = rsRest;
    std::u16string sUnits;
    if (rCodec.DecodeNext(rsRest, sUnits) && sUnits.size() == 1) {
        const char16_t chMapped = rMapping.pMapWide(sUnits[0]);
        std::u16string_view sMapped(&chMapped, 1);
        // An unchanged character keeps its bytes: the code page may have it twice.
        if (chMapped != sUnits[0] && rCodec.EncodeNext(sMapped, rsOut)) {
            return;
        }
    }
    rsOut += sBefore.substr(0, sBefore.size() - rsRest.size());
}

std::string MapCase(std::string_view sText, const TCaseMapping& rMapping)
{
    const ICodec* pCodec = gIsAscii(sText) ? nullptr : gFindCodec(gGetSystemCodePage());
    std::string sOut;
    sOut.reserve(sText.size());
    gForEachRun(
        sText,
        [&](std::string_view sAscii) {
            std::transform(sAscii.begin(), sAscii.end(), std::back_inserter(sOut),
                           rMapping.pMapAscii);
        },
        [&](std::string_view& rsRest) { AppendMapped(rsRest, *pCodec, rMapping, sOut); });
    return sOut;
}

} // namespace

std::string gToLowerInCodePage(std::string_view sText)
{
    return MapCase(sText, {gToLowerAscii, gToLowerWide});
}

std::string gToUpperInCodePage(std::string_view sText)
{
    return MapCase(sText, {gToUpperAscii, gToUpperWide});
}
