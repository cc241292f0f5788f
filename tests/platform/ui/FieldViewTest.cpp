#include "platform/ui/FieldView.h"

#include "platform/ui/Button.h"
#include "platform/ui/Fields.h"
#include "platform/ui/Mnemonics.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

namespace
{
constexpr TControlRow kDelay = Row(1, "delay", EControl::Edit, "", {70, 10, 80, 13}, kHidden);
constexpr auto kPaneRows =
    JoinRows(LabelFor(kDelay, "&Delay:", {7, 12, 60, 9}), kDelay,
             UnitFor(kDelay, "seconds", {155, 12, 30, 9}), Row(2, "place", EControl::Frame, "", {}),
             Row(3, "first", EControl::RadioButton, "a", {}, kFirstOfGroup),
             Row(4, "first", EControl::RadioButton, "b", {}),
             Row(5, "second", EControl::RadioButton, "c", {}, kFirstOfGroup),
             Row(6, "name", EControl::Edit, "", {}));
constexpr DialogTemplate kPaneTemplate{"Pane", {200, 110}, kPaneRows};

TLog KeysOf(const std::vector<TFieldView>& rFields)
{
    TLog keys;
    for (const TFieldView& rField : rFields)
        keys.emplace_back(rField.sKey);
    return keys;
}

TEST(FieldViewTest, AllButLabelsUnitsAndPlacesInTemplateOrder)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        EXPECT_EQ(
            KeysOf(gCollectFields(dialog)),
            (TLog{"name", "notes", "memo", "fixed", "again", "level", "shape", "colour", "fruit",
                  "places", "cells", "views", "press", "around", "remark", "ok", "cancel"}));
    });
}

TEST(FieldViewTest, AFieldHasWhatBelongsToIt)
{
    CSampleDialog dialog;
    CPropertyPage pane(kPaneTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        const auto fields = gCollectFields(pane);
        ASSERT_EQ(KeysOf(fields), (TLog{"delay", "first", "second", "name"}));
        EXPECT_EQ(fields[0].kind, EControl::Edit);
        EXPECT_EQ(fields[0].pControl, pane.GetDlgItem(1));
        EXPECT_EQ(fields[0].pLabel, pane.GetDlgItem(LabelOf(1)));
        EXPECT_EQ(fields[0].pUnit, pane.GetDlgItem(UnitOf(1)));
        EXPECT_TRUE(fields[0].radios.empty());

        EXPECT_EQ(fields[1].kind, EControl::RadioButton);
        EXPECT_EQ(fields[1].pControl, pane.GetDlgItem(3));
        ASSERT_EQ(fields[1].radios.size(), 2U);
        EXPECT_EQ(fields[1].radios[1], pane.GetDlgItem(4));
        EXPECT_EQ(fields[1].pLabel, nullptr);
        EXPECT_EQ(fields[2].radios.size(), 1U);
        EXPECT_EQ(fields[3].pLabel, nullptr);
    });
}

TEST(FieldViewTest, AFieldWithoutALabelHasTheTitleOfTheGroupThatBeginsBeforeIt)
{
    static constexpr auto kRows = JoinRows(
        Row(1, "group", EControl::Group, "Values", {}), Row(2, "bare", EControl::Edit, "", {}),
        Row(3, "next", EControl::Edit, "", {}), Row(4, "empty", EControl::Group, "", {}),
        Row(5, "box", EControl::CheckBox, "Box", {}));
    static constexpr DialogTemplate kTemplate{"Groups", {50, 50}, kRows};
    CSampleDialog dialog;
    CPropertyPage pane(kTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        EXPECT_EQ(gFindField(pane, "bare").pLabel, pane.GetDlgItem(1));
        EXPECT_EQ(gFindField(pane, "next").pLabel, nullptr);
        EXPECT_EQ(gFindField(pane, "box").pLabel, nullptr);
        EXPECT_EQ(gFindField(pane, "group").pLabel, nullptr);
    });
}

