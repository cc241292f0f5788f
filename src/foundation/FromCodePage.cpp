#include "foundation/FromCodePage.h"

#include "foundation/MarkerRule.h"
#include "foundation/Utf8Units.h"
#include "platform/base/Ascii.h"
#include "platform/base/CodePage.h"
#include "platform/base/Codec.h"

#include <cstddef>

namespace
{

constexpr char16_t kReplacement = 0xFFFD;

void AppendUnits(std::u16string_view sUnits, std::string& rsStored)
{
    const std::size_t nOld = rsStored.size();
    rsStored.resize(nOld + gMeasureUnits(sUnits).nBytes);
    gEncodeUnits(sUnits, rsStored.data() + nOld);
}

} // namespace

void gStoreCodePage(std::string_view sText, std::string& rsStored)
{
    rsStored.clear();
    const ICodec& rCodec = *gFindCodec(gGetSystemCodePage()); // the system's is always known
    std::string_view sRest = sText;
    std::u16string sUnits;
    while (!sRest.empty()) {
        const std::string_view sAscii = sRest.substr(0, gFindNonAscii(sRest));
        const std::string_view sRun = sAscii.substr(0, sAscii.find('\0'));
        rsStored += sRun;
        if (sRun.size() < sAscii.size()) {
            break;
        }
        sRest.remove_prefix(sAscii.size());
        if (!sRest.empty()) {
            sUnits.clear();
            if (!rCodec.DecodeNext(sRest, sUnits)) {
                sUnits = kReplacement;
            }
            AppendUnits(sUnits, rsStored);
        }
    }
    gMark(rsStored);
}
