#include "platform/ui/DataExchange.h"
#include "platform/ui/Edit.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/BrowseButton.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"
#include "wizard/setup/FileRows.h"

namespace
{
using namespace FileRows;

constexpr auto kRows = PageRows(FileGroup("I&nclude file"));
constexpr DialogTemplate kTemplate{"Include file", kPageSize, kRows};

constexpr const char* kFilter = "Model Files (*.md)|*.md|SPICE Files (*.sp;*.spc;*.cir)|*.sp; "
                                "*.spc; *.cir|All Files (*.*)|*.*||";

Remembered<CString> sRemembered;
} // namespace

/// Builds ".include " and the name of a netlist file in quotation marks.
class CFilesIncludePage : public CCommandPage
{
public:
    CFilesIncludePage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Control(pDX, kFile, mFile);
        DDX_Control(pDX, kBrowse, mBrowse);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFile.SetWindowText(sRemembered.Get());
        mBrowse.SetTarget(mFile);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        CString sFile = mFile.GetWindowText();
        gTrim(sFile);
        if (sFile.IsEmpty())
            return gReportFailure(*this, "__$$Translatable$$_Missing include file name.");
        rsCommand = ".include \"" + sFile + "\"";
        sRemembered.Set(mFile.GetWindowText()); // Meant: as it was typed
        return true;
    }

private:
    CEdit mFile;
    CBrowseButton mBrowse{kFilter};
};

template const CRuntimeClass& gRuntimeClass<CFilesIncludePage>();
