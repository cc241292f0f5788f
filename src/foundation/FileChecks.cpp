#include "foundation/FileChecks.h"

#include "foundation/PathText.h"
#include "foundation/UnixSide.h"
#include "platform/base/FileSystem.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace
{

int& Mode()
{
    static int nMode = 0;
    return nMode;
}

/// A path that is only a drive with its slash, a share, or a slash. It has no entry in any folder.
bool IsOnlyRoot(std::u16string_view sPath)
{
    const std::u16string_view sBehind = sPath.substr(std::min(gHeadLength(sPath), sPath.size()));
    if (!gHasTwoSlashes(sPath)) {
        return sBehind.size() == 1 && gIsSlash(sBehind.front());
    }
    const auto nServerEnd = sPath.find_first_of(kSlashes, 2);
    const bool bShare = nServerEnd != kNowhere && nServerEnd + 1 < sPath.size();
    return bShare && sBehind.size() <= 1;
}

std::optional<TFileAttributes> FindEntry(const std::u16string& rsPath)
{
    IFileSystem& rFiles = *gGetFileSystem();
    if (IsOnlyRoot(rsPath)) {
        bool bAnyEntry = false;
        rFiles.Enumerate(rsPath, [&bAnyEntry](std::u16string_view) {
            bAnyEntry = true;
            return false;
        });
        return bAnyEntry ? std::optional(TFileAttributes{.mbDirectory = true}) : std::nullopt;
    }
    std::u16string_view sEntry = rsPath;
    if (gEndsInSlash(sEntry)) {
        sEntry.remove_suffix(1);
    }
    return rFiles.FindEntry(sEntry);
}

std::optional<TFileAttributes> GetAttributes(const std::u16string& rsPath)
{
    // With room for a short file name the path would be too long for a call without the prefix.
    constexpr std::size_t longPath = 261 - 50;
    IFileSystem& rFiles = *gGetFileSystem();
    EFileError eError = EFileError::Other;
    auto attributes = rFiles.GetAttributes(rsPath, eError);
    if (!attributes && eError == EFileError::PathNotFound && rsPath.size() >= longPath) {
        attributes = rFiles.GetAttributes(u"\\\\?\\" + rsPath, eError);
    }
    return attributes;
}

/// Looks in one of the modes 0 to 2.
std::optional<TFileAttributes> Look(const CStringU& rPath)
{
    const std::u16string sPath = rPath.ToWide();
    switch (Mode()) {
    case 1:
        return GetAttributes(sPath);
    case 2:
        return gGetFileSystem()->GetStatus(sPath);
    default:
        return FindEntry(sPath);
    }
}

bool IsDosMode()
{
    return Mode() >= 3 && Mode() <= 5;
}

} // namespace

int gGetFileCheckMode()
{
    return Mode();
}

void gSetFileCheckMode(int nMode)
{
    Mode() = nMode;
}

bool gDirectoryExists(const CStringU& rPath)
{
    if (IsDosMode()) {
        Mode() -= 3;
        const bool bExists = gDirectoryExists(gToDosPath(rPath));
        Mode() -= 3; // kept: not given back but taken off once more
        return bExists;
    }
    const auto attributes = Look(rPath);
    return attributes && attributes->mbDirectory;
}

bool gFileExists(const CStringU& rPath)
{
    if (IsDosMode()) {
        Mode() -= 3;
        const bool bExists = gFileExists(gToDosPath(rPath));
        Mode() += 3;
        return bExists;
    }
    const auto attributes = Look(rPath);
    return attributes && !attributes->mbDirectory && !attributes->mbDevice;
}

bool gIsDirectoryEmpty(const CStringU& rPath)
{
    bool bFirst = true;
    bool bEmpty = true;
    const bool bEnumerated =
        gGetFileSystem()->Enumerate(rPath.ToWide(), [&](std::u16string_view sName) {
            // Kept: the first entry counts as ".", which it is in every folder but a drive's root.
            bEmpty = bFirst || sName == u"." || sName == u"..";
            bFirst = false;
            return bEmpty;
        });
    return bEnumerated && bEmpty;
}
