#pragma once

#include "host/ExampleParams.h"
#include "host/FileFolder.h"
#include "host/PrintQt.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/HostWindow.h"
#include "quorvahost/NetlistEdit.h"
#include "quorvahost/ParameterTools.h"
#include "quorvahost/tour/WizardUser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractItemModel>
#include <QAction>
#include <QKeySequence>
#include <QLabel>
#include <QMessageBox>
#include <QTableView>
#include <memory>

namespace quorvawiz::host
{

/// A host window and a user who goes through its menu "Parameters".
class CParameterFixture : public testing::Test
{
public:
    ~CParameterFixture() override
    {
        EXPECT_TRUE(mUser.HasMetAll());
        EXPECT_NO_THROW(mUser.RethrowFailure());
    }

protected:
    CParameterFixture()
    {
        mpWindow = std::make_unique<CHostWindow>(mDesktop);
        mpWindow->show();
        mpWindow->activateWindow();
        CUser::Settle();
    }

    QAction& Action(const char* pName) const
    {
        return *mpWindow->findChild<QAction*>(QString::fromLatin1(pName));
    }

    /// Chooses an entry of the menu by its letter.
    void Choose(Qt::Key key)
    {
        mUser.MeetFirst([this, key](QWidget&) { mUser.Press(QKeySequence(key)); });
        mUser.Press(QKeySequence(Qt::ALT | Qt::Key_P));
        CUser::Settle();
    }

    /// Meets the next box: its text must hold a part, and the answer is a key.
    void MeetBox(const char* pPart, const QKeySequence& rAnswer = QKeySequence(Qt::Key_Return))
    {
        mUser.Meet([this, pPart, rAnswer](QWidget& rBox) {
            auto* const pBox = qobject_cast<QMessageBox*>(&rBox);
            ASSERT_NE(pBox, nullptr);
            EXPECT_THAT(pBox->text().toStdString(), testing::HasSubstr(pPart));
            EXPECT_EQ(pBox->textFormat(), Qt::PlainText);
            mUser.Press(rAnswer);
        });
    }

    /// Meets the next dialog of the browser: title, number of rows, and the key that leaves it.
    void MeetTable(const char* pTitle, int nRows,
                   const QKeySequence& rAnswer = QKeySequence(Qt::Key_Escape))
    {
        mUser.Meet([this, pTitle, nRows, rAnswer](QWidget& rDialog) {
            EXPECT_EQ(rDialog.windowTitle(), QString::fromUtf8(pTitle));
            EXPECT_EQ(RowsOf(rDialog), nRows) << pTitle;
            mUser.Press(rAnswer);
        });
    }

    static int RowsOf(const QWidget& rDialog)
    {
        return dynamic_cast<const QTableView&>(CWizardUser::Control(rDialog, "table"))
            .model()
            ->rowCount();
    }

    /// The status bar's label for the params file.
    QString ShownParams() const
    {
        auto* const pLabel = mpWindow->findChild<QLabel*>(QStringLiteral("status-params"));
        return pLabel->isVisible() ? pLabel->text() : QString();
    }

    CFileFolder mFolder;
    QtDesktop mDesktop{mFolder.Path("profile.ini")};
    CWizardUser mUser;
    std::unique_ptr<CHostWindow> mpWindow;
};

} // namespace quorvawiz::host
