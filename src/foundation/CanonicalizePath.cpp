#include "foundation/CanonicalForm.h"
#include "foundation/PathLog.h"
#include "foundation/Paths.h"

CStringU gCanonicalizePath(const CStringU& rPath)
{
    CStringU result = gCanonicalForm(rPath.ToWide());
    gLogPathCall("gCanonicalizePath", {{"Path", rPath}}, result);
    return result;
}
