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
    kOutputNode,
    kReferenceNode,
    kInputGroup,
    kInputSource,
};

constexpr TColumns kFields{.nField = 137};
constexpr auto kRows = PageRows(GroupBox(
    kFrame, "frame", "Noise analysis",
    GroupBox(kOutputGroup, "output-group", "Circuit output terminals",
             EditLine(kFields, kOutputNode, "output-node", "&Output node:"),
             EditLine(kFields, kReferenceNode, "reference-node", "&Reference node (GND):")),
    GroupBox(kInputGroup, "input-group", "Circuit input",
             EditLine(kFields, kInputSource, "input-source", "&Voltage or current source name:"))));
constexpr DialogTemplate kTemplate{"Noise", kPageSize, kRows};

struct TFields {
    CString msOutputNode;
    CString msReferenceNode;
    CString msInputSource;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".noise v(", the output of a noise analysis and its input source.
class CAnalysisNoisePage : public CCommandPage
{
public:
    CAnalysisNoisePage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kOutputNode, mFields.msOutputNode);
        DDX_Text(pDX, kReferenceNode, mFields.msReferenceNode);
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
        gTrimLeft(mFields.msOutputNode, mFields.msReferenceNode, mFields.msInputSource);
        if (mFields.msInputSource.IsEmpty())
            return gReportFailure(
                *this, msMessage,
                "__$$Translatable$$_Missing input voltage or current source name.");
        if (!gIsSourceName(mFields.msInputSource))
            return gReportFailure(*this, msMessage, kIllegalSourceName);
        if (mFields.msOutputNode.IsEmpty())
            return gReportFailure(*this, msMessage, "__$$Translatable$$_Missing output node.");
        rsCommand = ".noise v(" + mFields.msOutputNode;
        gAppendIfAny(rsCommand, ",", mFields.msReferenceNode);
        rsCommand += ") " + mFields.msInputSource;
        sRemembered.Set(mFields);
        return true;
    }

private:
    CString msMessage;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisNoisePage>();
