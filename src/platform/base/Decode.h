#pragma once

#include "platform/base/Ascii.h"
#include "platform/base/AsciiRuns.h"
#include "platform/base/Codec.h"

#include <string>
#include <string_view>

/// Decodes 8-bit text, runs of ASCII at once and the rest character by character.
/// @param sText the bytes
/// @param rCodec of their code page
/// @param rOnMisfit called as (bytes, rsOut) for each ill-formed part, in its place
/// @return the text in 16-bit units, with what rOnMisfit put in
template <class TOnMisfit>
[[nodiscard]] std::u16string gDecode(std::string_view sText, const ICodec& rCodec,
                                     const TOnMisfit& rOnMisfit)
{
    std::u16string sOut;
    sOut.reserve(sText.size());
    gForEachRun(
        sText, [&sOut](std::string_view sAscii) { gAppendWidened(sAscii, sOut); },
        [&](std::string_view& rsRest) {
            const std::string_view sBefore = rsRest;
            if (!rCodec.DecodeNext(rsRest, sOut)) {
                rOnMisfit(sBefore.substr(0, sBefore.size() - rsRest.size()), sOut);
            }
        });
    return sOut;
}
