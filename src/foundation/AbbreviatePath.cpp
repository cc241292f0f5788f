#include "foundation/PathParts.h"
#include "foundation/PathText.h"
#include "foundation/Paths.h"
#include "foundation/UnixStyle.h"

#include <cstddef>

namespace
{

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
    const std::size_t nHead = gHeadLength(sPath);
    std::u16string sBegin(sPath.substr(0, nHead != kNowhere ? nHead : 0));
    sBegin += chSeparator;
    sBegin += u"...";
    if (sBegin.size() + 1 + sName.size() > nWidth) {
        return std::u16string(bKeepName ? sName : std::u16string_view());
    }
    std::size_t nFits = kNowhere; // where the longest end begins that fits
    std::size_t nSlash = SlashBefore(sPath, sPath.size() - sName.size());
    while (nSlash != kNowhere && sBegin.size() + sPath.size() - nSlash <= nWidth) {
        nFits = nSlash;
        nSlash = SlashBefore(sPath, nSlash);
    }
    if (nFits != kNowhere) {
        return sBegin += sPath.substr(nFits);
    }
    sBegin += chSeparator;
    return sBegin += sName;
}

} // namespace

CStringU gAbbreviatePath(const CStringU& rPath, int nWidth, bool bKeepName)
{
    const auto nMost = static_cast<std::size_t>(nWidth < 0 ? 0 : nWidth);
    return Abbreviate(rPath.ToWide(), nMost, bKeepName);
}
