#include "qt/ClippedText.h"

#include "qt/Player.h"
#include "qt/Visits.h"
#include "wizard/frame/Remembered.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QTableWidget>
#include <string>

namespace
{
/// By how many points the font is larger than the desktop's own.
class ClippedText : public testing::TestWithParam<int>
{
protected:
    ClippedText()
    {
        QFont larger = mBefore;
        larger.setPointSizeF(mBefore.pointSizeF() + GetParam());
        QApplication::setFont(larger);
        CRememberedBase::ResetAll();
    }
    ~ClippedText() override { QApplication::setFont(mBefore); }

    const QFont mBefore = QApplication::font();
    int mnLooks = 0;
    const TLook mLook = [this](const std::string& rsName, QWidget& rWindow) {
        ++mnLooks;
        EXPECT_THAT(gFindClippedText(rWindow), testing::IsEmpty()) << "in " << rsName;
    };
    CTestDesktop mDesktop;
};

TEST_P(ClippedText, NoneInTheWizard)
{
    gVisitWizard(mLook);
    EXPECT_GT(mnLooks, 20);
}

TEST_P(ClippedText, NoneOnThePagesWithoutANode)
{
    gVisitSinglePages(mLook);
    EXPECT_EQ(mnLooks, 2 + 3);
}

TEST_P(ClippedText, NoneInTheSweepDialog)
{
    gVisitSweep(mLook);
    EXPECT_EQ(mnLooks, 8 + 5);
}

TEST_P(ClippedText, NoneInTheBrowser)
{
    gVisitBrowser(mLook);
    EXPECT_EQ(mnLooks, 2 * 9);
}

TEST_P(ClippedText, NoneAmongEveryKindOfControl)
{
    gVisitSample(mLook);
    EXPECT_EQ(mnLooks, 1);
}

TEST_P(ClippedText, NoneInMessageBoxes)
{
    gVisitBoxes(mLook);
    EXPECT_EQ(mnLooks, 5);
}

INSTANTIATE_TEST_SUITE_P(Fonts, ClippedText, testing::Values(0, 1));

/// The scale is the toolkit's for the whole of a process.
TEST(ClippedTextAtScale, NoneAnywhere)
{
    for (const char* pScale : {"1", "1.5", "2"}) {
        QProcess process;
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QString::fromUtf8(pScale));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QApplication::applicationFilePath(),
                      {QStringLiteral("--gtest_filter=Fonts/ClippedText.*:ScaleFactor.*")});
        ASSERT_TRUE(process.waitForFinished(-1));
        const std::string sOutput = process.readAll().toStdString();
        EXPECT_EQ(process.exitCode(), 0) << "at scale " << pScale << ":\n" << sOutput;
        EXPECT_THAT(sOutput, testing::HasSubstr("[  PASSED  ] 13 tests")) << "at scale " << pScale;
    }
}

TEST(ScaleFactor, IsThatOfTheEnvironment)
{
    const qreal dExpected = qEnvironmentVariableIsSet("QT_SCALE_FACTOR")
                                ? qEnvironmentVariable("QT_SCALE_FACTOR").toDouble()
                                : 1;
    EXPECT_EQ(QGuiApplication::primaryScreen()->devicePixelRatio(), dExpected);
}

TEST(ClippedTextProof, WhatHasTooLittleRoomIsFound)
{
    QWidget window;
    window.resize(200, 100);
    QLabel label(QStringLiteral("A text of some length"), &window);
    QPushButton button(QStringLiteral("Another text"), &window);
    label.setGeometry(QRect(QPoint(0, 0), label.sizeHint()));
    button.setGeometry(QRect(QPoint(0, 40), button.sizeHint()));
    window.show();
    EXPECT_THAT(gFindClippedText(window), testing::IsEmpty());
    label.resize(label.width() - 1, label.height());
    EXPECT_THAT(gFindClippedText(window),
                testing::ElementsAre(testing::HasSubstr("QLabel '' is too small")));
    button.resize(button.width() / 2, button.height());
    button.move(190, 40);
    EXPECT_THAT(gFindClippedText(window),
                testing::ElementsAre(testing::HasSubstr("QLabel"),
                                     testing::HasSubstr("beyond its parent"),
                                     testing::HasSubstr("QPushButton '' is too small")));
}

TEST(ClippedTextProof, WhatHasToBeScrolledIsFound)
{
    QWidget window;
    window.resize(400, 300);
    QTabWidget tabs(&window);
    QListWidget list(&window);
    QTableWidget table(1, 1, &window);
    tabs.addTab(new QWidget, QStringLiteral("A tab of some length"));
    tabs.addTab(new QWidget, QStringLiteral("Another one"));
    list.addItem(QStringLiteral("An entry of some length"));
    table.setHorizontalHeaderLabels({QStringLiteral("A heading of some length")});
    table.setColumnWidth(0, 300);
    tabs.setGeometry(0, 0, 400, 50);
    list.setGeometry(0, 60, 300, 50);
    table.setGeometry(0, 120, 350, 60);
    window.show();
    EXPECT_THAT(gFindClippedText(window), testing::IsEmpty());
    tabs.resize(100, 50);
    list.resize(60, 50);
    table.setColumnWidth(0, 60);
    QCoreApplication::processEvents();
    const auto findings = gFindClippedText(window);
    for (const char* const pWhat : {"has arrows", "QListWidget '' has to be scrolled to the side",
                                    "QHeaderView '' cuts a heading"})
        EXPECT_THAT(findings, testing::Contains(testing::HasSubstr(pWhat)));
}

TEST(ClippedTextProof, ATextOverAnotherOneIsFound)
{
    QWidget window;
    window.resize(300, 200);
    QGroupBox group(QStringLiteral("A group"), &window);
    QLabel label(QStringLiteral("A label"), &window);
    QLineEdit edit(&window);
    group.setGeometry(0, 0, 300, 200);
    label.setGeometry(10, 50, 200, 20);
    edit.setGeometry(100, 50, 100, 25); // over the label's empty end
    window.show();
    EXPECT_THAT(gFindClippedText(window), testing::IsEmpty());
    label.move(10, 0);
    EXPECT_THAT(gFindClippedText(window),
                testing::ElementsAre(testing::HasSubstr("QGroupBox '' lies over QLabel ''")));
    label.move(90, 50);
    EXPECT_THAT(gFindClippedText(window),
                testing::ElementsAre(testing::HasSubstr("QLabel '' lies over QLineEdit ''")));
}
} // namespace
