#include "quorvahost/HostWindow.h"

#include "host/FileFolder.h"
#include "host/PrintQt.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/NetlistEdit.h"
#include "quorvahost/RecentFiles.h"
#include "quorvahost/tour/User.h"
#include "support/Unprivileged.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QTest>
#include <QUrl>
#include <memory>
#include <optional>

namespace quorvawiz::host
{
namespace
{
using ::testing::HasSubstr;

class HostWindow : public testing::Test
{
public:
    ~HostWindow() override
    {
        EXPECT_TRUE(mUser.HasMetAll());
        EXPECT_NO_THROW(mUser.RethrowFailure());
    }

protected:
    HostWindow()
    {
        gSaveRecentFiles({});
        mpWindow = std::make_unique<CHostWindow>(mDesktop);
        mpWindow->show();
        mpWindow->activateWindow();
        CUser::Settle();
    }

    /// Meets the next box: its text must hold a part, and the answer is a key.
    void MeetBox(const char* pPart, const QKeySequence& rAnswer)
    {
        mUser.Meet([this, pPart, rAnswer](QWidget& rBox) {
            auto* const pBox = qobject_cast<QMessageBox*>(&rBox);
            ASSERT_NE(pBox, nullptr);
            EXPECT_THAT(pBox->text().toStdString(), HasSubstr(pPart));
            EXPECT_EQ(pBox->textFormat(), Qt::PlainText);
            mUser.Press(rAnswer);
        });
    }

    /// Meets the next file dialog and answers with a path.
    void MeetFileDialog(const QString& rsPath)
    {
        mUser.Meet([this, rsPath](QWidget& rDialog) {
            auto* const pName = rDialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            ASSERT_NE(pName, nullptr);
            pName->setText(rsPath);
            mUser.Press(QKeySequence(Qt::Key_Return));
        });
    }

    CNetlistEdit& Edit() { return mpWindow->Edit(); }

    QString TextOf(const char* pLabel) const
    {
        auto* const pFound = mpWindow->findChild<QLabel*>(QString::fromLatin1(pLabel));
        return pFound && pFound->isVisible() ? pFound->text() : QString();
    }

    QAction& Action(const char* pName) const
    {
        return *mpWindow->findChild<QAction*>(QString::fromLatin1(pName));
    }

    CFileFolder mFolder;
    QtDesktop mDesktop{mFolder.Path("profile.ini")};
    CUser mUser;
    std::unique_ptr<CHostWindow> mpWindow;
};

TEST_F(HostWindow, TypesSavesAndOpensByKeys)
{
    EXPECT_EQ(mpWindow->windowTitle(), QStringLiteral("untitled[*] \u2014 quorvahost"));
    mUser.Type(QStringLiteral("R1 a b 1k"));
    EXPECT_TRUE(mpWindow->isWindowModified());
    MeetFileDialog(mFolder.Path("first"));
    mUser.Press(QKeySequence::Save);
    EXPECT_FALSE(mpWindow->isWindowModified());
    EXPECT_EQ(mpWindow->Path(), mFolder.Path("first.cir"));
    EXPECT_EQ(CFileFolder::Read(mpWindow->Path()), "R1 a b 1k");

    mUser.Press(QKeySequence::New);
    EXPECT_EQ(Edit().Text(), QString());
    EXPECT_EQ(mpWindow->Path(), QString());
    MeetFileDialog(mFolder.Path("first.cir"));
    mUser.Press(QKeySequence::Open);
    EXPECT_EQ(Edit().Text(), QStringLiteral("R1 a b 1k"));
    EXPECT_EQ(mpWindow->windowTitle(), QStringLiteral("first.cir[*] \u2014 quorvahost"));
}

TEST_F(HostWindow, LineEndsAndByteOrderMarkAreKept)
{
    const QString sPath = mFolder.Write("dos.cir", "\xEF\xBB\xBF* a\r\n\r\n.end\r\n");
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    EXPECT_EQ(TextOf("status-form"), "UTF-8 BOM, CR LF");
    mUser.Press(QKeySequence(Qt::Key_Down));
    Edit().InsertCommand(QStringLiteral(".temp 0\n+ 27"));
    mUser.Press(QKeySequence::Save);
    EXPECT_EQ(CFileFolder::Read(sPath), "\xEF\xBB\xBF* a\r\n.temp 0\r\n+ 27\r\n.end\r\n");
}

TEST_F(HostWindow, OpeningAndSavingChangesNoByte)
{
    const QByteArray bytes("* no-break\xC2\xA0space, line\xE2\x80\xA8separator, \xF0\x9D\x9B\x80\n"
                           "\tx\f\n\n");
    const QString sPath = mFolder.Write("odd.cir", bytes);
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    mUser.Press(QKeySequence(Qt::Key_X));
    mUser.Press(QKeySequence::Undo);
    mUser.Press(QKeySequence::Save);
    EXPECT_EQ(CFileFolder::Read(sPath), bytes);
}

TEST_F(HostWindow, UnsavedWorkIsAskedAbout)
{
    const QString sPath = mFolder.Write("a.cir", "old");
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    mUser.Type(QStringLiteral("x"));

    MeetBox("\"a.cir\" has changes", QKeySequence(Qt::Key_Escape));
    mUser.Press(QKeySequence::New);
    EXPECT_EQ(Edit().Text(), QStringLiteral("xold"));

    MeetBox("has changes", QKeySequence(Qt::Key_Escape));
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_TRUE(mpWindow->isVisible());

    MeetBox("has changes", QKeySequence(Qt::Key_Return)); // Save
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_FALSE(mpWindow->isVisible());
    EXPECT_EQ(CFileFolder::Read(sPath), "xold");
}

TEST_F(HostWindow, DiscardedWorkIsGone)
{
    const QString sPath = mFolder.Write("a.cir", "old");
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    mUser.Type(QStringLiteral("x"));
    MeetBox("has changes", QKeySequence(Qt::Key_Tab, Qt::Key_Space)); // the button behind Save
    mUser.Press(QKeySequence::New);
    EXPECT_EQ(Edit().Text(), QString());
    EXPECT_EQ(CFileFolder::Read(sPath), "old");
}

TEST_F(HostWindow, ASaveThatIsCancelledLosesNothing)
{
    mUser.Type(QStringLiteral("x"));
    MeetBox("has changes", QKeySequence(Qt::Key_Return));
    mUser.Meet([this](QWidget&) { mUser.Press(QKeySequence(Qt::Key_Escape)); });
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_Q));
    EXPECT_TRUE(mpWindow->isVisible());
    EXPECT_EQ(Edit().Text(), QStringLiteral("x"));
}

