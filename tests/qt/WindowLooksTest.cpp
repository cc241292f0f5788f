#include "exports/Quorvawiz.h"
#include "qt/Player.h"
#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTreeWidget>
#include <QWindow>

// What the model doesn't hold and a person sees: frames, buttons of the window manager, boxes.

namespace
{
class WindowLooks : public testing::Test
{
protected:
    void SetUp() override { CRememberedBase::ResetAll(); }
    void TearDown() override { CRememberedBase::ResetAll(); }

    void Play(CPlayer& rPlayer)
    {
        rPlayer.Play([this] { quorvawiz::gInvokeSpiceCommandWizard(nullptr, &mTarget); });
    }

    CTestDesktop mDesktop;
    CRecordingTarget mTarget;
};

/// Adds what leads to the page with the temperatures.
void GoToTemperature(CPlayer& rPlayer)
{
    rPlayer.Do({"branch tree@Settings", "click tree@Temperature"});
}

TEST_F(WindowLooks, ADialogHasOneSizeAndNoButtonsForOthers)
{
    CPlayer player;
    player.Then("look", [] {
        const QWidget& rWindow = *gWidgetOf(gFrontDialog());
        const Qt::WindowFlags flags = rWindow.windowFlags();
        EXPECT_EQ(rWindow.windowType(), Qt::Dialog);
        EXPECT_TRUE(flags & Qt::WindowTitleHint);
        EXPECT_TRUE(flags & Qt::WindowSystemMenuHint);
        EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
        EXPECT_FALSE(flags & Qt::WindowMinMaxButtonsHint);
        EXPECT_FALSE(flags & Qt::WindowContextHelpButtonHint);
        EXPECT_EQ(rWindow.minimumSize(), rWindow.size());
        EXPECT_EQ(rWindow.maximumSize(), rWindow.size());
    });
    player.Do({"press Escape"});
    Play(player);
}

TEST_F(WindowLooks, TheTreeHasABorderAndBranches)
{
    CPlayer player;
    player.Then("look", [] {
        const auto& rTree = dynamic_cast<QTreeWidget&>(*gFrontWidget("tree"));
        EXPECT_TRUE(rTree.rootIsDecorated());
        EXPECT_NE(rTree.frameShape(), QFrame::NoFrame);
        EXPECT_GT(rTree.frameWidth(), 0);
        EXPECT_TRUE(rTree.isHeaderHidden());
    });
    player.Do({"press Escape"});
    Play(player);
}

TEST_F(WindowLooks, WhatAPageRefusesIsSaidInABoxOfTheWizard)
{
    CPlayer player;
    GoToTemperature(player);
    const auto expectBox = [](const char* pText) {
        const auto* const pBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_TRUE(pBox);
        EXPECT_EQ(pBox->text(), QString::fromUtf8(pText));
        EXPECT_EQ(pBox->windowTitle(), QStringLiteral("SPICE"));
        EXPECT_EQ(pBox->icon(), QMessageBox::Information);
        EXPECT_EQ(pBox->standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(pBox->windowHandle()->transientParent(),
                  gWidgetOf(gFrontDialog())->windowHandle());
    };
    player.Do({"click insert"});
    player.Then("look", [expectBox] { expectBox("Missing temperature value."); });
    player.Do({"press Return", "click temperature-list", "paste 2\xC3\xA9", "click insert"});
    player.Then("look", [expectBox] { expectBox("Only ASCII characters are allowed"); });
    player.Do({"press Return", "press Escape"});
    Play(player);
    EXPECT_TRUE(mTarget.mCommands.empty());
}

TEST_F(WindowLooks, LineBreaksComeBackInTheNextRun)
{
    CPlayer first;
    GoToTemperature(first);
    first.Do({"click temperature-list", "type 0", "press Return", "type 27", "click insert"});
    first.Do({"press Escape"});
    Play(first);
    CPlayer second;
    GoToTemperature(second);
    second.Then("look", [] {
        const auto& rEdit = dynamic_cast<QPlainTextEdit&>(*gFrontWidget("temperature-list"));
        EXPECT_EQ(rEdit.toPlainText(), QStringLiteral("0\n27"));
    });
    second.Do({"click insert", "press Escape"});
    Play(second);
    EXPECT_EQ(mTarget.mCommands, (std::vector<std::string>{".temp 0 27", ".temp 0 27"}));
}
} // namespace
