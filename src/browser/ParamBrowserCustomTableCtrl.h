#pragma once

#include "browser/ParamTable.h"
#include "platform/ui/TableCtrl.h"

#include <cstdint>
#include <vector>

/// The grid of all windows of the browser: read-only texts, of which the highlighted ones are blue.
/// A selection is that of a whole row. It shows the rows of its table model and keeps no copies of
/// them; a row's own number is its index in the model.
class TParamBrowserCustomTableCtrl : public CTableCtrl
{
public:
    /// @param table what to show; a window that composes its table later gives an empty one
    explicit TParamBrowserCustomTableCtrl(TParamTableData table);

    /// What the table shows; complete before FillTable and unchanged from then on.
    TParamTableData mTableData;
    /// The width of each column in characters, 15 to 45; FillTable works it out.
    std::vector<int> mColumnWidths;

    /// Makes the columns, shows the rows and selects the first one, if there is one. To be called
    /// once, when the window exists.
    void FillTable();

    /// Spreads the width of the client area over the columns in proportion to their widths in
    /// characters. What the user has dragged is lost.
    void ResizeColumns();

    /// Pure blue for a highlighted cell that isn't selected, else the base's colour.
    [[nodiscard]] COLORREF GetCellColor(int nRow, int nColumn, bool bSelected,
                                        bool bFocused) const override;
    /// No cell is.
    [[nodiscard]] bool IsCellEditable(int nRow, int nColumn) const override;
    /// Those of the first column are.
    [[nodiscard]] bool IsCellSelectable(int nRow, int nColumn) const override;

private:
    void AddColumn(int nColumn);
    void RaiseWidths();

    [[nodiscard]] const TParamTableCell& CellAt(int nRow, int nColumn) const;
};
