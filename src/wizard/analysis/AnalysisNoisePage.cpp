#include "wizard/analysis/AnalysisNoisePage.h"

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
    kOutputNode,
    kReferenceNode,
    kInputGroup,
    kInputSource,
};

constexpr TGrid kGrid{21, 112, 137, 91, 0, 0, 38, 19};
constexpr TGrid kInputGrid{21, 112, 137, 91, 0, 0, 101, 0};
constexpr auto kRows = JoinRows(
    Row(kFrame, "frame", EControl::Group, "Noise analysis", {7, 7, 235, 122}),
    Row(kOutputGroup, "output-group", EControl::Group, "Circuit output terminals",
        {14, 22, 221, 56}),
    EditLine(kGrid, 0, kOutputNode, "output-node", "&Output node:"),
    EditLine(kGrid, 1, kReferenceNode, "reference-node", "&Reference node (GND):"),
    Row(kInputGroup, "input-group", EControl::Group, "Circuit input", {14, 85, 221, 37}),
    EditLine(kInputGrid, 0, kInputSource, "input-source", "&Voltage or current source name:"));
constexpr DialogTemplate kTemplate{114, "Noise", kPageSize, kRows};

Remembered<CAnalysisNoisePage::TFields> sRemembered;
} // namespace

CAnalysisNoisePage::CAnalysisNoisePage() : CCommandPage(kTemplate) {}

TMessageMap CAnalysisNoisePage::GetMessageMap() const
{
    return {};
}

void CAnalysisNoisePage::DoDataExchange(CDataExchange* pDX)
{
    CCommandPage::DoDataExchange(pDX);
    DDX_Text(pDX, kOutputNode, mFields.msOutputNode);
    DDX_Text(pDX, kReferenceNode, mFields.msReferenceNode);
    DDX_Text(pDX, kInputSource, mFields.msInputSource);
}

bool CAnalysisNoisePage::OnInitDialog()
{
    CDialog::OnInitDialog();
    mFields = sRemembered.Get();
    UpdateData(false);
    return true;
}

bool CAnalysisNoisePage::BuildCommand(CString& rsCommand)
{
    UpdateData(true);
    for (CString* pField :
         {&mFields.msOutputNode, &mFields.msReferenceNode, &mFields.msInputSource})
        pField->TrimLeft();
    if (mFields.msInputSource.IsEmpty())
        return gReportFailure(*this, msMessage,
                              "__$$Translatable$$_Missing input voltage or current source name.");
    if (!gIsSourceName(mFields.msInputSource))
        return gReportFailure(*this, msMessage, kIllegalSourceName);
    if (mFields.msOutputNode.IsEmpty())
        return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing output node.");
    rsCommand = ".noise v(" + mFields.msOutputNode;
    if (!mFields.msReferenceNode.IsEmpty())
        rsCommand += "," + mFields.msReferenceNode;
    rsCommand += ") " + mFields.msInputSource;
    sRemembered.Set(mFields);
    return true;
}

template const CRuntimeClass& gRuntimeClass<CAnalysisNoisePage>();
