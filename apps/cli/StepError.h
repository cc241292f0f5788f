#pragma once

#include "platform/headless/Step.h"
#include "platform/ui/DialogTemplate.h"
#include "platform/ui/FieldView.h"

#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{

/// Why a step wasn't done, for the user: what is wrong and, for a name that isn't there or a
/// control that can't be used, the nearest that could have been meant. In UTF-8.
/// @param rDialog where the step was tried
/// @param rStep the step
/// @param rResult its result, not Done
/// @param sPrefix what the user writes in front of every key of the dialog
std::string gStepError(CDialog& rDialog, const TStep& rStep, const TStepResult& rResult,
                       std::string_view sPrefix = {});

/// That there is no field of a name, and the nearest of those that there are.
/// @param rFields those that the user could have meant; statics and frames are left out
/// @param sKey the key that no field has
/// @param sPrefix what stands in front of it and of each of the fields' keys
std::string gNoField(const std::vector<TFieldView>& rFields, std::string_view sKey,
                     std::string_view sPrefix = {});

/// That a field has no such index, and which is the last: "has no index 3; the last is 2".
/// @param sIndex as the user wrote it
std::string gNoIndex(const TFieldView& rField, std::string_view sIndex);

/// How a control is filled in, for messages: "is a check box: it is turned on or off".
std::string gKindRule(EControl kind);

} // namespace quorvawiz::cli
