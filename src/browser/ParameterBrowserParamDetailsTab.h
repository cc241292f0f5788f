#pragma once

#include "browser/ParamBrowserCustomTableCtrl.h"
#include "browser/ParamRow.h"
#include "foundation/StringU.h"
#include "platform/ui/ResizeDialog.h"

#include <vector>

/// A page with a table of parameters, of which those that were set are blue.
class TParameterBrowserParamDetailsTab : public CXTPResizePropertyPage
{
public:
    /// @param rRows what it shows, in this order
    explicit TParameterBrowserParamDetailsTab(const std::vector<TParamRow>& rRows);

    /// The CSV text of the table; empty before the page was shown for the first time.
    [[nodiscard]] const CStringU& GetExportText() const noexcept { return msExportText; }

    bool OnInitDialog() override;

protected:
    [[nodiscard]] TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    LRESULT OnSize(WPARAM wParam, LPARAM lParam);

    std::vector<TParamRow> mParamRows;
    TParamBrowserCustomTableCtrl mTable;
    CStringU msExportText;
};
