#pragma once

#include <string_view>

/// What became of a user's action. Everything but `Done` means that nothing has changed.
enum class EUserResult {
    Done,
    Disabled, ///< the control, or a window around it, is disabled
    Hidden,   ///< the control, or a window around it, isn't shown
    Blocked,  ///< another dialog or a box is in front, or the window doesn't exist
    ReadOnly, ///< the text can be read only
    Invalid,  ///< no such entry, or a text that the control can't take
    Ignored,  ///< the key or action means nothing here
};

/// A short text for messages, such as "is disabled"; empty for `Done`.
std::string_view gUserResultText(EUserResult result);
