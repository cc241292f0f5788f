#include "browser/WindowTitles.h"

#include "platform/ui/Translate.h"

namespace
{

CStringU Translated(const char* pLiteral)
{
    return xlang::gTranslate(pLiteral);
}

} // namespace

CStringU gMakeDevicesTitle(const CStringU& rsFilter)
{
    CStringU sTitle = Translated("__$$Translatable$$_Quorva Devices");
    return rsFilter.IsEmpty() ? sTitle : sTitle + " (" + rsFilter + ")";
}

CStringU gMakeDeviceDetailsTitle(const CStringU& rsDevice)
{
    return Translated("__$$Translatable$$_Device Parameters: ") + rsDevice;
}

CStringU gMakeModelsTitle()
{
    return Translated("__$$Translatable$$_Library Models");
}

CStringU gMakeModelDetailsTitle(const CStringU& rsModel)
{
    return Translated("__$$Translatable$$_Library Model Details [") + rsModel + "]";
}

CStringU gMakeClassesTitle()
{
    return Translated("__$$Translatable$$_Quorva Models");
}

CStringU gMakeClassDetailsTitle(const CStringU& rsClass)
{
    return Translated("__$$Translatable$$_Model: ") + rsClass +
           Translated("__$$Translatable$$_ [Default values]");
}
