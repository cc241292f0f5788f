// The optimization wizard at the real window.

#include "exports/Quorvawiz.h"
#include "qt/Player.h"
#include "support/WizardRun.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>

namespace
{
class OptimizationWindow : public testing::Test
{
protected:
    /// Opens the page and walks to the algorithm.
    static void WalkToAlgorithm(CPlayer& rPlayer)
    {
        rPlayer.Do({"branch tree@Optimization", "click tree@Wizard", "click optimization-name",
                    "type o1", "press Tab", "type mysweep", "click continue", "click measurement",
                    "type delay", "press Tab", "type 1n", "click continue", "click parameter-name",
                    "type w", "press Tab", "type 1u", "press Tab", "type 5u", "click continue"});
    }

    void Play(CPlayer& rPlayer)
    {
        rPlayer.Play([this] { quorvawiz::gInvokeSpiceCommandWizard(nullptr, &mTarget); });
    }

    CTestDesktop mDesktop;
    CRecordingTarget mTarget;
};

void ExpectDescription(CPlayer& rPlayer, const char* pFocused, const char* pText)
{
    rPlayer.Then(std::string("look at the description at ") + pFocused, [pFocused, pText] {
        EXPECT_EQ(QApplication::focusWidget(), gFrontWidget(pFocused));
        const auto& rLabel = dynamic_cast<QLabel&>(*gFrontWidget("description"));
        EXPECT_EQ(rLabel.text().toStdString(), pText);
    });
}

void ExpectInsert(CPlayer& rPlayer, bool bEnabled)
{
    rPlayer.Then("look at the button",
                 [bEnabled] { EXPECT_EQ(gFrontWidget("insert")->isEnabled(), bEnabled); });
}

TEST_F(OptimizationWindow, TheDescriptionFollowsTheFocus)
{
    CPlayer player;
    WalkToAlgorithm(player);
    player.Do({"click name", "type m1"});
    ExpectDescription(player, "name", "");
    player.Do({"click max"});
    ExpectDescription(player, "max", "Upper limit for close");
    player.Do({"press Shift+Tab"});
    ExpectDescription(player, "itropt", "Maximum number of optimization loop iterations");
    player.Do({"click name"});
    ExpectDescription(player, "name", "");
    player.Do({"press Escape"});
    Play(player);
}

TEST_F(OptimizationWindow, InsertIsOnWhereThePreviewIsUntilThePageIsLeft)
{
    CPlayer player;
    WalkToAlgorithm(player);
    ExpectInsert(player, false);
    player.Do({"click name", "type m1", "click continue"});
    ExpectInsert(player, true);
    player.Then("look at the preview", [] {
        EXPECT_TRUE(gFrontWidget("preview")->isVisible());
        EXPECT_FALSE(gFrontWidget("continue")->isVisible());
    });
    player.Do({"click insert", "click tree@Optimization", "click button-1"});
    ExpectInsert(player, false);
    player.Do({"click back", "click continue"});
    ExpectInsert(player, true);
    player.Do({"press Alt+I", "press Escape"});
    Play(player);
    ASSERT_EQ(mTarget.mCommands.size(), 2U);
    EXPECT_EQ(mTarget.mCommands[0], mTarget.mCommands[1]);
    EXPECT_TRUE(mTarget.mCommands[0].starts_with(".optimize o1 model=m1 analysisname=mysweep\r\n"));
}
} // namespace
