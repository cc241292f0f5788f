#include "platform/base/SystemPath.h"

#include "platform/base/CodePage.h"

#include <algorithm>
#include <array>

namespace
{

// Without the prefix, and with one kind of separator.
template <class TChar> std::basic_string<TChar> ToPosix(std::basic_string_view<TChar> sPath)
{
    constexpr std::array<TChar, 4> noLimit{TChar('\\'), TChar('\\'), TChar('?'), TChar('\\')};
    if (sPath.starts_with(std::basic_string_view<TChar>(noLimit.data(), noLimit.size()))) {
        sPath.remove_prefix(noLimit.size());
    }
    std::basic_string<TChar> sName(sPath);
    std::ranges::replace(sName, TChar('\\'), TChar('/'));
    return sName;
}

} // namespace

std::string gToSystemPath(std::u16string_view sPath)
{
    return gWideToMultiByte(ToPosix(sPath), kCodePageUtf8);
}

std::string gToSystemFileName(const CString& rsName)
{
    const std::string_view sName(rsName);
    const unsigned nCodePage = gGetSystemCodePage();
    return nCodePage == kCodePageUtf8 ? ToPosix(sName)
                                      : gToSystemPath(gMultiByteToWide(sName, nCodePage));
}

std::string gToSystemPathOfUtf8(std::string_view sPath)
{
    return ToPosix(sPath);
}
