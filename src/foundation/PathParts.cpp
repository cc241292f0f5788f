#include "foundation/PathParts.h"

#include "foundation/PathLog.h"
#include "foundation/PathText.h"
#include "foundation/Paths.h"
#include "platform/base/IsWine.h"

#include <cstddef>

std::u16string_view gFileNameOf(std::u16string_view sPath)
{
    const std::size_t nEnd = sPath.find_last_of(kNameEnds);
    return nEnd == kNowhere ? sPath : sPath.substr(nEnd + 1);
}

std::u16string_view gFolderOf(std::u16string_view sPath)
{
    const std::size_t nEnd = sPath.find_last_of(kNameEnds);
    if (nEnd == kNowhere) {
        return {};
    }
    const bool bDrive = sPath[nEnd] == u':' || (nEnd > 0 && sPath[nEnd - 1] == u':');
    return sPath.substr(0, bDrive ? nEnd + 1 : nEnd);
}

CStringU gGetFileNameWithoutPath(const CStringU& rFullPath)
{
    CStringU result = gFileNameOf(rFullPath.ToWide());
    gLogPathCall("gGetFileNameWithoutPath", {{"FullPath", rFullPath}}, result);
    return result;
}

CStringU gGetPathWithoutFileName(const CStringU& rFullPath)
{
    CStringU result = gFolderOf(rFullPath.ToWide());
    gLogPathCall("gGetPathWithoutFileName", {{"FullPath", rFullPath}}, result);
    return result;
}

bool gPathsEqual(const CStringU& rLeft, const CStringU& rRight)
{
    CStringU left = rLeft;
    CStringU right = rRight;
    left.Replace(u'/', u'\\');
    right.Replace(u'/', u'\\');
    return gIsWine() ? left == right : left.CompareNoCase(right) == 0;
}
