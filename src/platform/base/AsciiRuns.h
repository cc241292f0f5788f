#pragma once

#include "platform/base/Ascii.h"

/// Goes through a text that is nearly all ASCII: runs of ASCII characters at once, what stands
/// between them one by one.
/// @param sText a view of bytes or of 16-bit units
/// @param rOnAscii takes each run, perhaps an empty one
/// @param rOnOther takes a reference to the view of the rest, which begins with no ASCII character,
///                 and cuts at least one unit off its front
template <class TView, class TOnAscii, class TOnOther>
void gForEachRun(TView sText, const TOnAscii& rOnAscii, const TOnOther& rOnOther)
{
    while (!sText.empty()) {
        const TView sAscii = sText.substr(0, gFindNonAscii(sText));
        rOnAscii(sAscii);
        sText.remove_prefix(sAscii.size());
        while (!sText.empty() && !gIsAsciiUnit(sText.front())) {
            rOnOther(sText);
        }
    }
}
