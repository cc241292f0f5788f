#include "qt/BrowserUser.h"

#include "browser/Export.h"
#include "cli/example/ExampleStore.h"
#include "exports/Quorvawiz.h"
#include "platform/ui/FieldView.h"

#include <gmock/gmock.h>

#include <QHeaderView>
#include <QTest>
#include <numeric>

namespace
{
constexpr int kDevices = 60;
} // namespace

TParamBrowserCustomTableCtrl& gFrontTable()
{
    return dynamic_cast<TParamBrowserCustomTableCtrl&>(
        *gFindField(gFrontDialog(), "table").pControl);
}

QTableView& gFrontTableView()
{
    return dynamic_cast<QTableView&>(*gFrontWidget("table"));
}

std::string gCellText(int nRow, int nColumn)
{
    return gFrontTable().GetItemText(nRow, nColumn).GetString();
}

QImage gPictureOfCell(int nRow, int nColumn)
{
    QTableView& rView = gFrontTableView();
    const QModelIndex index = rView.model()->index(nRow, nColumn);
    rView.scrollTo(index);
    return rView.viewport()->grab(rView.visualRect(index).adjusted(1, 1, -1, -1)).toImage();
}

int gCountBlue(const QImage& rPicture)
{
    int nCount = 0;
    for (int y = 0; y < rPicture.height(); ++y)
        for (int x = 0; x < rPicture.width(); ++x) {
            const QColor colour = rPicture.pixelColor(x, y);
            constexpr int nMuch = 60;
            nCount +=
                colour.blue() > colour.red() + nMuch && colour.blue() > colour.green() + nMuch;
        }
    return nCount;
}

void gDrawColumn(int nColumn, int nPixels)
{
    const QHeaderView& rHeader = *gFrontTableView().horizontalHeader();
    const QPoint end(rHeader.sectionViewportPosition(nColumn) + rHeader.sectionSize(nColumn) - 1,
                     rHeader.height() / 2);
    QTest::mousePress(rHeader.viewport(), Qt::LeftButton, {}, end);
    QTest::mouseMove(rHeader.viewport(), end + QPoint(nPixels / 2, 0));
    QTest::mouseMove(rHeader.viewport(), end + QPoint(nPixels, 0));
    QTest::mouseRelease(rHeader.viewport(), Qt::LeftButton, {}, end + QPoint(nPixels, 0));
}

std::vector<int> gSharedWidths()
{
    std::vector<int> widths = gFrontTable().mColumnWidths;
    const int nAll = std::accumulate(widths.begin(), widths.end(), 0);
    for (int& rnWidth : widths)
        rnWidth = rnWidth * gFrontTable().GetClientPixels().cx / (nAll + 1);
    return widths;
}

std::vector<int> gShownWidths()
{
    std::vector<int> widths;
    for (int n = 0; n < gFrontTable().GetColumnCount(); ++n)
        widths.push_back(gFrontTableView().columnWidth(n));
    return widths;
}

CBrowserWindowTest::CBrowserWindowTest()
{
    quorvawiz::cli::gFillExample(mStore, kDevices, 1);
    gGetLastExportPath().Empty();
}

CBrowserWindowTest::~CBrowserWindowTest()
{
    gGetLastExportPath().Empty();
}

bool CBrowserWindowTest::PlayDevices(CPlayer& rPlayer)
{
    bool bResult = false;
    rPlayer.Play(
        [&] { bResult = quorvawiz::gInvokeParamBrowserDevicesDialog(nullptr, mStore, true); });
    return bResult;
}

bool CBrowserWindowTest::PlayDevices(const std::vector<std::string>& rInputs)
{
    CPlayer player;
    player.Do(rInputs);
    return PlayDevices(player);
}

bool CBrowserWindowTest::PlayModels(CPlayer& rPlayer)
{
    bool bResult = false;
    rPlayer.Play([&] {
        bResult = quorvawiz::gInvokeParamBrowserLibraryModelsDialog(nullptr, mStore, true);
    });
    return bResult;
}

void CBrowserWindowTest::PlayClasses(CPlayer& rPlayer)
{
    rPlayer.Play(
        [&] { quorvawiz::gInvokeParamBrowserQuorvaModelsDialog(nullptr, mStore, CStringU()); });
}

void CBrowserWindowTest::ExpectTitle(CPlayer& rPlayer, const std::string& rsBegin)
{
    rPlayer.Then("look at " + rsBegin, [rsBegin] {
        EXPECT_THAT(gWidgetOf(gFrontDialog())->windowTitle().toStdString(),
                    testing::StartsWith(rsBegin));
    });
}
