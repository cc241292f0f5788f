#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/analysis/SourceName.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId {
    kFrame = 1001,
    kOutputGroup,
    kOutput,
    kHintPrefix,
    kHint1,
    kHint2,
    kHint3,
    kInputGroup,
    kInputSource,
};

constexpr TBlock<1> Hint(int nId, const char* pKey, const char* pText)
{
    return At(Row(nId, pKey, EControl::Static, pText, {128, 0, 80, kLabelHeight}));
}

constexpr TColumns kFields{.nField = 128};
constexpr auto kHints =
    SameTop(At(Row(kHintPrefix, "hint", EControl::Static, "e.g.:", {106, 0, 20, kLabelHeight})),
            Lines(Hint(kHint1, "hint-1", "v(node1,node2)"), Hint(kHint2, "hint-2", "i1(m1)"),
                  Hint(kHint3, "hint-3", "i(m1,node1)")));
constexpr auto kRows = PageRows(GroupBox(
    kFrame, "frame", "Small-signal DC transfer function",
    GroupBox(kOutputGroup, "output-group", "Circuit output",
             EditLine(kFields, kOutput, "output", "&Output voltage or current:"), kHints),
    GroupBox(kInputGroup, "input-group", "Circuit input",
             EditLine(kFields, kInputSource, "input-source", "&Voltage or current source:"))));
constexpr DialogTemplate kTemplate{"Transfer function", kPageSize, kRows};

struct TFields {
    CString msOutput;
    CString msInputSource;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".tf ", an output of the circuit and its input source.
class CAnalysisTransferFunctionPage : public CCommandPage
{
public:
    CAnalysisTransferFunctionPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kOutput, mFields.msOutput);
        DDX_Text(pDX, kInputSource, mFields.msInputSource);
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
        gTrimLeft(mFields.msOutput, mFields.msInputSource);
        if (mFields.msInputSource.IsEmpty())
            return gReportFailure(
                *this, msMessage,
                "__$$Translatable$$_Missing input voltage or current source name.");
        if (!gIsSourceName(mFields.msInputSource))
            return gReportFailure(*this, msMessage, kIllegalSourceName);
        if (mFields.msOutput.IsEmpty())
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_Missing circuit output specification.");
        rsCommand = ".tf " + mFields.msOutput + " " + mFields.msInputSource;
        sRemembered.Set(mFields);
        return true;
    }

private:
    CString msMessage;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisTransferFunctionPage>();
