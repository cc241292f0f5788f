#include "foundation/FromCodePage.h"

#include "foundation/MarkerRule.h"
#include "foundation/Utf8Units.h"
#include "platform/base/AsciiRuns.h"
#include "platform/base/CodePage.h"
#include "platform/base/Codec.h"

#include <cstddef>

namespace
{

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
    std::u16string sUnits;
    gForEachRun(
        sText.substr(0, sText.find('\0')),
        [&rsStored](std::string_view sAscii) { rsStored += sAscii; },
        [&](std::string_view& rsRest) {
            sUnits.clear();
            if (!rCodec.DecodeNext(rsRest, sUnits)) {
                sUnits = kReplacement;
            }
            AppendUnits(sUnits, rsStored);
        });
    gMark(rsStored);
}
