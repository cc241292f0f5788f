#include "wizard/frame/BrowseButton.h"

#include "foundation/FakeFileSystem.h"
#include "foundation/PathScopes.h"
#include "platform/headless/HeadlessDesktop.h"
#include "platform/ui/DataExchange.h"
#include "platform/ui/Edit.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "platform/ui/TemplateRows.h"
#include "support/Look.h"
#include "support/Steps.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace
{
using namespace steps;

enum EControlId { kFile = 1001, kBrowse };

constexpr auto kRows =
    JoinRows(LabelAbove(Row(kFile, "file", EControl::Edit, "", {7, 20, 80, kEditHeight}), "File:"),
             Row(kBrowse, "browse", EControl::PushButton, "&Browse...", {7, 40, 50, 14}));
constexpr DialogTemplate kTemplate{"Browse", {100, 60}, kRows};

constexpr const char* kFilter = "All Files (*.*)|*.*||";
constexpr UINT kSaveFlags = 0x00800004; // hide read only, enable sizing
constexpr UINT kOpenFlags = 0x00800804; // the path must exist

class CTestButton : public CBrowseButton
{
public:
    using CBrowseButton::CBrowseButton;
    using CBrowseButton::mnFullPath;
    using CBrowseButton::mnOpen;
};

class CBrowseDlg : public CDialog
{
public:
    explicit CBrowseDlg(const char* pFilter) : CDialog(kTemplate), mBrowse(pFilter) {}

    CEdit mFile;
    CTestButton mBrowse;
    bool mbTarget = true;
    int mnChanges = 0;

protected:
    TMessageMap GetMessageMap() const override
    {
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&CBrowseDlg::OnFile>(ENotify::Change, kFile)};
        return kHandlers;
    }
    void DoDataExchange(CDataExchange* pDX) override
    {
        DDX_Control(pDX, kFile, mFile);
        DDX_Control(pDX, kBrowse, mBrowse);
    }
    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        if (mbTarget)
            mBrowse.SetTarget(mFile);
        return true;
    }

private:
    void OnFile() { ++mnChanges; }
};

/// A desktop whose profile is full.
class CReadOnlyDesktop : public HeadlessDesktop
{
public:
    bool WriteProfile(const CString&, const CString&, const CString&) override { return false; }
};

/// A desktop whose file dialogs fail, after those that have an answer.
class CFailingDesktop : public HeadlessDesktop
{
public:
    TFileChoice ChooseFile(const TFileDialog& rDialog) override
    {
        if (mnAnswers-- > 0)
            return HeadlessDesktop::ChooseFile(rDialog);
        throw std::runtime_error("no file dialog");
    }

    int mnAnswers = 0;
};

char* ToUnixName(const char16_t* pDosName)
{
    return ::strdup(("/unix/" + gWideToMultiByte(pDosName, kCodePageUtf8)).c_str());
}

/// The other side, which knows the Unix name of every path.
class CUnixNames : public INamedExports
{
public:
    TFunction Find(std::string_view sName) const override
    {
        return sName == "wine_get_unix_stripped_file_name"
                   ? reinterpret_cast<TFunction>(&ToUnixName)
                   : nullptr;
    }
    void FreeHeapBlock(void* pBlock) override { std::free(pBlock); }
};

TFileChoice Chosen(const char* pPath)
{
    return {TFileChoice::EEnd::Chosen, pPath};
}

const TFileChoice kCancelled{};
const TFileChoice kInvalid{TFileChoice::EEnd::InvalidName, {}};

class BrowseButton : public testing::Test
{
protected:
    BrowseButton()
    {
        mpFiles->msCurrentFolder = u"/current";
        gSetFileSystem(mpFiles);
    }

    /// Runs the dialog: these actions, while file dialogs end in these ways.
    void Run(CBrowseDlg& rDialog, std::vector<TFileChoice> choices, CScript script)
    {
        for (TFileChoice& rChoice : choices)
            mDesktop.AnswerFile(rChoice);
        script.Run(mDesktop, [&rDialog] { rDialog.DoModal(); });
        mShown = mDesktop.TakeFileDialogs();
    }
    void Click(CBrowseDlg& rDialog, std::vector<TFileChoice> choices, const char* pExpected,
               const char* pTyped = "typed")
    {
        Run(rDialog, std::move(choices),
            CScript()
                .Do({Set("file", pTyped), steps::Click("browse")})
                .Look({look::Text("file", pExpected)}));
    }

    std::optional<CString> Profile() { return mDesktop.ReadProfile("", "MRPATH"); }

    CPathStateScope mPaths;
    std::shared_ptr<CFakeFileSystem> mpFiles = std::make_shared<CFakeFileSystem>();
    HeadlessDesktop mDesktop;
    CBrowseDlg mDialog{kFilter};
    std::vector<TFileDialog> mShown;
};

