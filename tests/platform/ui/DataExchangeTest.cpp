#include "platform/ui/DataExchange.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Edit.h"
#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

#include <functional>

namespace
{
/// Counts writes: an edit that notes each text it is given.
struct TCountingEdit : CEdit {
    std::vector<std::string> mWritten;
    void SetWindowText(const CString& rsText) override
    {
        mWritten.emplace_back(rsText.GetString());
        CEdit::SetWindowText(rsText);
    }
};

TEST(DataExchangeTest, TextIsWrittenOnlyWhereItDiffers)
{
    CSampleDialog dialog;
    TCountingEdit edit;
    CString sValue;
    dialog.Exchange([&](CDataExchange* pDX) {
        DDX_Control(pDX, kName, edit);
        DDX_Text(pDX, kName, sValue);
    });
    gLookInto(dialog, [&] {
        EXPECT_EQ(edit.mWritten, (std::vector<std::string>{})) << "empty at the start";
        for (const char* pText : {"a", "a", "A", "A", "", ""}) {
            sValue = pText;
            dialog.UpdateData(false);
            EXPECT_EQ(edit.GetWindowText(), pText);
        }
        EXPECT_EQ(edit.mWritten, (std::vector<std::string>{"a", "A", ""}));
    });
    EXPECT_EQ(dialog.TakeLog(), TLog{}) << "nobody is notified while data moves";
}

TEST(DataExchangeTest, OutsideUpdateDataTheSameWriteNotifiesOnce)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        for (const char* pText : {"a", "a", "b"}) {
            CString sValue = pText;
            CDataExchange exchange(dialog, EDataExchange::Load);
            DDX_Text(&exchange, kName, sValue);
        }
        EXPECT_EQ(dialog.TakeLog(), (TLog{"name:change", "name:change"}));
    });
}

TEST(DataExchangeTest, SavingTakesTheTextAsItStands)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.Get<CEdit>(kNotes).SetWindowText(" one\r\ntwo\n ");
        dialog.Get<CComboBox>(kColour).SetWindowText(" typed ");
        CString sNotes = "old";
        CString sColour = "old";
        CString sShape = "old";
        CDataExchange exchange(dialog, EDataExchange::Save);
        DDX_Text(&exchange, kNotes, sNotes);
        DDX_CBString(&exchange, kColour, sColour);
        DDX_CBString(&exchange, kShape, sShape);
        EXPECT_EQ(sNotes, " one\r\ntwo\n ");
        EXPECT_EQ(sColour, " typed ");
        EXPECT_EQ(sShape, "");
    });
}

TEST(DataExchangeTest, CheckMovesZeroAndOne)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        auto& rCheck = dialog.Get<CButton>(kAgain);
        for (const auto& [nValue, nExpected] :
             std::vector<std::pair<int, int>>{{1, 1}, {0, 0}, {2, 1}, {0, 0}, {-1, 1}}) {
            int nField = nValue;
            CDataExchange load(dialog, EDataExchange::Load);
            DDX_Check(&load, kAgain, nField);
            EXPECT_EQ(rCheck.GetCheck(), nExpected);
            EXPECT_EQ(nField, nValue);
            CDataExchange save(dialog, EDataExchange::Save);
            DDX_Check(&save, kAgain, nField);
            EXPECT_EQ(nField, nExpected);
        }
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

struct TComboCase {
    int nId;
    const char* pText;
    const char* pExpectedText;
    int nExpectedIndex;
};

// kShape: circle, square, star, nothing can be typed. kColour: blue, Green, red, with typing.
constexpr TComboCase kComboCases[] = {
    {kShape, "square", "square", 1},   {kShape, "s", "star", 2},
    {kShape, "Square", "star", 2},     {kShape, "", "star", 2},
    {kColour, "Green", "Green", 1},    {kColour, "Gre", "Gre", -1},
    {kColour, "green", "green", -1},   {kColour, "Green ", "Green ", -1},
    {kColour, "violet", "violet", -1}, {kColour, "", "", -1},
};

TEST(DataExchangeTest, ComboTextSelectsOnlyAnEntryThatIsEqual)
{
    for (const TComboCase& rCase : kComboCases) {
        SCOPED_TRACE(rCase.pText);
        CSampleDialog dialog;
        gLookInto(dialog, [&] {
            auto& rCombo = dialog.Get<CComboBox>(rCase.nId);
            rCombo.SetCurSel(2);
            CString sField = rCase.pText;
            CDataExchange load(dialog, EDataExchange::Load);
            DDX_CBString(&load, rCase.nId, sField);
            EXPECT_EQ(rCombo.GetWindowText(), rCase.pExpectedText);
            EXPECT_EQ(rCombo.GetCurSel(), rCase.nExpectedIndex);
            EXPECT_EQ(sField, rCase.pText);
            EXPECT_EQ(dialog.TakeLog(), TLog{});
        });
    }
}

TEST(DataExchangeTest, AWrongIdOrKindThrows)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        for (const EDataExchange mode : {EDataExchange::Save, EDataExchange::Load}) {
            CString sText;
            int nCheck = 0;
            CDataExchange exchange(dialog, mode);
            EXPECT_THROW(DDX_Text(&exchange, 9999, sText), CInvalidArgException);
            EXPECT_THROW(DDX_Check(&exchange, 9999, nCheck), CInvalidArgException);
            EXPECT_THROW(DDX_Check(&exchange, kName, nCheck), CInvalidArgException);
            EXPECT_THROW(DDX_CBString(&exchange, 9999, sText), CInvalidArgException);
            EXPECT_THROW(DDX_CBString(&exchange, kName, sText), CInvalidArgException);
            CEdit stranger;
            DDX_Control(&exchange, 9999, stranger); // kept: speaks only when members are bound
        }
    });
}

TEST(DataExchangeTest, ATrimChangesTheFieldOnly)
{
    CSampleDialog dialog;
    CString sName;
    dialog.Exchange([&](CDataExchange* pDX) { DDX_Text(pDX, kName, sName); });
    gLookInto(dialog, [&] {
        EXPECT_EQ(gAct(dialog, "set name=  x  "), "");
        EXPECT_TRUE(dialog.UpdateData(true));
        sName.Trim();
        EXPECT_EQ(sName, "x");
        EXPECT_EQ(dialog.Get<CEdit>(kName).GetWindowText(), "  x  ");
        dialog.UpdateData(false);
        EXPECT_EQ(dialog.Get<CEdit>(kName).GetWindowText(), "x");
    });
}
} // namespace
