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

TEST_F(EndToEnd, AWholeOptimizationGoesIntoTheFileByKeys)
{
    const auto alt = [this](Qt::Key key) { mUser.Press(QKeySequence(Qt::ALT | key)); };
    const auto fill = [this, &alt](Qt::Key key, const char* pText) {
        alt(key);
        mUser.Press(QKeySequence::SelectAll);
        mUser.Press(QKeySequence(Qt::Key_Delete));
        mUser.Type(QString::fromLatin1(pText));
    };
    // Another control has the letter of "Continue", too: it leads from one to the other.
    const auto continueBySharedLetter = [this, &alt] {
        alt(Qt::Key_C);
        alt(Qt::Key_C);
        mUser.Press(QKeySequence(Qt::Key_Return));
    };
    InWizard([&](QWidget& rWizard) {
        mUser.OpenPage(rWizard, QStringLiteral("Optimization"), QStringLiteral("Wizard"));
        fill(Qt::Key_O, "o1");
        alt(Qt::Key_A);
        for (int i = 0; i < 3; ++i)
            mUser.Press(QKeySequence(Qt::Key_Down)); // to the transient analysis
        alt(Qt::Key_C);

        fill(Qt::Key_M, "delay");
        fill(Qt::Key_T, "1n");
        alt(Qt::Key_A);
        fill(Qt::Key_M, "rise");
        fill(Qt::Key_T, "2n");
        fill(Qt::Key_W, "");
        fill(Qt::Key_N, "");
        alt(Qt::Key_A);
        continueBySharedLetter();

        alt(Qt::Key_P);
        for (const char* pText : {"w", "1u", "5u", "", "2u"}) {
            mUser.Type(QString::fromLatin1(pText));
            mUser.Press(QKeySequence(Qt::Key_Tab));
        }
        alt(Qt::Key_C);

        fill(Qt::Key_N, "m1");
        continueBySharedLetter();
        alt(Qt::Key_I);
        EXPECT_TRUE(rWizard.isVisible());
    });
    ExpectInserted(".optimize o1 model=m1 analysisname=tran\n"
                   ".paramlimits o1 w minval=1u maxval=5u guess=2u\n"
                   ".optgoal o1 delay=1n minval=1e-12 weight=1\n"
                   ".optgoal o1 rise=2n\n"
                   ".model m1 opt cendif=1e-9 close=0.001 cut=2 difsiz=1e-3 grad=1e-6\n"
                   "+      itropt=20 max=600000 parmin=0.1 relin=0.001 relout=0.001");
}
} // namespace
} // namespace quorvawiz::host
