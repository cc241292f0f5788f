#include "platform/ui/Dialog.h"
#include "qt/BrowserUser.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QPalette>
#include <QScrollBar>
#include <algorithm>

// The table of the browser's windows under real keys and a real mouse.

namespace
{
class BrowserTable : public CBrowserWindowTest
{
protected:
    /// Adds a turn that looks at the selected row, which is in view.
    static void ExpectRow(CPlayer& rPlayer, int nRow)
    {
        rPlayer.Then("look at row " + std::to_string(nRow), [nRow] {
            EXPECT_EQ(gFrontTable().GetSelectedRow(), nRow);
            QTableView& rView = gFrontTableView();
            EXPECT_TRUE(rView.viewport()->rect().contains(
                rView.visualRect(rView.model()->index(nRow, 0)).center()));
        });
    }

    const QPalette mBefore = QApplication::palette();
};

TEST_F(BrowserTable, RowsAreSelectedByMouseAndKeys)
{
    struct TCase {
        const char* pInput;
        int nRow;
    };
    static constexpr TCase kCases[] = {
        {"press Down", 1},      {"press Down", 2},      {"press Up", 1},
        {"press Right", 1},     {"press Left", 1},      {"press End", 59},
        {"press Down", 59},     {"press Home", 0},      {"press Up", 0},
        {"click table@7", 7},   {"press Ctrl+End", 59}, {"press Ctrl+Home", 0},
        {"click table@59", 59}, {"press Home", 0},
    };
    CPlayer player;
    ExpectRow(player, 0);
    for (const TCase& rCase : kCases) {
        player.Do({rCase.pInput});
        ExpectRow(player, rCase.nRow);
    }
    player.Do({"press Escape"});
    EXPECT_FALSE(PlayDevices(player));
}

TEST_F(BrowserTable, PageKeysGoByWhatIsInView)
{
    int nPage = 0;
    CPlayer player;
    player.Then("page down", [&] {
        const QTableView& rView = gFrontTableView();
        gInput("press PgDown");
        nPage = gFrontTable().GetSelectedRow();
        const int nInView = rView.viewport()->height() / rView.rowHeight(0);
        EXPECT_NEAR(nPage, nInView, 1);
        gInput("press PgDown");
        EXPECT_EQ(gFrontTable().GetSelectedRow(), 2 * nPage);
        gInput("press PgUp");
        EXPECT_EQ(gFrontTable().GetSelectedRow(), nPage);
        gInput("press PgUp");
        gInput("press PgUp");
        EXPECT_EQ(gFrontTable().GetSelectedRow(), 0);
    });
    player.Do({"press Escape"});
    PlayDevices(player);
}

TEST_F(BrowserTable, CopyTakesTheSelectedRow)
{
    CPlayer player;
    player.Do({"click table@3", "press Ctrl+C"});
    player.Then("look", [] {
        EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
                  gCellText(3, 0) + '\t' + gCellText(3, 1) + '\t' + gCellText(3, 2));
        EXPECT_NE(gCellText(3, 1), "");
    });
    player.Do({"press Escape"});
    PlayDevices(player);
}

TEST_F(BrowserTable, AllOfARowIsSelectedWhereverItIsClicked)
{
    CPlayer player;
    player.Then("click the third column", [] {
        QTableView& rView = gFrontTableView();
        gClickAt(*rView.viewport(), rView.visualRect(rView.model()->index(4, 2)).center());
        EXPECT_EQ(gFrontTable().GetSelectedRow(), 4);
        EXPECT_EQ(rView.selectionModel()->selectedIndexes().size(), 3);
    });
    player.Do({"press Escape"});
    PlayDevices(player);
}

