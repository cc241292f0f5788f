#include "platform/headless/Step.h"

#include "platform/ui/ListBox.h"
#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

namespace
{
/// What stands in the way, if anything.
enum class EWay { Free, Disabled, Hidden };

struct TCase {
    EStep op;
    const char* pKey;
    const char* pText;
    int nIndex;
    EStepEnd end;
    EUserResult refusal = EUserResult::Done;
    EWay way = EWay::Free;
};

constexpr auto kDone = EStepEnd::Done;
constexpr auto kUnknownField = EStepEnd::UnknownField;
constexpr auto kWrongKind = EStepEnd::WrongKind;
constexpr auto kUnknownEntry = EStepEnd::UnknownEntry;
constexpr auto kRefused = EStepEnd::Refused;

const TCase kCases[] = {
    {EStep::Set, "name", "x", 0, kDone},
    {EStep::Set, "notes", "x\r\ny", 0, kDone},
    {EStep::Set, "colour", "x", 0, kDone},
    {EStep::Set, "nobody", "x", 0, kUnknownField},
    {EStep::Set, "", "x", 0, kUnknownField},
    {EStep::Set, "shape", "star", 0, kWrongKind, EUserResult::Ignored},
    {EStep::Set, "again", "x", 0, kWrongKind},
    {EStep::Set, "remark", "x", 0, kWrongKind},
    {EStep::Set, "name", "x\ny", 0, kRefused, EUserResult::Invalid},
    {EStep::Set, "fixed", "x", 0, kRefused, EUserResult::ReadOnly},
    {EStep::Set, "name", "x", 0, kRefused, EUserResult::Disabled, EWay::Disabled},
    {EStep::Set, "name", "x", 0, kRefused, EUserResult::Hidden, EWay::Hidden},

    {EStep::Select, "shape", "", 1, kDone},
    {EStep::Select, "colour", "", 1, kDone},
    {EStep::Select, "fruit", "", 1, kDone},
    {EStep::Select, "fruit", "", -1, kDone},
    {EStep::Select, "cells", "", 2, kDone},
    {EStep::Select, "cells", "", -1, kDone},
    {EStep::Select, "views", "", 2, kDone},
    {EStep::Select, "nobody", "", 0, kUnknownField},
    {EStep::Select, "name", "", 0, kWrongKind},
    {EStep::Select, "places", "", 0, kWrongKind},
    {EStep::Select, "shape", "", 3, kUnknownEntry},
    {EStep::Select, "shape", "", -1, kUnknownEntry},
    {EStep::Select, "fruit", "", 3, kUnknownEntry},
    {EStep::Select, "fruit", "", -2, kUnknownEntry},
    {EStep::Select, "cells", "", 3, kUnknownEntry},
    {EStep::Select, "views", "", -1, kUnknownEntry},
    {EStep::Select, "shape", "", 1, kRefused, EUserResult::Disabled, EWay::Disabled},
    {EStep::Select, "shape", "", 9, kRefused, EUserResult::Disabled, EWay::Disabled},
    {EStep::Select, "fruit", "", 1, kRefused, EUserResult::Hidden, EWay::Hidden},

    {EStep::SelectEntry, "shape", "star", 0, kDone},
    {EStep::SelectEntry, "shape", "STAR", 0, kDone},
    {EStep::SelectEntry, "colour", "green", 0, kDone},
    {EStep::SelectEntry, "fruit", "cherry", 0, kDone},
    {EStep::SelectEntry, "views", "two", 0, kDone},
    {EStep::SelectEntry, "nobody", "x", 0, kUnknownField},
    {EStep::SelectEntry, "cells", "x", 0, kWrongKind},
    {EStep::SelectEntry, "name", "x", 0, kWrongKind},
    {EStep::SelectEntry, "shape", "sta", 0, kUnknownEntry},
    {EStep::SelectEntry, "shape", "", 0, kUnknownEntry},
    {EStep::SelectEntry, "shape", "star", 0, kRefused, EUserResult::Disabled, EWay::Disabled},

    {EStep::Check, "again", "", 1, kDone},
    {EStep::Check, "again", "", 0, kDone},
    {EStep::Check, "nobody", "", 1, kUnknownField},
    {EStep::Check, "press", "", 1, kWrongKind},
    {EStep::Check, "level", "", 1, kWrongKind},
    {EStep::Check, "name", "", 1, kWrongKind},
    {EStep::Check, "again", "", 1, kRefused, EUserResult::Disabled, EWay::Disabled},
    {EStep::Check, "again", "", 0, kRefused, EUserResult::Hidden, EWay::Hidden},

    {EStep::Choose, "level", "", 2, kDone},
    {EStep::Choose, "nobody", "", 0, kUnknownField},
    {EStep::Choose, "again", "", 0, kWrongKind},
    {EStep::Choose, "shape", "", 0, kWrongKind},
    {EStep::Choose, "level", "", 3, kUnknownEntry},
    {EStep::Choose, "level", "", -1, kUnknownEntry},
    {EStep::Choose, "level", "", 0, kRefused, EUserResult::Disabled, EWay::Disabled},

    {EStep::Click, "press", "", 0, kDone},
    {EStep::Click, "again", "", 0, kDone},
    {EStep::Click, "nobody", "", 0, kUnknownField},
    {EStep::Click, "level", "", 0, kWrongKind},
    {EStep::Click, "name", "", 0, kWrongKind},
    {EStep::Click, "around", "", 0, kWrongKind, EUserResult::Ignored},
    {EStep::Click, "press", "", 0, kRefused, EUserResult::Disabled, EWay::Disabled},
    {EStep::Click, "press", "", 0, kRefused, EUserResult::Hidden, EWay::Hidden},

    {EStep::DoubleClick, "nobody", "", 0, kUnknownField},
    {EStep::DoubleClick, "press", "", 0, kWrongKind},
    {EStep::DoubleClick, "fruit", "", 0, kRefused, EUserResult::Invalid}, // nothing is selected
    {EStep::DoubleClick, "cells", "", 0, kRefused, EUserResult::Disabled, EWay::Disabled},

    {EStep::Focus, "name", "", 0, kDone},
    {EStep::Focus, "level", "", 0, kDone},
    {EStep::Focus, "places", "", 0, kDone},
    {EStep::Focus, "fixed", "", 0, kDone},
    {EStep::Focus, "nobody", "", 0, kUnknownField},
    {EStep::Focus, "remark", "", 0, kWrongKind},
    {EStep::Focus, "around", "", 0, kWrongKind},
    {EStep::Focus, "notes", "", 0, kRefused, EUserResult::Disabled, EWay::Disabled},
    {EStep::Focus, "notes", "", 0, kRefused, EUserResult::Hidden, EWay::Hidden},

    {EStep::SelectPath, "places", "a/a2", 0, kDone},
    {EStep::SelectPath, "nobody", "A", 0, kUnknownField},
    {EStep::SelectPath, "fruit", "A", 0, kWrongKind},
    {EStep::SelectPath, "places", "A/B", 0, kUnknownEntry},
    {EStep::SelectPath, "places", "A", 0, kRefused, EUserResult::Disabled, EWay::Disabled},
    {EStep::Expand, "places", "A", 0, kDone},
    {EStep::Expand, "fruit", "A", 0, kWrongKind},
    {EStep::Expand, "places", "", 0, kUnknownEntry},
    {EStep::Expand, "places", "A", 0, kRefused, EUserResult::Hidden, EWay::Hidden},
    {EStep::Collapse, "places", "C", 0, kDone},
    {EStep::Collapse, "nobody", "A", 0, kUnknownField},
    {EStep::Collapse, "places", "D", 0, kUnknownEntry},
    {EStep::Collapse, "places", "A", 0, kRefused, EUserResult::Disabled, EWay::Disabled},
};

void Block(CSampleDialog& rDialog, const TCase& rCase)
{
    for (CWnd* pChild : rDialog.GetChildren()) {
        if (std::string_view(pChild->GetKey()) != rCase.pKey)
            continue;
        if (rCase.way == EWay::Disabled)
            pChild->EnableWindow(false);
        else if (rCase.way == EWay::Hidden)
            pChild->ShowWindow(SW_HIDE);
    }
}

TEST(StepTest, EveryActionHasEveryEnd)
{
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(std::string(rCase.pKey) + ' ' + rCase.pText + ' ' +
                     std::to_string(rCase.nIndex) + " op " +
                     std::to_string(static_cast<int>(rCase.op)));
        CSampleDialog dialog;
        gLookInto(dialog, [&] {
            dialog.GetDlgItem(kPress)->SetFocus();
            Block(dialog, rCase);
            const std::string sFocus = gFocusName();
            dialog.TakeLog();
            TStep step{rCase.op, rCase.pKey, rCase.pText, rCase.nIndex};
            const TStepResult result = gRunStep(dialog, step);
            EXPECT_EQ(result.end, rCase.end);
            EXPECT_EQ(result.refusal, rCase.refusal);
            EXPECT_EQ(result.IsDone(), rCase.end == kDone);
            if (!result.IsDone()) {
                EXPECT_EQ(dialog.TakeLog(), TLog{});
                EXPECT_EQ(gFocusName(), sFocus);
            }
        });
    }
}

