#include "support/TableLook.h"

#include "platform/ui/FieldView.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TableCtrl.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numeric>
#include <utility>

CListCtrl& gTableOf(CDialog& rDialog)
{
    return dynamic_cast<CListCtrl&>(*gFindField(rDialog, "table").pControl);
}

namespace look
{
namespace
{

std::string ShownRow(const CTableCtrl& rTable, int nRow)
{
    std::string sShown;
    for (int nColumn = 0; nColumn < rTable.GetColumnCount(); ++nColumn) {
        const bool bBlue = rTable.GetCellColor(nRow, nColumn, false, false) == 0xFF0000;
        sShown += nColumn == 0 ? "" : "|";
        sShown += rTable.GetItemText(nRow, nColumn).GetString();
        sShown += bBlue ? "*" : "";
    }
    return sShown;
}

} // namespace

CScript::TAction Columns(std::string sTitles)
{
    return [sTitles = std::move(sTitles)](CDialog& rDialog) {
        std::string sShown;
        for (const TListColumn& rColumn : gTableOf(rDialog).GetColumns()) {
            sShown += sShown.empty() ? "" : "|";
            sShown += rColumn.sHeading.GetString();
        }
        EXPECT_EQ(sShown, sTitles);
    };
}

CScript::TAction Rows(std::vector<std::string> rows)
{
    return [rows = std::move(rows)](CDialog& rDialog) {
        const auto& rTable = dynamic_cast<CTableCtrl&>(gTableOf(rDialog));
        std::vector<std::string> shown;
        for (int nRow = 0; nRow < rTable.GetItemCount(); ++nRow) {
            shown.push_back(ShownRow(rTable, nRow));
        }
        EXPECT_THAT(shown, testing::ElementsAreArray(rows));
    };
}

CScript::TAction SelectedRow(int nRow)
{
    return [nRow](CDialog& rDialog) { EXPECT_EQ(gTableOf(rDialog).GetSelectedRow(), nRow); };
}

CScript::TAction Tabs(std::string sLabels)
{
    return [sLabels = std::move(sLabels)](CDialog& rDialog) {
        const auto& rTabs = dynamic_cast<CTabCtrl&>(*gFindField(rDialog, "tabs").pControl);
        std::string sShown;
        for (int nTab = 0; nTab < rTabs.GetItemCount(); ++nTab) {
            const bool bSelected = nTab == rTabs.GetCurSel();
            const CString& rsLabel = rTabs.GetItems()[static_cast<std::size_t>(nTab)];
            sShown += nTab == 0 ? "" : "|";
            sShown += bSelected ? "[" : "";
            sShown += rsLabel.GetString();
            sShown += bSelected ? "]" : "";
        }
        EXPECT_EQ(sShown, sLabels);
    };
}

CScript::TAction Place(std::string sKey, const TRect& rRect)
{
    return [sKey = std::move(sKey), rRect](CDialog& rDialog) {
        const CWnd* const pControl = gFindField(rDialog, sKey).pControl;
        ASSERT_NE(pControl, nullptr) << sKey;
        EXPECT_EQ(pControl->GetRect(), rRect) << sKey;
    };
}

CScript::TAction Resize(const TSize& rSize)
{
    return [rSize](CDialog& rDialog) {
        EXPECT_EQ(rDialog.UserSize(SIZE_RESTORED, rSize), EUserResult::Done);
    };
}

CScript::TAction ColumnsFill(std::vector<int> widths)
{
    return [widths = std::move(widths)](CDialog& rDialog) {
        const CListCtrl& rTable = gTableOf(rDialog);
        const int nAll = std::accumulate(widths.begin(), widths.end(), 1);
        std::vector<int> wanted;
        std::vector<int> found;
        for (const int nWidth : widths) {
            wanted.push_back(nWidth * rTable.GetClientPixels().cx / nAll);
        }
        for (const TListColumn& rColumn : rTable.GetColumns()) {
            found.push_back(rColumn.nWidth);
        }
        EXPECT_EQ(found, wanted);
    };
}

} // namespace look