TEST_F(BrowseButton, TheSharedFiltersAreThese)
{
    EXPECT_STREQ(kOutputFilesFilter, "Output Files (*.out)|*.out|Model Files (*.md)|*.md|All "
                                     "Files (*.*)|*.*||");
    EXPECT_STREQ(kLibraryFilesFilter,
                 "Library Files (*.lib)|*.lib|SPICE Files (*.sp;*.spc;*.cir)|*.sp; *.spc; "
                 "*.cir|Model Files (*.md)|*.md|All Files (*.*)|*.*||");
    EXPECT_STREQ(kProgramsFilter, "Executable Files (*.exe)|*.exe|All Files (*.*)|*.*||");
    EXPECT_STREQ(kCodeLibrariesFilter,
                 "Dynamic-Link Library Files (*.dll)|*.dll|All Files (*.*)|*.*||");
}

TEST_F(BrowseButton, AFirstBrowseWithoutAProfileValueStartsInTheCurrentFolder)
{
    Click(mDialog, {kCancelled}, "typed");
    ASSERT_EQ(mShown.size(), 1U);
    EXPECT_EQ(mShown[0].sFolder, "/current");
}

TEST_F(BrowseButton, TheDialogIsOneForOpeningWithTheTextAsItsName)
{
    Click(mDialog, {kCancelled}, "a.lib", "a.lib");
    ASSERT_EQ(mShown.size(), 1U);
    EXPECT_TRUE(mShown[0].bOpen);
    EXPECT_EQ(mShown[0].pParent, &mDialog.mBrowse);
    EXPECT_EQ(mShown[0].sFileName, "a.lib");
    EXPECT_EQ(mShown[0].sFilter, kFilter);
    EXPECT_EQ(mShown[0].sDefaultExtension, "");
    EXPECT_EQ(mShown[0].nFlags, kOpenFlags);
}

TEST_F(BrowseButton, AButtonForSavingAsksForNoFolderThatExists)
{
    mDialog.mBrowse.mnOpen = 0;
    Click(mDialog, {Chosen("/x/a.out")}, "/x/a.out");
    ASSERT_EQ(mShown.size(), 1U);
    EXPECT_FALSE(mShown[0].bOpen);
    EXPECT_EQ(mShown[0].nFlags, kSaveFlags);
}

TEST_F(BrowseButton, AChosenFileFillsTheEditAndIsNotifiedOnce)
{
    Click(mDialog, {Chosen("/models/nmos.md")}, "/models/nmos.md");
    EXPECT_EQ(mDialog.mnChanges, 2) << "once typed, once browsed";
}

TEST_F(BrowseButton, AButtonForTheNameAloneFillsInNoFolder)
{
    mDialog.mBrowse.mnFullPath = 0;
    Click(mDialog, {Chosen("/models/nmos.md")}, "nmos.md");
    EXPECT_EQ(Profile(), CString("/models"));
}

TEST_F(BrowseButton, TheNextBrowseOfAnyButtonStartsInTheFolderOfTheLastOne)
{
    Click(mDialog, {Chosen("/models/nmos.md")}, "/models/nmos.md");
    EXPECT_EQ(Profile(), CString("/models"));
    CBrowseDlg other("Other (*.x)|*.x||");
    Click(other, {kCancelled}, "typed");
    ASSERT_EQ(mShown.size(), 1U);
    EXPECT_EQ(mShown[0].sFolder, "/models");
    EXPECT_EQ(mpFiles->msCurrentFolder, u"/models");
}

struct TFolderCase {
    const char* pPath;
    const char* pFolder;
};

const TFolderCase kFolderCases[] = {
    {"/models/nmos.md", "/models"},
    {"/nmos.md", "/"},
    {"C:\\models\\nmos.md", "C:\\models"},
    {"C:\\nmos.md", "C:\\"},
    {"\\\\server\\share\\nmos.md", "\\\\server\\share"},
    {"/m\xC3\xB6/nmos.md", "/m\xC3\xB6"},
};

TEST_F(BrowseButton, TheProfileKeepsTheFolder)
{
    for (const TFolderCase& rCase : kFolderCases) {
        CBrowseDlg dialog(kFilter);
        Click(dialog, {Chosen(rCase.pPath)}, rCase.pPath);
        EXPECT_EQ(Profile(), CString(rCase.pFolder));
    }
}

TEST_F(BrowseButton, CancelLeavesEditAndProfileButTheCurrentFolderChanged)
{
    mDesktop.WriteProfile("", "MRPATH", "/last");
    Click(mDialog, {kCancelled}, "typed");
    EXPECT_EQ(Profile(), CString("/last"));
    EXPECT_EQ(mpFiles->msCurrentFolder, u"/last");
    EXPECT_EQ(mDialog.mnChanges, 1);
}

TEST_F(BrowseButton, CancelDoesNotWriteAProfile)
{
    Click(mDialog, {kCancelled}, "typed");
    EXPECT_EQ(Profile(), std::nullopt);
}

