#include "simulators/ngspice/cards/FlatName.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

namespace quorvawiz::ngspice
{

static void PrintTo(const TFlatName& rName, std::ostream* pOut)
{
    for (const std::string& rsInstance : rName.instances) {
        *pOut << rsInstance << " / ";
    }
    *pOut << rName.sName;
}

namespace
{

struct TCase {
    const char* pFlat;
    TFlatName name;
};

const TInstanceNames kInstances{"x", "x1", "xa", "xb", "xc", "xtop", "xq.1", "xq.m1", "x.dot"};

TEST(FlatName, OfADevice)
{
    const TCase cases[] = {
        {"q9", {{}, "q9"}},
        {"q.x1.q9", {{"x1"}, "q9"}},
        {"q.xtop.q.x1.q9", {{"xtop", "x1"}, "q9"}},
        {"q.xtop.x1.q9", {{"xtop", "x1"}, "q9"}},
        {"q.xa.q.xb.q.xc.q9", {{"xa", "xb", "xc"}, "q9"}},
        {"x.xa.xb", {{"xa"}, "xb"}}, // a device whose letter is x
        {"r.load", {{}, "r.load"}},
        {"r.load.x1", {{}, "r.load.x1"}},
        {"r.x1.r.load", {{"x1"}, "r.load"}},
        {"r.x1.load.2", {{"x1"}, "load.2"}},
        {"r.x.r1", {{"x"}, "r1"}},
        {"r.x1.", {{}, "r.x1."}},
        {"r.", {{}, "r."}},
        {"", {{}, ""}},
        {".", {{}, "."}},
        // Names of instances with points.
        {"m.xq.1.m1", {{"xq.1"}, "m1"}},
        {"m.xq.m1.m5", {{"xq.m1"}, "m5"}},
        {"m.xtop.m.xq.1.m1", {{"xtop", "xq.1"}, "m1"}},
        {"r.x.dot.r1", {{"x.dot"}, "r1"}},
        // There is no instance of that name, so that it is a device's own.
        {"d.x2.d1", {{}, "d.x2.d1"}},
        {"d.xa.d.x2.d1", {{"xa"}, "d.x2.d1"}},
    };
    for (const TCase& rCase : cases) {
        EXPECT_EQ(gSplitDeviceName(rCase.pFlat, kInstances), rCase.name) << rCase.pFlat;
    }
    EXPECT_EQ(gSplitDeviceName("q.x1.q9", {}), (TFlatName{{}, "q.x1.q9"}));
}

TEST(FlatName, OfAModel)
{
    const TCase cases[] = {
        {"nch", {{}, "nch"}},
        {"nch.1", {{}, "nch.1"}},
        {"x1:nch", {{"x1"}, "nch"}},
        {"xtop:x1:nch", {{"xtop", "x1"}, "nch"}},
        {"xq.1:nch", {{"xq.1"}, "nch"}},
        {"lib:nch", {{}, "lib:nch"}},
        {"x1:lib:nch", {{"x1"}, "lib:nch"}},
        {"x1:", {{}, "x1:"}},
        {":nch", {{}, ":nch"}},
        {"", {{}, ""}},
    };
    for (const TCase& rCase : cases) {
        EXPECT_EQ(gSplitModelName(rCase.pFlat, kInstances), rCase.name) << rCase.pFlat;
    }
}

} // namespace
} // namespace quorvawiz::ngspice
