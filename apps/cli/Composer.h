#pragma once

#include "cli/ComposeArgument.h"
#include "cli/PageList.h"
#include "platform/headless/HeadlessDesktop.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvawiz::cli
{

/// A box that was shown.
struct TBoxText {
    std::string sText;      ///< UTF-8
    bool bQuestion = false; ///< a yes/no box; it was answered no
};

/// What came of one composition. All texts in UTF-8.
struct TComposition {
    std::optional<std::string> command; ///< what the target got, CR LF inside as LF
    std::vector<TBoxText> boxes;        ///< in the order in which they were shown
    std::string sRefusal;               ///< why the wizard went no further; empty if it did
    std::string sMisuse;                ///< what is wrong with the arguments; empty if nothing is
    std::string sFailure;               ///< the exception that ended it; empty if none did
};

/// Opens a page, makes the user's actions in it and inserts the command.
/// The desktop that is current meanwhile is a headless one of its own. Exceptions of the wizard end
/// the composition and are told in it.
/// @param rWizard holds the page
/// @param rPage a page that is built
/// @param rArguments the actions, in order
TComposition gCompose(const TWizard& rWizard, const TPage& rPage,
                      const std::vector<TComposeArgument>& rArguments);

} // namespace quorvawiz::cli
