#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kFrame = 1001, kSourceOrProbe };

constexpr TColumns kFields{.nField = 130};
constexpr auto kRows = PageRows(GroupBox(
    kFrame, "frame", "Loop stability analysis",
    EditLine(kFields, kSourceOrProbe, "source-or-probe", "&Voltage source or Probe name:")));
constexpr DialogTemplate kTemplate{"Stability", kPageSize, kRows};

struct TFields {
    CString msSourceOrProbe;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".lstb " and the source or probe in the loop whose stability is analysed.
class CAnalysisStabilityPage : public CCommandPage
{
public:
    CAnalysisStabilityPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kSourceOrProbe, mFields.msSourceOrProbe);
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
        gTrimLeft(mFields.msSourceOrProbe);
        // Meant: without a name it succeeds, and the text of the last page is inserted again.
        if (!mFields.msSourceOrProbe.IsEmpty())
            rsCommand = ".lstb " + mFields.msSourceOrProbe;
        sRemembered.Set(mFields);
        return true;
    }

private:
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisStabilityPage>();
