#include "wizard/frame/TreeDlg.h"

#include "platform/base/Ascii.h"
#include "platform/base/Exceptions.h"
#include "platform/ui/Button.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/TemplateRows.h"
#include "platform/ui/Translate.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/CommandWizardTarget.h"
#include "wizard/frame/PageText.h"

namespace
{
enum EControlId { kTree = 5000, kPanePlace = 5001 };

constexpr auto kRows =
    JoinRows(Row(IDOK, "insert", EControl::DefaultButton, "&Insert Command", {238, 230, 68, 14}),
             Row(IDCANCEL, "close", EControl::PushButton, "Close", {309, 230, 50, 14}),
             Row(kTree, "tree", EControl::Tree, "", {5, 5, 100, 220}, kUnlabelled),
             Row(kPanePlace, "pane-place", EControl::Frame, "", {114, 5, 249, 220}));
constexpr DialogTemplate kTemplate{"SPICE Command Wizard", {370, 247}, kRows};

// A node's datum: the pane's index below, the mark of a category above.
constexpr std::int32_t kIndexMask = 0xFFFF;
constexpr std::int32_t kCategoryMark = 0x10000;
constexpr std::int32_t kNoPane = -1;

constexpr bool IsCategory(std::int32_t nData)
{
    return (nData & ~kIndexMask) == kCategoryMark;
}
} // namespace

CTreeDlg::CTreeDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget)
    : CDialog(kTemplate, pParent), mpTarget(pTarget)
{
    mLayers.SetParent(this);
}

TMessageMap CTreeDlg::GetMessageMap() const
{
    static constexpr TMessageMapEntry kHandlers[] = {
        On<&CTreeDlg::OnTreeSelectionChanged>(ENotify::SelChange, kTree),
        OnMessage<&CTreeDlg::OnKeyDown>(WM_KEYDOWN),
        OnMessage<&CTreeDlg::OnNextDlgCtl>(WM_NEXTDLGCTL),
        OnMessage<&CTreeDlg::OnQueryDragIcon>(WM_QUERYDRAGICON),
    };
    return kHandlers;
}

void CTreeDlg::DoDataExchange(CDataExchange* pDX)
{
    CDialog::DoDataExchange(pDX);
    DDX_Control(pDX, kTree, mTree);
}

bool CTreeDlg::OnInitDialog()
{
    CDialog::OnInitDialog();
    const TRect place = ScreenToClient(GetDlgItem(kPanePlace)->GetWindowRect());
    mLayers.SetOrigin(place.x, place.y);
    BuildTree();
    SelectByPosition(nullptr, 0);
    return true;
}

// --- filling the tree

int CTreeDlg::AddCategory(const CString& rsLabel, CWnd* pPane)
{
    mLabels.push_back(rsLabel);
    const int nPane = mLayers.Add(pPane);
    return AddNode(nullptr, nPane + kCategoryMark);
}

int CTreeDlg::AddPage(int nCategory, const CString& rsLabel, CWnd* pPane)
{
    mLabels.push_back(rsLabel); // kept: the label stays in the list even if the category is missing
    const HTREEITEM hCategory = NodeAt(nullptr, nCategory);
    if (!hCategory)
        return -1;
    const int nPane = mLayers.Add(pPane);
    return AddNode(hCategory, nPane);
}

int CTreeDlg::AddCategoryWithoutPane(const CString& rsLabel)
{
    mLabels.push_back(rsLabel);
    return AddNode(nullptr, kNoPane);
}

int CTreeDlg::AddNode(HTREEITEM hParent, std::int32_t nData)
{
    const HTREEITEM hNode = mTree.InsertItem(mLabels.back(), hParent);
    mTree.SetItemData(hNode, nData);

    int nPlace = 0;
    HTREEITEM hSibling = FirstChildOf(hParent);
    for (; hSibling && hSibling != hNode; hSibling = mTree.GetNextSiblingItem(hSibling))
        ++nPlace;
    return hSibling ? nPlace : -1;
}

HTREEITEM CTreeDlg::FirstChildOf(HTREEITEM hParent) const
{
    return hParent ? mTree.GetChildItem(hParent) : mTree.GetRootItem();
}

