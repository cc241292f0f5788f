#include "params/ParamValue.h"

#include "foundation/FormatScopes.h"
#include "params/PrintParams.h"

#include <boost/variant/get.hpp>
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

namespace
{

struct TTextCase {
    std::string msName;
    TParamValue mValue;
    CStringU msExpected;
};

TEST(ParamValueTest, Text)
{
    const CFormatSettingsScope settings;
    const double dOtherNan = std::bit_cast<double>(std::uint64_t{0x7FFEEDFEEDEDAEDB});
    const std::vector<TTextCase> cases{
        {"default", TParamValue(), "false"},
        {"bool", true, "true"},
        {"int", -12, "-12"},
        {"least int", std::numeric_limits<int>::min(), "-2147483648"},
        {"eight digits behind the point", 1.23456789012, "1.23456789"},
        {"trailing zeros removed", 1500.0, "1.5k"},
        {"the scale of the settings", 1e6, "1X"},
        {"zero", 0.0, "0"},
        {"uninitialised", kUninitializedParamValue, "<uninitialized>"},
        {"NaN of other bits", dOtherNan, "NaN"},
        {"uninitialised with a sign", -kUninitializedParamValue, "NaN"},
        {"text", CStringU(u"W\u00FCrfel <1>"), u"W\u00FCrfel <1>"},
        {"empty text", CStringU(), ""},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(ParamValueToText(row.mValue), row.msExpected) << row.msName;
    }
}

TEST(ParamValueTest, TheSettingsScaleAndExponents)
{
    const CFormatSettingsScope settings;
    gGetEngineeringFormatSettings().SetDefaultEngineeringFormatUnitScale(TeUnitScale::Scientific);
    EXPECT_EQ(ParamValueToText(1500.0), "1.5e003");
    EXPECT_EQ(ParamValueToText(1.5), "1.5");
    gGetEngineeringFormatSettings().SetDefaultEngineeringFormatRemoveZeroExponents(false);
    EXPECT_EQ(ParamValueToText(1.5), "1.5e000");
}

TEST(ParamValueTest, AlternativesStandInTheOrderOfTheFile)
{
    EXPECT_EQ(TParamValue().which(), TParamKind::Bool);
    EXPECT_FALSE(boost::get<bool>(TParamValue()));
    EXPECT_EQ(TParamValue(true).which(), 0);
    EXPECT_EQ(TParamValue(0).which(), TParamKind::Int);
    EXPECT_EQ(TParamValue(0).which(), 1);
    EXPECT_EQ(TParamValue(0.0).which(), TParamKind::Double);
    EXPECT_EQ(TParamValue(0.0).which(), 2);
    EXPECT_EQ(TParamValue(CStringU()).which(), TParamKind::Text);
    EXPECT_EQ(TParamValue(CStringU()).which(), 3);
}

TEST(ParamValueTest, UninitialisedIsToldByItsBits)
{
    EXPECT_EQ(std::bit_cast<std::uint64_t>(kUninitializedParamValue), 0x7FFEEDFEEDEDAEDA);
    EXPECT_TRUE(std::isnan(kUninitializedParamValue));
    EXPECT_TRUE(gIsUninitialized(kUninitializedParamValue));
    EXPECT_FALSE(gIsUninitialized(-kUninitializedParamValue));
    EXPECT_FALSE(gIsUninitialized(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(gIsUninitialized(0));
}

TEST(ParamValueTest, AnAlternativeThatItDoesNotHold)
{
    EXPECT_THROW(static_cast<void>(boost::get<int>(TParamValue(1.0))), boost::bad_get);
}

} // namespace
