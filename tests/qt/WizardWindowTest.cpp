#include "exports/Quorvawiz.h"
#include "qt/Player.h"
#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QPlainTextEdit>
#include <QTreeWidget>

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

TEST_F(WizardWindow, KeysAloneFillInTheDigitalAndTheControlledSources)
{
    struct TPage {
        const char* pCategory;
        const char* pPage;
        std::vector<std::string> inputs;
        const char* pLine;
    };
    const TPage pages[] = {
        {"Current source",
         "Bit",
         {"press Alt+C", "type 1", "press Alt+P", "type a", "press Alt+B", "type 0110",
          "press Alt+G", "type 5n"},
         "I1 a GND BIT ({0110} ht=5n)"},
        {"Voltage source",
         "Bus",
         {"press Alt+V", "type b", "press Tab", "type data", "press Alt+B", "type 1010",
          "press Alt+D", "type 2n"},
         "Vb data GND BUS ({1010} delay=2n)"},
        {"Current source",
         "Current-controlled",
         {"press Alt+C", "type 1", "press Alt+P", "type a", "press Alt+O", "type v1", "press Alt+L",
          "press Alt+Y", "type 0", "press Return", "type 1", "press Alt+T", "type v2"},
         "F1 a GND POLY(2) v1 v2 0 1"},
        {"Voltage source",
         "Voltage-controlled",
         {"press Alt+V", "type q", "press Alt+O", "type a", "press Alt+P", "press Alt+C", "type c",
          "press Alt+Y", "type 0 1 1", "press Alt+G", "type d"},
         "Eq a GND POLY(2) c GND d GND 0 1 1"},
    };
    for (const TPage& rPage : pages) {
        CPlayer player;
        player.Then("walk to the category", [&rPage] { WalkTo("Down", rPage.pCategory); });
        player.Do({"press Right"});
        player.Then("walk to the page", [&rPage] { WalkTo("Down", rPage.pPage); });
        player.Do(rPage.inputs);
        player.Do({"press Alt+I", "press Escape"});
        Play(player);
        ASSERT_FALSE(mTarget.mCommands.empty()) << rPage.pLine;
        EXPECT_EQ(mTarget.mCommands.back(), rPage.pLine);
    }
    EXPECT_EQ(mTarget.mCommands.size(), std::size(pages));
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
    // What a mouse can bring in is a text from elsewhere: the context menu's "Paste".
    player.Then("paste", [] {
        QGuiApplication::clipboard()->setText(QStringLiteral("0 27 85"));
        dynamic_cast<QPlainTextEdit&>(*gFrontWidget("temperature-list")).paste();
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
