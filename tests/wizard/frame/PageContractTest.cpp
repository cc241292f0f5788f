// What every page keeps to, told on a small page with two fields that doesn't trim.

#include "platform/headless/HeadlessDesktop.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "support/Steps.h"
#include "support/WizardRun.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/QuorvaCommandDlg.h"
#include "wizard/frame/Remembered.h"
#include "wizard/frame/WizardPages.h"

#include <gtest/gtest.h>

namespace
{
using namespace steps;

enum EControlId { kFirst = 1001, kSecond };

constexpr TColumns kColumns{.nField = 70};
constexpr auto kRows = PageRows(EditLine(kColumns, kFirst, "first", "&First:"),
                                EditLine(kColumns, kSecond, "second", "&Second:"));
constexpr DialogTemplate kTemplate{"Sample", kPageSize, kRows};

class CSamplePage : public CCommandPage
{
public:
    CSamplePage() : CCommandPage(kTemplate) {}

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = Remember().Get();
        UpdateData(false);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        if (mFields.msFirst.IsEmpty())
            return gReportMessage(*this, "Missing first.");
        if (mFields.msSecond.IsEmpty())
            return gReportMessage(*this, "Missing second.");
        rsCommand = ".sample " + mFields.msFirst + " " + mFields.msSecond;
        Remember().Set(mFields);
        return true;
    }

    struct TFields {
        CString msFirst;
        CString msSecond;
    };

protected:
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Text(pDX, kFirst, mFields.msFirst);
        DDX_Text(pDX, kSecond, mFields.msSecond);
    }

private:
    static Remembered<TFields>& Remember()
    {
        static Remembered<TFields> sRemembered;
        return sRemembered;
    }

    TFields mFields;
};

/// A page that finds nothing to write and says that all is well.
class COptionalPage : public CCommandPage
{
public:
    COptionalPage() : CCommandPage(kTemplate) {}
    bool BuildCommand(CString&) override { return true; }
};

class PageContract : public testing::Test
{
protected:
    PageContract() { CRememberedBase::ResetAll(); }

    std::vector<std::string> Run(CScript script)
    {
        static const TTreeRow kTree[] = {
            {0, "C", "", &gRuntimeClass<COptionalPage>(), true},
            {0, "Sample", "", &gRuntimeClass<CSamplePage>(), false},
            {1, "Optional", "", &gRuntimeClass<COptionalPage>(), false},
        };
        CQuorvaCommandDlg dialog(nullptr, &mTarget, kTree);
        script.Run(mDesktop, [&dialog] { dialog.DoModal(); });
        std::vector<std::string> texts;
        for (const TShownBox& rBox : mDesktop.TakeBoxes())
            texts.emplace_back(rBox.box.sText.GetString());
        return texts;
    }

    static CScript::TAction Shows(const char* pFirst, const char* pSecond)
    {
        return [=](CDialog& rDialog) {
            EXPECT_EQ(gFindField(rDialog, "first").pControl->GetWindowText(), pFirst);
            EXPECT_EQ(gFindField(rDialog, "second").pControl->GetWindowText(), pSecond);
        };
    }

    HeadlessDesktop mDesktop;
    CRecordingTarget mTarget;
};

TEST_F(PageContract, TheFirstFailureIsTheOnlyOneReported)
{
    EXPECT_EQ(Run(CScript().Do({Open("C/Sample"), Insert()})),
              std::vector<std::string>{"Missing first."});
}

TEST_F(PageContract, AValueOfOnlyBlanksIsPresentOnAPageThatDoesNotTrim)
{
    Run(CScript().Do({Open("C/Sample"), Set("first", "  "), Set("second", " "), Insert()}));
    EXPECT_EQ(mTarget.mCommands, std::vector<std::string>{".sample     "});
}

TEST_F(PageContract, ASecondPressWithUnchangedFieldsInsertsTheSameTextAgain)
{
    Run(CScript().Do(
        {Open("C/Sample"), Set("first", "a"), Set("second", "b"), Insert(), Insert()}));
    EXPECT_EQ(mTarget.mCommands, (std::vector<std::string>{".sample a b", ".sample a b"}));
}

TEST_F(PageContract, AFailedCheckLeavesTheRememberedValuesOfAllFieldsEvenOfThoseThatPassed)
{
    Run(CScript().Do({Open("C/Sample"), Set("first", "a"), Set("second", "b"), Insert(),
                      Set("first", "passes"), Set("second", ""), Insert()}));
    Run(CScript().Do({Open("C/Sample")}).Then(Shows("a", "b")));
}

TEST_F(PageContract, APageThatWritesNothingHandsOnTheTextOfTheLastPage)
{
    Run(CScript().Do({Open("C/Optional"), Insert(), Open("C/Sample"), Set("first", "a"),
                      Set("second", "b"), Insert(), Open("C/Optional"), Insert()}));
    EXPECT_EQ(mTarget.mCommands, (std::vector<std::string>{"", ".sample a b", ".sample a b"}));
}

TEST_F(PageContract, RememberedValuesLastBetweenRunsAndEndWithTheProcess)
{
    Run(CScript().Do({Open("C/Sample"), Set("first", "a"), Set("second", "b"), Insert()}));
    Run(CScript().Do({Open("C/Sample")}).Then(Shows("a", "b")));
    CRememberedBase::ResetAll();
    Run(CScript().Do({Open("C/Sample")}).Then(Shows("", "")));
}
} // namespace
