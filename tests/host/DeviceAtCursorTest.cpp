#include "quorvahost/DeviceAtCursor.h"

#include "host/PrintQt.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <vector>

namespace quorvawiz::host
{

void PrintTo(const TDeviceName& rDevice, std::ostream* pStream)
{
    *pStream << rDevice.sSubckt.toStdString() << " / " << rDevice.sName.toStdString();
}

namespace
{
/// A netlist in which the cursor's line ends in "<".
struct TCase {
    const char* pName;
    const char* pNetlist;
    TDeviceName expected;
};

std::variant<TDeviceName, TNoDevice> DeviceIn(const char* pNetlist)
{
    QStringList lines = QString::fromUtf8(pNetlist).split(QLatin1Char('\n'));
    int nLine = 0;
    for (int i = 0; i < lines.size(); ++i)
        if (lines[i].endsWith(QLatin1Char('<'))) {
            lines[i].chop(1);
            nLine = i;
        }
    return gDeviceAt({static_cast<int>(lines.size()), [&lines](int n) { return lines[n]; }}, nLine);
}

const char* const kRing = "ring\n"
                          ".subckt inv in out\n"
                          "MP out in vdd pch\n"
                          "+ W=1u<\n"
                          ".ends inv\n"
                          ".SUBCKT buffer in out\n"
                          "X1 in mid INV\n"
                          "X2 mid out inv\n"
                          ".ends\n"
                          "X6 n1 out buffer\n"
                          ".end\n";

TEST(DeviceAtCursor, IsFoundWithItsPath)
{
    const std::vector<TCase> cases{
        {"top level", "t\nR1 a b 1k<\n", {"top", "R1"}},
        {"indented", "t\n  r1\ta b 1k<", {"top", "r1"}},
        {"continued", "t\nQ1 c b e\n+ Q2N\n* why\n\n+ area=2<\n", {"top", "Q1"}},
        {"in a subcircuit of a subcircuit", kRing, {"X6.X1", "MP"}},
        {"an instance", "t\nX1 a b inv<\n", {"", "X1"}},
        {"an instance in a subcircuit",
         "t\n.subckt buffer a b\nX1 a m inv\nX2 m b inv<\n.ends\nX6 a b buffer\n",
         {"", "X6.X2"}},
        {"used before it is defined",
         "t\nx1 a b amp\n.subckt amp a b\nR1 a b 1<\n.ends\n",
         {"x1", "R1"}},
        {"first of two instances",
         "t\n.subckt amp a b\nR1 a b 1<\n.ends\nXa 1 2 amp\nXb 2 3 amp\n",
         {"Xa", "R1"}},
        {"the instance's parameters",
         "t\n.subckt amp a b\nR1 a b 1<\n.ends\nXa 1 2 amp gain=2 r = 5\n",
         {"Xa", "R1"}},
        {"parameters apart from their sign",
         "t\n.subckt amp a b\nR1 a b 1<\n.ends\nXa 1 2 amp r = 5\n",
         {"Xa", "R1"}},
        {"parameters behind their word",
         "t\n.subckt amp a b\nR1 a b 1<\n.ends\nXa 1 2 amp params: r=5\n",
         {"Xa", "R1"}},
        {"nodes on continuation lines",
         "t\n.subckt amp a b\nR1 a b 1<\n.ends\nXa 1\n* two\n+ 2\n+ amp ; gain 2\n",
         {"Xa", "R1"}},
        {"a subcircuit within one",
         "t\n.subckt outer a\n.subckt inner a\nR1 a 0 1<\n.ends\nX2 a inner\n.ends\nX1 a outer\n",
         {"X1.X2", "R1"}},
        {"an instance that nothing leads to is passed over",
         "t\n.subckt idle a\nXi a amp\n.ends\n.subckt amp a\nR1 a 0 1<\n.ends\nXa a amp\n",
         {"Xa", "R1"}},
    };
    for (const TCase& rCase : cases) {
        const auto found = DeviceIn(rCase.pNetlist);
        ASSERT_TRUE(std::holds_alternative<TDeviceName>(found))
            << rCase.pName << ": " << std::get<TNoDevice>(found).sWhy.toStdString();
        EXPECT_EQ(std::get<TDeviceName>(found), rCase.expected) << rCase.pName;
    }
}

struct TNoCase {
    const char* pName;
    const char* pNetlist;
    const char* pWhy;
};

TEST(DeviceAtCursor, IsNoneElsewhere)
{
    const char* const pNotThere = "the cursor isn't in the line of a device";
    const std::vector<TNoCase> cases{
        {"the title", "R1 is the title<\nR2 a b 1\n", pNotThere},
        {"nothing", "<", pNotThere},
        {"a command", "t\n.tran 1u 1m<\n", pNotThere},
        {"a command's continuation", "t\n.tran 1u\n+ 1m<\n", pNotThere},
        {"the title's continuation", "t\n+ 1m<\n", pNotThere},
        {"a comment", "t\nR1 a b 1\n* R2<\n+ tc=1\n", pNotThere},
        {"a blank line", "t\nR1 a b 1\n <\n", pNotThere},
        {"a subcircuit that nothing uses", "t\n.subckt amp a\nR1 a 0 1<\n.ends\n",
         "the netlist has no instance of the subcircuit \"amp\""},
        {"subcircuits that use each other",
         "t\n.subckt a x\nX1 x b\nR1 x 0 1<\n.ends\n.subckt b x\nX1 x a\n.ends\n",
         "the netlist has no instance of the subcircuit \"a\""},
        {"an instance without a subcircuit", "t\n.subckt amp a\nR1 a 0 1<\n.ends\nXa\n",
         "the netlist has no instance of the subcircuit \"amp\""},
    };
    for (const TNoCase& rCase : cases) {
        const auto found = DeviceIn(rCase.pNetlist);
        ASSERT_TRUE(std::holds_alternative<TNoDevice>(found)) << rCase.pName;
        EXPECT_EQ(std::get<TNoDevice>(found).sWhy, QString::fromUtf8(rCase.pWhy)) << rCase.pName;
    }
}
} // namespace
} // namespace quorvawiz::host