TEST_F(HostWindow, AFileThatCanNotBeOpenedLeavesWhatIsThere)
{
    ASSERT_TRUE(mpWindow->OpenFile(mFolder.Write("good.cir", "good")));
    struct TCase {
        QString sPath;
        const char* pMessage;
    };
    const std::vector<TCase> cases{
        {mFolder.Path("gone.cir"), "No such file or directory"},
        {mFolder.Path(), "Is a directory"},
        {mFolder.Write("mixed.cir", "a\r\nb\n"), "line 2, byte 2: mixed line ends"},
        {mFolder.Write("latin1.cir", "* 1 \xB5"),
         "line 1, byte 5: the byte 0xb5 isn't valid UTF-8"},
        {mFolder.Write("nul.cir", QByteArray("a\0b", 3)), "line 1, byte 2: a NUL"},
    };
    for (const TCase& rCase : cases) {
        MeetBox(rCase.pMessage, QKeySequence(Qt::Key_Return));
        EXPECT_FALSE(mpWindow->OpenFile(rCase.sPath));
        EXPECT_EQ(Edit().Text(), QStringLiteral("good"));
        EXPECT_EQ(mpWindow->Path(), mFolder.Path("good.cir"));
    }
    EXPECT_EQ(CFileFolder::Read(mFolder.Path("mixed.cir")), "a\r\nb\n");
}

TEST_F(HostWindow, AFailedSaveLeavesTheWorkInTheEditor)
{
    const QString sPath = mFolder.Write("a.cir", "old");
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    mUser.Type(QStringLiteral("x"));
    ASSERT_EQ(::chmod(mFolder.Path().toLocal8Bit(), 0555), 0);
    {
        const CUnprivileged unprivileged;
        MeetBox("Permission denied", QKeySequence(Qt::Key_Return));
        mUser.Press(QKeySequence::Save);
    }
    ASSERT_EQ(::chmod(mFolder.Path().toLocal8Bit(), 0755), 0);
    EXPECT_TRUE(mpWindow->isWindowModified());
    EXPECT_EQ(Edit().Text(), QStringLiteral("xold"));
    EXPECT_EQ(CFileFolder::Read(sPath), "old");
    mUser.Press(QKeySequence::Save);
    EXPECT_EQ(CFileFolder::Read(sPath), "xold");
}

TEST_F(HostWindow, AFileThatVanishedIsWrittenAgain)
{
    const QString sPath = mFolder.Write("a.cir", "old");
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    ASSERT_TRUE(QFile::remove(sPath));
    mUser.Type(QStringLiteral("x"));
    mUser.Press(QKeySequence::Save);
    EXPECT_EQ(CFileFolder::Read(sPath), "xold");
}

