#include "platform/base/CodePage.h"

#include "platform/base/Ascii.h"
#include "platform/base/AsciiRuns.h"
#include "platform/base/Codec.h"
#include "platform/base/Exceptions.h"

#include <unicode/uchar.h>

#include <cstddef>
#include <utility>

namespace
{

unsigned gnSystemCodePage = kCodePageUtf8;

const ICodec& CodecOf(unsigned nCodePage)
{
    const ICodec* pCodec = gFindCodec(nCodePage);
    if (pCodec == nullptr) {
        gThrowInvalidArg("unknown code page");
    }
    return *pCodec;
}

// Decodes with rOnMisfit(ill-formed bytes, rsOut) for each part that isn't valid.
template <class TOnMisfit>
std::u16string Decode(std::string_view sText, const ICodec& rCodec, const TOnMisfit& rOnMisfit)
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

} // namespace

unsigned gGetSystemCodePage() noexcept
{
    return gnSystemCodePage;
}

void gSetSystemCodePage(unsigned nCodePage)
{
    static_cast<void>(CodecOf(nCodePage));
    gnSystemCodePage = nCodePage;
}

bool gIsCodePageKnown(unsigned nCodePage)
{
    return gFindCodec(nCodePage) != nullptr;
}

std::u16string gMultiByteToWide(std::string_view sText, unsigned nCodePage)
{
    return Decode(
        sText, CodecOf(nCodePage),
        [](std::string_view /*sBytes*/, std::u16string& rsOut) { rsOut.push_back(kReplacement); });
}

std::string gWideToMultiByte(std::u16string_view sText, unsigned nCodePage, char chDefault,
                             bool* pbReplaced)
{
    const ICodec& rCodec = CodecOf(nCodePage);
    bool bReplaced = false;
    std::string sOut;
    sOut.reserve(sText.size());
    gForEachRun(
        sText,
        [&sOut](std::u16string_view sAscii) {
            const std::size_t nOld = sOut.size();
            sOut.resize(nOld + sAscii.size());
            gNarrowAscii(sAscii, sOut.data() + nOld);
        },
        [&](std::u16string_view& rsRest) {
            const std::size_t nBefore = rsRest.size();
            if (!rCodec.EncodeNext(rsRest, sOut)) {
                sOut.append(nBefore - rsRest.size(), chDefault);
                bReplaced = true;
            }
        });
    if (pbReplaced != nullptr) {
        *pbReplaced = bReplaced;
    }
    return sOut;
}

std::string gToUtf8(const CString& rsText)
{
    const std::string_view sText = rsText;
    if (gIsAscii(sText)) {
        return std::string(sText);
    }
    const std::u16string sWide = Decode(sText, CodecOf(gGetSystemCodePage()),
                                        [](std::string_view sBytes, std::u16string& rsOut) {
                                            rsOut += gMultiByteToWide(sBytes, kCodePageWindows1252);
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
        Decode(sUtf8, CodecOf(kCodePageUtf8),
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

char16_t gToLowerWide(char16_t chChar) noexcept
{
    if (chChar < 0x80) {
        return static_cast<char16_t>(gToLowerAscii(static_cast<char>(chChar)));
    }
    return static_cast<char16_t>(u_tolower(chChar));
}

char16_t gToUpperWide(char16_t chChar) noexcept
{
    if (chChar < 0x80) {
        return static_cast<char16_t>(gToUpperAscii(static_cast<char>(chChar)));
    }
    return static_cast<char16_t>(u_toupper(chChar));
}
