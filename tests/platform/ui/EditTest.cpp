#include "platform/ui/Edit.h"

#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

namespace
{
struct TWrite {
    int nId;
    const char* pText;
    TLog expected;
};

TEST(EditTest, AWriteOfTheProgramNotifiesOnASingleLineOnly)
{
    const TWrite kWrites[] = {
        {kName, "x", {"name:change"}},
        {kName, "x", {"name:change"}}, // also when equal
        {kName, "", {"name:change"}},
        {kName, "", {"name:change"}},
        {kFixed, "x", {"fixed:change"}}, // read-only is for the user
        {kNotes, "x", {}},
        {kNotes, "x", {}},
        {kMemo, "a\r\nb", {}},
        {kMemo, "", {}},
    };
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        for (const TWrite& rWrite : kWrites) {
            SCOPED_TRACE(rWrite.pText);
            dialog.Get<CEdit>(rWrite.nId).SetWindowText(rWrite.pText);
            EXPECT_EQ(dialog.Get<CEdit>(rWrite.nId).GetWindowText(), rWrite.pText);
            EXPECT_EQ(dialog.TakeLog(), rWrite.expected);
        }
    });
}

TEST(EditTest, TypingNotifiesOnceAlsoWhenEqual)
{
    const TStory kStories[] = {
        {"single line", {"set name=abc"}, {"name:change"}},
        {"the same again", {"set name=abc", "set name=abc"}, {"name:change", "name:change"}},
        {"nothing into nothing", {"set name="}, {"name:change"}},
        {"several lines", {"set notes=a\r\nb"}, {"notes:change"}},
        {"the same lines", {"set notes=a", "set notes=a"}, {"notes:change", "notes:change"}},
        {"tabs and 8-bit letters are text", {"set name=\t\xC3\xA4"}, {"name:change"}},
    };
    for (const TStory& rStory : kStories)
        gCheckStory(rStory);
}

struct TTyped {
    const char* pName;
    int nId;
    CString sText;
    EUserResult expected;
};

TEST(EditTest, SomeCharactersCantBeTyped)
{
    using namespace std::string_view_literals;
    const TTyped kTyped[] = {
        {"CR in a line", kName, "a\rb", EUserResult::Invalid},
        {"LF in a line", kName, "a\nb", EUserResult::Invalid},
        {"CR LF at the end of a line", kName, "a\r\n", EUserResult::Invalid},
        {"NUL in a line", kName, CString("a\0b"sv), EUserResult::Invalid},
        {"lone CR in lines", kNotes, "a\rb", EUserResult::Done},
        {"lone LF in lines", kNotes, "a\nb", EUserResult::Done},
        {"CR LF in lines", kNotes, "a\r\nb\r\n", EUserResult::Done},
        {"CR LF without want-return", kMemo, "a\r\nb", EUserResult::Done},
        {"NUL in lines", kNotes, CString("a\0b"sv), EUserResult::Invalid},
        {"read-only", kFixed, "a", EUserResult::ReadOnly},
        {"read-only before a bad character", kFixed, "a\n", EUserResult::ReadOnly},
    };
    for (const TTyped& rTyped : kTyped) {
        SCOPED_TRACE(rTyped.pName);
        CSampleDialog dialog;
        gLookInto(dialog, [&] {
            auto& rEdit = dialog.Get<CEdit>(rTyped.nId);
            rEdit.SetWindowText("before");
            dialog.TakeLog();
            const bool bDone = rTyped.expected == EUserResult::Done;
            const std::string sFocus = gFocusName();
            EXPECT_EQ(rEdit.UserType(rTyped.sText), rTyped.expected);
            EXPECT_EQ(rEdit.GetWindowText(), bDone ? rTyped.sText : CString("before"));
            EXPECT_EQ(dialog.TakeLog().size(), bDone ? 1U : 0U);
            if (!bDone) {
                EXPECT_EQ(gFocusName(), sFocus);
            }
        });
    }
}

TEST(EditTest, TheNotificationComesAfterTheText)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rEdit = dialog.Get<CEdit>(kName);
        CString sSeen;
        dialog.React("name:change", [&] { sSeen = rEdit.GetWindowText(); });
        rEdit.SetWindowText("program");
        EXPECT_EQ(sSeen, "program");
        gAct(dialog, "set name=user");
        EXPECT_EQ(sSeen, "user");
    });
}

TEST(EditTest, AHandlerMayWriteBackAndIsNotifiedNested)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rEdit = dialog.Get<CEdit>(kName);
        dialog.React("name:change", [&] {
            if (rEdit.GetWindowText() != "B") {
                rEdit.SetWindowText("B");
                dialog.Write("after the write");
            }
        });
        gAct(dialog, "set name=a");
        EXPECT_EQ(dialog.TakeLog(), (TLog{"name:change", "name:change", "after the write"}));
        EXPECT_EQ(rEdit.GetWindowText(), "B");
    });
}

TEST(EditTest, OnlyMultilineKindsAreMultiline)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        EXPECT_FALSE(dialog.Get<CEdit>(kName).IsMultiline());
        EXPECT_FALSE(dialog.Get<CEdit>(kFixed).IsMultiline());
        EXPECT_TRUE(dialog.Get<CEdit>(kNotes).IsMultiline());
        EXPECT_TRUE(dialog.Get<CEdit>(kMemo).IsMultiline());
    });
}
} // namespace
