#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kFrame = 1001, kNote, kSuppress };

constexpr auto kRows = PageRows(GroupBox(
    kFrame, "frame", "", NoteLine(kNote, "note", "DC Operating Point Calculation."),
    At(Row(kSuppress, "suppress", EControl::CheckBox,
           "&Suppress automatic output of node voltages and source currents", {14, 0, 226, 12}))));
constexpr DialogTemplate kTemplate{"DC operating point", kPageSize, kRows};

struct TFields {
    int mnSuppress = 0;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".op", the calculation of the DC operating point.
class CAnalysisDCOpPage : public CCommandPage
{
public:
    CAnalysisDCOpPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Check(pDX, kSuppress, mFields.mnSuppress);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = sRemembered.Get();
        UpdateData(false);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        rsCommand = ".op";
        if (mFields.mnSuppress != 0)
            rsCommand += " noprint";
        sRemembered.Set(mFields);
        return true;
    }

private:
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisDCOpPage>();
