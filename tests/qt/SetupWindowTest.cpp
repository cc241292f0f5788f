// The pages of files and of guesses at the real windows.

#include "exports/Quorvawiz.h"
#include "qt/Player.h"
#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <stdexcept>

namespace
{
class SetupWindow : public testing::Test
{
protected:
    SetupWindow() : msStartFolder(QDir::currentPath())
    {
        CRememberedBase::ResetAll();
        QDir(mFolder.path()).mkdir(QStringLiteral("models"));
    }
    ~SetupWindow() override
    {
        QDir::setCurrent(msStartFolder);
        CRememberedBase::ResetAll();
    }

    std::string Make(const char* pName)
    {
        QFile file(mFolder.filePath(QString::fromUtf8(pName)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName().toStdString();
    }
    std::string Folder(const char* pName = "")
    {
        return QDir::cleanPath(mFolder.filePath(QString::fromUtf8(pName))).toStdString();
    }

    void Play(CPlayer& rPlayer)
    {
        rPlayer.Play([this] { quorvawiz::gInvokeSpiceCommandWizard(nullptr, &mTarget); });
    }

    QTemporaryDir mFolder;
    QString msStartFolder;
    CTestDesktop mDesktop;
    CRecordingTarget mTarget;
};

void OpenPage(CPlayer& rPlayer, const char* pCategory, const char* pPage)
{
    rPlayer.Do({std::string("branch tree@") + pCategory, std::string("click tree@") + pPage});
}

QFileDialog& FrontFileDialog()
{
    return dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
}

void ExpectFile(CPlayer& rPlayer, const std::string& rsText)
{
    rPlayer.Then("look at the file", [rsText] {
        EXPECT_EQ(dynamic_cast<QLineEdit&>(*gFrontWidget("file")).text().toStdString(), rsText);
    });
}

TEST_F(SetupWindow, AFileIsBrowsedForInTheRealFileDialog)
{
    const std::string sFile = Make("models/nmos.md");
    QDir::setCurrent(mFolder.filePath(QStringLiteral("models")));
    CPlayer player;
    OpenPage(player, "Files", "Include file");
    player.Do({"click browse"});
    player.Then("look at the dialog", [this] {
        const QFileDialog& rDialog = FrontFileDialog();
        EXPECT_EQ(rDialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(rDialog.directory().absolutePath().toStdString(), Folder("models"));
        EXPECT_EQ(rDialog.nameFilters(),
                  (QStringList{QStringLiteral("Model Files (*.md)"),
                               QStringLiteral("SPICE Files (*.sp *.spc *.cir)"),
                               QStringLiteral("All Files (*)")}));
    });
    player.Do({"type nmos.md", "press Return"});
    ExpectFile(player, sFile);
    player.Do({"press Alt+I", "press Escape"});
    Play(player);
    EXPECT_EQ(mTarget.mCommands, std::vector<std::string>{".include \"" + sFile + "\""});
    EXPECT_EQ(mDesktop.Get().ReadProfile("", "MRPATH"), CString(Folder("models")));
}

TEST_F(SetupWindow, TheNextBrowseStartsWhereTheLastOneEndedAndChangesTheCurrentFolder)
{
    mDesktop.Get().WriteProfile("", "MRPATH", CString(Folder("models")));
    CPlayer player;
    OpenPage(player, "Files", "Library file");
    player.Do({"press Alt+B"});
    player.Then("look at the dialog", [this] {
        EXPECT_EQ(FrontFileDialog().directory().absolutePath().toStdString(), Folder("models"));
    });
    player.Do({"press Escape"});
    ExpectFile(player, "");
    player.Do({"press Escape"});
    Play(player);
    EXPECT_EQ(QDir::currentPath().toStdString(), Folder("models"));
}

TEST_F(SetupWindow, ATextThatIsNoFileNameOpensTheDialogWithAnEmptyName)
{
    CPlayer player;
    OpenPage(player, "Files", "Delete library file");
    player.Do({"press Alt+L", "type a<b>?", "press Alt+B"});
    player.Then("look at the dialog",
                [] { EXPECT_EQ(FrontFileDialog().findChild<QLineEdit*>()->text(), QString()); });
    player.Do({"press Escape"});
    ExpectFile(player, "a<b>?");
    player.Do({"press Escape"});
    Play(player);
}

TEST_F(SetupWindow, AFileDialogThatFailsIsLikeOneThatIsCancelled)
{
    CPlayer player;
    OpenPage(player, "Files", "Library file");
    player.Do({"press Alt+L", "type a.lib", "press Alt+B"});
    player.Then("let it fail", [this] {
        EXPECT_EQ(FrontFileDialog().acceptMode(), QFileDialog::AcceptOpen);
        mDesktop.Get().EnterModel([] { throw std::runtime_error("no file dialog"); });
    });
    ExpectFile(player, "a.lib");
    player.Do({"press Alt+I", "press Escape"});
    Play(player);
    EXPECT_EQ(mTarget.mCommands, std::vector<std::string>{".lib \"a.lib\""});
    EXPECT_EQ(mDesktop.Get().ReadProfile("", "MRPATH"), std::nullopt);
}

/// The edit of an option's value, or the list in its place.
void ExpectValueIn(CPlayer& rPlayer, bool bEdit)
{
    rPlayer.Then("look at the value", [bEdit] {
        EXPECT_EQ(gFrontWidget("value-text")->isVisible(), bEdit);
        EXPECT_EQ(gFrontWidget("value-list")->isVisible(), !bEdit);
    });
}

TEST_F(SetupWindow, AnOptionIsChosenByKeyboardAndItsValueTypedOrChosen)
{
    CPlayer player;
    OpenPage(player, "Settings", "Simulation options");
    player.Do({"press Alt+O", "type gmin"});
    ExpectValueIn(player, true);
    player.Do({"press Alt+V", "type 1e-13", "press Alt+I", "press Alt+O", "press End", "press Up"});
    ExpectValueIn(player, false);
    player.Do({"press Alt+V", "press Down", "press Alt+I", "press Escape"});
    Play(player);
    EXPECT_EQ(mTarget.mCommands,
              (std::vector<std::string>{".options gmin=1e-13", ".options xref=1"}));
}

TEST_F(SetupWindow, TheChainOfGuessesIsTypedThroughByKeyboard)
{
    CPlayer player;
    OpenPage(player, "Initialization", "DC guess");
    player.Do({"press Tab"});
    for (const char* const pSet : {"1", "2", "3", "4", "5", "6"}) {
        const std::string sNode = std::string("node-") + pSet;
        player.Then("look at the focus",
                    [sNode] { EXPECT_EQ(QApplication::focusWidget(), gFrontWidget(sNode)); });
        player.Do({std::string("type n") + pSet, "press Tab", "press Tab",
                   std::string("type ") + pSet, "press Tab"});
    }
    player.Do({"press Alt+I", "press Escape"});
    Play(player);
    EXPECT_EQ(mTarget.mCommands,
              std::vector<std::string>{".nodeset v(n1)=1 v(n2)=2 v(n3)=3 v(n4)=4 v(n5)=5 v(n6)=6"});
}
} // namespace