TEST(StepTest, KeysDontLookAtTheField)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        TStep tab{EStep::Key, "nobody"};
        tab.key.key = TUserKey::EKey::Tab;
        EXPECT_TRUE(gRunStep(dialog, tab).IsDone());
        EXPECT_EQ(gFocusName(), "notes");

        TStep up{EStep::Key};
        up.key.key = TUserKey::EKey::Up;
        const TStepResult ignored = gRunStep(dialog, up);
        EXPECT_EQ(ignored.end, kWrongKind);
        EXPECT_EQ(ignored.refusal, EUserResult::Ignored);

        dialog.GetDlgItem(IDOK)->EnableWindow(false);
        dialog.GetDlgItem(kMemo)->SetFocus();
        const TStepResult refused = gRunStep(dialog, {EStep::Key});
        EXPECT_EQ(refused.end, kRefused);
        EXPECT_EQ(refused.refusal, EUserResult::Disabled);
    });
}

TEST(StepTest, AnExactEntryComesBeforeAFoldedOne)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rList = dialog.Get<CListBox>(kFruit);
        rList.AddString("APPLE");
        for (const auto& [pEntry, nExpected] :
             std::vector<std::pair<const char*, int>>{{"APPLE", 3}, {"apple", 0}, {"Apple", 0}}) {
            EXPECT_EQ(gAct(dialog, std::string("entry fruit=") + pEntry), "");
            EXPECT_EQ(rList.GetCurSel(), nExpected) << pEntry;
        }
    });
}

TEST(StepTest, FocusEntersARadioGroupAtItsTabStop)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        EXPECT_EQ(gAct(dialog, "focus level"), "");
        EXPECT_EQ(gFocusName(), "level#0");
        dialog.CheckRadioButton(kLow, kHigh, kHigh);
        EXPECT_EQ(gAct(dialog, "focus level"), "");
        EXPECT_EQ(gFocusName(), "level#2");
        dialog.CheckRadioButton(kLow, kHigh, 0);
        dialog.GetDlgItem(kLow)->EnableWindow(false);
        gAct(dialog, "focus name");
        EXPECT_EQ(gAct(dialog, "focus level"), "");
        EXPECT_EQ(gFocusName(), "level#1");
        EXPECT_EQ(dialog.GetCheckedRadioButton(kLow, kHigh), 0) << "nothing is checked by it";
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

TEST(StepTest, CheckLeavesABoxThatIsAsWanted)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        EXPECT_EQ(gAct(dialog, "check again=0"), "");
        EXPECT_EQ(gFocusName(), "again");
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}
} // namespace
