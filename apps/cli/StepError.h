#pragma once

#include "platform/headless/Step.h"
#include "platform/ui/DialogTemplate.h"

#include <string>

namespace quorvawiz::cli
{

/// Why a step wasn't done, for the user: what is wrong and, for a name that isn't there or a
/// control that can't be used, the nearest that could have been meant. In UTF-8.
/// @param rDialog where the step was tried
/// @param rStep the step
/// @param rResult its result, not Done
std::string gStepError(CDialog& rDialog, const TStep& rStep, const TStepResult& rResult);

/// How a control is filled in, for messages: "is a check box: it is turned on or off".
std::string gKindRule(EControl kind);

} // namespace quorvawiz::cli
