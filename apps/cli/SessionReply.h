#pragma once

#include "cli/BrowserRequest.h"
#include "cli/FieldJson.h"
#include "cli/PageList.h"
#include "platform/headless/HeadlessDesktop.h"

#include <optional>
#include <string>
#include <vector>

namespace quorvawiz::cli
{

/// How a dialog of the parameter browser ended.
struct TBrowserEnd {
    std::optional<bool> result; ///< what it returned; none of one that returns nothing
};

/// What happened since the reply before.
struct TSessionEvents {
    std::vector<TShownBox> boxes;
    std::vector<TFileDialog> fileDialogs;
    std::vector<CString> inserted;    ///< what the target got
    std::optional<TRowsRequest> rows; ///< the rows that the reply tells, of a table that is shown
    std::optional<TBrowserEnd> end;   ///< of a dialog that was opened
};

/// The reply to a request: what happened, and how the wizard stands now (docs/session.md).
/// @param rError why the request was refused; none if it wasn't
/// @param rEvents what happened since the reply before
/// @param rPages all pages
/// @param pInnermost the innermost dialog that is open, or null when the wizard is closed
TJson gComposeReply(const std::optional<std::string>& rError, const TSessionEvents& rEvents,
                    const std::vector<TPage>& rPages, CDialog* pInnermost);

} // namespace quorvawiz::cli
