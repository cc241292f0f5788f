#include "platform/base/SystemPath.h"

#include "platform/base/CodePage.h"

#include <algorithm>

std::string gToSystemPath(std::u16string_view sPath)
{
    constexpr std::u16string_view noLimit = uR"(\\?\)";
    if (sPath.starts_with(noLimit)) {
        sPath.remove_prefix(noLimit.size());
    }
    std::u16string sName(sPath);
    std::ranges::replace(sName, u'\\', u'/');
    return gWideToMultiByte(sName, kCodePageUtf8);
}
