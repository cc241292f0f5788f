#include "qt/Visits.h"

#include "exports/Quorvawiz.h"
#include "platform/headless/TreePath.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
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
        for (CButton* const pRadio : rField.radios) {
            rVisit.Add([pRadio] { pRadio->UserClick(); });
            CString sLabel = pRadio->GetWindowText();
            sLabel.Remove('&');
            rVisit.AddLook(rsName + "-" + sLabel.GetString());
        }
    }
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
