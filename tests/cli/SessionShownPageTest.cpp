#include "cli/SessionTranscript.h"
#include "platform/ui/Button.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TemplateRows.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/QuorvaCommandDlg.h"

#include <gtest/gtest.h>

// A page that looks after "Insert Command" itself: it disables it each time the page becomes
// visible, and enables it when its own button is pressed.

namespace
{
enum EControlId { kReady = 1001 };

constexpr auto kRows =
    JoinRows(Row(kReady, "ready", EControl::PushButton, "&Ready", {7, 7, 60, 14}));
constexpr DialogTemplate kTemplate{"Shown", kPageSize, kRows};
constexpr DialogTemplate kPlainTemplate{"Plain", kPageSize, {}};
} // namespace

class CTestShownPage : public CCommandPage
{
public:
    CTestShownPage() : CCommandPage(kTemplate) {}
    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            OnMessage<&CTestShownPage::OnShow>(WM_SHOWWINDOW),
            On<&CTestShownPage::OnReady>(ENotify::Clicked, kReady),
        };
        return kHandlers;
    }
    bool BuildCommand(CString& rsCommand) override
    {
        rsCommand = ".shown";
        return true;
    }

private:
    LRESULT OnShow(WPARAM wParam, LPARAM)
    {
        if (wParam != 0) {
            GetParent()->GetDlgItem(IDOK)->EnableWindow(false);
        }
        return 0;
    }
    void OnReady() { GetParent()->GetDlgItem(IDOK)->EnableWindow(true); }
};

class CTestPlainPage : public CCommandPage
{
public:
    CTestPlainPage() : CCommandPage(kPlainTemplate) {}
    bool BuildCommand(CString&) override { return false; }
};

template const CRuntimeClass& gRuntimeClass<CTestShownPage>();
template const CRuntimeClass& gRuntimeClass<CTestPlainPage>();

namespace
{
quorvawiz::cli::TWizard ShownWizard()
{
    static const TTreeRow sTree[] = {
        {0, "Tests", "CTestPlainPage", &gRuntimeClass<CTestPlainPage>(), true},
        {0, "Shown", "CTestShownPage", &gRuntimeClass<CTestShownPage>(), false},
        {1, "Other", "CTestPlainPage", &gRuntimeClass<CTestPlainPage>(), false},
    };
    return {sTree, {}, [](quorvawiz::QuorvaCommandWizardTarget& rTarget) {
                CQuorvaCommandDlg(nullptr, &rTarget, sTree).DoModal();
            }};
}

TEST(SessionShownPage, AnOpenOfAnotherPageAndBackMakesThePageVisibleAgain)
{
    gExpectTranscript(
        ShownWizard(),
        {
            {R"({"op":"open","page":"Tests/Shown"})", R"({"ok":true,"insert_enabled":false})"},
            {R"({"op":"click","field":"ready"})", R"({"ok":true,"insert_enabled":true})"},
            {R"({"op":"insert"})", R"({"ok":true,"inserted":[".shown"],"insert_enabled":true})"},
            {R"({"op":"open","page":"Tests/Other"})", R"({"ok":true,"insert_enabled":true})"},
            {R"({"op":"open","page":"Tests/Shown"})", R"({"ok":true,"insert_enabled":false})"},
            {R"({"op":"insert"})", R"({"ok":false,"inserted":[]})"},
        });
}
} // namespace