TEST_F(HostWindow, AFolderThatVanishedLeavesTheWorkInTheEditor)
{
    ASSERT_TRUE(QDir(mFolder.Path()).mkdir(QStringLiteral("away")));
    const QString sPath = mFolder.Write("away/a.cir", "old");
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    ASSERT_TRUE(QDir(mFolder.Path("away")).removeRecursively());
    mUser.Type(QStringLiteral("x"));
    MeetBox("No such file or directory", QKeySequence(Qt::Key_Return));
    mUser.Press(QKeySequence::Save);
    EXPECT_TRUE(mpWindow->isWindowModified());
    EXPECT_EQ(Edit().Text(), QStringLiteral("xold"));
    MeetFileDialog(mFolder.Path("b.cir"));
    mUser.Press(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    EXPECT_EQ(CFileFolder::Read(mFolder.Path("b.cir")), "xold");
    EXPECT_FALSE(mpWindow->isWindowModified());
}

TEST_F(HostWindow, AFileNameIsNoMarkup)
{
    const QString sPath = mFolder.Write("<b>a &amp; b.cir", "old");
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    mUser.Type(QStringLiteral("x"));
    MeetBox("\"<b>a &amp; b.cir\" has changes", QKeySequence(Qt::Key_Escape));
    mUser.Press(QKeySequence::New);
}

TEST_F(HostWindow, WhatAnotherProgramWroteIsNotReplacedUnasked)
{
    const QString sPath = mFolder.Write("a.cir", "old");
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    mUser.Type(QStringLiteral("x"));
    mFolder.Write("a.cir", "by another");
    MeetBox("Another program has changed \"a.cir\"", QKeySequence(Qt::Key_Return)); // Cancel
    mUser.Press(QKeySequence::Save);
    EXPECT_EQ(CFileFolder::Read(sPath), "by another");
    EXPECT_TRUE(mpWindow->isWindowModified());
    MeetBox("Another program has changed \"a.cir\"", QKeySequence(Qt::ALT | Qt::Key_R));
    mUser.Press(QKeySequence::Save);
    EXPECT_EQ(CFileFolder::Read(sPath), "xold");
    mUser.Type(QStringLiteral("y"));
    mUser.Press(QKeySequence::Save); // asks no more
    EXPECT_EQ(CFileFolder::Read(sPath), "xyold");
}

TEST_F(HostWindow, RecentFilesOpenAndForgetWhatIsGone)
{
    mFolder.Write("a.cir", "aaa");
    mFolder.Write("b.cir", "bbb");
    ASSERT_TRUE(mpWindow->OpenFile(mFolder.Path("a.cir")));
    ASSERT_TRUE(mpWindow->OpenFile(mFolder.Path("b.cir")));
    auto* const pRecent = mpWindow->findChild<QMenu*>(QStringLiteral("recent"));
    ASSERT_EQ(pRecent->actions().size(), 2);
    EXPECT_EQ(pRecent->actions().at(1)->text(), "&2  a.cir");
    pRecent->actions().at(1)->trigger();
    CUser::Settle();
    EXPECT_EQ(Edit().Text(), QStringLiteral("aaa"));

    ASSERT_TRUE(QFile::remove(mFolder.Path("b.cir")));
    MeetBox("No such file", QKeySequence(Qt::Key_Return));
    pRecent->actions().at(1)->trigger();
    CUser::Settle();
    EXPECT_EQ(gLoadRecentFiles(), QStringList(mFolder.Path("a.cir")));
}

TEST_F(HostWindow, AFileThatIsDroppedOpens)
{
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(mFolder.Write("a.cir", "dropped"))});
    QWidget* const pPlace = Edit().viewport();
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(pPlace, &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(pPlace, &drop);
    CUser::Settle();
    EXPECT_EQ(Edit().Text(), QStringLiteral("dropped"));
}

/// Tells whether a file has been open already when a widget was painted for the first time.
class CPaintWatch : public QObject
{
public:
    explicit CPaintWatch(CHostWindow& rWindow) : mrWindow(rWindow)
    {
        rWindow.Edit().viewport()->installEventFilter(this);
    }
    std::optional<bool> mbWasOpen;

protected:
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        if (pEvent->type() == QEvent::Paint && !mbWasOpen)
            mbWasOpen = !mrWindow.Path().isEmpty();
        return false;
    }

private:
    CHostWindow& mrWindow;
};

TEST_F(HostWindow, IsPaintedBeforeItReadsItsFile)
{
    CHostWindow window(mDesktop);
    CPaintWatch watch(window);
    window.OpenFileOnceShown(mFolder.Write("a.cir", "* a"));
    CUser::Settle();
    EXPECT_EQ(window.Path(), QString());
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    CUser::Settle();
    EXPECT_EQ(watch.mbWasOpen, false);
    EXPECT_EQ(window.Edit().Text(), QStringLiteral("* a"));
}

