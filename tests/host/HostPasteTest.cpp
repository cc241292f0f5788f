#include "host/FileFolder.h"
#include "host/PrintQt.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/HostWindow.h"
#include "quorvahost/NetlistEdit.h"
#include "quorvahost/tour/User.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QKeySequence>
#include <QMimeData>
#include <QTest>
#include <QWindow>

// These run on the virtual display, too: what an empty clipboard is, the window system decides.

namespace quorvawiz::host
{
namespace
{
class HostPaste : public testing::Test
{
protected:
    HostPaste()
    {
        mWindow.show();
        mWindow.activateWindow();
        CUser::Settle();
    }

    /// Clicks the middle button in the middle of the text.
    void ClickMiddle()
    {
        QWidget& rPlace = *mWindow.Edit().viewport();
        QTest::mouseClick(mWindow.windowHandle(), Qt::MiddleButton, Qt::NoModifier,
                          rPlace.mapTo(&mWindow, rPlace.rect().center()));
        CUser::Settle();
    }

    CFileFolder mFolder;
    QtDesktop mDesktop{mFolder.Path("profile.ini")};
    CUser mUser;
    CHostWindow mWindow{mDesktop};
};

TEST_F(HostPaste, AnEmptyClipboardIsNoHarm)
{
    QClipboard& rClipboard = *QGuiApplication::clipboard();
    rClipboard.clear(QClipboard::Clipboard);
    if (rClipboard.supportsSelection())
        rClipboard.clear(QClipboard::Selection);
    CUser::Settle();
    mUser.Type(QStringLiteral("a"));
    mUser.Press(QKeySequence::Paste);
    mWindow.findChild<QAction*>(QStringLiteral("paste"))->trigger();
    ClickMiddle();
    EXPECT_EQ(mWindow.Edit().Text(), QStringLiteral("a"));
}

TEST_F(HostPaste, TextComesInToTheLetter)
{
    auto* const pData = new QMimeData;
    pData->setData(QStringLiteral("text/markdown"), "# *a*");
    pData->setText(QStringLiteral("# *a*\r\n\tb"));
    QGuiApplication::clipboard()->setMimeData(pData);
    mUser.Press(QKeySequence::Paste);
    EXPECT_EQ(mWindow.Edit().Text(), QStringLiteral("# *a*\n\tb"));
    mUser.Press(QKeySequence::Undo);
    EXPECT_EQ(mWindow.Edit().Text(), QString());
}
} // namespace
} // namespace quorvawiz::host
