#include "qt/Visits.h"

#include "cli/example/ExampleStore.h"
#include "exports/Quorvawiz.h"
#include "params/CircuitParams.h"
#include "platform/headless/TreePath.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Edit.h"
#include "platform/ui/FieldView.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TreeCtrl.h"
#include "qt/Player.h"
#include "support/WizardRun.h"
#include "wizard/analysis/StepSweepPage.h"
#include "wizard/frame/SinglePageDlg.h"
#include "wizard/frame/WizardPages.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>
#include <deque>
#include <functional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace
{
/// Turns that make further turns out of what they find.
class CVisit
{
public:
    explicit CVisit(const TLook& rLook) : mrLook(rLook) {}

    /// Adds a turn behind all others.
    void Add(CPlayer::TTurn turn) { mTurns.push_back(std::move(turn)); }
    /// Adds a look at the dialog in front.
    void AddLook(const std::string& rsName)
    {
        Add([this, rsName] { mrLook(rsName, *gWidgetOf(gFrontDialog())); });
    }
    /// Goes on with the turns that `rAdd` adds before those that wait.
    void Insert(const std::function<void()>& rAdd)
    {
        std::deque<CPlayer::TTurn> waiting = std::exchange(mTurns, {});
        rAdd();
        mTurns.insert(mTurns.end(), waiting.begin(), waiting.end());
    }

    /// Takes the turns while `rRun` runs a dialog, and leaves that with Escape.
    void Go(const std::function<void()>& rRun)
    {
        Add([] { gInput("press Escape"); });
        CPlayer player;
        player.SetMore([this] {
            if (mTurns.empty())
                return CPlayer::TTurn();
            CPlayer::TTurn turn = std::move(mTurns.front());
            mTurns.pop_front();
            return turn;
        });
        player.Play(rRun);
    }

private:
    const TLook& mrLook;
    std::deque<CPlayer::TTurn> mTurns;
};

bool TakesClicks(const CWnd& rControl)
{
    return rControl.IsWindowVisible() && rControl.IsUsable();
}

/// What the user can choose from in the dialog in front: drop-down lists, and radio groups without
/// the buttons that take no click now.
std::vector<TFieldView> UsableChoices()
{
    std::vector<TFieldView> choices;
    for (TFieldView field : gCollectFields(gCurrentPane(gFrontDialog()))) {
        std::erase_if(field.radios, [](const CButton* pRadio) { return !TakesClicks(*pRadio); });
        const bool bCombo =
            dynamic_cast<CComboBox*>(field.pControl) && TakesClicks(*field.pControl);
        if (bCombo || !field.radios.empty())
            choices.push_back(std::move(field));
    }
    return choices;
}

/// What is usable now and wasn't before.
std::vector<TFieldView> NewChoices(const std::vector<TFieldView>& rBefore)
{
    const auto wasRadio = [&rBefore](const CButton* pRadio) {
        return std::ranges::any_of(rBefore, [pRadio](const TFieldView& rField) {
            return std::ranges::find(rField.radios, pRadio) != rField.radios.end();
        });
    };
    std::vector<TFieldView> choices = UsableChoices();
    std::erase_if(choices, [&](TFieldView& rField) {
        if (rField.kind != EControl::RadioButton)
            return std::ranges::find(rBefore, rField.pControl, &TFieldView::pControl) !=
                   rBefore.end();
        std::erase_if(rField.radios, wasRadio);
        return rField.radios.empty();
    });
    return choices;
}

void AddChoice(CVisit& rVisit, const std::string& rsName, const TFieldView& rChoice);

/// Makes a choice and looks at the window, after looks at what the choice lets the user choose.
void AddState(CVisit& rVisit, const std::string& rsName, const std::function<void()>& rChoose)
{
    rVisit.Add([&rVisit, rsName, rChoose] {
        const auto before = UsableChoices();
        rChoose();
        rVisit.Insert([&] {
            for (const TFieldView& rChoice : NewChoices(before))
                AddChoice(rVisit, rsName, rChoice);
        });
    });
    rVisit.AddLook(rsName);
}

/// Looks at a drop-down list's window with each of its entries.
void AddEntries(CVisit& rVisit, const std::string& rsName, CComboBox& rCombo)
{
    for (int i = 0; i < rCombo.GetCount(); ++i)
        AddState(rVisit, rsName + "-" + rCombo.GetLBText(i).GetString(),
                 [&rCombo, i] { rCombo.UserSelect(i); });
    rVisit.Add([&rCombo] { rCombo.UserSelect(0); });
}

/// Looks at the window with each of these radio buttons, and goes back to the one that was checked.
void AddRadios(CVisit& rVisit, const std::string& rsName, const TFieldView& rGroup)
{
    const auto all = gFindField(gFrontDialog(), rGroup.sKey).radios;
    std::set<std::string> names;
    for (CButton* const pRadio : rGroup.radios) {
        CString sLabel = pRadio->GetWindowText();
        sLabel.Remove('&');
        std::string sName = rsName + "-" + sLabel.GetString();
        if (!names.insert(sName).second) // some texts differ by the letter alone
            sName += " 2";
        AddState(rVisit, sName, [pRadio] { pRadio->UserClick(); });
    }
    const auto checked = std::ranges::find_if(all, &CButton::GetCheck);
    if (checked != all.end())
        rVisit.Add([pChecked = *checked] { pChecked->UserClick(); });
}

void AddChoice(CVisit& rVisit, const std::string& rsName, const TFieldView& rChoice)
{
    if (auto* const pCombo = dynamic_cast<CComboBox*>(rChoice.pControl))
        AddEntries(rVisit, rsName, *pCombo);
    else
        AddRadios(rVisit, rsName, rChoice);
}

/// Looks at every state that a choice on the page in front brings about.
void AddChoices(CVisit& rVisit, const std::string& rsName)
{
    for (const TFieldView& rChoice : UsableChoices())
        AddChoice(rVisit, rsName, rChoice);
    for (const TFieldView& rField : gCollectFields(gCurrentPane(gFrontDialog()))) {
        if (rField.kind != EControl::CheckBox || !TakesClicks(*rField.pControl))
            continue;
        rVisit.Add([&rVisit, rsName, rField] {
            auto& rBox = dynamic_cast<CButton&>(*rField.pControl);
            rBox.UserClick();
            const char* const pState = rBox.GetCheck() ? "-on" : "-off";
            rVisit.Insert(
                [&] { rVisit.AddLook(rsName + "-" + std::string(rField.sKey) + pState); });
        });
        rVisit.Add([rField] { dynamic_cast<CButton&>(*rField.pControl).UserClick(); });
    }
}

/// Types something into every empty field that the user sees, and adds it to the list if there is
/// one.
void FillStep()
{
    const auto fields = gCollectFields(gCurrentPane(gFrontDialog()));
    for (const TFieldView& rField : fields)
        if (auto* const pEdit = dynamic_cast<CEdit*>(rField.pControl);
            pEdit && pEdit->IsWindowVisible() && pEdit->GetWindowText().IsEmpty())
            pEdit->UserType(CString(rField.sKey.substr(0, 1)) + "1");
    for (const TFieldView& rField : fields)
        if (auto* const pButton = dynamic_cast<CButton*>(rField.pControl);
            pButton && rField.sKey.ends_with("-add"))
            pButton->UserClick();
}

/// Looks at a step with the focus on each of its fields that say something by it.
void AddHelps(CVisit& rVisit, const std::string& rsName)
{
    CDialog& rPane = gCurrentPane(gFrontDialog());
    const CWnd* const pHelp = gFindField(rPane, "description").pControl;
    if (!pHelp || !pHelp->IsWindowVisible())
        return;
    for (const TFieldView& rField : gCollectFields(rPane))
        if (rField.kind == EControl::Edit && rField.pControl->IsWindowVisible()) {
            rVisit.Add([rField] { rField.pControl->AcceptUser(); });
            rVisit.AddLook(rsName + "-" + std::string(rField.sKey));
        }
}

/// Walks the steps of a page that has any, and looks at each and at its choices.
void AddSteps(CVisit& rVisit, const std::string& rsPage, int nStep = 1)
{
    rVisit.Add([&rVisit, rsPage, nStep] {
        const TFieldView next = gFindField(gFrontDialog(), "continue");
        if (!next.pControl || !next.pControl->IsWindowVisible())
            return;
        FillStep();
        dynamic_cast<CButton&>(*next.pControl).UserClick();
        rVisit.Insert([&rVisit, &rsPage, nStep] {
            const std::string sName = rsPage + "-step-" + std::to_string(nStep + 1);
            rVisit.AddLook(sName);
            AddChoices(rVisit, sName);
            AddHelps(rVisit, sName);
            AddSteps(rVisit, rsPage, nStep + 1);
        });
    });
}

void AddNode(CVisit& rVisit, HTREEITEM hNode)
{
    rVisit.Add([&rVisit, hNode] {
        auto& rTree = const_cast<CTreeCtrl&>(gOpenWizard().GetTree());
        rTree.UserSelect(hNode);
        const std::string sName = gTreePathOf(rTree, hNode);
        rVisit.Insert([&rVisit, sName] {
            rVisit.AddLook(sName);
            AddChoices(rVisit, sName);
            AddSteps(rVisit, sName);
        });
    });
}
} // namespace

