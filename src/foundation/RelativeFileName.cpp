#include "foundation/CanonicalForm.h"
#include "foundation/PathLog.h"
#include "foundation/PathText.h"
#include "foundation/Paths.h"
#include "foundation/UnixStyle.h"
#include "platform/base/IsWine.h"

#include <algorithm>
#include <cstddef>

namespace
{

/// How far a folder and a file name go together.
struct TCommon {
    std::size_t mnLength = 0;  ///< in characters
    std::size_t mnBehind = 0;  ///< the place behind the last common slash, 0 without one
    std::size_t mnSlashes = 0; ///< how many common slashes there are
};

char16_t Raise(char16_t chChar)
{
    return chChar >= u'a' && chChar <= u'z' ? static_cast<char16_t>(chChar - (u'a' - u'A'))
                                            : chChar;
}

TCommon Compare(std::u16string_view sFolder, std::u16string_view sFile)
{
    TCommon common;
    std::size_t& rnAt = common.mnLength;
    for (; rnAt < std::min(sFolder.size(), sFile.size()); ++rnAt) {
        if (Raise(sFolder[rnAt]) != Raise(sFile[rnAt])) {
            break;
        }
        if (gIsSlash(sFile[rnAt])) {
            common.mnBehind = rnAt + 1;
            ++common.mnSlashes;
        }
    }
    return common;
}

bool HaveCommonRoot(std::u16string_view sFolder, const TCommon& rCommon)
{
    const std::size_t nLastSlash = rCommon.mnBehind == 0 ? 0 : rCommon.mnBehind - 1;
    if (nLastSlash >= 2 && (gHasDrive(sFolder) || (gIsWine() && gIsUnixStyleText(sFolder)))) {
        return true;
    }
    // Behind two slashes: server and share are the same.
    return nLastSlash >= 5 && rCommon.mnSlashes >= 4 && gHasTwoSlashes(sFolder);
}

/// The way up from the folder to the last common slash.
std::u16string WayUp(std::u16string_view sFolder, const TCommon& rCommon)
{
    const std::u16string_view sBehind = sFolder.substr(rCommon.mnBehind);
    auto nLevels = std::ranges::count_if(sBehind, gIsSlash);
    if (!gEndsInSlash(sFolder)) {
        ++nLevels;
    }
    std::u16string sWay;
    for (; nLevels > 0; --nLevels) {
        sWay += gIsWine() ? u"../" : u"..\\";
    }
    return sWay;
}

std::u16string MakeRelative(std::u16string_view sFolder, std::u16string_view sFile)
{
    if (sFolder.empty() || !gIsAbsoluteText(sFile)) {
        return std::u16string(sFile);
    }
    const TCommon common = Compare(sFolder, sFile);
    if (common.mnLength == sFolder.size()) {
        if (gEndsInSlash(sFolder)) {
            return std::u16string(sFile.substr(common.mnLength));
        }
        if (gHasSlashAt(sFile, common.mnLength)) {
            return std::u16string(sFile.substr(common.mnLength + 1));
        }
    }
    if (!HaveCommonRoot(sFolder, common)) {
        return std::u16string(sFile);
    }
    return WayUp(sFolder, common) += sFile.substr(common.mnBehind);
}

} // namespace

CStringU gGetRelativeFileName(const CStringU& rPath, const CStringU& rFileName)
{
    std::u16string sRelative = MakeRelative(rPath.ToWide(), rFileName.ToWide());
    if (gIsWine()) {
        std::ranges::replace(sRelative, u'\\', u'/');
    }
    CStringU result = sRelative;
    gLogPathCall("gGetRelativeFileName", {{"Path", rPath}, {"FileName", rFileName}}, result);
    return result;
}
