#include "wizard/analysis/AnalysisTransferFunctionPage.h"

#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TemplateRows.h"
#include "wizard/analysis/SourceName.h"
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

constexpr TControlRow Hint(int nId, const char* pKey, const char* pText, int nX, int nLine)
{
    return Row(nId, pKey, EControl::Static, pText, {nX, 56 + nLine * 10, 80, kLabelHeight});
}

constexpr TGrid kOutputGrid{21, 104, 128, 100, 0, 0, 38, 0};
constexpr TGrid kInputGrid{21, 104, 128, 100, 0, 0, 114, 0};
constexpr auto kRows = JoinRows(
    Row(kFrame, "frame", EControl::Group, "Small-signal DC transfer function", {7, 7, 235, 135}),
    Row(kOutputGroup, "output-group", EControl::Group, "Circuit output", {14, 22, 221, 69}),
    EditLine(kOutputGrid, 0, kOutput, "output", "&Output voltage or current:"),
    Row(kHintPrefix, "hint", EControl::Static, "e.g.:", {106, 56, 20, kLabelHeight}),
    Hint(kHint1, "hint-1", "v(node1,node2)", 128, 0), Hint(kHint2, "hint-2", "i1(m1)", 128, 1),
    Hint(kHint3, "hint-3", "i(m1,node1)", 128, 2),
    Row(kInputGroup, "input-group", EControl::Group, "Circuit input", {14, 98, 221, 37}),
    EditLine(kInputGrid, 0, kInputSource, "input-source", "&Voltage or current source:"));
constexpr DialogTemplate kTemplate{116, "Transfer function", kPageSize, kRows};

Remembered<CAnalysisTransferFunctionPage::TFields> sRemembered;
} // namespace

CAnalysisTransferFunctionPage::CAnalysisTransferFunctionPage() : CCommandPage(kTemplate) {}

TMessageMap CAnalysisTransferFunctionPage::GetMessageMap() const
{
    return {};
}

void CAnalysisTransferFunctionPage::DoDataExchange(CDataExchange* pDX)
{
    CCommandPage::DoDataExchange(pDX);
    DDX_Text(pDX, kOutput, mFields.msOutput);
    DDX_Text(pDX, kInputSource, mFields.msInputSource);
}

bool CAnalysisTransferFunctionPage::OnInitDialog()
{
    CDialog::OnInitDialog();
    mFields = sRemembered.Get();
    UpdateData(false);
    return true;
}

bool CAnalysisTransferFunctionPage::BuildCommand(CString& rsCommand)
{
    UpdateData(true);
    for (CString* pField : {&mFields.msOutput, &mFields.msInputSource})
        pField->TrimLeft();
    if (mFields.msInputSource.IsEmpty())
        return gReportFailure(*this, msMessage,
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

template const CRuntimeClass& gRuntimeClass<CAnalysisTransferFunctionPage>();
