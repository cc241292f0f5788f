#pragma once

#include "platform/ui/Messages.h"
#include "platform/ui/Notify.h"

#include <span>
#include <type_traits>

class CWnd;

/// One handler of a window: which notification or message it answers, and the call.
struct TMessageMapEntry {
    /// Calls the handler on the window; for a notification wParam is the control's id.
    LRESULT (*pCall)(CWnd& rWnd, WPARAM wParam, LPARAM lParam);
    UINT nMessage;  ///< the message; 0 for a notification
    ENotify notify; ///< the notification, when nMessage is 0
    int nId;        ///< the control that notifies, when nMessage is 0
};

/// The handlers of a class; a class that has none returns an empty one.
using TMessageMap = std::span<const TMessageMapEntry>;

template <class TMember> struct TMemberClass;
template <class TResult, class TClass, class... TArgs>
struct TMemberClass<TResult (TClass::*)(TArgs...)> {
    using Type = TClass;
};

/// Entry for a notification of control `nId`. `Handler` is a member function `void ()`, or
/// `void (int nId)` where one handler serves several controls.
template <auto Handler> constexpr TMessageMapEntry On(ENotify notify, int nId)
{
    using TClass = typename TMemberClass<decltype(Handler)>::Type;
    return {[](CWnd& rWnd, [[maybe_unused]] WPARAM wParam, LPARAM) -> LRESULT {
                auto& rTarget = static_cast<TClass&>(rWnd);
                if constexpr (std::is_invocable_v<decltype(Handler), TClass&>)
                    (rTarget.*Handler)();
                else
                    (rTarget.*Handler)(static_cast<int>(wParam));
                return 0;
            },
            0, notify, nId};
}

/// Entry for a window message. `Handler` is a member function `LRESULT (WPARAM, LPARAM)`.
template <auto Handler> constexpr TMessageMapEntry OnMessage(UINT nMessage)
{
    using TClass = typename TMemberClass<decltype(Handler)>::Type;
    return {[](CWnd& rWnd, WPARAM wParam, LPARAM lParam) -> LRESULT {
                return (static_cast<TClass&>(rWnd).*Handler)(wParam, lParam);
            },
            nMessage, ENotify::Clicked, 0};
}
