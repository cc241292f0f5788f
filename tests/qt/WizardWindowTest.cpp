#include "exports/Quorvawiz.h"
#include "qt/Player.h"
#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QMenu>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>

namespace
{
class WizardWindow : public testing::Test
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

QTreeWidget& FrontTree()
{
    return dynamic_cast<QTreeWidget&>(*gFrontWidget("tree"));
}

/// Presses a key until the tree's selection is on a node.
void WalkTo(const char* pKey, const char* pNode)
{
    constexpr int nMany = 100;
    const auto isThere = [pNode] {
        return FrontTree().currentItem()->text(0) == QLatin1String(pNode);
    };
    for (int n = 0; n < nMany && !isThere(); ++n)
        gInput(std::string("press ") + pKey);
    EXPECT_TRUE(isThere()) << pKey << " doesn't lead to " << pNode;
}

/// Clicks the category button that leads to a page of the category.
void ClickButtonTo(const char* pPage)
{
    const auto found =
        FrontTree().findItems(QString::fromUtf8(pPage), Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_FALSE(found.isEmpty());
    const int nPlace = found.front()->parent()->indexOfChild(found.front());
    gInput("click button-" + std::to_string(nPlace + 1));
}

TEST_F(WizardWindow, AFontIsThere)
{
    const QFontMetrics metrics(QApplication::font());
    EXPECT_FALSE(QFontDatabase::families().isEmpty());
    EXPECT_GT(metrics.horizontalAdvance(QStringLiteral("iiii")), 0);
    EXPECT_LT(metrics.horizontalAdvance(QStringLiteral("iiii")),
              metrics.horizontalAdvance(QStringLiteral("WWWW")));
}

TEST_F(WizardWindow, KeysAloneInsertACommand)
{
    CPlayer player;
    player.Do({"press End", "press Home"});
    player.Then("walk to the settings", [] { WalkTo("Down", "Settings"); });
    player.Do({"press Right", "press Right"});
    player.Then("walk to the page", [] { WalkTo("Down", "Temperature"); });
    // The mnemonic presses the button and takes the keyboard there, so that Enter presses it again.
    player.Do({"press Alt+L", "type 0 27 85", "press Alt+I", "press Return"});
    // Tab goes round in the page.
    player.Do({"press Alt+L", "press End", "press Return", "type 100", "press Tab"});
    player.Then("look",
                [] { EXPECT_EQ(QApplication::focusWidget(), gFrontWidget("temperature-list")); });
    player.Do({"press Alt+I", "press Escape"});
    Play(player);
    EXPECT_EQ(mTarget.mCommands,
              (std::vector<std::string>{".temp 0 27 85", ".temp 0 27 85", ".temp 0 27 85 100"}));
}

TEST_F(WizardWindow, EnterInTheTreeInserts)
{
    CPlayer player;
    player.Then("walk to the settings", [] { WalkTo("Down", "Settings"); });
    player.Do({"press Right"});
    player.Then("walk to the page", [] { WalkTo("Down", "Temperature"); });
    player.Do({"press Alt+L", "type 27"});
    player.Do({"click tree@Temperature", "press Return", "press Escape"});
    Play(player);
    EXPECT_EQ(mTarget.mCommands, std::vector<std::string>{".temp 27"});
}

TEST_F(WizardWindow, TheMouseAloneReachesThePageAndCloses)
{
    CPlayer player;
    player.Do({"branch tree@Settings", "click tree@Temperature", "click temperature-list"});
    // What a mouse can bring in is a text from elsewhere.
    player.Then("open the context menu", [] {
        QGuiApplication::clipboard()->setText(QStringLiteral("0 27 85"));
        const QWidget& rField = *gFrontWidget("temperature-list");
        QTest::mouseClick(rField.window()->windowHandle(), Qt::RightButton, Qt::NoModifier,
                          rField.mapTo(rField.window(), rField.rect().center()));
    });
    player.Then("click on Paste", [] {
        auto* const pMenu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(pMenu);
        for (QAction* const pAction : pMenu->actions())
            if (pAction->objectName() == QStringLiteral("edit-paste")) {
                gClickAt(*pMenu, pMenu->actionGeometry(pAction).center());
                return;
            }
        FAIL() << "the menu has no Paste";
    });
    player.Do({"click insert", "click close"});
    Play(player);
    EXPECT_EQ(mTarget.mCommands, std::vector<std::string>{".temp 0 27 85"});
}

TEST_F(WizardWindow, ACategoryButtonLeadsToItsPage)
{
    CPlayer player;
    player.Do({"click tree@Settings"});
    player.Then("press the button", [] { ClickButtonTo("Temperature"); });
    player.Then("look", [] {
        EXPECT_EQ(FrontTree().currentItem()->text(0), QStringLiteral("Temperature"));
        EXPECT_EQ(QApplication::focusWidget(), gFrontWidget("temperature-list"));
    });
    player.Do({"press Escape"});
    Play(player);
}

TEST_F(WizardWindow, AMissingFieldShowsABoxAndKeepsTheWizardOpen)
{
    CPlayer player;
    player.Do({"click tree@Settings"});
    player.Then("press the button", [] { ClickButtonTo("Temperature"); });
    player.Do({"click insert"});
    player.Then("answer the box", [] {
        EXPECT_EQ(gDesktop().Thread().mnOpenBoxes, 1);
        gInput("press Return");
    });
    player.Then("look", [] { EXPECT_EQ(gDesktop().Thread().mnOpenBoxes, 0); });
    player.Do({"close"});
    Play(player);
    EXPECT_TRUE(mTarget.mCommands.empty());
}
} // namespace
