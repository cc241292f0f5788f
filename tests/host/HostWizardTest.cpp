#include "host/CloseRequest.h"
#include "host/FileFolder.h"
#include "host/PrintQt.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/HostWindow.h"
#include "quorvahost/NetlistEdit.h"
#include "quorvahost/tour/WizardUser.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeySequence>
#include <memory>

namespace quorvawiz::host
{
namespace
{
class HostWizard : public testing::Test
{
public:
    ~HostWizard() override
    {
        EXPECT_TRUE(mUser.HasMetAll());
        EXPECT_NO_THROW(mUser.RethrowFailure());
    }

protected:
    HostWizard()
    {
        mpWindow = std::make_unique<CHostWindow>(mDesktop);
        mpWindow->show();
        mpWindow->activateWindow();
        CUser::Settle();
    }

    /// Opens the wizard by its shortcut and acts on its window.
    void InWizard(CUser::TAct act)
    {
        mUser.Meet(std::move(act));
        mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_I));
    }

    CFileFolder mFolder;
    QtDesktop mDesktop{mFolder.Path("profile.ini")};
    CWizardUser mUser;
    std::unique_ptr<CHostWindow> mpWindow;
};

TEST_F(HostWizard, CommandsGoIntoTheNetlistWhileTheWizardIsOpen)
{
    mpWindow->Edit().LoadText(QStringLiteral("title\n\n.end"));
    mUser.Press(QKeySequence(Qt::Key_Down));
    InWizard([this](QWidget& rWizard) {
        mUser.InsertTemperature(rWizard, "0 27 85");
        EXPECT_EQ(mpWindow->Edit().Text(), QStringLiteral("title\n.temp 0 27 85\n.end"));
        EXPECT_TRUE(rWizard.isVisible());
        mUser.InsertTemperature(rWizard, "100");
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    EXPECT_EQ(mpWindow->Edit().Text(), QStringLiteral("title\n.temp 0 27 85\n.temp 100\n.end"));
    EXPECT_TRUE(mpWindow->isWindowModified());
    mUser.Press(QKeySequence::Undo);
    EXPECT_EQ(mpWindow->Edit().Text(), QStringLiteral("title\n.temp 0 27 85\n.end"));
    mUser.Press(QKeySequence::Undo);
    EXPECT_EQ(mpWindow->Edit().Text(), QStringLiteral("title\n\n.end"));
}

TEST_F(HostWizard, OpensOnceAndAgain)
{
    for (int i = 0; i < 3; ++i)
        InWizard([this](QWidget&) {
            mpWindow->RunWizard(); // it runs already
            mUser.Press(QKeySequence(Qt::Key_Escape));
        });
    EXPECT_EQ(mpWindow->Edit().Text(), QString());
}

TEST_F(HostWizard, ClosingTheHostEndsTheWizardFirst)
{
    InWizard([this](QWidget& rWizard) {
        mUser.InsertTemperature(rWizard, "27");
        mpWindow->Edit().document()->setModified(false);
        gRequestClose(*mpWindow);
        EXPECT_TRUE(mpWindow->isVisible());
    });
    EXPECT_FALSE(mpWindow->isVisible());
    EXPECT_TRUE(mDesktop.Thread().mModalRuns.empty());
}

TEST_F(HostWizard, UnsavedWorkIsAskedAboutOnceTheWizardHasEnded)
{
    mUser.Meet([this](QWidget& rWizard) {
        mUser.InsertTemperature(rWizard, "27");
        gRequestClose(*mpWindow);
    });
    mUser.Meet([this](QWidget&) {
        EXPECT_TRUE(mDesktop.Thread().mModalRuns.empty());
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_I));
    EXPECT_TRUE(mpWindow->isVisible());
    EXPECT_EQ(mpWindow->Edit().Text(), QStringLiteral("\n.temp 27"));
}

TEST_F(HostWizard, ClosingTheHostEndsABoxOfTheWizardToo)
{
    InWizard([this](QWidget& rWizard) {
        mUser.Meet([this](QWidget& rBox) {
            EXPECT_TRUE(rBox.isVisible());
            gRequestClose(*mpWindow);
        });
        mUser.InsertTemperature(rWizard, ""); // "Missing temperature value."
    });
    EXPECT_FALSE(mpWindow->isVisible());
    EXPECT_TRUE(mDesktop.Thread().mModalRuns.empty());
}

TEST_F(HostWizard, AFileThatVanishesMeanwhileIsWrittenAgain)
{
    const QString sPath = mFolder.Write("a.cir", "title\n");
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    InWizard([&](QWidget& rWizard) {
        ASSERT_TRUE(QFile::remove(sPath));
        mUser.InsertTemperature(rWizard, "27");
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    mUser.Press(QKeySequence::Save);
    EXPECT_EQ(CFileFolder::Read(sPath), "title\n.temp 27\n");
}

TEST_F(HostWizard, ANetlistOfFiftyMegabytesTakesACommand)
{
    const QByteArray line("R12345 net_a_12345 net_b_12345 1.5k tc1=0.001 $ one of very many\n");
    const QByteArray lines = line.repeated(50'000'000 / line.size());
    const QString sPath = mFolder.Write("large.cir", lines);
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_End));
    InWizard([this](QWidget& rWizard) {
        mUser.InsertTemperature(rWizard, "27");
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    mUser.Press(QKeySequence::Save);
    EXPECT_TRUE(CFileFolder::Read(sPath) == lines + ".temp 27");
}

TEST_F(HostWizard, DeletingTheHostEndsTheWizard)
{
    InWizard([this](QWidget&) { mpWindow.reset(); });
    EXPECT_EQ(mpWindow, nullptr);
    EXPECT_TRUE(mDesktop.Thread().mModalRuns.empty());
}
} // namespace
} // namespace quorvawiz::host
