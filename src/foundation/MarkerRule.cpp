#include "foundation/MarkerRule.h"

#include "foundation/StringOrder.h"
#include "foundation/Utf8Units.h"
#include "platform/base/Ascii.h"

#include <cstddef>

std::string gStoreMarked(std::string_view sText)
{
    const std::size_t nAscii = gFindNonAscii(sText);
    const bool bMarker = nAscii > 0 && nAscii < sText.size();
    std::string sStored;
    sStored.reserve(sText.size() + (bMarker ? 1 : 0));
    sStored.append(bMarker ? 1 : 0, kUtf8Marker);
    return sStored += sText;
}

std::string gStoreWide(std::u16string_view sText)
{
    const auto [nUnits, nBytes] = gMeasureUnits(sText);
    const bool bMarker = nBytes > nUnits && sText.front() < 0x80;
    std::string sStored(nBytes + (bMarker ? 1 : 0), kUtf8Marker);
    gEncodeUnits(sText.substr(0, nUnits), sStored.data() + (bMarker ? 1 : 0));
    return sStored;
}
