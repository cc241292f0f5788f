#include "browser/BrowserTest.h"
#include "browser/CustomFileDialog.h"
#include "platform/base/CodePageScope.h"
#include "platform/ui/Desktop.h"
#include "support/PrintStringU.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

using ExportTest = BrowserTest;
using CustomFileDialogTest = BrowserTest;

struct TWriteCase {
    const char* mpName;
    CStringU msText;
    std::string msBytes;
};

TEST_F(ExportTest, Bytes)
{
    const std::vector<TWriteCase> cases{
        {"an empty table gives an empty file", "", ""},
        {"a line feed becomes CR LF, also the last one", "a,b\nc,d\n", "a,b\r\nc,d\r\n"},
        {"a carriage return in a text is dropped", "a\rb\r\n", "ab\r\n"},
        {"a line feed in a text is one more line end", "a\nb,c\n", "a\r\nb,c\r\n"},
        {"writing ends at a zero", std::string("a\nb\0c\n", 6), "a\r\nb"},
        {"a quoted text", "\"a,b\",c\n", "\"a,b\",c\r\n"},
        {"beyond ASCII", u"\u00B5,1\n", "\xC2\xB5,1\r\n"},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(gWriteExport(mFolder.Path("out.csv"), row.msText), "") << row.mpName;
        EXPECT_EQ(mFolder.Read("out.csv"), row.msBytes) << row.mpName;
    }
}

TEST_F(ExportTest, TheBytesAreInTheSystemsCodePage)
{
    const CCodePageScope codePage(1252);
    EXPECT_EQ(gWriteExport(mFolder.Path("out.csv"), u"\u00B5,\u03A9\n"), "");
    EXPECT_EQ(mFolder.Read("out.csv"), "\xB5,?\r\n");
}

TEST_F(ExportTest, AFileThatIsThereIsReplaced)
{
    const std::string sPath = mFolder.Write("out.csv", std::string(10'000, 'x'));
    EXPECT_EQ(gWriteExport(sPath, "a\n"), "");
    EXPECT_EQ(mFolder.Read("out.csv"), "a\r\n");
}

TEST_F(ExportTest, WhyAFileCantBeWritten)
{
    mFolder.Write("file", "");
    EXPECT_NE(gWriteExport(mFolder.Path("file/out.csv"), "a\n"), "");
    EXPECT_NE(gWriteExport(mFolder.Path(""), "a\n"), "");
    if (std::filesystem::exists("/dev/full")) {
        EXPECT_NE(gWriteExport("/dev/full", "a\n"), "");
    }
}

TEST_F(ExportTest, AsksForTheFile)
{
    const std::string sPath = ChooseFile("first.csv");
    CWnd owner;
    gExportToFile("a\n", &owner);
    EXPECT_EQ(mFolder.Read("first.csv"), "a\r\n");
    EXPECT_EQ(gGetLastExportPath(), sPath);
    const auto shown = mDesktop.TakeFileDialogs();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_FALSE(shown[0].bOpen);
    EXPECT_EQ(shown[0].pParent, &owner);
    EXPECT_EQ(shown[0].sDefaultExtension, "csv");
    EXPECT_EQ(shown[0].sFilter, "Comma-Separated Value Files (*.csv)|*.csv|All Files (*.*)|*.*||");
    EXPECT_EQ(shown[0].nFlags, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT);
    EXPECT_EQ(shown[0].sFileName, "");
    EXPECT_EQ(shown[0].sFolder, "");
}

TEST_F(ExportTest, TheSecondExportOffersTheFirstOnesFolderAndName)
{
    const std::string sFirst = ChooseFile("first.csv");
    ChooseFile("second.csv");
    gExportToFile("a\n", nullptr);
    gExportToFile("b\n", nullptr);
    const auto shown = mDesktop.TakeFileDialogs();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown[1].sFileName, sFirst);
    EXPECT_EQ(shown[1].sFolder, sFirst.substr(0, sFirst.rfind('/')));
    EXPECT_EQ(mFolder.Read("first.csv"), "a\r\n");
    EXPECT_EQ(mFolder.Read("second.csv"), "b\r\n");
    EXPECT_EQ(gGetLastExportPath(), mFolder.Path("second.csv"));
}

TEST_F(ExportTest, CancellingChangesNothing)
{
    gGetLastExportPath() = "/folder/before.csv";
    gExportToFile("a\n", nullptr);
    EXPECT_EQ(gGetLastExportPath(), "/folder/before.csv");
    EXPECT_EQ(mDesktop.TakeFileDialogs().size(), 1U);
}

TEST_F(ExportTest, AFailureShowsNothingAndThePathStays)
{
    mFolder.Write("file", "");
    const std::string sPath = ChooseFile("file/out.csv");
    gExportToFile("a\n", nullptr);
    EXPECT_TRUE(mDesktop.TakeBoxes().empty());
    EXPECT_EQ(gGetLastExportPath(), sPath);
}

TEST_F(ExportTest, TheFilterIsTranslated)
{
    const CBracketTranslation brackets;
    gExportToFile("a\n", nullptr);
    EXPECT_EQ(mDesktop.TakeFileDialogs().at(0).sFilter,
              "[Comma-Separated Value Files (*.csv)|*.csv|All Files (*.*)|*.*||]");
}

TEST_F(CustomFileDialogTest, AnInvalidNameIsntProposedAgain)
{
    mDesktop.AnswerFile({TFileChoice::EEnd::InvalidName, ""});
    mDesktop.AnswerFile({TFileChoice::EEnd::Chosen, "/b.csv"});
    TCustomFileDialog dialog(TCustomFileDialog::EType::Open, "csv", "/folder/a?.csv", 0, "",
                             nullptr);
    EXPECT_EQ(dialog.DoModal(), IDOK);
    EXPECT_EQ(dialog.GetPathName(), "/b.csv");
    const auto shown = mDesktop.TakeFileDialogs();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_TRUE(shown[0].bOpen);
    EXPECT_EQ(shown[0].sFileName, "/folder/a?.csv");
    EXPECT_EQ(shown[1].sFileName, "");
    EXPECT_EQ(shown[1].sFolder, "/folder");
}

/// A desktop whose file dialog fails.
class CFailingDesktop : public HeadlessDesktop
{
public:
    TFileChoice ChooseFile(const TFileDialog& /*rDialog*/) override
    {
        throw std::runtime_error("no dialog");
    }
};

TEST_F(CustomFileDialogTest, ADialogThatFailsCountsAsCancelled)
{
    const CFailingDesktop failing;
    TCustomFileDialog dialog(TCustomFileDialog::EType::Save, "csv", "/a.csv", 0, "", nullptr);
    EXPECT_EQ(dialog.DoModal(), IDCANCEL);
    EXPECT_EQ(dialog.GetPathName(), "");
}

} // namespace
