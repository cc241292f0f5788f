#include "wizard/frame/ListEditing.h"

#include "platform/base/Exceptions.h"
#include "platform/headless/HeadlessDesktop.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TemplateRows.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"
#include "support/WizardRun.h"

#include <gtest/gtest.h>

namespace
{
enum EControlId { kEntry = 1001, kList, kAdd, kDelete, kClear };

constexpr auto kRows = JoinRows(
    LabelAbove(Row(kEntry, "entry", EControl::Edit, "", {7, 20, 80, kEditHeight}), "Entry:"),
    LabelAbove(Row(kList, "list", EControl::ListBox, "", {7, 50, 80, 60}), "List:"),
    Row(kAdd, "add", EControl::PushButton, "&Add", {100, 50, 50, 14}),
    Row(kDelete, "delete", EControl::PushButton, "&Delete", {100, 70, 50, 14}, kDisabled),
    Row(kClear, "clear", EControl::PushButton, "&Clear", {100, 90, 50, 14}, kDisabled));
constexpr DialogTemplate kTemplate{"List", {160, 120}, kRows};

constexpr TListEditingParts kTexts{kDelete, kClear,
                                   "__$$Translatable$$_This entry is already in the list.",
                                   "__$$Translatable$$_Delete it?", "Clear all?"};

class CListDlg : public CDialog
{
public:
    CListDlg() : CDialog(kTemplate) {}

    CListBox mList;
    ListEditing mEditing{*this, mList, kTexts};
    CString msMessage;

protected:
    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CListDlg::OnAdd>(ENotify::Clicked, kAdd),
            On<&CListDlg::OnDelete>(ENotify::Clicked, kDelete),
            On<&CListDlg::OnClear>(ENotify::Clicked, kClear),
        };
        return kHandlers;
    }
    void DoDataExchange(CDataExchange* pDX) override { DDX_Control(pDX, kList, mList); }

private:
    void OnAdd() { mEditing.Add(GetDlgItem(kEntry)->GetWindowText(), msMessage); }
    void OnDelete() { mEditing.Delete(); }
    void OnClear() { mEditing.Clear(); }
};

using namespace steps;

struct TExpected {
    std::string sItems; ///< top first, separated by blanks
    int nSelected;
    bool bButtons;                  ///< Delete and Clear are enabled
    std::vector<std::string> texts; ///< of the boxes
};

struct TCase {
    const char* pName;
    std::vector<TStep> steps;
    std::deque<bool> answers;
    TExpected expected;
};

const TStep kAddA = Set("entry", "a");
const TStep kAddB = Set("entry", "b");
const TStep kPress = Click("add");

const TCase kCases[] = {
    {"a new entry stands on top, selected",
     {kAddA, kPress, kAddB, kPress},
     {},
     {"b a", 0, true, {}}},
    {"an entry that is there in another case is refused",
     {kAddA, kPress, Set("entry", "A"), kPress},
     {},
     {"a", 0, true, {"[This entry is already in the list.]"}}},
    {"deleting asks, and no keeps the entry",
     {kAddA, kPress, Click("delete")},
     {false},
     {"a", 0, true, {"[Delete it?]"}}},
    {"without an answer the answer is no",
     {kAddA, kPress, Click("delete")},
     {},
     {"a", 0, true, {"[Delete it?]"}}},
    {"deleting selects the entry on top",
     {kAddA, kPress, kAddB, kPress, Set("entry", "c"), kPress, Select("list", 1), Click("delete")},
     {true},
     {"c a", 0, true, {"[Delete it?]"}}},
    {"deleting the last entry disables Delete and Clear",
     {kAddA, kPress, Click("delete")},
     {true},
     {"", -1, false, {"[Delete it?]"}}},
    {"deleting without a selection does nothing",
     {kAddA, kPress, Select("list", -1), Click("delete")},
     {true},
     {"a", -1, true, {}}},
    {"clearing asks; a question without the marker isn't translated",
     {kAddA, kPress, kAddB, kPress, Click("clear")},
     {true},
     {"", -1, false, {"Clear all?"}}},
    {"clearing with no keeps all",
     {kAddA, kPress, Click("clear")},
     {false},
     {"a", 0, true, {"Clear all?"}}},
    {"clearing without a selection does nothing though there are entries",
     {kAddA, kPress, Select("list", -1), Click("clear")},
     {true},
     {"a", -1, true, {}}},
};

