#include "foundation/SystemPaths.h"

#include "foundation/PathParts.h"
#include "foundation/UnixSide.h"
#include "platform/base/FileSystem.h"
#include "platform/base/SystemFolder.h"

#include <cstddef>

namespace
{

/// A file name as it comes out of a buffer of 2096 characters, the last one a zero; empty where it
/// doesn't fit.
CStringU FromBuffer(const std::u16string& rsName)
{
    constexpr std::size_t buffer = 2096;
    return rsName.size() < buffer ? CStringU(rsName) : CStringU();
}

CStringU& DocumentsFolder()
{
    static CStringU folder;
    return folder;
}

} // namespace

CStringU gGetExecutablePath()
{
    return FromBuffer(gGetFileSystem()->GetProgramFile());
}

CStringU gGetModulePath()
{
    static const char here = 0; // lies in the file that is asked for
    return FromBuffer(gGetFileSystem()->GetModuleFile(&here));
}

CStringU gGetExecutableFolder()
{
    return gFolderOf(gGetExecutablePath().ToWide());
}

CStringU gGetModuleFolder()
{
    return gFolderOf(gGetModulePath().ToWide());
}

CStringU gGetCurrentDirectory(bool bUnixForm)
{
    const CStringU folder = gGetFileSystem()->GetCurrentFolder();
    return bUnixForm ? gToUnixPath(gToDosPath(folder)) : folder;
}

CStringU gGetDocumentsFolder()
{
    CStringU& rFolder = DocumentsFolder();
    if (rFolder.IsEmpty()) {
        const CStringU folder = gGetSystemFolder(ESystemFolder::Documents, true);
        rFolder = gToDosPath(gToUnixPath(gToDosPath(folder)));
    }
    return rFolder;
}

void gResetDocumentsFolder()
{
    DocumentsFolder().Empty();
}

std::int64_t gGetFileTime(const CStringU& rPath)
{
    return gGetFileSystem()->GetModificationTime(std::string_view(rPath.ToAnsi()));
}
