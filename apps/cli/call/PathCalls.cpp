#include "cli/call/CallTable.h"
#include "foundation/Paths.h"

namespace quorvawiz::cli
{

std::vector<TCallFunction> gPathCalls()
{
    return {
        gCallable("gCanonicalizePath", gCanonicalizePath),
        gCallable("gIsAbsolutePath", gIsAbsolutePath),
        gCallable("gIsUnixStylePath", gIsUnixStylePath),
        gCallable("gConcatenatePaths", gConcatenatePaths),
        gCallable("gResolvePath", gResolvePath),
        gCallable("gGetRelativeFileName", gGetRelativeFileName),
        gCallable("gGetFileNameWithoutPath", gGetFileNameWithoutPath),
        gCallable("gGetPathWithoutFileName", gGetPathWithoutFileName),
        gCallable("gHasExtension", gHasExtension),
        gCallable("gGetExtension", gGetExtension),
        gCallable("gSetExtension", gSetExtension),
        gCallable("gEnsureExtension", gEnsureExtension),
        gCallable("gGetFileTitle", gGetFileTitle),
        gCallable("gGetPathWithoutExtension", gGetPathWithoutExtension),
        gCallable("gAbbreviatePath", gAbbreviatePath),
        gCallable("gPathsEqual", gPathsEqual),
        gCallable("gToDosPath", gToDosPath),
        gCallable("gToUnixPath", gToUnixPath),
        gCallable("gGetUnixEnv", gGetUnixEnv),
        gCallable("gSetUnixEnv", gSetUnixEnv),
        gCallable("gUnsetUnixEnv", gUnsetUnixEnv),
        gCallable("gPutUnixEnv", gPutUnixEnv),
    };
}

} // namespace quorvawiz::cli
