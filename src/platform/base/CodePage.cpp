#include "platform/base/CodePage.h"

#include "platform/base/Ascii.h"
#include "platform/base/AsciiRuns.h"
#include "platform/base/Codec.h"
#include "platform/base/Decode.h"
#include "platform/base/Exceptions.h"

#include <unicode/uchar.h>

#include <cstddef>

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
    return gDecode(
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
