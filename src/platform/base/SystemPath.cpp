#include "platform/base/SystemPath.h"

#include "platform/base/CodePage.h"

#include <algorithm>

std::string gToSystemName(std::string_view sPath)
{
    constexpr std::string_view noLimit = R"(\\?\)";
    if (sPath.starts_with(noLimit)) {
        sPath.remove_prefix(noLimit.size());
    }
    std::string sName(sPath);
    std::ranges::replace(sName, '\\', '/');
    return sName;
}

std::string gToSystemFileName(const CString& rsName)
{
    return gGetSystemCodePage() == kCodePageUtf8 ? gToSystemName(rsName)
                                                 : gToSystemName(gToUtf8(rsName));
}

std::string gToSystemPath(std::u16string_view sPath)
{
    return gToSystemName(gWideToMultiByte(sPath, kCodePageUtf8));
}
