#include "platform/qt/FileDialogWindow.h"
#include "platform/qt/FileFilter.h"
#include "platform/ui/SampleDialog.h"
#include "qt/Player.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>

namespace
{
struct TFilterCase {
    const char* pName;
    const char* pFilter;
    QStringList expected;
};

const TFilterCase kFilterCases[] = {
    {"two filters",
     "Text (*.txt)|*.txt|All (*.*)|*.*||",
     {QStringLiteral("Text (*.txt)"), QStringLiteral("All (*)")}},
    {"several patterns",
     "A (*.a)|*.a|B (*.b;*.c)|*.b; *.c||",
     {QStringLiteral("A (*.a)"), QStringLiteral("B (*.b *.c)")}},
    {"no brackets", "Library|*.lib||", {QStringLiteral("Library (*.lib)")}},
    {"brackets of another kind",
     "SPICE (3) files|*.cir||",
     {QStringLiteral("SPICE (3) files (*.cir)")}},
    {"no bar at the end", "A|*.a", {QStringLiteral("A (*.a)")}},
    {"a part without patterns", "A|*.a|B||", {QStringLiteral("A (*.a)")}},
    {"empty", "", {}},
};

TEST(FileDialog, FiltersAreTurnedIntoQts)
{
    for (const TFilterCase& rCase : kFilterCases)
        EXPECT_EQ(gToNameFilters(rCase.pFilter), rCase.expected) << rCase.pName;
}

struct TNameCase {
    const char* pName;
    bool bGood;
};

const TNameCase kNameCases[] = {
    {"", true},         {"a.cir", true}, {"two words.cir", true}, {"/tmp/a.cir", true},
    {"\xC3\xA4", true}, {"a:b", true},   {"a*.cir", false},       {"a?", false},
    {"<a>", false},     {"a|b", false},  {"a\"b", false},         {"a\nb", false},
    {"folder/", false}, {".", false},    {"..", false},           {"folder/..", false},
};

TEST(FileDialog, NamesAreLookedAtBeforehand)
{
    for (const TNameCase& rCase : kNameCases)
        EXPECT_EQ(gIsFileName(rCase.pName), rCase.bGood) << rCase.pName;
    EXPECT_TRUE(gIsFileName(CString('a', 255)));
    EXPECT_FALSE(gIsFileName(CString('a', 256)));
}

QFileDialog& FrontFileDialog()
{
    return dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
}

QByteArray Utf8(const QString& rsText)
{
    return rsText.toUtf8();
}

class FileDialogWindow : public testing::Test
{
protected:
    QString Make(const char* pName)
    {
        QFile file(mFolder.filePath(QString::fromUtf8(pName)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    TFileDialog Request(bool bOpen) const
    {
        TFileDialog request;
        request.bOpen = bOpen;
        request.sFolder = CString(mFolder.path().toStdString());
        request.sFilter = "Netlists (*.cir)|*.cir|All (*.*)|*.*||";
        request.sDefaultExtension = "cir";
        request.nFlags = OFN_OVERWRITEPROMPT | OFN_PATHMUSTEXIST;
        return request;
    }

    CTestDesktop mDesktop;
    QTemporaryDir mFolder;
};

TEST_F(FileDialogWindow, AFileIsOpened)
{
    const QString sFile = Make("a.cir");
    CPlayer player;
    player.Then("look", [this] {
        const QFileDialog& rDialog = FrontFileDialog();
        EXPECT_EQ(rDialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(rDialog.directory().absolutePath(), mFolder.path());
        EXPECT_EQ(rDialog.nameFilters().size(), 2);
    });
    player.Do({"type a.cir", "press Return"});
    player.Play([&] {
        const TFileChoice choice = gChooseFile(Request(true));
        EXPECT_EQ(choice.end, TFileChoice::EEnd::Chosen);
        EXPECT_EQ(choice.sPath, Utf8(sFile).constData());
    });
}

TEST_F(FileDialogWindow, AFileThatDoesNotExistIsOpenedUnlessItMust)
{
    CPlayer player;
    player.Do({"type new.cir", "press Return"});
    player.Play([&] {
        const TFileChoice choice = gChooseFile(Request(true));
        EXPECT_EQ(choice.end, TFileChoice::EEnd::Chosen);
        EXPECT_EQ(choice.sPath, Utf8(mFolder.filePath(QStringLiteral("new.cir"))).constData());
    });
    CPlayer strict;
    strict.Do({"type new.cir", "press Return"});
    strict.Then("answer", [] {
        EXPECT_TRUE(QApplication::activeModalWidget()->inherits("QMessageBox"));
        gInput("press Return");
    });
    strict.Do({"press Escape"});
    strict.Play([&] {
        TFileDialog request = Request(true);
        request.nFlags |= OFN_FILEMUSTEXIST;
        EXPECT_EQ(gChooseFile(request).end, TFileChoice::EEnd::Cancelled);
    });
}

TEST_F(FileDialogWindow, AFolderThatDoesNotExistKeepsTheDialogOpenIfItMust)
{
    CPlayer player;
    player.Do({"type none/new.cir", "press Return"});
    player.Then("answer", [] {
        EXPECT_TRUE(QApplication::activeModalWidget()->inherits("QMessageBox"));
        gInput("press Return");
    });
    player.Do({"press Escape"});
    player.Play([&] { EXPECT_EQ(gChooseFile(Request(true)).end, TFileChoice::EEnd::Cancelled); });
    CPlayer lenient;
    lenient.Do({"type none/new.cir", "press Return"});
    lenient.Play([&] {
        TFileDialog request = Request(true);
        request.nFlags = 0;
        EXPECT_EQ(gChooseFile(request).end, TFileChoice::EEnd::Chosen);
    });
}

TEST_F(FileDialogWindow, EscapeCancels)
{
    CPlayer player;
    player.Do({"press Escape"});
    player.Play([&] { EXPECT_EQ(gChooseFile(Request(true)).end, TFileChoice::EEnd::Cancelled); });
}

TEST_F(FileDialogWindow, ANameIsProposedAndTheExtensionAdded)
{
    CPlayer player;
    player.Then("look", [] {
        const QFileDialog& rDialog = FrontFileDialog();
        EXPECT_EQ(rDialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(rDialog.findChild<QLineEdit*>()->text(), QStringLiteral("proposed"));
    });
    player.Do({"press Return"});
    player.Play([&] {
        TFileDialog request = Request(false);
        request.sFileName = "proposed";
        const TFileChoice choice = gChooseFile(request);
        EXPECT_EQ(choice.end, TFileChoice::EEnd::Chosen);
        EXPECT_EQ(choice.sPath, Utf8(mFolder.filePath(QStringLiteral("proposed.cir"))).constData());
    });
}

TEST_F(FileDialogWindow, AnExistingFileIsAskedAbout)
{
    Make("a.cir");
    CPlayer player;
    player.Do({"press Return"});
    player.Then("answer", [] {
        EXPECT_TRUE(QApplication::activeModalWidget()->inherits("QMessageBox"));
        gInput("press Alt+Y");
    });
    player.Play([&] {
        TFileDialog request = Request(false);
        request.sFileName = "a.cir";
        EXPECT_EQ(gChooseFile(request).end, TFileChoice::EEnd::Chosen);
    });
}

TEST_F(FileDialogWindow, ABadProposalIsToldOfAtOnce)
{
    TFileDialog request = Request(false);
    request.sFileName = "a?";
    EXPECT_EQ(gChooseFile(request).end, TFileChoice::EEnd::InvalidName);
}

TEST_F(FileDialogWindow, ADialogWaitsMeanwhile)
{
    CSampleDialog dialog;
    dialog.React("press:clicked", [&] {
        TFileDialog request = Request(true);
        request.pParent = &dialog;
        EXPECT_EQ(gChooseFile(request).end, TFileChoice::EEnd::Cancelled);
    });
    CPlayer player;
    player.Do({"click press"});
    player.Then("look", [&] {
        EXPECT_EQ(dialog.Get<CWnd>(kName).WouldAcceptUser(), EUserResult::Blocked);
        gInput("press Escape");
    });
    player.Do({"press Escape"}).Play([&dialog] { dialog.DoModal(); });
}
} // namespace
