#pragma once

#include "cli/BrowserRequest.h"
#include "cli/RequestError.h"
#include "platform/headless/Step.h"
#include "platform/ui/FileDialog.h"

#include <deque>
#include <string>
#include <string_view>
#include <variant>

namespace quorvawiz::cli
{

/// One line of the session's input, read. docs/session.md says what each does.
struct TStepRequest {
    TStep step; ///< one on the frame is meant for the wizard's own, where that is open
};
struct TOpenRequest {
    std::string sPage; ///< UTF-8
};
struct TAnswersRequest {
    std::deque<bool> answers; ///< true is yes
};
struct TFileRequest {
    TFileChoice choice;
};
struct TStateRequest {
};
struct TReopenRequest {
};
struct TFreshRequest {
};
using TRequest = std::variant<TStepRequest, TOpenRequest, TAnswersRequest, TFileRequest,
                              TStateRequest, TReopenRequest, TFreshRequest, TLoadRequest,
                              TBrowseRequest, TDeviceDetailsRequest, TRowsRequest>;

/// Reads a request.
/// @param sLine one line without its end, of any length and content
/// @throws CRequestError if it is no request: what is wrong, and where
TRequest gParseRequest(std::string_view sLine);

} // namespace quorvawiz::cli
