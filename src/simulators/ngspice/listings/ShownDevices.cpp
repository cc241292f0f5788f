#include "simulators/ngspice/listings/ShownDevices.h"

#include "simulators/ngspice/listings/Lines.h"

namespace quorvawiz::ngspice
{
namespace
{

/// "NAME:" at the beginning of a line.
bool IsHeading(std::string_view sLine) noexcept
{
    return sLine.size() > 1 && sLine.ends_with(':') && !gIsBlank(sLine.front());
}

} // namespace

bool CShownDevices::Next(TShownDevice& rDevice)
{
    std::string_view sLine;
    while (!IsHeading(sLine)) {
        if (msRest.empty()) {
            return false;
        }
        sLine = gNextLine(msRest);
    }
    rDevice.sName = sLine.substr(0, sLine.size() - 1);
    rDevice.sModel = {};
    rDevice.values.clear();
    while (!msRest.empty()) {
        const std::string_view sBefore = msRest;
        sLine = gNextLine(msRest);
        if (IsHeading(sLine)) {
            msRest = sBefore;
            break;
        }
        const auto value = gReadShownValue(sLine);
        if (!value) {
            continue;
        }
        // The first line is the model; "model" may be a parameter, too.
        if (rDevice.sModel.empty() && rDevice.values.empty() && value->sName == "model") {
            rDevice.sModel = value->sValue;
        } else {
            rDevice.values.push_back(*value);
        }
    }
    return true;
}

} // namespace quorvawiz::ngspice
