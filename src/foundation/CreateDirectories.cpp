#include "foundation/FileChecks.h"
#include "foundation/PathText.h"
#include "foundation/SystemErrorText.h"
#include "platform/base/FileSystem.h"
#include "platform/base/SystemError.h"

#include <algorithm>
#include <cstddef>

namespace
{

/// Sees to it that one folder is there.
bool EnsureFolder(std::u16string_view sFolder, CStringU& rErrors)
{
    IFileSystem& rFiles = *gGetFileSystem();
    if (!rFiles.CanAccess(sFolder)) {
        if (!rFiles.MakeFolder(sFolder)) {
            rErrors = gGetSystemErrorText(gGetLastError());
            return false;
        }
        return true;
    }
    const CStringU folder = sFolder;
    if (!gDirectoryExists(folder)) {
        rErrors += "\nFile with the name \"" + folder + "\" already exists.\n";
        return false;
    }
    return true;
}

} // namespace

bool gCreateDirectories(const CStringU& rPath, CStringU& rErrors)
{
    const std::u16string sPath = rPath.ToWide();
    if (gGetFileSystem()->CanAccess(sPath)) {
        return true;
    }
    // A drive or a share is never made, with or without anything behind it.
    std::size_t nAt = sPath.find_first_not_of(kSlashes, std::min(gHeadLength(sPath), sPath.size()));
    while (nAt != kNowhere) {
        const std::size_t nEnd = std::min(sPath.find_first_of(kSlashes, nAt), sPath.size());
        if (!EnsureFolder(std::u16string_view(sPath).substr(0, nEnd), rErrors)) {
            return false;
        }
        nAt = sPath.find_first_not_of(kSlashes, nEnd);
    }
    return true;
}
