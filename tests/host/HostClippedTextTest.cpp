#include "host/FileFolder.h"
#include "host/PrintQt.h"
#include "platform/qt/QtDesktop.h"
#include "qt/ClippedText.h"
#include "quorvahost/FileQuestions.h"
#include "quorvahost/HostWindow.h"
#include "quorvahost/NetlistEdit.h"
#include "quorvahost/NetlistImport.h"
#include "quorvahost/tour/User.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QKeySequence>

namespace quorvawiz::host
{
namespace
{
/// By how many points the font is larger than the desktop's own.
class HostClippedText : public testing::TestWithParam<int>
{
public:
    ~HostClippedText() override
    {
        EXPECT_TRUE(mUser.HasMetAll());
        EXPECT_NO_THROW(mUser.RethrowFailure());
        QApplication::setFont(mBefore);
    }

protected:
    HostClippedText()
    {
        QFont larger = mBefore;
        larger.setPointSizeF(mBefore.pointSizeF() + GetParam());
        QApplication::setFont(larger);
    }

    /// Meets the next box, looks at it and leaves it.
    void LookAtBox()
    {
        mUser.Meet([this](QWidget& rBox) {
            EXPECT_THAT(gFindClippedText(rBox), testing::IsEmpty());
            mUser.Press(QKeySequence(Qt::Key_Escape));
        });
    }

    const QFont mBefore = QApplication::font();
    CFileFolder mFolder;
    QtDesktop mDesktop{mFolder.Path("profile.ini")};
    CUser mUser;
};

TEST_P(HostClippedText, NoneInTheEditor)
{
    CHostWindow window(mDesktop);
    window.show();
    window.activateWindow();
    CUser::Settle();
    EXPECT_THAT(gFindClippedText(window), testing::IsEmpty());
    window.ShowParams(QStringLiteral("a-netlist-with-a-name-that-goes-on-for-very-long.params"));
    window.Edit().LoadText(
        (QString(99, QLatin1Char('a')) + QLatin1Char('\n')).repeated(kLargestColoured / 100 + 1));
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_End));
    mUser.Press(QKeySequence::Find);
    for (const char* const pText : {"aaa", "zzz"}) { // wrapped around, not found
        mUser.Press(QKeySequence::SelectAll);
        mUser.Type(QString::fromLatin1(pText));
        EXPECT_THAT(gFindClippedText(window), testing::IsEmpty()) << pText;
    }
    LookAtBox();
    window.findChild<QAction*>(QStringLiteral("about"))->trigger();
}

TEST_P(HostClippedText, NoneInQuestions)
{
    QWidget window;
    window.show();
    window.activateWindow();
    CUser::Settle();
    LookAtBox();
    gAskAboutUnsaved(&window, QStringLiteral("a-netlist-with-a-rather-long-name.cir"));
    LookAtBox();
    gAskToOverwrite(&window, QStringLiteral("a-netlist-with-a-rather-long-name.cir"));
    LookAtBox();
    gAskToSaveFirst(&window, QStringLiteral("a-netlist-with-a-rather-long-name.cir"));
    LookAtBox();
    CNetlistImport(QStringLiteral("/usr/bin/yes")) // goes on until it is ended
        .Run(&window, QStringLiteral("/tmp/a-netlist-with-a-rather-long-name.cir"), {});
    LookAtBox();
    gShowFault(&window, {QStringLiteral("can't open \"/home/somebody/a-folder/netlist.cir\": "
                                        "No such file or directory")});
}

INSTANTIATE_TEST_SUITE_P(Fonts, HostClippedText, testing::Values(0, 1, 4));
} // namespace
} // namespace quorvawiz::host