void gVisitWizard(const TLook& rLook)
{
    CVisit visit(rLook);
    visit.Add([&visit] {
        visit.Insert([&visit] {
            const CTreeCtrl& rTree = gOpenWizard().GetTree();
            for (HTREEITEM h = rTree.GetRootItem(); h; h = rTree.GetNextSiblingItem(h)) {
                AddNode(visit, h);
                for (HTREEITEM c = rTree.GetChildItem(h); c; c = rTree.GetNextSiblingItem(c))
                    AddNode(visit, c);
            }
        });
    });
    CRecordingTarget target;
    visit.Go([&target] { quorvawiz::gInvokeSpiceCommandWizard(nullptr, &target); });
}

void gVisitSinglePages(const TLook& rLook)
{
    for (const CRuntimeClass* pClass : gWizardPagesWithoutNode()) {
        CVisit visit(rLook);
        visit.Add([&visit] {
            visit.Insert([&visit] {
                const std::string sName = gOpenWizard().GetWindowText().GetString();
                visit.AddLook(sName);
                AddChoices(visit, sName);
            });
        });
        CRecordingTarget target;
        visit.Go([pClass, &target] { CSinglePageDlg(nullptr, &target, *pClass).DoModal(); });
    }
}

void gVisitSweep(const TLook& rLook)
{
    CVisit visit(rLook);
    visit.Add([&visit] {
        visit.Insert([&visit] {
            const auto combo = [](const char* pKey) -> CComboBox& {
                return dynamic_cast<CComboBox&>(*gFindField(gFrontDialog(), pKey).pControl);
            };
            AddEntries(visit, "sweep", combo("sweep-type"));
            AddEntries(visit, "sweep-of", combo("parameter-type"));
        });
    });
    CStepSweepPage dialog;
    dialog.Prepare("sweep ", true);
    visit.Go([&dialog] { dialog.DoModal(); });
}

