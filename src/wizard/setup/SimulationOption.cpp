#include "wizard/setup/SimulationOption.h"

#include "wizard/setup/SimulationOptionTable.h"

#include <cstddef>

namespace
{
const TSimulationOption* FindOption(int nOption)
{
    const bool bIsOne = nOption >= 0 && nOption < static_cast<int>(kSimulationOptions.size());
    return bIsOne ? &kSimulationOptions[static_cast<std::size_t>(nOption)] : nullptr;
}

/// The value as the command has it.
CString ValueOf(const TOptionControl& rControl, int nChoice, const CString& rsText)
{
    switch (rControl.kind) {
    case EOptionKind::Edit:
        return rsText;
    case EOptionKind::OnOff:
        return nChoice == 0 ? "0" : "1";
    case EOptionKind::List:
        break;
    }
    const bool bIsOne = nChoice >= 0 && nChoice < static_cast<int>(rControl.choices.size());
    return bIsOne ? rControl.choices[static_cast<std::size_t>(nChoice)].pToken : "";
}
} // namespace

const char* gOptionKindName(EOptionKind kind)
{
    switch (kind) {
    case EOptionKind::Edit:
        return "edit";
    case EOptionKind::OnOff:
        return "on/off";
    case EOptionKind::List:
        break;
    }
    return "list";
}

CString gOptionValueLabel(const TSimulationOption& rOption)
{
    if (!rOption.pDefault)
        return "&Value";
    return CString("&Value (default is ") + rOption.pDefault + rOption.pAfterDefault;
}

CString gOptionCommand(int nOption, int nChoice, const CString& rsText)
{
    const TSimulationOption* const pOption = FindOption(nOption);
    if (!pOption)
        return "Internal Error! Unrecognized option selection!"; // Meant: not translated
    return CString(".options ") + pOption->pKey + "=" + ValueOf(pOption->control, nChoice, rsText);
}

bool gOptionTakesText(int nOption)
{
    const TSimulationOption* const pOption = FindOption(nOption);
    return !pOption || pOption->control.kind == EOptionKind::Edit;
}
