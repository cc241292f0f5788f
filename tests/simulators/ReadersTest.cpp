// The readers of the simulator's listings, on recorded ones and on lines of other forms.

#include "simulators/Recorded.h"
#include "simulators/ngspice/cards/CardTokens.h"
#include "simulators/ngspice/listings/DeviceTypes.h"
#include "simulators/ngspice/listings/Listing.h"
#include "simulators/ngspice/listings/ParamTables.h"
#include "simulators/ngspice/listings/ShownDevices.h"
#include "simulators/ngspice/listings/ShownModels.h"
#include "simulators/ngspice/listings/Version.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(DeviceTypesReader, ReadsTheRecordedList)
{
    const auto types = gReadDeviceTypes(gRecorded("types.txt"));
    EXPECT_EQ(types.size(), 127U);
    EXPECT_THAT(types, Contains(TDeviceType{"BJT", "Bipolar Junction Transistor"}));
    EXPECT_THAT(types, Contains(TDeviceType{"ASRC", "Arbitrary Source"}));
    EXPECT_THAT(types, Contains(TDeviceType{"d_lut", "digital n-input look-up table gate"}));
}

TEST(DeviceTypesReader, PassesOverOtherLines)
{
    EXPECT_THAT(gReadDeviceTypes(""), IsEmpty());
    EXPECT_THAT(gReadDeviceTypes("\n\nDevices available in the simulator\n:\n : x\na b : c\n"),
                IsEmpty());
    EXPECT_THAT(gReadDeviceTypes("r : a : b\r\nd :"),
                ElementsAre(TDeviceType{"r", "a : b"}, TDeviceType{"d", ""}));
}

const TParamTable& TableOf(const std::vector<TParamTable>& rTables, const std::string& rsType)
{
    return *std::ranges::find(rTables, rsType, &TParamTable::sType);
}

TEST(ParamTablesReader, ReadsTheRecordedTables)
{
    const auto tables = gReadParamTables(gRecorded("tables.txt"));
    ASSERT_EQ(tables.size(), 6U);
    const TParamTable& rBipolar = tables[0];
    EXPECT_EQ(rBipolar.sType, "BJT");
    EXPECT_EQ(rBipolar.sDescription, "Bipolar Junction Transistor");
    EXPECT_EQ(rBipolar.model.size(), 152U);
    EXPECT_EQ(rBipolar.instance.size(), 53U);
    EXPECT_EQ(rBipolar.model[0],
              (TParamRow{309, "type", EDirection::Out, "string", "", "NPN or PNP"}));
    EXPECT_EQ(rBipolar.model[5], (TParamRow{151, "tref", EDirection::InOut, "real", "R", ""}));
    const TParamTable& rSource = TableOf(tables, "Vsource");
    EXPECT_THAT(rSource.model, IsEmpty());
    EXPECT_THAT(rSource.instance, Contains(TParamRow{2, "ac", EDirection::In, "realvec", "",
                                                     "AC magnitude, phase vector"}));
}

TEST(ParamTablesReader, KeepsTheCommasOfADescription)
{
    const auto tables = gReadParamTables("A - b - c\nInstance Parameters\n"
                                         "id#, Name, Dir, Type, Flags, Description\n"
                                         "1, ac, in, realvec, -, magnitude, phase, and so on\n");
    EXPECT_THAT(tables, ElementsAre(TParamTable{"A",
                                                "b - c",
                                                {},
                                                {{1, "ac", EDirection::In, "realvec", "",
                                                  "magnitude, phase, and so on"}}}));
}

TEST(ParamTablesReader, PassesOverOtherLines)
{
    EXPECT_THAT(gReadParamTables(""), IsEmpty());
    EXPECT_THAT(gReadParamTables("1, a, in, real, -, in front of any type\n"), IsEmpty());
    const auto tables = gReadParamTables("A - a\nModel Parameters\nx, a, in, real, -, no number\n"
                                         "1, a, sideways, real, -, no direction\n1, , in, real\n"
                                         "1, a, in, , -, no type\n1\n2, b, out, real\n"
                                         "99999999999, c, in, real, -, no such number\n");
    ASSERT_EQ(tables.size(), 1U);
    EXPECT_THAT(tables[0].model, ElementsAre(TParamRow{2, "b", EDirection::Out, "real", "", ""}));
}

std::vector<TShownDevice> DevicesIn(std::string_view sListing)
{
    std::vector<TShownDevice> all;
    CShownDevices devices(sListing);
    for (TShownDevice device; devices.Next(device);) {
        all.push_back(device);
    }
    return all;
}

TEST(ShownDevicesReader, ReadsTheRecordedDevices)
{
    const std::string sListing = gRecorded("show.txt");
    const auto devices = DevicesIn(sListing);
    std::vector<std::string> names;
    for (const TShownDevice& rDevice : devices) {
        names.push_back(std::string(rDevice.sName) + " " + std::string(rDevice.sModel));
    }
    EXPECT_THAT(names, ElementsAre("q.xtop.q10 xtop:a_name_that_is_cut_two",
                                   "q.xtop.q9 xtop:a_name_that_is_cut_one", "c1 C",
                                   "d.xtop.d1 xtop:dlocal", "d.xtop.d.x1.d2 xtop:x1:dlocal",
                                   "r3 rmod", "r6 R", "r5 R", "r.xtop.r1 R", "r.xtop.r.x1.r1 R",
                                   "vin V", "vdd V", "a1 gg"));
    EXPECT_THAT(devices[0].values, Contains(TShownValue{"off", "1"}));
    EXPECT_THAT(devices[0].values, Contains(TShownValue{"m", "3"}));
    EXPECT_THAT(devices[11].values, Contains(TShownValue{"pulse", "-"}));
}

