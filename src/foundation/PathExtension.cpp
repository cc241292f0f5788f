#include "foundation/JoinedPath.h"
#include "foundation/PathParts.h"
#include "foundation/PathText.h"
#include "foundation/Paths.h"

#include <cstddef>

namespace
{

/// The place of the point in front of the extension; kNowhere without one.
std::size_t FindPoint(std::u16string_view sPath)
{
    const std::size_t nPoint = sPath.rfind(u'.');
    return nPoint == kNowhere || sPath.find_first_of(kNameEnds, nPoint) != kNowhere ? kNowhere
                                                                                    : nPoint;
}

/// The path up to and with its point, which is appended where there is none.
std::u16string UpToPoint(std::u16string_view sPath)
{
    const std::size_t nPoint = FindPoint(sPath);
    return std::u16string(sPath.substr(0, nPoint)) + u'.';
}

/// The file's own name without its extension.
std::u16string TitleOf(std::u16string_view sPath)
{
    const std::u16string_view sName = gFileNameOf(sPath);
    return std::u16string(sName.substr(0, FindPoint(sName)));
}

} // namespace

bool gHasExtension(const CStringU& rPath)
{
    return FindPoint(rPath.ToWide()) != kNowhere;
}

CStringU gGetExtension(const CStringU& rPath)
{
    const std::u16string sPath = rPath.ToWide();
    const std::size_t nPoint = FindPoint(sPath);
    return nPoint == kNowhere ? CStringU() : CStringU(sPath.substr(nPoint + 1));
}

CStringU gSetExtension(const CStringU& rPath, const CStringU& rExtension)
{
    return UpToPoint(rPath.ToWide()) + rExtension.ToWide();
}

CStringU gEnsureExtension(const CStringU& rPath, const CStringU& rExtension)
{
    if (gGetExtension(rPath).CompareNoCase(rExtension) == 0) {
        return rPath;
    }
    return rPath.ToWide() + u'.' + rExtension.ToWide();
}

CStringU gGetFileTitle(const CStringU& rPath)
{
    return TitleOf(rPath.ToWide());
}

CStringU gGetPathWithoutExtension(const CStringU& rPath)
{
    const std::u16string sPath = rPath.ToWide();
    return gJoinPaths(gFolderOf(sPath), TitleOf(sPath));
}
