#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{

/// One user action of `compose` as it is written: `key`, `key=value`, and with the buttons that
/// open dialogs in front, `button.key=value`.
struct TComposeArgument {
    std::vector<std::string> prefix;  ///< the buttons that open the dialogs, outermost first
    std::string sKey;                 ///< the field, or the button to be pressed
    std::optional<std::string> value; ///< UTF-8; none for a key alone
};

/// Reads an argument. Keys hold no '.' and no '=', the value may hold both.
/// @param sArgument in UTF-8
/// @throws CUsageError if a key in it is empty
TComposeArgument gParseArgument(std::string_view sArgument);

/// What the user does next, when dialogs are opened and closed as the arguments' prefixes ask.
struct TComposeMove {
    enum class EKind {
        Act,    ///< what the next argument says, in the innermost dialog
        Open,   ///< press the button `sKey`, which opens a dialog
        Accept, ///< press the innermost dialog's `accept`
        Insert, ///< all is done: press "&Insert Command"
    };
    EKind kind = EKind::Act;
    std::string sKey; ///< Open: the button

    friend bool operator==(const TComposeMove&, const TComposeMove&) = default;
};

/// Decides the next move.
/// @param rOpen the buttons that opened the dialogs that are open now, outermost first
/// @param pNext the next argument, or null after the last one
TComposeMove gNextMove(const std::vector<std::string>& rOpen, const TComposeArgument* pNext);

} // namespace quorvawiz::cli
