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

constexpr auto kRows = PageRows(FileGroup("&Library file"), SectionLine());
constexpr DialogTemplate kTemplate{"Library file", kPageSize, kRows};

struct TFields {
    CString msFile;
    CString msSection;
};

Remembered<TFields> sRemembered;
} // namespace

/// Builds ".lib ", the name of a library file in quotation marks, and the section that is wanted,
/// if any.
class CFilesLibraryPage : public CCommandPage
{
public:
    CFilesLibraryPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        DDX_Control(pDX, kFile, mFile);
        DDX_Control(pDX, kBrowse, mBrowse);
        DDX_Text(pDX, kSection, msSection);
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFile.SetWindowText(sRemembered.Get().msFile);
        msSection = sRemembered.Get().msSection;
        UpdateData(false);
        mBrowse.SetTarget(mFile);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        CString sFile = mFile.GetWindowText();
        gTrim(sFile); // meant: the section isn't, a blank is one
        if (sFile.IsEmpty())
            return gReportFailure(*this, "__$$Translatable$$_Missing library file name.");
        rsCommand = ".lib \"" + sFile + "\"";
        gAppendIfAny(rsCommand, " ", msSection);
        sRemembered.Set({mFile.GetWindowText(), msSection}); // meant: the file as it was typed
        return true;
    }

private:
    CEdit mFile;
    CBrowseButton mBrowse{kLibraryFilesFilter};
    CString msSection;
};

template const CRuntimeClass& gRuntimeClass<CFilesLibraryPage>();
