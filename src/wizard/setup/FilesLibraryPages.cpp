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

/// What differs between the page that adds a library and the one that takes it away.
struct TTwin {
    const char* pBefore; ///< what stands before the file
    void (*pTrim)(CString& rsFile, CString& rsSection);
    bool bNeedsSection;
};

constexpr TTwin kAdd{".lib ",
                     // Meant: the section isn't trimmed, a blank is one.
                     [](CString& rsFile, CString&) { gTrim(rsFile); }, false};
constexpr TTwin kDelete{
    ".del lib ",
    // Meant: a blank at the end stays, that of the file inside the quotation marks.
    [](CString& rsFile, CString& rsSection) { gTrimLeft(rsFile, rsSection); }, true};

constexpr auto kRows = PageRows(FileGroup("&Library file"), SectionLine());
constexpr DialogTemplate kAddTemplate{"Library file", kPageSize, kRows};
constexpr DialogTemplate kDeleteTemplate{"Delete library file", kPageSize, kRows};

struct TFields {
    CString msFile;
    CString msSection;
};

Remembered<TFields> sAddRemembered;
Remembered<TFields> sDeleteRemembered;

/// What both pages do; they are shells of one line each.
class LibraryForm
{
public:
    LibraryForm(CCommandPage& rPage, const TTwin& rTwin, Remembered<TFields>& rRemembered)
        : mrPage(rPage), mrTwin(rTwin), mrRemembered(rRemembered)
    {
    }

    void Exchange(CDataExchange* pDX)
    {
        DDX_Control(pDX, kFile, mFile);
        DDX_Control(pDX, kBrowse, mBrowse);
        DDX_Text(pDX, kSection, msSection);
    }

    bool InitDialog()
    {
        mrPage.CDialog::OnInitDialog();
        mFile.SetWindowText(mrRemembered.Get().msFile);
        msSection = mrRemembered.Get().msSection;
        mrPage.UpdateData(false);
        mBrowse.SetTarget(mFile);
        return true;
    }

    bool Build(CString& rsCommand)
    {
        mrPage.UpdateData(true);
        CString sFile = mFile.GetWindowText();
        mrTwin.pTrim(sFile, msSection);
        if (sFile.IsEmpty())
            return gReportFailure(mrPage, "__$$Translatable$$_Missing library file name.");
        if (mrTwin.bNeedsSection && msSection.IsEmpty())
            return gReportFailure(mrPage, "__$$Translatable$$_Missing library section.");
        rsCommand = CString(mrTwin.pBefore) + "\"" + sFile + "\"";
        gAppendIfAny(rsCommand, " ", msSection);
        mrRemembered.Set({mFile.GetWindowText(), msSection}); // Meant: the file as it was typed.
        return true;
    }

private:
    CCommandPage& mrPage;
    const TTwin& mrTwin;
    CEdit mFile;
    CBrowseButton mBrowse{kLibraryFilesFilter};
    CString msSection;
    Remembered<TFields>& mrRemembered;
};
} // namespace

/// Builds ".lib ", the name of a library file in quotation marks, and the section that is wanted,
/// if any.
class CFilesLibraryPage : public CCommandPage
{
public:
    CFilesLibraryPage() : CCommandPage(kAddTemplate), mForm(*this, kAdd, sAddRemembered) {}

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    LibraryForm mForm;
};

/// Builds ".del lib ", the name of a library file in quotation marks, and the section that goes.
class CFilesDeleteLibraryPage : public CCommandPage
{
public:
    CFilesDeleteLibraryPage()
        : CCommandPage(kDeleteTemplate), mForm(*this, kDelete, sDeleteRemembered)
    {
    }

    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    LibraryForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CFilesLibraryPage>();
template const CRuntimeClass& gRuntimeClass<CFilesDeleteLibraryPage>();