TEST_F(BrowseButton, ATextThatIsNoFileNameOpensTheDialogAtTheSecondAttemptWithAnEmptyName)
{
    Click(mDialog, {kInvalid, Chosen("/x/a.lib")}, "/x/a.lib", "a<b>?");
    ASSERT_EQ(mShown.size(), 2U);
    EXPECT_EQ(mShown[0].sFileName, "a<b>?");
    EXPECT_EQ(mShown[1].sFileName, "");
    EXPECT_EQ(mShown[1].sFolder, mShown[0].sFolder);
    EXPECT_EQ(mShown[1].nFlags, kOpenFlags);
}

TEST_F(BrowseButton, CancelAtTheSecondAttemptLeavesTheEdit)
{
    Click(mDialog, {kInvalid, kCancelled}, "a<b>?", "a<b>?");
    EXPECT_EQ(mShown.size(), 2U);
    EXPECT_EQ(Profile(), std::nullopt);
}

TEST_F(BrowseButton, ProgramsAndLibrariesOfCodeStartInTheFolderOfTheProgram)
{
    mDesktop.WriteProfile("", "MRPATH", "/last");
    mpFiles->msProgramFile = u"/programs/host";
    for (const char* const pFilter : {kProgramsFilter, kCodeLibrariesFilter}) {
        CBrowseDlg dialog(pFilter);
        Click(dialog, {Chosen("/bin/x")}, "/bin/x");
        ASSERT_EQ(mShown.size(), 1U);
        EXPECT_EQ(mShown[0].sFolder, CString("/programs"));
        EXPECT_EQ(CStringU(mpFiles->msCurrentFolder).ToAnsi(), mShown[0].sFolder);
        EXPECT_EQ(Profile(), CString("/bin"));
    }
}

TEST_F(BrowseButton, OtherFiltersStartInTheFolderOfTheLastBrowse)
{
    mDesktop.WriteProfile("", "MRPATH", "/last");
    for (const char* const pFilter : {kOutputFilesFilter, kLibraryFilesFilter, kFilter}) {
        CBrowseDlg dialog(pFilter);
        Click(dialog, {kCancelled}, "typed");
        EXPECT_EQ(mShown.at(0).sFolder, "/last");
        EXPECT_EQ(mShown.at(0).sFilter, pFilter);
    }
}

TEST_F(BrowseButton, ACurrentFolderThatIsTooLongIsNone)
{
    for (const auto& [nLength, bTaken] : {std::pair{519U, true}, {520U, false}}) {
        const std::u16string sFolder = u"/" + std::u16string(nLength - 1, u'f');
        mpFiles->msCurrentFolder = sFolder;
        CBrowseDlg dialog(kFilter);
        Click(dialog, {kCancelled}, "typed");
        EXPECT_EQ(mShown.at(0).sFolder, bTaken ? CStringU(sFolder).ToAnsi() : CString());
    }
}

TEST_F(BrowseButton, AProfileThatCannotBeWrittenIsNotNoticed)
{
    CReadOnlyDesktop desktop;
    desktop.AnswerFile(Chosen("/x/a.lib"));
    CScript()
        .Do({steps::Click("browse")})
        .Look({look::Text("file", "/x/a.lib")})
        .Run(desktop, [this] { mDialog.DoModal(); });
    EXPECT_TRUE(desktop.TakeBoxes().empty());
}

TEST_F(BrowseButton, AFailingFileDialogEndsTheClickLikeACancel)
{
    for (const int nInvalidNames : {0, 1}) {
        CFailingDesktop desktop;
        desktop.WriteProfile("", "MRPATH", "/last");
        desktop.mnAnswers = nInvalidNames;
        desktop.AnswerFile(kInvalid);
        CBrowseDlg dialog(kFilter);
        CScript()
            .Do({Set("file", "typed"), steps::Click("browse")})
            .Look({look::Text("file", "typed")})
            .Do({Set("file", "more")})
            .Look({look::Text("file", "more")})
            .Run(desktop, [&dialog] { EXPECT_NO_THROW(dialog.DoModal()); });
        EXPECT_EQ(desktop.ReadProfile("", "MRPATH"), CString("/last"));
        EXPECT_EQ(mpFiles->msCurrentFolder, u"/last");
        EXPECT_TRUE(desktop.TakeBoxes().empty());
    }
}

TEST_F(BrowseButton, WithoutATargetAClickDoesNothing)
{
    mDialog.mbTarget = false;
    Click(mDialog, {Chosen("/x/a.lib")}, "typed");
    EXPECT_TRUE(mShown.empty());
}

TEST_F(BrowseButton, OnTheUnixSideTheEditGetsItsPathAndTheProfileTheChosenOne)
{
    const CIsWineScope wine(true);
    gSetNamedExports(std::make_shared<CUnixNames>());
    Click(mDialog, {Chosen("Z:/home\\a.lib")}, "/unix/Z:\\home\\a.lib");
    EXPECT_EQ(Profile(), CString("Z:/home"));
}

TEST_F(BrowseButton, WithThePlainRulesThePathIsThatOfTheDialog)
{
    gSetNamedExports(std::make_shared<CUnixNames>());
    Click(mDialog, {Chosen("Z:\\home\\a.lib")}, "Z:\\home\\a.lib");
}
} // namespace
