#include "platform/ui/SampleDialog.h"

#include "platform/ui/Button.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"

#include <gtest/gtest.h>

namespace
{
constexpr const char* kShapes[] = {"circle", "square", "star"};
constexpr const char* kColours[] = {"red", "Green", "blue"};
constexpr const char* kFruits[] = {"apple", "Banana", "cherry"};

constexpr auto kRows = JoinRows(
    LabelAbove(Row(kName, "name", EControl::Edit, "", {5, 15, 60, 13}), "&Name:"),
    LabelAbove(Row(kNotes, "notes", EControl::MultilineEdit, "", {5, 45, 60, 30}, kWantReturn),
               "N&otes:"),
    Row(kMemo, "memo", EControl::MultilineEdit, "", {5, 80, 60, 30}, kUnlabelled),
    Row(kFixed, "fixed", EControl::Edit, "", {5, 115, 60, 13}, kReadOnly | kUnlabelled),
    Row(kAgain, "again", EControl::CheckBox, "&Again", {5, 130, 60, 12}),
    Row(kLow, "level", EControl::RadioButton, "&Low", {70, 5, 60, 12}, kFirstOfGroup),
    Row(kMiddle, "level", EControl::RadioButton, "&Middle", {70, 20, 60, 12}),
    Row(kHigh, "level", EControl::RadioButton, "&High", {70, 35, 60, 12}),
    Row(kShape, "shape", EControl::DropDownList, "", {70, 50, 60, 13}, kUnlabelled, 0, kShapes),
    Row(kColour, "colour", EControl::DropDown, "", {70, 65, 60, 13}, kUnlabelled | kSorted, 0,
        kColours),
    Row(kFruit, "fruit", EControl::ListBox, "", {70, 80, 60, 40}, kUnlabelled, 0, kFruits),
    Row(kPlaces, "places", EControl::Tree, "", {135, 5, 60, 60}, kUnlabelled),
    Row(kCells, "cells", EControl::Table, "", {135, 70, 60, 60}, kUnlabelled),
    Row(kViews, "views", EControl::Tabs, "", {70, 141, 125, 20}, kUnlabelled),
    Row(kPress, "press", EControl::PushButton, "&Press", {5, 145, 50, 14}),
    Row(kFrameAround, "around", EControl::Group, "Around", {67, 131, 131, 33}),
    Row(kRemark, "remark", EControl::Static, "A remark", {5, 165, 60, 9}),
    Row(IDOK, "ok", EControl::DefaultButton, "OK", {60, 165, 50, 14}),
    Row(IDCANCEL, "cancel", EControl::PushButton, "Cancel", {115, 165, 50, 14}));
} // namespace

const DialogTemplate kSampleTemplate{"Sample", {200, 185}, kRows};

bool CSampleDialog::OnInitDialog()
{
    auto& rTree = Get<CTreeCtrl>(kPlaces);
    const HTREEITEM hA = rTree.InsertItem("A");
    rTree.InsertItem("A1", hA);
    rTree.InsertItem("A21", rTree.InsertItem("A2", hA));
    rTree.InsertItem("B");
    rTree.InsertItem("C1", rTree.InsertItem("C"));

    auto& rTable = Get<CListCtrl>(kCells);
    rTable.InsertColumn(0, "Letter", 0, 60, -1);
    rTable.InsertColumn(1, "Number", 0, 70, -1);
    for (const char* pLetter : {"x", "y", "z"})
        rTable.InsertItem(rTable.GetItemCount(), pLetter);

    for (const char* pTab : {"One", "Two", "Three"})
        Get<CTabCtrl>(kViews).AddItem(pTab);
    return CLogDialog::OnInitDialog();
}

TLog gTellStory(CLogDialog& rDialog, const std::vector<std::string>& rActions)
{
    for (const std::string& rsAction : rActions)
        if (const std::string sReason = gAct(rDialog, rsAction); !sReason.empty())
            rDialog.Write("! " + sReason);
    return rDialog.TakeLog();
}

void gCheckStory(const TStory& rStory, const std::function<void(CSampleDialog&)>& rPrepare)
{
    SCOPED_TRACE(rStory.pName);
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        rPrepare(dialog);
        dialog.TakeLog();
        EXPECT_EQ(gTellStory(dialog, rStory.actions), rStory.expected);
    });
}
