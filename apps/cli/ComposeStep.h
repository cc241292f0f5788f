#pragma once

#include "platform/headless/Step.h"
#include "platform/ui/FieldView.h"

#include <optional>
#include <string>
#include <string_view>

namespace quorvawiz::cli
{

/// The user's action that a field and a value mean: a text is typed, a LF in it being CR LF; an
/// entry, a radio button or `#index` is chosen; a check box is turned on or off; no value presses.
/// @param rField the field
/// @param sName what the user called it, for messages
/// @param rValue the value in UTF-8, or none
/// @throws CUsageError if the field takes no such value, or has no such entry
TStep gComposeStep(const TFieldView& rField, std::string_view sName,
                   const std::optional<std::string>& rValue);

} // namespace quorvawiz::cli
