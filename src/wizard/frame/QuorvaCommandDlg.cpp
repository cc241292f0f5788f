#include "wizard/frame/QuorvaCommandDlg.h"

#include "platform/base/Exceptions.h"
#include "platform/ui/Translate.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/WizardPages.h"

#include <algorithm>
#include <tuple>

CQuorvaCommandDlg::CQuorvaCommandDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget)
    : CQuorvaCommandDlg(pParent, pTarget, gWizardTree())
{
}

CQuorvaCommandDlg::CQuorvaCommandDlg(CWnd* pParent, quorvawiz::QuorvaCommandWizardTarget* pTarget,
                                     std::span<const TTreeRow> tree)
    : CTreeDlg(pParent, pTarget), mRows(tree), mPageOfRow(tree.size())
{
    // The order of construction: see `TTreeRow::nOrder`.
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
    // A vector would end them first to last.
    while (!mObjects.empty())
        mObjects.pop_back();
}

void CQuorvaCommandDlg::ConstructPage(std::size_t nRow)
{
    const CRuntimeClass* const pClass = mRows[nRow].pClass;
    if (!pClass)
        return;
    mObjects.push_back(pClass->CreateObject());
    auto* const pPage = dynamic_cast<CCommandPage*>(mObjects.back().get());
    if (!pPage)
        gThrowInvalidArg("wizard: the class of a row isn't that of a concrete page");
    mPages.push_back(pPage);
    mPageOfRow[nRow] = pPage;
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
