#include "quorvahost/BrowseAlone.h"

#include "host/ExampleParams.h"
#include "host/FileFolder.h"
#include "host/PrintQt.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/tour/WizardUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QFile>
#include <QKeySequence>
#include <QMessageBox>
#include <QTableView>

namespace quorvawiz::host
{
namespace
{
class BrowseAlone : public testing::Test
{
public:
    ~BrowseAlone() override
    {
        EXPECT_TRUE(mUser.HasMetAll());
        EXPECT_NO_THROW(mUser.RethrowFailure());
    }

protected:
    int Run(const QString& rsFile, EBrowserList list = EBrowserList::Devices)
    {
        return gRunBrowseAlone({EHostTask::Browse, ECommandSink::Output, rsFile, list});
    }

    /// Meets the next list and leaves it by a key.
    void MeetList(const char* pTitle, int nRows, const QKeySequence& rKey)
    {
        mUser.Meet([this, pTitle, nRows, rKey](QWidget& rList) {
            EXPECT_EQ(rList.windowTitle(), QString::fromUtf8(pTitle));
            EXPECT_EQ(
                dynamic_cast<QTableView&>(CWizardUser::Control(rList, "table")).model()->rowCount(),
                nRows);
            mUser.Press(rKey);
        });
    }

    CFileFolder mFolder;
    QtDesktop mDesktop{mFolder.Path("profile.ini")};
    CWizardUser mUser;
};

TEST_F(BrowseAlone, ShowsTheListThatIsAskedFor)
{
    const QString sParams = gMakeParams(mFolder, "run.params", 20);
    MeetList("Quorva Devices", 20, QKeySequence(Qt::Key_Escape));
    EXPECT_EQ(Run(sParams), 0);
    MeetList("Library Models", 5, QKeySequence(Qt::Key_Escape));
    EXPECT_EQ(Run(sParams, EBrowserList::LibraryModels), 0);
    MeetList("Quorva Models", 6, QKeySequence(Qt::Key_Escape));
    EXPECT_EQ(Run(sParams, EBrowserList::SimulatorModels), 0);
}

TEST_F(BrowseAlone, RecalculateReadsTheFileAgain)
{
    const QString sParams = gMakeParams(mFolder, "run.params", 20);
    mUser.Meet([this](QWidget&) {
        gMakeParams(mFolder, "run.params", 25);
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_R));
    });
    MeetList("Quorva Devices", 25, QKeySequence(Qt::Key_Escape));
    EXPECT_EQ(Run(sParams), 0);
}

TEST_F(BrowseAlone, AFileThatIsNotReadIsToldOf)
{
    mUser.Meet([this](QWidget& rBox) {
        EXPECT_THAT(dynamic_cast<QMessageBox&>(rBox).text().toStdString(),
                    testing::HasSubstr("File not found"));
        mUser.Press(QKeySequence(Qt::Key_Return));
    });
    testing::internal::CaptureStderr();
    EXPECT_EQ(Run(mFolder.Path("none.params")), 1);
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::HasSubstr("quorvahost: Error reading data file '"));
}
} // namespace
} // namespace quorvawiz::host
