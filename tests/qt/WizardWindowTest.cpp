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

struct TKeysCase {
    const char* pCategory;
    const char* pPage;
    std::vector<std::string> inputs;
    std::string sLine;
};

const TKeysCase kSourcesByKeys[] = {
    {"Current source",
     "Constant",
     {"press Alt+C", "type 1", "press Tab", "type a", "press Alt+D", "type 5m", "press Alt+M",
      "type 1", "press Tab", "type 90"},
     "I1 a GND 5m AC 1 90"},
    {"Voltage source",
     "Pulse",
     {"press Alt+V", "type clk", "press Alt+P", "type c", "press Alt+E", "type 5", "press Alt+A",
      "type 2n", "press Alt+O", "type 1p", "press Alt+D", "type 0"},
     "Vclk c GND dc 0 PULSE (0 5 2n) ROUND=1p"},
    {"Voltage source",
     "Piecewise linear",
     {"press Alt+V", "type w", "press Alt+P", "type in", "press Alt+C", "type 0 0", "press Return",
      "type 1n 5", "press Alt+R", "type 1p", "press Alt+M", "type 1", "press Alt+H", "type 90"},
     "Vw in GND PWL (0 0 1n 5) ROUND=1p AC 1 90"},
    {"Voltage source",
     "Sinusoidal",
     {"press Alt+V", "type s", "press Alt+P", "type in", "press Alt+E", "type 1", "press Alt+F",
      "type 1k", "press Alt+S", "type 45"},
     "Vs in GND SIN (0 1 1k 0 0 45)"},
    {"Current source",
     "Exponential",
     {"press Alt+C", "type e", "press Alt+P", "type a", "press Alt+T", "type 0", "press Alt+E",
      "type 1m", "press Alt+O", "type 1n", "press Alt+L", "type 5n"},
     "Ie a GND EXP (0 1m 0 1n 5n)"},
    {"Voltage source",
     "FM",
     {"press Alt+V", "type f", "press Alt+P", "type a", "press Alt+E", "type 1", "press Alt+A",
      "type 1meg", "press Alt+O", "type 5", "press Alt+S", "type 1k"},
     "Vf a GND SFFM (0 1 1meg 5 1k)"},
    {"Current source",
     "Bit",
     {"press Alt+C", "type 1", "press Alt+P", "type a", "press Alt+B", "type 0110", "press Alt+G",
      "type 5n"},
     "I1 a GND BIT ({0110} ht=5n)"},
    {"Voltage source",
     "Bus",
     {"press Alt+V", "type b", "press Tab", "type data", "press Alt+B", "type 1010", "press Alt+D",
      "type 2n"},
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

TEST_F(WizardWindow, KeysAloneFillInASourceOfEachKind)
{
    for (const TKeysCase& rCase : kSourcesByKeys) {
        SCOPED_TRACE(rCase.pPage);
        CPlayer player;
        player.Then("walk to the category", [&rCase] { WalkTo("Down", rCase.pCategory); });
        player.Do({"press Right"});
        player.Then("walk to the page", [&rCase] { WalkTo("Down", rCase.pPage); });
        player.Do(rCase.inputs).Do({"press Alt+I", "press Escape"});
        Play(player);
        ASSERT_FALSE(mTarget.mCommands.empty());
        EXPECT_EQ(mTarget.mCommands.back(), rCase.sLine);
    }
    EXPECT_EQ(mTarget.mCommands.size(), std::size(kSourcesByKeys));
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
