#include "platform/ui/UserResult.h"

std::string_view gUserResultText(EUserResult result)
{
    switch (result) {
    case EUserResult::Done:
        return {};
    case EUserResult::Disabled:
        return "is disabled";
    case EUserResult::Hidden:
        return "is hidden";
    case EUserResult::Blocked:
        return "is behind another dialog";
    case EUserResult::ReadOnly:
        return "is read-only";
    case EUserResult::Invalid:
        return "can't take that value";
    case EUserResult::Ignored:
        return "doesn't react to that";
    }
    return {};
}
