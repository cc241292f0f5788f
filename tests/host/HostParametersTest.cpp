#include "host/CloseRequest.h"
#include "host/ParameterFixture.h"

#include <QFile>
#include <QLineEdit>

namespace quorvawiz::host
{
namespace
{
constexpr int kDevices = 40;

class HostParameters : public CParameterFixture
{
protected:
    void Open(int nDevices = kDevices)
    {
        msParams = gMakeParams(mFolder, "run.params", nDevices);
        ASSERT_TRUE(mpWindow->Parameters().Open(msParams));
    }

    QString msParams;
};

TEST_F(HostParameters, NeedAFile)
{
    const char* const names[] = {"devices", "libraryModels", "simulatorModels", "deviceAtCursor",
                                 "recalculate"};
    for (const char* const pName : names)
        EXPECT_FALSE(Action(pName).isEnabled()) << pName;
    EXPECT_TRUE(Action("openParams").isEnabled());
    EXPECT_TRUE(Action("importNetlist").isEnabled());
    EXPECT_EQ(ShownParams(), QString());
    Open();
    for (const char* const pName : names)
        EXPECT_TRUE(Action(pName).isEnabled()) << pName;
    EXPECT_EQ(ShownParams(), QStringLiteral("Parameters: run.params"));
}

TEST_F(HostParameters, TheFileIsChosenInADialog)
{
    const QString sParams = gMakeParams(mFolder, "chosen.params", kDevices);
    mUser.Meet([&](QWidget& rDialog) {
        EXPECT_EQ(rDialog.windowTitle(), QStringLiteral("Open Params File"));
        rDialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(sParams);
        mUser.Press(QKeySequence(Qt::Key_Return));
    });
    Choose(Qt::Key_O);
    EXPECT_EQ(mpWindow->Parameters().File().Path(), sParams);
    EXPECT_TRUE(Action("devices").isEnabled());
}

TEST_F(HostParameters, AFileThatIsNotReadIsToldOfAndChangesNothing)
{
    const QString sBad = mFolder.Write("bad.params", "22 serialization::archive");
    MeetBox("Error reading data file '");
    EXPECT_FALSE(mpWindow->Parameters().Open(sBad));
    EXPECT_FALSE(Action("devices").isEnabled());
    EXPECT_EQ(ShownParams(), QString());
    MeetBox("File not found");
    EXPECT_FALSE(mpWindow->Parameters().Open(mFolder.Path("nothing.params")));

    Open();
    MeetBox("bad.params");
    EXPECT_FALSE(mpWindow->Parameters().Open(sBad));
    EXPECT_EQ(mpWindow->Parameters().File().Path(), msParams);
    MeetTable("Quorva Devices", kDevices);
    Choose(Qt::Key_D);
}

TEST_F(HostParameters, EachListOpensByItsLetter)
{
    Open();
    MeetTable("Quorva Devices", kDevices);
    Choose(Qt::Key_D);
    MeetTable("Library Models", 5);
    Choose(Qt::Key_L);
    MeetTable("Quorva Models", 6);
    Choose(Qt::Key_S);
}

TEST_F(HostParameters, RecalculateReadsTheFileAgainAndReopensTheDialog)
{
    Open();
    mUser.Meet([this](QWidget& rDialog) {
        EXPECT_EQ(RowsOf(rDialog), kDevices);
        gMakeParams(mFolder, "run.params", kDevices + 10);
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_R));
    });
    MeetTable("Quorva Devices", kDevices + 10);
    Choose(Qt::Key_D);

    mUser.Meet([this](QWidget&) {
        ASSERT_TRUE(QFile::remove(msParams));
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_R));
    });
    MeetBox("File not found");
    Choose(Qt::Key_L);
    // What was read stays.
    MeetTable("Quorva Devices", kDevices + 10);
    Choose(Qt::Key_D);
}

TEST_F(HostParameters, RecalculateOfTheMenuReadsTheFileAgain)
{
    Open();
    gMakeParams(mFolder, "run.params", kDevices + 5);
    mUser.Press(QKeySequence(Qt::Key_F5));
    MeetTable("Quorva Devices", kDevices + 5);
    Choose(Qt::Key_D);
}

TEST_F(HostParameters, DeviceAtTheCursorShowsItsDetails)
{
    Open(300);
    mpWindow->Edit().LoadText(QStringLiteral("title\n"
                                             ".subckt pll a\n"
                                             "M300 d g s b n\n"
                                             ".ends\n"
                                             "xpll1 a pll\n"
                                             ".end\n"));
    for (int i = 0; i < 2; ++i)
        mUser.Press(QKeySequence(Qt::Key_Down));
    mUser.Meet([this](QWidget& rSheet) {
        EXPECT_THAT(rSheet.windowTitle().toStdString(),
                    testing::StartsWith("Device Parameters: xpll1.M300"));
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_R));
    });
    mUser.Meet([this](QWidget& rSheet) { // after the reading
        EXPECT_THAT(rSheet.windowTitle().toStdString(),
                    testing::StartsWith("Device Parameters: xpll1.M300"));
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    mUser.Press(QKeySequence(Qt::CTRL | Qt::Key_D));

    // The subcircuit's instance shows its devices.
    for (int i = 0; i < 2; ++i)
        mUser.Press(QKeySequence(Qt::Key_Down));
    MeetTable("Quorva Devices (xpll1)", 100);
    Choose(Qt::Key_C);

    mpWindow->Edit().LoadText(QStringLiteral("title\nC5 a b 1p"));
    mUser.Press(QKeySequence(Qt::Key_Down));
    mUser.Meet([this](QWidget& rSheet) {
        EXPECT_EQ(rSheet.windowTitle(), QStringLiteral("Device Parameters: top.C5"));
        mUser.Press(QKeySequence(Qt::Key_Return));
    });
    Choose(Qt::Key_C);
}

TEST_F(HostParameters, WhereNoDeviceIsItSaysSo)
{
    Open();
    mpWindow->Edit().LoadText(QStringLiteral("title\n.end\n"));
    MeetBox("The cursor isn't in the line of a device.");
    Choose(Qt::Key_C);
}

TEST_F(HostParameters, ClosingTheHostEndsTheDialogsFirst)
{
    Open();
    mUser.Meet([this](QWidget&) {
        mUser.Meet([this](QWidget&) { gRequestClose(*mpWindow); });
        mUser.Press(QKeySequence(Qt::Key_Return)); // details
    });
    Choose(Qt::Key_D);
    EXPECT_FALSE(mpWindow->isVisible());
    EXPECT_TRUE(mDesktop.Thread().mModalRuns.empty());
}

TEST_F(HostParameters, DeletingTheHostEndsTheDialogs)
{
    Open();
    mUser.Meet([this](QWidget&) { mpWindow.reset(); });
    mUser.Press(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D));
    EXPECT_EQ(mpWindow, nullptr);
    EXPECT_TRUE(mDesktop.Thread().mModalRuns.empty());
}
} // namespace
} // namespace quorvawiz::host
