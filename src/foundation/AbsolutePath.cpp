#include "foundation/CanonicalForm.h"
#include "foundation/PathLog.h"
#include "foundation/PathText.h"
#include "foundation/Paths.h"

bool gIsAbsoluteText(std::u16string_view sPath, TExpandedNames& rNames)
{
    const std::u16string sCanonical = gCanonicalForm(std::u16string(sPath), rNames);
    if (gHasSlashAt(sCanonical, 0)) {
        // One that begins with "/" is absolute under every system.
        return !sPath.starts_with(u'\\') || gHasSlashAt(sCanonical, 1);
    }
    return gHasDrive(sCanonical) && gHasSlashAt(sCanonical, 2);
}

bool gIsAbsoluteText(std::u16string_view sPath)
{
    TExpandedNames names;
    return gIsAbsoluteText(sPath, names);
}

bool gIsAbsolutePath(const CStringU& rPath)
{
    const bool bAbsolute = gIsAbsoluteText(rPath.ToWide());
    gLogPathCall("gIsAbsolutePath", {{"Path", rPath}}, bAbsolute ? "true" : "false");
    return bAbsolute;
}
