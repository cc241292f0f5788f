#pragma once

#include "platform/ui/DialogTemplate.h"
#include "platform/ui/Messages.h"

#include <array>

// A property sheet as data: tabs, and the four standard buttons below them at the right.

/// The keys of the standard buttons, which a sheet may give other labels.
struct TSheetKeys {
    const char* pOk = "ok";
    const char* pCancel = "cancel";
    const char* pApply = "apply";
    const char* pHelp = "help";
};

/// The id of a standard sheet's tabs.
inline constexpr int kSheetTabsId = 0x3020;

inline constexpr int kSheetMargin = 5;
inline constexpr int kSheetButtonHeight = 14;
inline constexpr int kSheetTabHeight = 15;

/// The place of the tabs in a sheet of this size.
constexpr TRect SheetTabsRect(const TSize& rSize)
{
    return {kSheetMargin, kSheetMargin, rSize.cx - 2 * kSheetMargin,
            rSize.cy - 3 * kSheetMargin - kSheetButtonHeight};
}

/// The place of the pages in a sheet of this size: inside the frame below the tabs.
constexpr TRect SheetPageRect(const TSize& rSize)
{
    const TRect tabs = SheetTabsRect(rSize);
    return {tabs.x + 3, tabs.y + kSheetTabHeight, tabs.w - 6, tabs.h - kSheetTabHeight - 3};
}

/// The rows of a sheet of this size: tabs, OK, Cancel, Apply (disabled) and Help, in tab order.
/// `nButtonWidth`: of each button. Help is the button that Enter presses where `bHelpIsDefault`,
/// else OK is.
constexpr std::array<TControlRow, 5> SheetRows(const TSize& rSize, const TSheetKeys& rKeys,
                                               int nButtonWidth = 50, bool bHelpIsDefault = false)
{
    const int nTop = rSize.cy - kSheetMargin - kSheetButtonHeight;
    const auto buttonAt = [&](int nFromRight) {
        return TRect{rSize.cx - (nFromRight + 1) * (nButtonWidth + kSheetMargin), nTop,
                     nButtonWidth, kSheetButtonHeight};
    };
    return {Row(kSheetTabsId, "tabs", EControl::Tabs, "", SheetTabsRect(rSize)),
            Row(IDOK, rKeys.pOk, bHelpIsDefault ? EControl::PushButton : EControl::DefaultButton,
                "OK", buttonAt(3)),
            Row(IDCANCEL, rKeys.pCancel, EControl::PushButton, "Cancel", buttonAt(2)),
            Row(ID_APPLY_NOW, rKeys.pApply, EControl::PushButton, "&Apply", buttonAt(1), kDisabled),
            Row(IDHELP, rKeys.pHelp,
                bHelpIsDefault ? EControl::DefaultButton : EControl::PushButton, "Help",
                buttonAt(0))};
}