HTREEITEM CTreeDlg::NodeAt(HTREEITEM hParent, LPARAM nPlace) const
{
    if (nPlace < 0)
        return nullptr;
    HTREEITEM hNode = FirstChildOf(hParent);
    for (; hNode && nPlace > 0; --nPlace)
        hNode = mTree.GetNextSiblingItem(hNode);
    return hNode;
}

// --- selecting

void CTreeDlg::OnTreeSelectionChanged()
{
    const HTREEITEM hSelected = mTree.GetSelectedItem();
    if (!hSelected)
        return;
    const std::int32_t nData = mTree.GetItemData(hSelected);
    if (nData == kNoPane) {
        EnableInsert(false); // Meant: the pane on display stays
    } else if (IsCategory(nData)) {
        mLayers.ShowLayer(nData & kIndexMask);
        EnableInsert(false);
    } else {
        EnableInsert(true);
        mLayers.ShowLayer(nData & kIndexMask);
    }
}

bool CTreeDlg::SelectByPosition(HTREEITEM hParent, LPARAM nPlace)
{
    const HTREEITEM hNode = NodeAt(hParent, nPlace);
    if (!hNode)
        return false;
    const std::int32_t nData = mTree.GetItemData(hNode);
    mTree.SelectItem(hNode);
    // A node that was selected already has notified nothing; its pane is shown by this alone.
    if (nData != kNoPane)
        mLayers.ShowLayer(nData & kIndexMask);
    return true;
}

bool CTreeDlg::SelectLeaf(int nCategory, int nPage)
{
    const HTREEITEM hCategory = NodeAt(nullptr, nCategory);
    return hCategory && SelectByPosition(hCategory, nPage);
}

void CTreeDlg::EnableInsert(bool bEnable)
{
    // By its kind: a layer that is no page has a small id of its own.
    if (CButton* const pInsert = GetDefaultButton())
        pInsert->EnableWindow(bEnable);
}

bool CTreeDlg::PreTranslateMessage(const TMsg& rMsg)
{
    if (rMsg.nMessage != WM_TREE_SELECT_PAGE)
        return CDialog::PreTranslateMessage(rMsg);
    if (const HTREEITEM hCategory = NodeAt(nullptr, static_cast<LPARAM>(rMsg.wParam)))
        SelectByPosition(hCategory, rMsg.lParam);
    mLayers.FocusCurrentWindow();
    return true;
}

// --- keys and questions of the platform

LRESULT CTreeDlg::OnKeyDown(WPARAM wParam, LPARAM lParam)
{
    const CWnd* const pFocus = GetFocus();
    CWnd* const pPane = pFocus ? pFocus->GetParent() : nullptr;
    if (wParam != VK_TAB || !pPane || !pPane->IsKindOf(gRuntimeClass<CCommandPage>()))
        return DefWindowProc(WM_KEYDOWN, wParam, lParam);
    // Meant: the 1 of Shift+Tab. With 0 in both cases the pane would never be walked backwards.
    pPane->SendMessage(WM_NEXTDLGCTL, lParam != 0 ? 1 : 0, 0);
    return 0;
}

LRESULT CTreeDlg::OnNextDlgCtl(WPARAM, LPARAM)
{
    return 0;
}

LRESULT CTreeDlg::OnQueryDragIcon(WPARAM, LPARAM)
{
    return reinterpret_cast<LRESULT>(mhIcon);
}

// --- inserting

void CTreeDlg::OnOK()
{
    CWnd* const pPane = mLayers.GetCurrentWindow();
    if (pPane && pPane->IsKindOf(gRuntimeClass<CCommandPage>()) &&
        !dynamic_cast<CCommandPage&>(*pPane).BuildCommand(msCommand))
        return;
    if (!gIsAscii(msCommand)) {
        gReportMessage(*this,
                       xlang::gTranslate("__$$Translatable$$_Only ASCII characters are allowed"));
        return;
    }
    if (!mpTarget)
        gThrowInvalidArg("wizard: there is no target to insert the command into");
    mpTarget->InsertCommand(msCommand);
}
