#include "qt/Visits.h"

#include "exports/Quorvawiz.h"
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
#include <algorithm>
#include <deque>
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

/// The drop-down lists that the user sees in the dialog in front.
std::vector<CComboBox*> ShownCombos()
{
    std::vector<CComboBox*> combos;
    for (const TFieldView& rField : gCollectFields(gCurrentPane(gFrontDialog())))
        if (auto* const pCombo = dynamic_cast<CComboBox*>(rField.pControl);
            pCombo && pCombo->IsWindowVisible())
            combos.push_back(pCombo);
    return combos;
}

/// Looks at a drop-down list's window with each of its entries, and with those of the lists that an
/// entry brings forth.
void AddEntries(CVisit& rVisit, const std::string& rsName, CComboBox& rCombo)
{
    for (int i = 0; i < rCombo.GetCount(); ++i) {
        const std::string sName = rsName + "-" + rCombo.GetLBText(i).GetString();
        rVisit.Add([&rVisit, sName, &rCombo, i] {
            const auto before = ShownCombos();
            rCombo.UserSelect(i);
            rVisit.Insert([&] {
                for (CComboBox* const pCombo : ShownCombos())
                    if (std::ranges::find(before, pCombo) == before.end())
                        AddEntries(rVisit, sName, *pCombo);
            });
        });
        rVisit.AddLook(sName);
    }
    rVisit.Add([&rCombo] { rCombo.UserSelect(0); });
}

/// Looks at every state that a choice on the page in front brings about.
void AddChoices(CVisit& rVisit, const std::string& rsName)
{
    for (const TFieldView& rField : gCollectFields(gCurrentPane(gFrontDialog()))) {
        auto* const pCombo = dynamic_cast<CComboBox*>(rField.pControl);
        if (pCombo && pCombo->IsWindowVisible())
            AddEntries(rVisit, rsName, *pCombo);
        if (rField.kind == EControl::CheckBox) {
            rVisit.Add([&rVisit, rsName, rField] {
                auto& rBox = dynamic_cast<CButton&>(*rField.pControl);
                rBox.UserClick();
                const char* const pState = rBox.GetCheck() ? "-on" : "-off";
                rVisit.Insert(
                    [&] { rVisit.AddLook(rsName + "-" + std::string(rField.sKey) + pState); });
            });
            rVisit.Add([rField] { dynamic_cast<CButton&>(*rField.pControl).UserClick(); });
        }
        for (CButton* const pRadio : rField.radios) {
            rVisit.Add([pRadio] { pRadio->UserClick(); });
            CString sLabel = pRadio->GetWindowText();
            sLabel.Remove('&');
            rVisit.AddLook(rsName + "-" + sLabel.GetString());
        }
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
