#include "quorvahost/RecentFiles.h"

#include "host/PrintQt.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorvawiz::host
{
namespace
{
TEST(RecentFiles, TheLatestStandsFirstAndOnce)
{
    QStringList files;
    files = gWithRecentFile(files, "/a");
    files = gWithRecentFile(files, "/b");
    files = gWithRecentFile(files, "/a");
    EXPECT_EQ(files, QStringList({"/a", "/b"}));
    for (int i = 0; i < 20; ++i)
        files = gWithRecentFile(files, QStringLiteral("/%1").arg(i));
    EXPECT_EQ(files.size(), kRecentFiles);
    EXPECT_EQ(files.first(), "/19");
    EXPECT_EQ(files.last(), "/12");
}

struct TLabelCase {
    const char* pName;
    QStringList files;
    QStringList labels;
};

TEST(RecentFiles, LabelsAreShortAndDiffer)
{
    const std::vector<TLabelCase> cases{
        {"none", {}, {}},
        {"names", {"/x/a.cir", "/x/b.cir"}, {"&1  a.cir", "&2  b.cir"}},
        {"the same name", {"/x/a.cir", "/y/a.cir"}, {"&1  x/a.cir", "&2  y/a.cir"}},
        {"the same folder's name",
         {"/p/x/a.cir", "/q/x/a.cir"},
         {"&1  p/x/a.cir", "&2  q/x/a.cir"}},
        {"one the end of the other", {"/a.cir", "/y/a.cir"}, {"&1  /a.cir", "&2  y/a.cir"}},
        {"an ampersand", {"/R&D.cir"}, {"&1  R&&D.cir"}},
    };
    for (const TLabelCase& rCase : cases) {
        EXPECT_EQ(gRecentFileLabels(rCase.files), rCase.labels) << rCase.pName;
    }
}

TEST(RecentFiles, AreKept)
{
    gSaveRecentFiles({"/a", "/b"});
    EXPECT_EQ(gLoadRecentFiles(), QStringList({"/a", "/b"}));
    gSaveRecentFiles({});
    EXPECT_EQ(gLoadRecentFiles(), QStringList());
}
} // namespace
} // namespace quorvawiz::host
