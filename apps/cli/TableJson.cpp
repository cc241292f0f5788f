#include "cli/TableJson.h"

#include "cli/ShownFields.h"
#include "platform/base/Utf8Text.h"
#include "platform/ui/TableCtrl.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace quorvawiz::cli
{
namespace
{
TJson RowToJson(const CTableCtrl& rGrid, int nRow)
{
    TJson cells = TJson::array();
    for (int nColumn = 0; nColumn < rGrid.GetColumnCount(); ++nColumn) {
        const bool bOwnColor = rGrid.GetCellColor(nRow, nColumn, false, false) != CLR_DEFAULT;
        cells.push_back(
            {{"text", gToUtf8(rGrid.GetItemText(nRow, nColumn))}, {"highlight", bOwnColor}});
    }
    return {{"item_data", rGrid.GetItemData(nRow)}, {"cells", std::move(cells)}};
}
} // namespace

const CTableCtrl* gShownGrid(CDialog& rDialog)
{
    for (const TFieldView& rField : gShownFields(rDialog))
        if (const auto* const pGrid = dynamic_cast<const CTableCtrl*>(rField.pControl))
            return pGrid;
    return nullptr;
}

TJson gGridToJson(const CTableCtrl& rGrid)
{
    TJson columns = TJson::array();
    TJson widths = TJson::array();
    for (const TListColumn& rColumn : rGrid.GetColumns()) {
        columns.push_back(gToUtf8(rColumn.sHeading));
        widths.push_back(rColumn.nWidth);
    }
    return {{"columns", std::move(columns)},
            {"rows", rGrid.GetItemCount()},
            {"selected", rGrid.GetSelectedRow()},
            {"widths", std::move(widths)}};
}

TJson gGridRowsToJson(const CTableCtrl& rGrid, const TRowsRequest& rRows)
{
    const int nFrom = std::min(rRows.nFrom, rGrid.GetItemCount());
    const int nEnd = nFrom + std::min(rRows.nCount, rGrid.GetItemCount() - nFrom);
    TJson rows = TJson::array();
    for (int nRow = nFrom; nRow < nEnd; ++nRow)
        rows.push_back(RowToJson(rGrid, nRow));
    return rows;
}

TJson gTabsToJson(CDialog& rDialog)
{
    const TFieldView tabs = gFindOwnField(rDialog, "tabs");
    return tabs.pControl ? TJson(gEntriesOf(tabs)) : TJson();
}

} // namespace quorvawiz::cli
