#include "host/ParameterFixture.h"

#include <QAbstractItemModel>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTextDocument>

// The menu's import with the installed simulator.

namespace quorvawiz::host
{
namespace
{
class LiveImport : public CParameterFixture
{
protected:
    void OpenExample(const char* pName)
    {
        const QString sSource = QStringLiteral(QUORVAWIZ_SOURCE_DIR) +
                                QStringLiteral("/examples/") + QString::fromLatin1(pName);
        ASSERT_TRUE(mpWindow->OpenFile(mFolder.Write(pName, CFileFolder::Read(sSource))));
    }

    void MeetProgress()
    {
        mUser.Meet([](QWidget& rProgress) { CUser::AwaitEnd(rProgress); });
    }

    /// The texts of a table's first column.
    static QStringList NamesIn(const QWidget& rList)
    {
        const auto& rRows =
            *dynamic_cast<const QTableView&>(CWizardUser::Control(rList, "table")).model();
        QStringList names;
        for (int n = 0; n < rRows.rowCount(); ++n)
            names.append(rRows.index(n, 0).data().toString());
        return names;
    }
};

TEST_F(LiveImport, ShowsTheDevicesOfNestedSubcircuits)
{
    OpenExample("ring-oscillator.cir");
    MeetProgress();
    mUser.Meet([this](QWidget& rList) {
        const QStringList names = NamesIn(rList);
        for (const char* const pName : {"vdd", "x1.mp", "x6.x1.mn", "x6.x2.cw"})
            EXPECT_TRUE(names.contains(QString::fromLatin1(pName))) << pName;
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    Choose(Qt::Key_I);

    // The device that the netlist's text leads to.
    QTextCursor cursor = mpWindow->Edit().document()->find(QStringLiteral("MP out in"));
    ASSERT_FALSE(cursor.isNull());
    mpWindow->Edit().setTextCursor(cursor);
    mUser.Meet([this](QWidget& rSheet) {
        EXPECT_EQ(rSheet.windowTitle(), QStringLiteral("Device Parameters: x6.x1.mp (pch)"));
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    Choose(Qt::Key_C);

    mUser.Meet([this](QWidget& rList) {
        const QStringList names = NamesIn(rList);
        for (const char* const pName : {"BJT", "BSIM4", "Diode", "Resistor"})
            EXPECT_TRUE(names.contains(QString::fromLatin1(pName))) << pName;
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    Choose(Qt::Key_S);
}

TEST_F(LiveImport, RecalculatingTakesTheChangedNetlist)
{
    OpenExample("bjt-amplifier.cir");
    MeetProgress();
    mUser.Meet([this](QWidget& rList) {
        EXPECT_TRUE(NamesIn(rList).contains(QStringLiteral("q1")));
        EXPECT_FALSE(NamesIn(rList).contains(QStringLiteral("rnew")));
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    Choose(Qt::Key_I);
    mpWindow->Edit().InsertCommand(QStringLiteral("Rnew out 0 1meg"));
    MeetBox("\"bjt-amplifier.cir\" has to be saved first.");
    MeetProgress();
    mUser.Press(QKeySequence(Qt::Key_F5));
    mUser.Meet([this](QWidget& rList) {
        EXPECT_TRUE(NamesIn(rList).contains(QStringLiteral("rnew")));
        mUser.Press(QKeySequence(Qt::Key_Escape));
    });
    Choose(Qt::Key_D);
}

TEST_F(LiveImport, TheSimulatorsWordsAreTold)
{
    ASSERT_TRUE(mpWindow->OpenFile(mFolder.Write("bad.cir", "title\nR1 a 0 1k\nQ1 a b\n.end\n")));
    MeetProgress();
    MeetBox("could not find a valid modelname");
    Choose(Qt::Key_I);
    EXPECT_FALSE(Action("devices").isEnabled());
}
} // namespace
} // namespace quorvawiz::host
