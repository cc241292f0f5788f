#include "foundation/CanonicalForm.h"
#include "foundation/JoinedPath.h"
#include "foundation/PathLog.h"
#include "foundation/PathText.h"
#include "foundation/Paths.h"

#include <cstddef>
#include <utility>

namespace
{

/// What a path that begins with a slash starts from: the share, the drive, or the path itself.
std::u16string_view RootOf(std::u16string_view sPath)
{
    if (const std::size_t nHead = gHeadLength(sPath); nHead != 0) {
        return sPath.substr(0, nHead);
    }
    return gEndsInSlash(sPath) ? sPath.substr(0, sPath.size() - 1) : sPath;
}

} // namespace

std::u16string gJoinPaths(std::u16string_view sPath, std::u16string_view sRelative)
{
    if (sPath.empty() || gIsAbsoluteText(sRelative)) {
        return gCanonicalForm(std::u16string(sRelative));
    }
    std::u16string sJoined(sPath);
    if (gHasSlashAt(sRelative, 0)) {
        sJoined = RootOf(sPath);
    } else if (!sRelative.empty() && !gEndsInSlash(sJoined) && !sJoined.ends_with(u':')) {
        sJoined += u'\\';
    }
    sJoined += sRelative;
    return gCanonicalForm(std::move(sJoined));
}

CStringU gConcatenatePaths(const CStringU& rPath, const CStringU& rRelativePath)
{
    CStringU result = gJoinPaths(rPath.ToWide(), rRelativePath.ToWide());
    gLogPathCall("gConcatenatePaths", {{"Path", rPath}, {"RelativePath", rRelativePath}}, result);
    return result;
}

CStringU gResolvePath(const CStringU& rBase, const CStringU& rPath)
{
    const std::u16string sPath = rPath.ToWide();
    return gIsAbsoluteText(sPath) ? gCanonicalForm(sPath) : gJoinPaths(rBase.ToWide(), sPath);
}
