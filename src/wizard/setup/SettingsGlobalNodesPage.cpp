#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
enum EControlId { kNodeList = 1001 };

constexpr auto kRows =
    PageRows(TextBox(kNodeList, "node-list", "&List global nodes, separated by spaces:", 60));
constexpr DialogTemplate kTemplate{"Global nodes", kPageSize, kRows};

struct TFields {
    CString msNodeList;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".global " and the nodes that every subcircuit knows by the same name.
class CSettingsGlobalNodesPage : public CCommandPage
{
public:
    CSettingsGlobalNodesPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Text(pDX, kNodeList, mFields.msNodeList);
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
        // Meant: nothing is trimmed, unlike on the pages beside it; a blank is a list.
        UpdateData(true);
        if (mFields.msNodeList.IsEmpty())
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_No global nodes specified.");
        rsCommand = ".global " + gJoinLines(mFields.msNodeList);
        sRemembered.Set(mFields);
        return true;
    }

private:
    CString msMessage;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CSettingsGlobalNodesPage>();
