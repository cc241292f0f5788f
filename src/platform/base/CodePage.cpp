#include "platform/base/CodePage.h"

#include "platform/base/Ascii.h"
#include "platform/base/Codec.h"
#include "platform/base/Exceptions.h"

#include <unicode/uchar.h>

#include <atomic>
#include <cstddef>
#include <utility>

namespace
{

constexpr char16_t kReplacement = 0xFFFD;

std::atomic<unsigned> gnSystemCodePage{kCodePageUtf8};

const ICodec& CodecOf(unsigned nCodePage)
{
    const ICodec* pCodec = gFindCodec(nCodePage);
    if (pCodec == nullptr) {
        gThrowInvalidArg("unknown code page");
    }
    return *pCodec;
}

// A text that begins with ASCII characters: moves them over, and leaves the rest.
void MoveAscii(std::string_view& rsRest, std::u16string& rsOut)
{
    const std::size_t nCount = gFindNonAscii(rsRest);
    gAppendWidened(rsRest.substr(0, nCount), rsOut);
    rsRest.remove_prefix(nCount);
}

void MoveAscii(std::u16string_view& rsRest, std::string& rsOut)
{
    const std::size_t nCount = gFindNonAscii(rsRest);
    const std::size_t nOld = rsOut.size();
    rsOut.resize(nOld + nCount);
    gNarrowAscii(rsRest.substr(0, nCount), rsOut.data() + nOld);
    rsRest.remove_prefix(nCount);
}

// Decodes with rOnMisfit(ill-formed bytes, rsOut) for each part that isn't valid.
template <class TOnMisfit>
std::u16string Decode(std::string_view sText, const ICodec& rCodec, const TOnMisfit& rOnMisfit)
{
    std::u16string sOut;
    sOut.reserve(sText.size());
    std::string_view sRest = sText;
    while (!sRest.empty()) {
        MoveAscii(sRest, sOut);
        while (!sRest.empty() && !gIsAscii(sRest.substr(0, 1))) {
            const std::string_view sBefore = sRest;
            if (!rCodec.DecodeNext(sRest, sOut)) {
                rOnMisfit(sBefore.substr(0, sBefore.size() - sRest.size()), sOut);
            }
        }
    }
    return sOut;
}

} // namespace

unsigned gGetSystemCodePage() noexcept
{
    return gnSystemCodePage.load(std::memory_order_relaxed);
}

void gSetSystemCodePage(unsigned nCodePage)
{
    static_cast<void>(CodecOf(nCodePage));
    gnSystemCodePage.store(nCodePage, std::memory_order_relaxed);
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
    std::u16string_view sRest = sText;
    while (!sRest.empty()) {
        MoveAscii(sRest, sOut);
        while (!sRest.empty() && sRest.front() >= 0x80) {
            const std::size_t nBefore = sRest.size();
            if (!rCodec.EncodeNext(sRest, sOut)) {
                sOut.append(nBefore - sRest.size(), chDefault);
                bReplaced = true;
            }
        }
    }
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
