#include "exports/Quorvawiz.h"
#include "platform/ui/Dialog.h"
#include "qt/BrowserUser.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QTabWidget>
#include <QTemporaryDir>
#include <map>

// The browser's windows from end to end: opened, drawn to other sizes, left, exported.

namespace
{
using ::testing::EndsWith;

class BrowserWindow : public CBrowserWindowTest
{
protected:
    QByteArray Read(const char* pName) const
    {
        QFile file(mFolder.filePath(QString::fromUtf8(pName)));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << pName;
        return file.readAll();
    }

    /// Adds a turn that answers the file dialog with a file of the test's folder, after a look.
    void AnswerFileDialog(CPlayer& rPlayer, const char* pName,
                          const std::function<void(QFileDialog&)>& rLook = {})
    {
        rPlayer.Then(std::string("choose ") + pName, [this, pName, rLook] {
            auto& rDialog = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
            if (rLook) {
                rLook(rDialog);
            }
            rDialog.findChild<QLineEdit*>()->setText(mFolder.filePath(QString::fromUtf8(pName)));
            gInput("press Return");
        });
    }

    QTemporaryDir mFolder;
};

/// The places of all widgets of the dialog in front that have a key.
std::map<std::string, QRect> Places()
{
    std::map<std::string, QRect> places;
    QWidget& rWindow = *gWidgetOf(gFrontDialog());
    for (const auto* const pWidget : rWindow.findChildren<QWidget*>())
        if (pWidget->isVisible() && !pWidget->objectName().startsWith(QLatin1String("qt_")))
            if (!pWidget->objectName().isEmpty())
                places[pWidget->objectName().toStdString()] =
                    QRect(pWidget->mapTo(&rWindow, QPoint()), pWidget->size());
    return places;
}

/// By how many pixels two rectangles may differ: places are rounded to dialog units.
constexpr int kUnit = 4;

void ExpectNear(const std::string& rsWhat, const QRect& rShown, const QRect& rExpected)
{
    EXPECT_NEAR(rShown.left(), rExpected.left(), kUnit) << rsWhat;
    EXPECT_NEAR(rShown.top(), rExpected.top(), kUnit) << rsWhat;
    EXPECT_NEAR(rShown.width(), rExpected.width(), kUnit) << rsWhat;
    EXPECT_NEAR(rShown.height(), rExpected.height(), kUnit) << rsWhat;
}

/// Draws the window in front larger and looks where everything is. `rGrows`: what takes the new
/// room; `rRight`: what stays at the right edge. All but those that grow stay at the bottom.
void DrawLarger(CPlayer& rPlayer, const std::vector<std::string>& rGrows,
                const std::vector<std::string>& rRight)
{
    auto pBefore = std::make_shared<std::map<std::string, QRect>>();
    constexpr QSize kMore(220, 130);
    rPlayer.Then("draw larger", [pBefore, kMore] {
        *pBefore = Places();
        QWidget& rWindow = *gWidgetOf(gFrontDialog());
        rWindow.resize(rWindow.size() + kMore);
    });
    rPlayer.Then("look", [pBefore, rGrows, rRight, kMore] {
        const auto places = Places();
        const auto isIn = [](const std::vector<std::string>& rKeys, const std::string& rsKey) {
            return std::find(rKeys.begin(), rKeys.end(), rsKey) != rKeys.end();
        };
        for (const char* const pKey : {"table", "tabs", "details", "export", "quorva-models",
                                       "recalculate", "reevaluate", "close"}) {
            const auto before = pBefore->find(pKey);
            ASSERT_EQ(before == pBefore->end(), !places.contains(pKey)) << pKey;
            if (before == pBefore->end())
                continue;
            QRect expected = before->second;
            if (isIn(rGrows, pKey))
                expected.setSize(expected.size() + kMore);
            else
                expected.translate(isIn(rRight, pKey) ? kMore.width() : 0, kMore.height());
            ExpectNear(pKey, places.at(pKey), expected);
        }
        EXPECT_EQ(gShownWidths(), gSharedWidths());
    });
}

TEST_F(BrowserWindow, ListsGrowWithTheirTables)
{
    CPlayer devices;
    DrawLarger(devices, {"table"}, {"recalculate", "close"});
    PlayDevices(devices.Do({"press Escape"}));
    CPlayer models;
    DrawLarger(models, {"table"}, {"recalculate", "close"});
    models.Do({"press Return"}); // one model's parameters
    ExpectTitle(models, "Library Model Details [");
    DrawLarger(models, {"table"}, {"export", "close"});
    PlayModels(models.Do({"press Escape", "press Escape"}));
    CPlayer classes;
    DrawLarger(classes, {"table"}, {"close"});
    PlayClasses(classes.Do({"press Escape"}));
}

TEST_F(BrowserWindow, SheetsGrowWithTheirPages)
{
    CPlayer player;
    player.Then("select a device with a model", [] {
        while (gCellText(gFrontTable().GetSelectedRow(), 1).empty())
            gInput("press Down");
    });
    player.Do({"press Return"});
    ExpectTitle(player, "Device Parameters: ");
    DrawLarger(player, {"table", "tabs"}, {"export", "close"});
    player.Do({"click tabs@1"});
    player.Then("the other page has grown, too",
                [] { EXPECT_EQ(gShownWidths(), gSharedWidths()); });
    PlayDevices(player.Do({"press Escape", "press Escape"}));
}

TEST_F(BrowserWindow, NoWindowGetsSmallerThanItOpens)
{
    CPlayer player;
    player.Then("draw smaller", [] {
        QWidget& rWindow = *gWidgetOf(gFrontDialog());
        const QSize before = rWindow.size();
        rWindow.resize(before - QSize(100, 100));
        EXPECT_EQ(rWindow.size(), before);
        EXPECT_TRUE(rWindow.windowFlags() & Qt::WindowMinMaxButtonsHint);
    });
    PlayDevices(player.Do({"press Escape"}));
}

TEST_F(BrowserWindow, AMinimisedWindowKeepsItsColumns)
{
    CPlayer player;
    player.Then("minimise", [] {
        gDrawColumn(0, 30);
        const auto widths = gShownWidths();
        const auto places = Places();
        QWidget& rWindow = *gWidgetOf(gFrontDialog());
        rWindow.showMinimized();
        QApplication::processEvents();
        EXPECT_EQ(gShownWidths(), widths);
        rWindow.showNormal();
        QApplication::processEvents();
        EXPECT_EQ(Places(), places);
        EXPECT_EQ(gShownWidths(), widths);
    });
    PlayDevices(player.Do({"press Escape"}));
}

TEST_F(BrowserWindow, MnemonicsPressTheButtons)
{
    CPlayer player;
    player.Do({"press Alt+D"});
    ExpectTitle(player, "Device Parameters: ");
    player.Do({"press Alt+C"});
    ExpectTitle(player, "Quorva Devices");
    player.Do({"press Alt+C"});
    EXPECT_FALSE(PlayDevices(player));
    EXPECT_TRUE(PlayDevices({"press Alt+R"}));

    CPlayer models;
    models.Do({"click table@1", "press Alt+Q"});
    ExpectTitle(models, "Quorva Models");
    models.Then("the class of the model is selected",
                [] { EXPECT_EQ(gCellText(gFrontTable().GetSelectedRow(), 0), "DIODE"); });
    models.Do({"press Alt+D"});
    ExpectTitle(models, "Model: DIODE [Default values]");
    models.Do({"press Alt+C", "press Alt+C"});
    ExpectTitle(models, "Library Models");
    models.Do({"press Alt+R"});
    EXPECT_TRUE(PlayModels(models));
}

TEST_F(BrowserWindow, EnterGoesOnAndEscapeGoesBack)
{
    CPlayer player;
    player.Do({"press Return"});
    ExpectTitle(player, "Device Parameters: ");
    player.Do({"press Return"}); // the sheet's button is Close
    ExpectTitle(player, "Quorva Devices");
    player.Do({"press Return", "press Escape"});
    ExpectTitle(player, "Quorva Devices");
    player.Do({"close"});
    EXPECT_FALSE(PlayDevices(player));
}

TEST_F(BrowserWindow, ADoubleClickOpensTheDetails)
{
    CPlayer player;
    player.Do({"double table@5"});
    player.Then("of that row", [this] {
        EXPECT_THAT(gWidgetOf(gFrontDialog())->windowTitle().toStdString(),
                    testing::HasSubstr(mStore.GetDeviceList(-1)[5].msName.ToAnsi().GetString()));
    });
    player.Do({"press Escape", "press Escape"});
    PlayDevices(player);
}

TEST_F(BrowserWindow, ADoubleClickBesideTheRowsActsOnTheSelectedOne)
{
    CPlayer player;
    player.Then("beside", [] {
        QTableView& rView = gFrontTableView();
        ASSERT_GT(rView.viewport()->height(), rView.rowHeight(0) * gFrontTable().GetItemCount());
        gFrontTable().UserSelect(1);
        gClickAt(*rView.viewport(), {20, rView.viewport()->height() - 5}, true);
    });
    ExpectTitle(player, "Library Model Details [");
    player.Do({"press Escape"});
    player.Then("look", [] { EXPECT_EQ(gFrontTable().GetSelectedRow(), 1); });
    player.Do({"press Escape"});
    PlayModels(player);
}

TEST_F(BrowserWindow, ADoubleClickOfAnotherButtonDoesNothing)
{
    CPlayer player;
    for (const auto button : {Qt::RightButton, Qt::MiddleButton})
        player.Then("double-click", [button] {
            QTableView& rView = gFrontTableView();
            gClickAt(*rView.viewport(), rView.visualRect(rView.model()->index(2, 0)).center(), true,
                     button);
        });
    ExpectTitle(player, "Quorva Devices");
    PlayDevices(player.Do({"press Escape"}));
}

TEST_F(BrowserWindow, TabsShowTheirTables)
{
    CPlayer player;
    player.Do({"click table@2", "press Return"});
    player.Then("look", [] {
        const auto& rTabs = dynamic_cast<QTabWidget&>(*gFrontWidget("tabs"));
        ASSERT_EQ(rTabs.count(), 3);
        EXPECT_EQ(rTabs.tabText(0), QStringLiteral("Model"));
        EXPECT_EQ(rTabs.tabText(1), QStringLiteral("Device"));
        EXPECT_EQ(rTabs.tabText(2), QStringLiteral("State"));
    });
    auto pSeen = std::make_shared<std::vector<std::string>>();
    for (const char* const pInput : {"click tabs@0", "click tabs@1", "press Right", "press Left"}) {
        player.Do({pInput});
        player.Then("look", [pSeen] { pSeen->push_back(gCellText(0, 0)); });
    }
    player.Then("look", [pSeen] {
        EXPECT_NE((*pSeen)[0], (*pSeen)[1]);
        EXPECT_NE((*pSeen)[1], (*pSeen)[2]);
        EXPECT_EQ((*pSeen)[1], (*pSeen)[3]);
    });
    PlayClasses(player.Do({"press Escape", "press Escape"}));
}

TEST_F(BrowserWindow, ReevaluateIsThereForOneDevice)
{
    const TDeviceListEntry entry = mStore.GetDeviceList(-1).front();
    const CStringU sSubckt = mStore.mSubcktTable.GetName(entry.mnSubckt);
    const auto play = [&](const std::vector<std::string>& rInputs) {
        bool bResult = false;
        CPlayer player;
        ExpectTitle(player, "Device Parameters: ");
        player.Do(rInputs);
        player.Play([&] {
            bResult = quorvawiz::gInvokeDeviceDetailsDialog(nullptr, mStore, sSubckt, entry.msName);
        });
        return bResult;
    };
    EXPECT_TRUE(play({"press Alt+R"}));
    EXPECT_FALSE(play({"press Escape"}));
    EXPECT_FALSE(play({"press Return"}));
    EXPECT_FALSE(play({"close"}));
}

TEST_F(BrowserWindow, ExportsThroughTheFileDialogAndRemembersTheFile)
{
    CPlayer player;
    player.Do({"press Alt+E"});
    AnswerFileDialog(player, "devices", [](QFileDialog& rDialog) {
        EXPECT_EQ(rDialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(rDialog.nameFilters().first(),
                  QStringLiteral("Comma-Separated Value Files (*.csv)"));
        EXPECT_EQ(rDialog.nameFilters().size(), 2);
    });
    player.Do({"click table@0", "press Return", "click export"});
    AnswerFileDialog(player, "details.csv", [this](QFileDialog& rDialog) {
        EXPECT_EQ(rDialog.directory().absolutePath(), mFolder.path());
        EXPECT_EQ(rDialog.findChild<QLineEdit*>()->text(), QStringLiteral("devices.csv"));
    });
    player.Do({"press Alt+E"});
    player.Then("cancel", [] {
        const auto& rDialog = dynamic_cast<QFileDialog&>(*QApplication::activeModalWidget());
        EXPECT_EQ(rDialog.findChild<QLineEdit*>()->text(), QStringLiteral("details.csv"));
        gInput("press Escape");
    });
    ExpectTitle(player, "Device Parameters: ");
    player.Do({"press Escape", "press Escape"});
    PlayDevices(player);

    const QByteArray devices = Read("devices.csv");
    EXPECT_EQ(devices.count("\r\n"), 60);
    EXPECT_THAT(devices.toStdString(), EndsWith("\r\n"));
    EXPECT_GT(Read("details.csv").count("\r\n"), 2);
}

TEST_F(BrowserWindow, AFileThatIsThereIsAskedAbout)
{
    QFile there(mFolder.filePath(QStringLiteral("there.csv")));
    ASSERT_TRUE(there.open(QIODevice::WriteOnly));
    there.write("before");
    there.close();
    CPlayer player;
    player.Do({"press Alt+E"});
    AnswerFileDialog(player, "there.csv");
    player.Then("answer", [] {
        EXPECT_TRUE(QApplication::activeModalWidget()->inherits("QMessageBox"));
        gInput("press Escape");
    });
    player.Do({"press Escape", "press Escape"});
    PlayDevices(player);
    EXPECT_EQ(Read("there.csv"), "before");
}
} // namespace