TEST(ListEditing, AddsDeletesAndClears)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        HeadlessDesktop desktop;
        desktop.SetAnswers(rCase.answers);
        CListDlg dialog;
        CScript()
            .Do(rCase.steps)
            .Then([&](CDialog&) {
                std::string sItems;
                for (const CString& rsItem : dialog.mList.GetItems())
                    sItems += (sItems.empty() ? "" : " ") + std::string(rsItem.GetString());
                EXPECT_EQ(sItems, rCase.expected.sItems);
                EXPECT_EQ(dialog.mList.GetCurSel(), rCase.expected.nSelected);
                for (const int nButton : {kDelete, kClear})
                    EXPECT_EQ(dialog.GetDlgItem(nButton)->IsWindowEnabled(),
                              rCase.expected.bButtons);
            })
            .Run(desktop, [&dialog] { dialog.DoModal(); });
        std::vector<std::string> texts;
        for (const TShownBox& rBox : desktop.TakeBoxes())
            texts.emplace_back(rBox.box.sText.GetString());
        EXPECT_EQ(texts, rCase.expected.texts);
    }
}

TEST(ListEditing, QuestionsAreTheApplicationsBoxesAndTheRefusalIsThePages)
{
    HeadlessDesktop desktop;
    CListDlg dialog;
    CScript().Do({kAddA, kPress, kPress, Click("delete")}).Run(desktop, [&dialog] {
        dialog.DoModal();
    });
    const auto boxes = desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 2U);

    EXPECT_EQ(boxes[0].box.pOwner, &dialog);
    EXPECT_EQ(boxes[0].box.sCaption, CString("SPICE"));
    EXPECT_EQ(boxes[0].box.nFlags, MB_OK | MB_ICONINFORMATION);
    EXPECT_EQ(dialog.msMessage, "This entry is already in the list.");

    EXPECT_EQ(boxes[1].box.pOwner, nullptr);
    EXPECT_EQ(boxes[1].box.sCaption, std::nullopt) << "the default caption";
    EXPECT_EQ(boxes[1].box.nFlags, MB_YESNO);
}

TEST(ListEditing, APageWithoutAMessageStringAddsAndRefusesAlike)
{
    HeadlessDesktop desktop;
    CListDlg dialog;
    CScript()
        .Then([&dialog](CDialog&) {
            EXPECT_TRUE(dialog.mEditing.Add("a"));
            EXPECT_FALSE(dialog.mEditing.Add("A"));
            EXPECT_EQ(dialog.mList.GetCount(), 1);
        })
        .Run(desktop, [&dialog] { dialog.DoModal(); });
    const auto boxes = desktop.TakeBoxes();
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].box.pOwner, &dialog);
    EXPECT_EQ(boxes[0].box.sText, "This entry is already in the list.");
    EXPECT_EQ(boxes[0].box.sCaption, CString("SPICE"));
}

TEST(ListEditing, AnEntryMayBePutTogetherInTheMessageString)
{
    HeadlessDesktop desktop;
    CListDlg dialog;
    CScript()
        .Then([&dialog](CDialog&) {
            CString& rsMessage = dialog.msMessage;
            rsMessage = "a";
            EXPECT_TRUE(dialog.mEditing.Add(rsMessage, rsMessage));
            EXPECT_EQ(rsMessage, "a");
            EXPECT_FALSE(dialog.mEditing.Add(rsMessage, rsMessage));
            EXPECT_EQ(rsMessage, "This entry is already in the list.");
            EXPECT_EQ(dialog.mList.GetCount(), 1);
        })
        .Run(desktop, [&dialog] { dialog.DoModal(); });
}

TEST(ListEditing, AButtonThatThePageDoesNotHaveIsAnError)
{
    static constexpr TListEditingParts kWrong{9998, 9999, "", "", ""};
    HeadlessDesktop desktop;
    CListDlg dialog;
    CScript()
        .Then([&dialog](CDialog&) {
            ListEditing editing(dialog, dialog.mList, kWrong);
            CString sMessage;
            EXPECT_THROW(editing.Add("a", sMessage), CInvalidArgException);
        })
        .Run(desktop, [&dialog] { dialog.DoModal(); });
}

TEST(ListEditing, TellsTheEntriesOldestFirst)
{
    HeadlessDesktop desktop;
    CListDlg dialog;
    CScript()
        .Do({kAddA, kPress, kAddB, kPress, Set("entry", "c"), kPress})
        .Then([&dialog](CDialog&) {
            EXPECT_EQ(dialog.mEditing.OldestFirst(" "), " a b c");
            EXPECT_EQ(dialog.GetDlgItem(kEntry)->GetWindowText(), "c") << "fields keep their text";
        })
        .Run(desktop, [&dialog] { dialog.DoModal(); });
}
} // namespace
