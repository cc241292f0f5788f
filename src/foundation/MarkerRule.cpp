#include "foundation/MarkerRule.h"

#include "foundation/Utf8Units.h"
#include "platform/base/Ascii.h"

#include <algorithm>

namespace
{

// Of stored bytes that were changed behind a marker of nMarker bytes: brings the marker in line.
void SetMarker(std::string& rsStored, std::size_t nMarker, bool bUtf8)
{
    const std::string_view sText = std::string_view(rsStored).substr(nMarker);
    const bool bNeeded = bUtf8 && gNeedsMarker(sText) && sText.front() != '\0';
    if (bNeeded && nMarker == 0) {
        rsStored.insert(0, 1, kUtf8Marker);
    } else if (!bNeeded && nMarker != 0) {
        rsStored.erase(0, nMarker);
    }
}

} // namespace

std::string gStoreMarked(std::string_view sText)
{
    const bool bMarker = gNeedsMarker(sText) && !gIsAscii(sText);
    std::string sStored;
    sStored.reserve(sText.size() + (bMarker ? 1 : 0));
    sStored.append(bMarker ? 1 : 0, kUtf8Marker);
    return sStored += sText;
}

void gMark(std::string& rsText)
{
    if (gNeedsMarker(rsText) && !gIsAscii(rsText)) {
        rsText.insert(0, 1, kUtf8Marker);
    }
}

std::string gStoreWide(std::u16string_view sText)
{
    const auto [nUnits, nBytes] = gMeasureUnits(sText);
    const bool bMarker = nBytes > nUnits && sText.front() < 0x80;
    std::string sStored(nBytes + (bMarker ? 1 : 0), kUtf8Marker);
    gEncodeUnits(sText.substr(0, nUnits), sStored.data() + (bMarker ? 1 : 0));
    return sStored;
}

std::string gStoreUnits(std::u16string_view sText)
{
    std::string sStored;
    std::u16string_view sRest = sText;
    while (!sRest.empty()) {
        const auto [nUnits, nBytes] = gMeasureUnits(sRest);
        const std::size_t nOld = sStored.size();
        sStored.resize(nOld + nBytes);
        gEncodeUnits(sRest.substr(0, nUnits), sStored.data() + nOld);
        sRest.remove_prefix(nUnits);
        if (!sRest.empty()) { // it stopped at a zero
            sStored += '\0';
            sRest.remove_prefix(1);
        }
    }
    gMark(sStored);
    return sStored;
}

void gStoreUtf8(std::string_view sUtf8, std::string& rsStored)
{
    const bool bMarker = !sUtf8.empty() && sUtf8.front() != '\0' && !gIsStoredUtf8(sUtf8);
    rsStored.clear();
    rsStored.reserve(sUtf8.size() + 1);
    rsStored.append(bMarker ? 1 : 0, kUtf8Marker);
    rsStored += sUtf8;
}

void gAppendStored(std::string& rsStored, std::string_view sStored)
{
    const bool bUtf8 = gIsStoredUtf8(sStored);
    const std::string_view sText = gBehindMarker(sStored);
    if (rsStored.empty() && !sText.empty()) {
        rsStored = sStored; // with its marker, which may guard a stray 0x80
        return;
    }
    rsStored += sText;
    if (bUtf8 && !rsStored.empty() && !gIsStoredUtf8(rsStored)) {
        rsStored.insert(0, 1, kUtf8Marker);
    }
}

void gOverwriteStored(std::string& rsStored, std::size_t nFirst, std::string_view sBytes)
{
    const std::string_view sText = gBehindMarker(rsStored);
    const std::size_t nMarker = rsStored.size() - sText.size();
    const std::size_t nAt = std::min(nFirst, sText.size());
    const std::string_view sGone = sText.substr(nAt, sBytes.size());
    // Only where the pieces don't tell must all of the text be looked at: it may have lost its last
    // other byte, or shows its form again behind a zero.
    const bool bWasUtf8 = gIsStoredUtf8(rsStored);
    const bool bLook = bWasUtf8 ? !gIsAscii(sGone) : nAt == 0 && sText.starts_with('\0');
    rsStored.replace(nMarker + nAt, sGone.size(), sBytes);
    const bool bUtf8 = !gIsAscii(sBytes) ||
                       (bLook ? !gIsAscii(std::string_view(rsStored).substr(nMarker)) : bWasUtf8);
    SetMarker(rsStored, nMarker, bUtf8);
}

void gResizeStored(std::string& rsStored, std::size_t nSize)
{
    const std::string_view sText = gBehindMarker(rsStored);
    const std::size_t nMarker = rsStored.size() - sText.size();
    const bool bWasUtf8 = gIsStoredUtf8(rsStored);
    const bool bLook = bWasUtf8 && !gIsAscii(sText.substr(std::min(nSize, sText.size())));
    rsStored.resize(nMarker + nSize);
    const bool bUtf8 = bLook ? !gIsAscii(std::string_view(rsStored).substr(nMarker)) : bWasUtf8;
    SetMarker(rsStored, nMarker, bUtf8);
}
