#include "foundation/CanonicalForm.h"
#include "foundation/PathLog.h"
#include "foundation/Paths.h"

bool gIsAbsolutePath(const CStringU& rPath)
{
    const bool bAbsolute = gIsAbsoluteText(rPath.ToWide());
    gLogPathCall("gIsAbsolutePath", {{"Path", rPath}}, bAbsolute ? "true" : "false");
    return bAbsolute;
}
