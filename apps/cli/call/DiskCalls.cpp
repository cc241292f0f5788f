#include "cli/call/CallTable.h"
#include "foundation/Paths.h"
#include "platform/base/SystemError.h"

#include <optional>

namespace quorvawiz::cli
{
namespace
{
TJson CreateDirectories(const CStringU& rPath, const std::optional<CStringU>& rErrors)
{
    CStringU errors = rErrors.value_or(CStringU());
    const bool bDone = gCreateDirectories(rPath, errors);
    return {{"done", bDone}, {"errors", gToResult(errors)}};
}

/// With a code that takes the place of the last error.
TJson AppendLastError(const CStringU& rText, int nLastError)
{
    gSetLastError(nLastError);
    int nCode = 0;
    const CStringU text = gAppendLastError(rText, &nCode);
    return {{"text", gToResult(text)}, {"code", nCode}};
}
} // namespace

std::vector<TCallFunction> gDiskCalls()
{
    return {
        gCallable("gGetExecutablePath", gGetExecutablePath),
        gCallable("gGetModulePath", gGetModulePath),
        gCallable("gGetExecutableFolder", gGetExecutableFolder),
        gCallable("gGetModuleFolder", gGetModuleFolder),
        gCallable("gGetSystemErrorText", gGetSystemErrorText),
        gCallable("gAppendLastError", AppendLastError),
        gCallable("gDirectoryExists", gDirectoryExists),
        gCallable("gFileExists", gFileExists),
        gCallable("gGetFileCheckMode", gGetFileCheckMode),
        gCallable("gSetFileCheckMode", gSetFileCheckMode),
        gCallable("gIsDirectoryEmpty", gIsDirectoryEmpty),
        gCallable("gCreateDirectories", CreateDirectories),
        gCallable("gGetCurrentDirectory", gGetCurrentDirectory),
        gCallable("gGetDocumentsFolder", gGetDocumentsFolder),
        gCallable("gGetFileTime", gGetFileTime),
        gCallable("gIsPathLoggerSet", gIsPathLoggerSet),
    };
}

} // namespace quorvawiz::cli