TEST_F(BrowserTable, ColumnsShareTheWidthUntilTheUserDrawsOne)
{
    CPlayer player;
    player.Then("look", [] { EXPECT_EQ(gShownWidths(), gSharedWidths()); });
    player.Then("draw", [] {
        const int nBefore = gShownWidths()[0];
        gDrawColumn(0, 40);
        EXPECT_EQ(gShownWidths()[0], nBefore + 40);
        EXPECT_EQ(gFrontTable().GetColumns()[0].nWidth, nBefore + 40);
    });
    player.Do({"press Down", "press Up"});
    player.Then("it stays until the window gets another size", [] {
        EXPECT_NE(gShownWidths(), gSharedWidths());
        QWidget& rWindow = *gWidgetOf(gFrontDialog());
        rWindow.resize(rWindow.size() + QSize(120, 0));
    });
    player.Then("look", [] { EXPECT_EQ(gShownWidths(), gSharedWidths()); });
    player.Do({"press Escape"});
    PlayDevices(player);
}

TEST_F(BrowserTable, NothingHasToBeScrolledToTheSide)
{
    CPlayer player;
    for (const int nWider : {0, 300, 7})
        player.Then("wider by " + std::to_string(nWider), [nWider] {
            QWidget& rWindow = *gWidgetOf(gFrontDialog());
            rWindow.resize(rWindow.size() + QSize(nWider, 0));
            EXPECT_EQ(gFrontTableView().horizontalScrollBar()->maximum(), 0);
        });
    player.Do({"press Escape"});
    PlayDevices(player);
}

/// The row of the first parameter that is, or isn't, set in the sheet in front; -1: none.
int RowOfParam(bool bSet)
{
    const auto& rRows = gFrontTable().mTableData.mRows;
    const auto found = std::find_if(rRows.begin(), rRows.end(), [bSet](const TParamTableRow& rRow) {
        return rRow[1].mbHighlight == bSet && !rRow[1].msText.IsEmpty();
    });
    return found == rRows.end() ? -1 : static_cast<int>(found - rRows.begin());
}

/// In the sheet in front: what is set is blue, but not while it is selected.
void LookAtBlue()
{
    const int nSet = RowOfParam(true);
    const int nDefault = RowOfParam(false);
    ASSERT_GE(nSet, 0);
    ASSERT_GE(nDefault, 0);
    gFrontTable().UserSelect(nDefault);
    EXPECT_GT(gCountBlue(gPictureOfCell(nSet, 1)), 10);
    EXPECT_EQ(gCountBlue(gPictureOfCell(nSet, 0)), 0) << "only the value";
    gFrontTable().UserSelect(nSet);
    EXPECT_EQ(gCountBlue(gPictureOfCell(nDefault, 1)), 0);
    // On the ground of the selection: the text is white.
    const QImage selected = gPictureOfCell(nSet, 1);
    int nLight = 0;
    for (int y = 0; y < selected.height(); ++y)
        for (int x = 0; x < selected.width(); ++x)
            nLight += selected.pixelColor(x, y).lightness() > 230;
    EXPECT_GT(nLight, 10);
}

TEST_F(BrowserTable, WhatIsSetIsBlueUnlessItIsSelected)
{
    CPlayer player;
    player.Do({"press Return"});
    player.Then("look", [] {
        LookAtBlue();
        const int nSet = RowOfParam(true);
        EXPECT_EQ(gFrontTable().GetCellColor(nSet, 1, false, false), 0xFF0000U);
    });
    player.Do({"press Escape", "press Escape"});
    PlayDevices(player);
}

TEST_F(BrowserTable, OnADarkGroundTheBlueIsALighterOne)
{
    QPalette dark(QColor(53, 53, 53), QColor(42, 42, 42));
    dark.setColor(QPalette::Base, QColor(30, 31, 34));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    QApplication::setPalette(dark);
    CPlayer player;
    player.Do({"press Return"});
    player.Then("look", [] {
        LookAtBlue();
        const int nSet = RowOfParam(true);
        EXPECT_EQ(gFrontTable().GetCellColor(nSet, 1, false, false), 0xFF0000U);
        gFrontTable().UserSelect(RowOfParam(false));
        int nLightest = 0;
        const QImage picture = gPictureOfCell(nSet, 1);
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                nLightest = std::max(nLightest, picture.pixelColor(x, y).lightness());
        EXPECT_GT(nLightest, 160);
    });
    player.Do({"press Escape", "press Escape"});
    PlayDevices(player);
    QApplication::setPalette(mBefore);
}
} // namespace
