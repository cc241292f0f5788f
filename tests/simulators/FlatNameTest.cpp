#include "simulators/ngspice/FlatName.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace quorvawiz::ngspice
{

static void PrintTo(const TFlatName& rName, std::ostream* pOut)
{
    *pOut << rName.sSubckt << " / " << rName.sName;
}

namespace
{

struct TCase {
    const char* pFlat;
    const char* pSubckt;
    const char* pName;
};

TEST(FlatName, OfADevice)
{
    constexpr TCase cases[] = {
        {"q9", "", "q9"},
        {"q.x1.q9", "x1", "q9"},
        {"q.xtop.q.x1.q9", "xtop.x1", "q9"},
        {"q.xtop.x1.q9", "xtop.x1", "q9"},
        {"q.xa.q.xb.q.xc.q9", "xa.xb.xc", "q9"},
        {"x.xa.xb", "xa", "xb"}, // a device whose letter is x
        {"r.load", "", "r.load"},
        {"r.load.x1", "", "r.load.x1"},
        {"r.x1.r.load", "x1", "load"}, // kept: a name with a point of its own can't be told apart
        {"r.x1.load.2", "x1", "load.2"},
        {"r.x.r1", "", "r.x.r1"},
        {"r.x1.", "", "r.x1."},
        {"r.", "", "r."},
        {"", "", ""},
        {".", "", "."},
    };
    for (const TCase& rCase : cases) {
        EXPECT_EQ(gSplitDeviceName(rCase.pFlat), (TFlatName{rCase.pSubckt, rCase.pName}))
            << rCase.pFlat;
    }
}

TEST(FlatName, OfAModel)
{
    constexpr TCase cases[] = {
        {"nch", "", "nch"},
        {"nch.1", "", "nch.1"},
        {"x1:nch", "x1", "nch"},
        {"xtop:x1:nch", "xtop.x1", "nch"},
        {"lib:nch", "", "lib:nch"},
        {"x1:lib:nch", "x1", "lib:nch"},
        {"x1:", "", "x1:"},
        {":nch", "", ":nch"},
        {"", "", ""},
    };
    for (const TCase& rCase : cases) {
        EXPECT_EQ(gSplitModelName(rCase.pFlat), (TFlatName{rCase.pSubckt, rCase.pName}))
            << rCase.pFlat;
    }
}

} // namespace
} // namespace quorvawiz::ngspice