// A field that takes another's place: the name, or a text of several lines.
constexpr unsigned kLineLayer = 1;
constexpr unsigned kTextLayer = 2;
constexpr auto kLine = Row(1, "line", EControl::Edit, "", {20, 0, 30, 13}, kNoFlags, kLineLayer);
constexpr auto kSharedRows =
    JoinRows(LabelFor(Row(1, "line", EControl::Edit, "", {}), "&Name:", {0, 0, 20, 9}), kLine,
             Row(2, "text", EControl::MultilineEdit, "", {20, 0, 30, 20}, kSharesLabel, kTextLayer),
             Row(3, "next", EControl::Edit, "", {0, 30, 30, 13}));
constexpr DialogTemplate kSharedTemplate{"Shared", {50, 50}, kSharedRows};

TEST(FieldViewTest, AFieldThatSharesALabelHasThatOfTheFieldBeforeIt)
{
    CSampleDialog dialog;
    CPropertyPage pane(kSharedTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        EXPECT_EQ(gFindField(pane, "line").pLabel, pane.GetDlgItem(LabelOf(1)));
        EXPECT_EQ(gFindField(pane, "text").pLabel, pane.GetDlgItem(LabelOf(1)));
        EXPECT_EQ(gFindField(pane, "next").pLabel, nullptr);
    });
}

TEST(FieldViewTest, TheLetterOfASharedLabelLeadsToTheFieldThatIsShown)
{
    CSampleDialog dialog;
    CPropertyPage pane(kSharedTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        pane.ShowWindow(SW_SHOW);
        for (const auto& [nLayer, nField] : {std::pair{kLineLayer, 1}, {kTextLayer, 2}}) {
            gShowLayers(pane, nLayer);
            EXPECT_EQ(gMnemonicTargets(pane, 'n'), std::vector{pane.GetDlgItem(nField)});
        }
        gShowLayers(pane, 0);
        EXPECT_TRUE(gMnemonicTargets(pane, 'n').empty());
    });
}

TEST(FieldViewTest, TheCurrentPaneIsTheVisibleOne)
{
    CSampleDialog dialog;
    CPropertyPage pane(kPaneTemplate);
    CPropertyPage other(kPaneTemplate);
    gLookInto(dialog, [&] {
        EXPECT_EQ(&gCurrentPane(dialog), &dialog);
        ASSERT_TRUE(pane.CreatePane(dialog));
        ASSERT_TRUE(other.CreatePane(dialog));
        EXPECT_EQ(&gCurrentPane(dialog), &dialog);
        other.ShowWindow(SW_SHOW);
        EXPECT_EQ(&gCurrentPane(dialog), &other);
    });
}

TEST(FieldViewTest, AKeyIsFoundInThePaneThenInTheDialog)
{
    CSampleDialog dialog;
    CPropertyPage pane(kPaneTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        EXPECT_EQ(gFindField(dialog, "name").pControl, dialog.GetDlgItem(kName));
        EXPECT_EQ(gFindField(dialog, "delay").pControl, nullptr) << "of a hidden pane";
        pane.ShowWindow(SW_SHOW);
        EXPECT_EQ(gFindField(dialog, "name").pControl, pane.GetDlgItem(6));
        EXPECT_EQ(gFindField(dialog, "delay").pControl, pane.GetDlgItem(1));
        EXPECT_EQ(gFindField(dialog, "ok").pControl, dialog.GetDlgItem(IDOK));
        for (const char* pUnknown : {"", "Name", "place", "nam"}) {
            EXPECT_EQ(gFindField(dialog, pUnknown).pControl, nullptr) << pUnknown;
        }
    });
}

TEST(FieldViewTest, AKeyOfTheDialogsOwnIsFoundWhateverThePaneHolds)
{
    CSampleDialog dialog;
    CPropertyPage pane(kPaneTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        pane.ShowWindow(SW_SHOW);
        EXPECT_EQ(gFindOwnField(dialog, "name").pControl, dialog.GetDlgItem(kName));
        EXPECT_EQ(gFindOwnField(dialog, "delay").pControl, nullptr) << "of the pane";
        EXPECT_EQ(gFindOwnField(pane, "delay").pControl, pane.GetDlgItem(1));
    });
}
} // namespace
