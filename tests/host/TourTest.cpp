#include "host/ExampleParams.h"
#include "host/FileFolder.h"
#include "host/PrintQt.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>

namespace quorvawiz::host
{
namespace
{
TEST(Tour, InsertsItsCommandsAndTakesAPictureOfEachWindow)
{
    const CFileFolder folder;
    QByteArray netlist = CFileFolder::Read(QStringLiteral(QUORVAWIZ_SOURCE_DIR) +
                                           QStringLiteral("/examples/rc-filter.cir"));
    const QString sPath = folder.Write("rc-filter.cir", netlist);
    const QString sPictures = folder.Path("pictures");
    const QString sParams = gMakeParams(folder, "example.params", 500);

    QProcess tour;
    tour.setProcessChannelMode(QProcess::MergedChannels);
    tour.start(QStringLiteral(QUORVAWIZ_TOUR_PATH),
               {QStringLiteral("--dark"), sPath, sPictures, sParams});
    ASSERT_TRUE(tour.waitForFinished(-1));
    EXPECT_EQ(tour.exitCode(), 0) << tour.readAll().toStdString();

    netlist.replace("\n\n.end\n", "\n"
                                  ".temp 0 27 85\n"
                                  ".tran 1u 800u sweep lin param rs 5k 20k 5k\n"
                                  ".ac dec 20 10 1meg\n"
                                  ".dc source V1 lin 11 0 1\n"
                                  ".measure tran delay trig at=0 targ v(out) val=0.5 cross=1\n"
                                  ".end\n");
    EXPECT_EQ(CFileFolder::Read(sPath), netlist);
    const QStringList pictures =
        QDir(sPictures).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name);
    EXPECT_EQ(pictures.size(), 18 + 11);
    for (const QString& rsPicture : pictures)
        EXPECT_FALSE(QImage(QDir(sPictures).filePath(rsPicture)).isNull())
            << rsPicture.toStdString();
    EXPECT_EQ(CFileFolder::Read(sPictures + QStringLiteral("/devices.csv")).count("\r\n"), 500);
}
} // namespace
} // namespace quorvawiz::host