TEST(ShownDevicesReader, PassesOverOtherLines)
{
    EXPECT_THAT(DevicesIn(""), IsEmpty());
    EXPECT_THAT(DevicesIn("    r = 1\n:\n  r1:\n"), IsEmpty());
    EXPECT_THAT(DevicesIn("r1:\nr2:\n    model = R\n   x = 1\n    y\n    = 2\n    model = 3\n"),
                ElementsAre(TShownDevice{"r1", "", {}}, TShownDevice{"r2", "R", {{"model", "3"}}}));
}

TEST(ShownModelsReader, ReadsTheRecordedModels)
{
    const std::string sListing = gRecorded("showmod.txt");
    const auto models = gReadShownModels(sListing);
    std::vector<std::string> names;
    for (const TShownModel& rModel : models) {
        names.push_back(std::string(rModel.sType) + " " + std::string(rModel.sName));
    }
    EXPECT_THAT(names, ElementsAre("BJT xtop:a_name_that_is_c", "BJT xtop:a_name_that_is_c",
                                   "Capacitor C", "Diode xtop:dlocal", "Diode xtop:x1:dlocal",
                                   "Resistor rmod", "Resistor R", "gain gg"));
    EXPECT_THAT(models[0].values, Contains(TShownValue{"type", "npn"}));
    EXPECT_THAT(models[5].values, Contains(TShownValue{"rsh", "100"}));
}

TEST(ShownModelsReader, PassesOverOtherLines)
{
    EXPECT_THAT(gReadShownModels(""), IsEmpty());
    EXPECT_THAT(gReadShownModels("      model a\n    x = 1\n models (b)\nA models (b)\n"),
                IsEmpty());
    EXPECT_THAT(gReadShownModels(" A models (b)\n      model     m\n      model     n\n"
                                 "    model = 3\n    x    = 1\n"),
                ElementsAre(TShownModel{"A", "m", {{"model", "3"}, {"x", "1"}}}));
}

TEST(ListingReader, ReadsTheRecordedCards)
{
    const std::string sListing = gRecorded("expand.txt");
    const auto cards = gReadListing(sListing);
    ASSERT_EQ(cards.size(), 20U);
    EXPECT_EQ(cards.front(), ".model xtop:dlocal d(is=1e-14 rs=3)");
    EXPECT_EQ(cards.back(), ".end");
    EXPECT_THAT(cards, Contains("d.xtop.d.x1.d2 in xtop.mid xtop:x1:dlocal off ic=0.5"));
}

TEST(ListingReader, PassesOverOtherLines)
{
    EXPECT_THAT(gReadListing(""), IsEmpty());
    EXPECT_THAT(gReadListing("\ttitle\n 1 : * comment\n 2 :\n x : y\n 3: r1 a b 1\n 4 :  \n"),
                IsEmpty());
    EXPECT_THAT(gReadListing("  5 :  r1 a b 1  "), ElementsAre("r1 a b 1"));
}

TEST(VersionReader, ReadsTheRecordedVersion)
{
    EXPECT_EQ(gReadVersion(gRecorded("version.txt")),
              (TVersion{39, "ngspice-39", "Sun Feb  5 13:44:35 UTC 2023"}));
}

TEST(VersionReader, OtherForms)
{
    EXPECT_EQ(gReadVersion(""), TVersion());
    EXPECT_EQ(gReadVersion("bash 5.2\n"), TVersion());
    EXPECT_EQ(gReadVersion("** ngspice-44.2\n"), (TVersion{44, "ngspice-44.2", ""}));
    EXPECT_EQ(gReadVersion("ngspice-43+ : Circuit\n"), (TVersion{43, "ngspice-43+", ""}));
    EXPECT_EQ(gReadVersion("ngspice-\n").nMajor, 0);
}

std::string TokensOf(std::string_view sCard)
{
    std::vector<TCardToken> tokens;
    gReadCardTokens(sCard, tokens);
    std::string sAll;
    for (const TCardToken& rToken : tokens) {
        sAll += "[" + std::string(rToken.bValue ? "=" : "") + std::string(rToken.sText) +
                (rToken.bAssigned ? "=" : "") + "]";
    }
    return sAll;
}

TEST(CardTokensReader, TakesCardsApart)
{
    EXPECT_EQ(TokensOf(""), "");
    EXPECT_EQ(TokensOf("r1 a b 1k tc=0.1,0.2"), "[r1][a][b][1k][tc=][=0.1][0.2]");
    EXPECT_EQ(TokensOf(".model q npn(bf = 50 off)"), "[.model][q][npn][bf=][=50][off]");
    EXPECT_EQ(TokensOf("b1 a 0 v={a = b} 'c d' \"e"), "[b1][a][0][v=][={a = b}]['c d'][\"e]");
    EXPECT_EQ(TokensOf("= x ="), "[=x=]");
}

} // namespace
} // namespace quorvawiz::ngspice
