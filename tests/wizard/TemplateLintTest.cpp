#include "support/TemplateLint.h"

#include "platform/headless/HeadlessDesktop.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/TemplateRows.h"
#include "platform/ui/Translate.h"
#include "support/SharedMnemonics.h"
#include "support/Steps.h"
#include "support/WizardRun.h"
#include "wizard/analysis/StepSweepPage.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/TreeDlg.h"
#include "wizard/frame/WizardPages.h"
#include "wizard/setup/BrowseLibraryAndSectionDialog.h"

#include <gtest/gtest.h>

namespace
{
using TTemplates = std::vector<const DialogTemplate*>;

/// The templates of all pages that are built.
TTemplates PageTemplates()
{
    std::vector<const CRuntimeClass*> classes(gWizardPagesWithoutNode().begin(),
                                              gWizardPagesWithoutNode().end());
    for (const TTreeRow& rRow : gWizardTree())
        if (rRow.pClass)
            classes.push_back(rRow.pClass);
    TTemplates templates;
    for (const CRuntimeClass* pClass : classes) {
        const auto pPage = pClass->CreateObject();
        templates.push_back(&dynamic_cast<CDialog&>(*pPage).GetTemplate());
    }
    return templates;
}

/// Every template of the wizard: those of its pages, the frame's, and those of the dialogs that
/// pages open.
TTemplates AllTemplates()
{
    class CFrame : public CTreeDlg
    {
    public:
        CFrame() : CTreeDlg(nullptr, nullptr) {}

    protected:
        void BuildTree() override {}
    };
    TTemplates templates = PageTemplates();
    templates.push_back(&CFrame().GetTemplate());
    templates.push_back(&CStepSweepPage().GetTemplate());
    templates.push_back(&CBrowseLibraryAndSectionDialog("", "").GetTemplate());
    return templates;
}

TEST(TemplateLint, FindsNothingInTheTemplatesOfTheWizard)
{
    for (const DialogTemplate* pTemplate : AllTemplates())
        EXPECT_EQ(gLintTemplate(*pTemplate), std::vector<std::string>{}) << pTemplate->pCaption;
}

TEST(TemplateLint, EveryPageFillsThePane)
{
    for (const DialogTemplate* pTemplate : PageTemplates())
        EXPECT_EQ(pTemplate->size, kPageSize) << pTemplate->pCaption;
}

// --- mnemonics, on live windows: the page and the frame together

TEST(WizardMnemonics, NoTwoControlsVisibleTogetherShareOneButThoseThatTheTemplateNames)
{
    std::vector<TStep> pages;
    std::string sCategory;
    for (const TTreeRow& rRow : gWizardTree()) {
        const std::string sLabel = xlang::gTranslate(rRow.pLabel).GetString();
        if (rRow.bCategory)
            sCategory = sLabel;
        if (rRow.pClass)
            pages.push_back(steps::Open(rRow.bCategory ? sLabel : sCategory + '/' + sLabel));
    }
    CScript script;
    for (const TStep& rStep : pages)
        script.Do({rStep}).Then([](CDialog& rDialog) {
            EXPECT_EQ(gSharedMnemonics(rDialog), "") << gClassName(gCurrentPane(rDialog));
        });
    gRunWizard(std::move(script));
}

TEST(WizardMnemonics, NeitherDoThoseOfAPageWithoutANode)
{
    for (const CRuntimeClass* pClass : gWizardPagesWithoutNode())
        gRunSinglePage(pClass->GetName(), CScript().Then([](CDialog& rDialog) {
            EXPECT_EQ(gSharedMnemonics(rDialog), "") << gClassName(gCurrentPane(rDialog));
        }));
}

TEST(WizardMnemonics, ASharedOneIsFoundUnlessItIsNamed)
{
    const auto rows = JoinRows(Row(1, "a", EControl::PushButton, "&Xa", {0, 0, 20, 14}),
                               Row(2, "b", EControl::PushButton, "&Xb", {0, 20, 20, 14}));
    for (const auto& [pNamed, pFound] : {std::pair{"", "x"}, {"x", ""}, {"y", "x"}}) {
        const DialogTemplate sample{"Sample", {60, 60}, rows, pNamed};
        HeadlessDesktop desktop;
        CDialog dialog(sample);
        CScript()
            .Then([pWanted = pFound](CDialog& rDialog) {
                EXPECT_EQ(gSharedMnemonics(rDialog), pWanted);
            })
            .Run(desktop, [&dialog] { dialog.DoModal(); });
    }
}

// --- the lint itself: what it must find, and what it must let pass

constexpr unsigned kOneLayer = 1;
constexpr unsigned kOtherLayer = 2;

struct TCase {
    const char* pName;
    std::vector<TControlRow> rows;
    std::vector<std::string> findings;
};

constexpr TControlRow Button(int nId, const char* pKey, TRect rect, unsigned nFlags = kNoFlags,
                             unsigned nLayers = 0)
{
    return Row(nId, pKey, EControl::PushButton, "Press", rect, nFlags, nLayers);
}

constexpr TControlRow Radio(int nId, const char* pKey, int nTop, unsigned nFlags = kNoFlags)
{
    return Row(nId, pKey, EControl::RadioButton, "Choose", {0, nTop, 60, 12}, nFlags);
}

const TControlRow kEdit = Row(1, "name", EControl::Edit, "", {0, 20, 60, 13});
const TControlRow kEditLabel = LabelFor(kEdit, "&Name:", {0, 0, 60, 9});

constexpr TControlRow OnLayer(TControlRow row, unsigned nLayers)
{
    row.nLayers = nLayers;
    return row;
}

constexpr TControlRow SharingEdit(TRect rect, unsigned nLayers)
{
    return Row(2, "other", EControl::Edit, "", rect, kSharesLabel, nLayers);
}

const TCase kCases[] = {
    {"a label and its edit", {kEditLabel, kEdit}, {}},
    {"an id twice",
     {Button(1, "a", {0, 0, 20, 14}), Button(1, "b", {0, 20, 20, 14})},
     {"the id of 'b' (1) is taken twice"}},
    {"a key twice",
     {Button(1, "a", {0, 0, 20, 14}), Button(2, "a", {0, 20, 20, 14})},
     {"the key of 'a' (2) is taken twice"}},
    {"a key with a blank",
     {Button(1, "a b", {0, 0, 20, 14})},
     {"the key of 'a b' (1) isn't lower case with hyphens"}},
    {"no key",
     {Button(1, "", {0, 0, 20, 14})},
     {"the key of '' (1) isn't lower case with hyphens"}},
    {"a radio group", {Radio(1, "mode", 0, kFirstOfGroup), Radio(2, "mode", 20)}, {}},
    {"a radio group without its first flag",
     {Radio(1, "mode", 0), Radio(2, "mode", 20)},
     {"the radio group of 'mode' (1) doesn't begin where its flag says"}},
    {"a radio group torn apart",
     {Radio(1, "mode", 0, kFirstOfGroup), Button(2, "b", {0, 20, 20, 14}), Radio(3, "mode", 40)},
     {"the radio group of 'mode' (3) doesn't begin where its flag says",
      "the key of 'mode' (3) is taken twice"}},
    {"radio buttons that head lines of fields",
     {Radio(1, "mode", 0, kFirstOfGroup), Radio(2, "mode", 20), Button(3, "a", {70, 0, 20, 14}),
      Button(4, "b", {70, 20, 20, 14})},
     {}},
    {"fields in front of the radio button of another line",
     {Radio(1, "mode", 0, kFirstOfGroup), Radio(2, "mode", 20), Button(3, "a", {70, 20, 20, 14}),
      Button(4, "b", {70, 0, 20, 14})},
     {"the tab order isn't the reading order: 'mode' (1) 'b' (4) 'a' (3)"}},
    {"radio buttons from bottom to top",
     {Radio(1, "mode", 20, kFirstOfGroup), Radio(2, "mode", 0)},
     {"'mode' (2) stands before the button in front of it"}},
    {"an edit without a label", {kEdit}, {"'name' (1) has no label in front of it"}},
    {"a label behind its edit",
     {kEdit, LabelFor(kEdit, "&Name:", {0, 0, 60, 9})},
     {"'name' (1) has no label in front of it"}},
    {"an edit declared without a label",
     {Row(1, "name", EControl::Edit, "", {0, 20, 60, 13}, kUnlabelled)},
     {}},
    {"a field in the place of another one, under its label",
     {kEditLabel, OnLayer(kEdit, kOneLayer), SharingEdit({0, 20, 60, 30}, kOtherLayer)},
     {}},
    {"a shared label that isn't there",
     {SharingEdit({0, 20, 60, 13}, kOtherLayer)},
     {"'other' (2) has no label to share in front of it"}},
    {"a field beside the one whose label it shares",
     {kEditLabel, OnLayer(kEdit, kOneLayer), SharingEdit({70, 20, 20, 13}, kOtherLayer)},
     {"'other' (2) isn't in the place of 'name' (1)"}},
    {"a field that is shown together with the one whose label it shares",
     {kEditLabel, OnLayer(kEdit, kOneLayer), SharingEdit({0, 20, 60, 13}, kOneLayer)},
     {"'other' (2) isn't in the place of 'name' (1)", "'name' (1) and 'other' (2) overlap"}},
    {"a shared label that is hidden with the other field",
     {OnLayer(kEditLabel, kOneLayer), OnLayer(kEdit, kOneLayer),
      SharingEdit({0, 20, 60, 13}, kOtherLayer)},
     {"'other' (2) isn't always shown with the label it shares"}},
    {"a button without a text",
     {Row(1, "b", EControl::PushButton, "", {0, 0, 20, 14})},
     {"'b' (1) has no label in front of it"}},
    {"a label declared away",
     {Button(1, "b", {0, 0, 20, 14}, kUnlabelled)},
     {"'b' (1) is declared without the label it has"}},
    {"a label of nothing", {kEditLabel}, {"label 'name' (10001) belongs to no field"}},
    {"outside", {Button(1, "b", {90, 0, 20, 14})}, {"'b' (1) reaches 10 units beyond the dialog"}},
    {"too low", {Button(1, "b", {0, 0, 20, 13})}, {"'b' (1) is too low for its text"}},
    {"overlapping",
     {Button(1, "a", {0, 0, 20, 14}), Button(2, "b", {10, 10, 20, 14})},
     {"'a' (1) and 'b' (2) overlap"}},
    {"overlapping on different layers",
     {Button(1, "a", {0, 0, 20, 14}, kNoFlags, kOneLayer),
      Button(2, "b", {10, 0, 20, 14}, kNoFlags, kOtherLayer)},
     {}},
    {"overlapping on a shared layer",
     {Button(1, "a", {0, 0, 20, 14}, kNoFlags, kOneLayer),
      Button(2, "b", {10, 0, 20, 14}, kNoFlags, kOneLayer | kOtherLayer)},
     {"'a' (1) and 'b' (2) overlap"}},
    {"a group around a button",
     {Row(1, "g", EControl::Group, "Group", {0, 0, 60, 40}), Button(2, "b", {10, 12, 20, 14})},
     {}},
    {"a group over the half of a button",
     {Row(1, "g", EControl::Group, "Group", {0, 0, 60, 40}), Button(2, "b", {50, 12, 20, 14})},
     {"'g' (1) and 'b' (2) overlap"}},
    {"line by line",
     {Button(1, "a", {0, 0, 20, 14}), Button(2, "b", {30, 0, 20, 14}),
      Button(3, "c", {0, 20, 20, 14}), Button(4, "d", {30, 20, 20, 14})},
     {}},
    {"column by column",
     {Button(1, "a", {0, 0, 20, 14}), Button(2, "b", {0, 20, 20, 14}),
      Button(3, "c", {30, 0, 20, 14}), Button(4, "d", {30, 20, 20, 14})},
     {}},
    {"rotated",
     {Button(1, "a", {0, 20, 20, 14}), Button(2, "b", {0, 40, 20, 14}),
      Button(3, "c", {0, 0, 20, 14})},
     {}},
    {"out of order",
     {Button(1, "a", {0, 20, 20, 14}), Button(2, "b", {0, 0, 20, 14}),
      Button(3, "c", {0, 40, 20, 14})},
     {"the tab order isn't the reading order: 'b' (2) 'a' (1) 'c' (3)"}},
    {"two groups beside each other in a third",
     {Row(1, "f", EControl::Group, "Frame", {0, 0, 100, 80}),
      Row(2, "g", EControl::Group, "Left", {5, 10, 40, 60}), Button(3, "a", {10, 20, 20, 14}),
      Button(4, "b", {10, 40, 20, 14}), Row(5, "h", EControl::Group, "Right", {50, 10, 40, 60}),
      Button(6, "c", {55, 20, 20, 14}), Button(7, "d", {55, 40, 20, 14})},
     {}},
    {"an upper one behind a lower one of another layer",
     {Row(1, "a", EControl::PushButton, "&A", {0, 20, 20, 14}, kNoFlags, kOneLayer),
      Row(2, "b", EControl::PushButton, "&B", {0, 0, 20, 14}, kNoFlags, kOtherLayer)},
     {}},
    {"an upper one behind a lower one of the same layer",
     {Row(1, "a", EControl::PushButton, "&A", {0, 20, 20, 14}, kNoFlags, kOtherLayer),
      Row(2, "b", EControl::PushButton, "&B", {0, 0, 20, 14}, kNoFlags, kOtherLayer),
      Row(3, "c", EControl::PushButton, "&C", {0, 40, 20, 14})},
     {"the tab order isn't the reading order: 'b' (2) 'a' (1) 'c' (3)"}},
    {"one group beside another",
     {Row(1, "g", EControl::Group, "Left", {0, 0, 40, 60}), Button(2, "a", {5, 10, 20, 14}),
      Button(3, "b", {5, 30, 20, 14}), Row(4, "h", EControl::Group, "Right", {50, 0, 40, 60}),
      Button(5, "c", {55, 10, 20, 14}), Button(6, "d", {55, 30, 20, 14})},
     {}},
};

TEST(TemplateLint, FindsWhatIsWrongAndNothingElse)
{
    for (const TCase& rCase : kCases)
        EXPECT_EQ(gLintTemplate({"Sample", {100, 100}, rCase.rows}), rCase.findings) << rCase.pName;
}
} // namespace
