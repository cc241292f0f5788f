#include "foundation/PathRules.h"
#include "foundation/PathText.h"
#include "foundation/Paths.h"

#include <cstddef>

namespace
{

/// The drive or the share in front of a path.
std::u16string_view HeadOf(std::u16string_view sPath)
{
    if (gHasTwoSlashes(sPath)) {
        const std::size_t nShareEnd = gFindShareEnd(sPath);
        return sPath.substr(0, nShareEnd == kNowhere ? 0 : nShareEnd);
    }
    return sPath.substr(0, gHasDrive(sPath) ? 2 : 0);
}

/// The place of the last slash before a place; kNowhere if there is none.
std::size_t SlashBefore(std::u16string_view sPath, std::size_t nAt)
{
    return nAt == 0 ? kNowhere : sPath.find_last_of(kSlashes, nAt - 1);
}

std::u16string Abbreviate(std::u16string_view sPath, std::size_t nWidth, bool bKeepName)
{
    if (sPath.size() <= nWidth) {
        return std::u16string(sPath);
    }
    const char16_t chSeparator = gIsUnixStyleText(sPath) ? u'/' : u'\\';
    const std::u16string_view sName = gFileNameOf(sPath);
    const std::u16string sBegin = std::u16string(HeadOf(sPath)) + chSeparator + u"...";
    if (sBegin.size() + 1 + sName.size() > nWidth) {
        return std::u16string(bKeepName ? sName : std::u16string_view());
    }
    std::u16string sShortened = sBegin + chSeparator + std::u16string(sName);
    std::size_t nSlash = SlashBefore(sPath, sPath.size() - sName.size());
    while (nSlash != kNowhere && sBegin.size() + sPath.size() - nSlash <= nWidth) {
        sShortened = sBegin + std::u16string(sPath.substr(nSlash));
        nSlash = SlashBefore(sPath, nSlash);
    }
    return sShortened;
}

} // namespace

CStringU gAbbreviatePath(const CStringU& rPath, int nWidth, bool bKeepName)
{
    const auto nMost = static_cast<std::size_t>(nWidth < 0 ? 0 : nWidth);
    return Abbreviate(rPath.ToWide(), nMost, bKeepName);
}
