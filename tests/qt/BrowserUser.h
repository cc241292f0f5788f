#pragma once

#include "browser/ParamBrowserCustomTableCtrl.h"
#include "params/CircuitParams.h"
#include "qt/Player.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTableView>
#include <functional>
#include <string>

// What tests of the browser's windows share. Each of these asks the dialog in front.

/// The table of the dialog, or of its page on display.
TParamBrowserCustomTableCtrl& gFrontTable();

/// Its widget.
QTableView& gFrontTableView();

/// The text of a cell.
std::string gCellText(int nRow, int nColumn);

/// A cell as it is painted, without the lines around it.
QImage gPictureOfCell(int nRow, int nColumn);

/// How many pixels of a picture are as good as blue: much more so than red or green.
int gCountBlue(const QImage& rPicture);

/// Draws the right end of a column's heading by some pixels.
void gDrawColumn(int nColumn, int nPixels);

/// The widths that the columns have when they share the table as it is now.
std::vector<int> gSharedWidths();

/// The widths of the columns on the screen.
std::vector<int> gShownWidths();

/// A user at the browser's windows, with a store of devices of every kind.
class CBrowserWindowTest : public testing::Test
{
protected:
    /// No export has been made so far.
    CBrowserWindowTest();
    ~CBrowserWindowTest() override;

    /// Opens the list of devices, with Recalculate, and lets the user act.
    /// @return whether he wanted to recalculate
    bool PlayDevices(CPlayer& rPlayer);
    /// The same with inputs.
    bool PlayDevices(const std::vector<std::string>& rInputs);
    /// Opens the list of library models.
    bool PlayModels(CPlayer& rPlayer);
    /// Opens the list of the simulator's models.
    void PlayClasses(CPlayer& rPlayer);

    /// Adds a turn that looks at the title of the dialog in front.
    static void ExpectTitle(CPlayer& rPlayer, const std::string& rsBegin);

    CTestDesktop mDesktop;
    TCircuitParams mStore;
};
