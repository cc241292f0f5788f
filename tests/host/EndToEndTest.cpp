#include "host/FileFolder.h"
#include "host/PrintQt.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/HostWindow.h"
#include "quorvahost/NetlistEdit.h"
#include "quorvahost/tour/WizardUser.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QKeySequence>
#include <QTextCursor>
#include <memory>

// What a person does who has started the host on an example, from the first key to the saved file.
// These run twice: without a screen, and on a virtual display with the platform of real screens.

namespace quorvawiz::host
{
namespace
{
class EndToEnd : public testing::Test
{
public:
    ~EndToEnd() override
    {
        EXPECT_TRUE(mUser.HasMetAll());
        EXPECT_NO_THROW(mUser.RethrowFailure());
    }

protected:
    EndToEnd()
    {
        const QByteArray example = CFileFolder::Read(QStringLiteral(QUORVAWIZ_SOURCE_DIR) +
                                                     QStringLiteral("/examples/rc-filter.cir"));
        EXPECT_TRUE(example.contains("\n\n.end\n"));
        msPath = mFolder.Write("rc-filter.cir", example);
        mpWindow = std::make_unique<CHostWindow>(mDesktop);
        mpWindow->show();
        mpWindow->activateWindow();
        CUser::Settle();
        EXPECT_TRUE(mpWindow->OpenFile(msPath));
        // To the empty line in front of ".end".
        mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_End));
        mUser.Press(QKeySequence(Qt::Key_Up));
        mUser.Press(QKeySequence(Qt::Key_Up));
    }

    /// Tools > SPICE Command Wizard, by keys; acts in it, and closes it with Escape.
    void InWizard(const CUser::TAct& rAct)
    {
        mUser.Meet([this, rAct](QWidget&) {
            mUser.Meet([this, rAct](QWidget& rWizard) {
                rAct(rWizard);
                mUser.Press(QKeySequence(Qt::Key_Escape));
            });
            mUser.Press(QKeySequence(Qt::Key_W));
        });
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_T));
        CUser::Settle();
        EXPECT_TRUE(mUser.HasMetAll()) << "the menu and the wizard open";
    }

    /// The netlist holds a line in front of ".end", and so does the file after Ctrl+S.
    void ExpectInserted(const char* pLine)
    {
        const QString sEnd = QStringLiteral("\n") + QString::fromLatin1(pLine) + "\n.end\n";
        EXPECT_TRUE(mpWindow->Edit().Text().endsWith(sEnd))
            << mpWindow->Edit().Text().toStdString();
        EXPECT_TRUE(mpWindow->isWindowModified());
        mUser.Press(QKeySequence::Save);
        EXPECT_FALSE(mpWindow->isWindowModified());
        EXPECT_TRUE(CFileFolder::Read(msPath).endsWith(sEnd.toUtf8()));
    }

    CFileFolder mFolder;
    QString msPath;
    QtDesktop mDesktop{mFolder.Path("profile.ini")};
    CWizardUser mUser;
    std::unique_ptr<CHostWindow> mpWindow;
};

TEST_F(EndToEnd, ATemperatureGoesIntoTheFile)
{
    InWizard([this](QWidget& rWizard) {
        mUser.OpenPage(rWizard, QStringLiteral("Settings"), QStringLiteral("Temperature"));
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_L));
        mUser.Press(QKeySequence::SelectAll); // of an earlier run
        mUser.Type(QStringLiteral("0 27 85"));
        // Enter starts a new line in the field. The button takes the keyboard with its letter, and
        // Enter presses it once more.
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_I));
        mUser.Press(QKeySequence(Qt::Key_Return));
        EXPECT_TRUE(rWizard.isVisible());
    });
    ExpectInserted(".temp 0 27 85\n.temp 0 27 85");
}

TEST_F(EndToEnd, ATransientWithASweepGoesIntoTheFile)
{
    InWizard([this](QWidget& rWizard) {
        mUser.OpenPage(rWizard, QStringLiteral("Analysis"), QStringLiteral("Transient"));
        mUser.Meet([this](QWidget&) {
            mUser.Press(QKeySequence(Qt::ALT | Qt::Key_S)); // sweep type
            mUser.Type(QStringLiteral("Decade"));
            mUser.Press(QKeySequence(Qt::ALT | Qt::Key_M)); // parameter name
            mUser.Type(QStringLiteral("rs"));
            mUser.Press(QKeySequence(Qt::ALT | Qt::Key_R)); // start
            mUser.Type(QStringLiteral("1k"));
            mUser.Press(QKeySequence(Qt::Key_Tab)); // stop
            mUser.Type(QStringLiteral("100k"));
            mUser.Press(QKeySequence(Qt::Key_Tab)); // points per decade
            mUser.Type(QStringLiteral("3"));
            mUser.Press(QKeySequence(Qt::ALT | Qt::Key_A));
        });
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_S));
        EXPECT_TRUE(mUser.HasMetAll()) << "the sweep opens";
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_M)); // maximum time step
        mUser.Type(QStringLiteral("1u"));
        mUser.Press(QKeySequence(Qt::Key_Tab)); // simulation length
        mUser.Type(QStringLiteral("800u"));
        mUser.Press(QKeySequence(Qt::Key_Return));
    });
    ExpectInserted(".tran 1u 800u sweep dec param rs 1k 100k 3");
}
} // namespace
} // namespace quorvawiz::host
