#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kSource = 1001, kStartTime, kEndTime };

constexpr TColumns kTimes{.nField = 98, .nUnit = 170};
constexpr auto kRows =
    PageRows(WideEdit(kSource, "source",
                      "&Voltage source or resistor through which to compute power dissipated:"),
             EditLine(kTimes, kStartTime, "start-time", "&Start time (0):", "sec"),
             EditLine(kTimes, kEndTime, "end-time", "&End time (simulation end):", "sec"));
constexpr DialogTemplate kTemplate{"Power", kPageSize, kRows};

struct TFields {
    CString msSource;
    CString msStartTime;
    CString msEndTime;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".power ", a voltage source or resistor whose power is computed, and from when to when,
/// in seconds.
class COutputPowerPage : public CCommandPage
{
public:
    COutputPowerPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kSource, mFields.msSource);
        DDX_Text(pDX, kStartTime, mFields.msStartTime);
        DDX_Text(pDX, kEndTime, mFields.msEndTime);
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
        gTrim(mFields.msSource);
        if (mFields.msSource.IsEmpty())
            // Meant: untranslated.
            return gReportFailure(*this, msMessage, "Missing voltage source name.");
        rsCommand = ".power " + mFields.msSource;
        gAppendIfAny(rsCommand, " ", mFields.msStartTime);
        // The end stands in the third place: without a start, 0 takes the second.
        gAppendIfAny(rsCommand, mFields.msStartTime.IsEmpty() ? " 0 " : " ", mFields.msEndTime);
        sRemembered.Set(mFields);
        return true;
    }

private:
    CString msMessage;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<COutputPowerPage>();
