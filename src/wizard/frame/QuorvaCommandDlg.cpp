#include "wizard/frame/QuorvaCommandDlg.h"

#include "platform/ui/Translate.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/WizardPages.h"

#include <algorithm>
#include <numeric>
#include <tuple>

CQuorvaCommandDlg::CQuorvaCommandDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget)
    : CQuorvaCommandDlg(pParent, pTarget, gWizardTree())
{
}

CQuorvaCommandDlg::CQuorvaCommandDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget,
                                     std::span<const TTreeRow> tree)
    : CTreeDlg(pParent, pTarget), mRows(tree), mPageOfRow(tree.size())
{
    // Commands before categories, category by category, by the number in the row.
    std::vector<std::tuple<bool, int, int, std::size_t>> order;
    int nCategory = -1;
    for (std::size_t nRow = 0; nRow < mRows.size(); ++nRow) {
        const TTreeRow& rRow = mRows[nRow];
        nCategory += rRow.bCategory ? 1 : 0;
        order.emplace_back(rRow.bCategory, nCategory, rRow.nOrder, nRow);
    }
    std::ranges::sort(order);
    for (const auto& rPlace : order)
        ConstructPage(std::get<std::size_t>(rPlace));
}

CQuorvaCommandDlg::~CQuorvaCommandDlg()
{
    while (!mPages.empty())
        mPages.pop_back();
}

void CQuorvaCommandDlg::ConstructPage(std::size_t nRow)
{
    const CRuntimeClass* const pClass = mRows[nRow].pClass;
    if (!pClass)
        return;
    std::unique_ptr<CObject> pObject = pClass->CreateObject();
    mPages.emplace_back(&dynamic_cast<CCommandPage&>(*pObject));
    [[maybe_unused]] CObject* const pReleased = pObject.release();
    mPageOfRow[nRow] = mPages.back().get();
}

void CQuorvaCommandDlg::BuildTree()
{
    SetWindowText(xlang::gTranslate("__$$Translatable$$_SPICE Command Wizard"));
    int nCategory = -1;
    for (std::size_t nRow = 0; nRow < mRows.size(); ++nRow) {
        const TTreeRow& rRow = mRows[nRow];
        if (!mPageOfRow[nRow])
            continue;
        if (rRow.bCategory)
            nCategory = AddCategory(xlang::gTranslate(rRow.pLabel), mPageOfRow[nRow]);
        else
            AddPage(nCategory, xlang::gTranslate(rRow.pLabel), mPageOfRow[nRow]);
    }
}
