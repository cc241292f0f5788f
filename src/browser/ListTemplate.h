#pragma once

#include "platform/ui/DialogTemplate.h"
#include "platform/ui/Messages.h"
#include "platform/ui/ResizeDialog.h"

#include <array>

// The rows of the browser's dialogs: a table with a line of buttons below it.

/// The ids of the controls; "Close" is IDCANCEL.
enum EListControl {
    kListTable = 1001,
    kListDetails,
    kListExport,
    kListQuorvaModels,
    kListRecalculate,
};

/// The size of the lists of devices and of library models, in dialog units.
inline constexpr TSize kListSize{317, 184};

namespace ListTemplateDetail
{

constexpr int kMargin = 5;
constexpr int kButtonHeight = 14;
constexpr int kButtonWidth = 50;
constexpr int kRecalculateWidth = 55;
constexpr int kQuorvaModelsWidth = 75;
constexpr int kNextButton = kButtonWidth + kMargin;

constexpr TControlRow Table(const TSize& rSize)
{
    const int nButtons = 2 * kMargin + kButtonHeight;
    return Row(kListTable, "table", EControl::Table, "",
               {kMargin, kMargin, rSize.cx - 2 * kMargin, rSize.cy - kMargin - nButtons},
               kUnlabelled);
}

/// A button of the line, without its place.
constexpr TControlRow Button(int nId, const char* pKey, const char* pLabel, int nWidth,
                             EControl kind = EControl::PushButton)
{
    return Row(nId, pKey, kind, pLabel, {0, 0, nWidth, kButtonHeight});
}

constexpr TControlRow At(const TSize& rSize, int nLeft, TControlRow row)
{
    row.rect.x = nLeft;
    row.rect.y = rSize.cy - kMargin - kButtonHeight;
    return row;
}

/// `nRight`: the distance of the button's right edge from the dialog's.
constexpr TControlRow AtRight(const TSize& rSize, int nRight, const TControlRow& rRow)
{
    return At(rSize, rSize.cx - nRight - rRow.rect.w, rRow);
}

constexpr TControlRow kDetails =
    Button(kListDetails, "details", "&Details...", kButtonWidth, EControl::DefaultButton);
constexpr TControlRow kExport = Button(kListExport, "export", "&Export...", kButtonWidth);
constexpr TControlRow kQuorvaModels =
    Button(kListQuorvaModels, "quorva-models", "&Quorva Models...", kQuorvaModelsWidth);
constexpr TControlRow kRecalculate =
    Button(kListRecalculate, "recalculate", "&Recalculate", kRecalculateWidth);
constexpr TControlRow kClose = Button(IDCANCEL, "close", "&Close", kButtonWidth);

} // namespace ListTemplateDetail

/// The rows that the lists of devices and of library models share.
constexpr std::array<TControlRow, 6> ListRows(const TSize& rSize)
{
    using namespace ListTemplateDetail;
    return {Table(rSize),
            At(rSize, kMargin, kDetails),
            At(rSize, kMargin + kNextButton, kExport),
            At(rSize, kMargin + 2 * kNextButton, kQuorvaModels),
            AtRight(rSize, kMargin + kNextButton, kRecalculate),
            AtRight(rSize, kMargin, kClose)};
}

/// The rows of a list that nothing can be calculated for.
constexpr std::array<TControlRow, 4> PlainListRows(const TSize& rSize)
{
    using namespace ListTemplateDetail;
    return {Table(rSize), At(rSize, kMargin, kDetails), At(rSize, kMargin + kNextButton, kExport),
            AtRight(rSize, kMargin, kClose)};
}

/// The rows of a table that is only looked at; Enter closes it.
constexpr std::array<TControlRow, 3> DetailRows(const TSize& rSize)
{
    using namespace ListTemplateDetail;
    TControlRow close = kClose;
    close.kind = EControl::DefaultButton;
    return {Table(rSize), AtRight(rSize, kMargin + kNextButton, kExport),
            AtRight(rSize, kMargin, close)};
}

/// Lets the table grow with the dialog, and the buttons stay at the corner below them.
/// @param rDialog its controls exist, any of those above
/// @param exportCorner the corner at which "Export" stays
void gAnchorList(CXTPResizeDialog& rDialog, TAnchor exportCorner);