void gVisitBrowser(const TLook& rLook)
{
    struct TWindow {
        const char* pName;
        std::function<void(const TCircuitParams&)> run;
        std::vector<std::string> inputs; ///< lead to it
        int nDepth;                      ///< how many windows are open then
    };
    const auto devices = [](const TCircuitParams& rStore) {
        quorvawiz::gInvokeParamBrowserDevicesDialog(nullptr, rStore, true);
    };
    const auto device = [](const TCircuitParams& rStore) {
        quorvawiz::gInvokeDeviceDetailsDialog(nullptr, rStore, "top", "M3");
    };
    const auto models = [](const TCircuitParams& rStore) {
        quorvawiz::gInvokeParamBrowserLibraryModelsDialog(nullptr, rStore, true);
    };
    const auto classes = [](const TCircuitParams& rStore) {
        quorvawiz::gInvokeParamBrowserQuorvaModelsDialog(nullptr, rStore, "MOS3");
    };
    const TWindow windows[] = {
        {"devices", devices, {}, 1},
        {"device-model", device, {}, 1},
        {"device-device", device, {"click tabs@1"}, 1},
        {"library-models", models, {}, 1},
        {"library-model", models, {"click table@1", "press Return"}, 2},
        {"simulator-models", classes, {}, 1},
        {"class-model", classes, {"press Return"}, 2},
        {"class-device", classes, {"press Return", "click tabs@1"}, 2},
        {"class-state", classes, {"press Return", "click tabs@2"}, 2},
    };
    TCircuitParams store;
    quorvawiz::cli::gFillExample(store, 300, 1);
    for (const TWindow& rWindow : windows) {
        CVisit visit(rLook);
        for (const std::string& rsInput : rWindow.inputs)
            visit.Add([rsInput] { gInput(rsInput); });
        visit.AddLook(rWindow.pName);
        visit.Add([] {
            QWidget& rWidget = *gWidgetOf(gFrontDialog());
            rWidget.resize(rWidget.width() * 2, rWidget.height() * 5 / 4);
        });
        visit.AddLook(rWindow.pName + std::string("-wide"));
        for (int n = 1; n < rWindow.nDepth; ++n)
            visit.Add([] { gInput("press Escape"); });
        visit.Go([&] { rWindow.run(store); });
    }
}

void gVisitSample(const TLook& rLook)
{
    CVisit visit(rLook);
    for (const char* pInput : {"type Text", "click again", "click level#1", "click shape", "pick 2",
                               "click fruit@1", "branch places@A", "click cells@1"})
        visit.Add([pInput] { gInput(pInput); });
    visit.AddLook("sample");
    CSampleDialog dialog;
    visit.Go([&dialog] { dialog.DoModal(); });
}

void gVisitBoxes(const TLook& rLook)
{
    struct TBox {
        const char* pName;
        const char* pText;
        UINT nFlags;
    };
    static constexpr TBox kBoxes[] = {
        {"information", "Missing temperature value.", MB_OK | MB_ICONINFORMATION},
        {"warning", "Missing temperature value.", MB_OK | MB_ICONEXCLAMATION},
        {"question", "Delete this entry?", MB_YESNO | MB_ICONQUESTION},
        {"plain", "Done.", MB_OK},
        {"long",
         "The file \"/home/somebody/a-rather-long-folder/another-one/netlist.cir\" can't be "
         "written: the disk is full. What was typed is still there.\r\n\r\nTry another folder?",
         MB_YESNO | MB_ICONEXCLAMATION},
    };
    for (const TBox& rBox : kBoxes) {
        CPlayer player;
        player.Then(rBox.pName, [&rBox, &rLook] {
            rLook(rBox.pName, *QApplication::activeModalWidget());
            gInput("press Return");
        });
        player.Play([&rBox] {
            gShowMessageBox({nullptr, rBox.pText, CString("SPICE"), rBox.nFlags});
        });
    }
}
