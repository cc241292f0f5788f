#include "platform/base/Utf8Text.h"

#include "platform/base/Ascii.h"
#include "platform/base/CodePage.h"
#include "platform/base/Codec.h"
#include "platform/base/Decode.h"

#include <utility>

std::string gToUtf8(const CString& rsText)
{
    const std::string_view sText = rsText;
    if (gIsAscii(sText)) {
        return std::string(sText);
    }
    const std::u16string sWide = gDecode(sText, *gFindCodec(gGetSystemCodePage()),
                                         [](std::string_view sBytes, std::u16string& rsOut) {
                                             rsOut +=
                                                 gMultiByteToWide(sBytes, kCodePageWindows1252);
                                         });
    return gWideToMultiByte(sWide, kCodePageUtf8);
}

std::optional<CString> gFromUtf8(std::string_view sUtf8)
{
    if (gIsAscii(sUtf8)) {
        return CString(sUtf8);
    }
    bool bIllFormed = false;
    const std::u16string sWide =
        gDecode(sUtf8, *gFindCodec(kCodePageUtf8),
                [&bIllFormed](std::string_view /*sBytes*/, std::u16string& /*rsOut*/) {
                    bIllFormed = true;
                });
    bool bReplaced = false;
    std::string sText = gWideToMultiByte(sWide, gGetSystemCodePage(), '?', &bReplaced);
    if (bIllFormed || bReplaced) {
        return std::nullopt;
    }
    return CString(std::move(sText));
}