TEST_F(HostWindow, FindsByKeys)
{
    Edit().LoadText(QStringLiteral("R1 a b\nr1 c d\nR2 a b"));
    mUser.Press(QKeySequence::Find);
    mUser.Type(QStringLiteral("r1"));
    EXPECT_EQ(Edit().textCursor().selectionStart(), 0);
    mUser.Press(QKeySequence(Qt::Key_F3));
    EXPECT_EQ(Edit().textCursor().selectionStart(), 7);
    EXPECT_EQ(TextOf("find-result"), QString());
    mUser.Press(QKeySequence(Qt::Key_F3));
    EXPECT_EQ(Edit().textCursor().selectionStart(), 0);
    EXPECT_EQ(TextOf("find-result"), "Wrapped around");
    mUser.Press(QKeySequence(Qt::SHIFT | Qt::Key_F3));
    EXPECT_EQ(Edit().textCursor().selectionStart(), 7);
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_C)); // match case: from where it is
    EXPECT_EQ(Edit().textCursor().selectionStart(), 7);
    mUser.Press(QKeySequence(Qt::Key_F3));
    EXPECT_EQ(Edit().textCursor().selectionStart(), 7);
    mUser.Press(QKeySequence(Qt::ALT | Qt::Key_N));
    mUser.Type(QStringLiteral("zzz"));
    EXPECT_EQ(TextOf("find-result"), "Not found");
    mUser.Press(QKeySequence(Qt::Key_Escape));
    EXPECT_EQ(TextOf("find-result"), QString());
    EXPECT_TRUE(Edit().hasFocus());
}

TEST_F(HostWindow, ZoomsAndComesBack)
{
    const int nBefore = Edit().font().pointSize();
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_Plus));
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_Plus));
    EXPECT_EQ(Edit().font().pointSize(), nBefore + 2);
    for (int i = 0; i < 40; ++i)
        mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_Minus));
    EXPECT_GE(Edit().font().pointSize(), 5);
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_0));
    EXPECT_EQ(Edit().font().pointSize(), nBefore);
}

TEST_F(HostWindow, ActionsAreThereWhenTheyDoSomething)
{
    EXPECT_FALSE(Action("undo").isEnabled());
    EXPECT_FALSE(Action("copy").isEnabled());
    mUser.Type(QStringLiteral("abc"));
    EXPECT_TRUE(Action("undo").isEnabled());
    mUser.Press(QKeySequence::SelectAll);
    EXPECT_TRUE(Action("copy").isEnabled());
    mUser.Press(QKeySequence::Cut);
    EXPECT_EQ(QApplication::clipboard()->text(), "abc");
    EXPECT_EQ(Edit().Text(), QString());
    mUser.Press(QKeySequence::Undo);
    EXPECT_TRUE(Action("redo").isEnabled());
    EXPECT_EQ(Edit().Text(), QStringLiteral("abc"));
}

TEST_F(HostWindow, TheStatusBarFollowsTheCaret)
{
    Edit().LoadText(QStringLiteral("ab\ncd"));
    EXPECT_EQ(TextOf("status-place"), "Line 1, Column 1");
    EXPECT_EQ(TextOf("status-form"), "UTF-8, LF");
    mUser.Press(QKeySequence(Qt::Key_Down));
    mUser.Press(QKeySequence(Qt::Key_Right));
    EXPECT_EQ(TextOf("status-place"), "Line 2, Column 2");
}

TEST_F(HostWindow, AFileOfFiftyMegabytesOpensWithoutColours)
{
    const QByteArray line("R12345 net_a_12345 net_b_12345 1.5k tc1=0.001 $ one of very many\n");
    constexpr qsizetype kLines = 50'000'000 / 66;
    const QString sPath = mFolder.Write("large.cir", line.repeated(kLines));
    ASSERT_TRUE(mpWindow->OpenFile(sPath));
    CUser::Settle();
    EXPECT_EQ(Edit().blockCount(), kLines + 1);
    EXPECT_FALSE(Edit().IsColoured());
    EXPECT_EQ(TextOf("status-coloured"), "Large file: no colours");
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_End));
    Edit().InsertCommand(QStringLiteral(".end"));
    mUser.Press(QKeySequence::Save);
    EXPECT_EQ(CFileFolder::Read(sPath), line.repeated(kLines) + ".end");
    mUser.Press(QKeySequence::New);
    EXPECT_TRUE(Edit().IsColoured());
    EXPECT_EQ(TextOf("status-coloured"), QString());
}
} // namespace
} // namespace quorvawiz::host
