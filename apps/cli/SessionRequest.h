#pragma once

#include "platform/headless/Step.h"
#include "platform/ui/FileDialog.h"

#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

namespace quorvawiz::cli
{

/// One line of the session's input, read. docs/session.md says what each does.
struct TStepRequest {
    TStep step;
    bool bOnFrame = false; ///< the step is meant for the wizard's own frame, not for a field
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
                              TStateRequest, TReopenRequest, TFreshRequest>;

/// A request that can't be done, with the reason as its reply tells it.
class CRequestError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Reads a request.
/// @param sLine one line without its end, of any length and content
/// @throws CRequestError if it is no request: what is wrong, and where
TRequest gParseRequest(std::string_view sLine);

} // namespace quorvawiz::cli
