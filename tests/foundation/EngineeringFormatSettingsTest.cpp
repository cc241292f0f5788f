#include "foundation/EngineeringFormatSettings.h"

#include "foundation/FormatScopes.h"
#include "foundation/NumberFormat.h"
#include "platform/base/Exceptions.h"

#include <gtest/gtest.h>

namespace
{

using TSettings = TEngineeringFormatSettings;

TEST(EngineeringFormatSettings, TheLibrarysDefaults)
{
    const TSettings settings;
    EXPECT_EQ(settings.GetDefaultEngineeringFormatDigits(), 6U);
    EXPECT_EQ(settings.GetDefaultEngineeringFormatUnitScale(), TeUnitScale::Spice);
    EXPECT_TRUE(settings.GetValidEngineeringFormatRemoveTrailingZeroes(boost::indeterminate));
    EXPECT_TRUE(settings.GetValidEngineeringFormatRemoveZeroExponents(boost::indeterminate));
    EXPECT_FALSE(settings.GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(boost::indeterminate));
}

TEST(EngineeringFormatSettings, WhatTheCallerSaysHolds)
{
    const TSettings settings;
    for (const bool bSaid : {false, true}) {
        EXPECT_EQ(settings.GetValidEngineeringFormatRemoveTrailingZeroes(bSaid), bSaid);
        EXPECT_EQ(settings.GetValidEngineeringFormatRemoveZeroExponents(bSaid), bSaid);
        EXPECT_EQ(settings.GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(bSaid), bSaid);
    }
    for (int nScale = 0; nScale <= 4; ++nScale) {
        const auto eScale = static_cast<TeUnitScale>(nScale);
        EXPECT_EQ(settings.GetValidEngineeringFormatUnitScale(eScale), eScale);
    }
}

TEST(EngineeringFormatSettings, WhatTheHostSetsStandsInForWhatTheCallerLeavesOpen)
{
    TSettings settings;
    settings.SetDefaultEngineeringFormatDigits(1);
    settings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::Engineering);
    settings.SetDefaultEngineeringFormatRemoveTrailingZeroes(false);
    settings.SetDefaultEngineeringFormatRemoveZeroExponents(false);
    settings.SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(true);
    EXPECT_EQ(settings.GetDefaultEngineeringFormatDigits(), 1U);
    for (const int nOpen : {5, 6, -1}) {
        EXPECT_EQ(settings.GetValidEngineeringFormatUnitScale(static_cast<TeUnitScale>(nOpen)),
                  TeUnitScale::Engineering);
    }
    EXPECT_FALSE(settings.GetValidEngineeringFormatRemoveTrailingZeroes(boost::indeterminate));
    EXPECT_FALSE(settings.GetValidEngineeringFormatRemoveZeroExponents(boost::indeterminate));
    EXPECT_TRUE(settings.GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(boost::indeterminate));
}

TEST(EngineeringFormatSettings, ADefaultThatIsNoneIsRefused)
{
    TSettings settings;
    EXPECT_THROW(settings.SetDefaultEngineeringFormatDigits(0), CInvalidArgException);
    EXPECT_THROW(settings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::Undefined),
                 CInvalidArgException);
    EXPECT_THROW(settings.SetDefaultEngineeringFormatUnitScale(static_cast<TeUnitScale>(-1)),
                 CInvalidArgException);
    EXPECT_EQ(settings.GetDefaultEngineeringFormatDigits(), 6U);
    EXPECT_EQ(settings.GetDefaultEngineeringFormatUnitScale(), TeUnitScale::Spice);
}

TEST(EngineeringFormatSettings, TheOneInstanceIsWhatTheFunctionsGoBy)
{
    const CFormatSettingsScope scope;
    const auto format = [](double dValue) {
        return gFormatEngineering(dValue, 0, true, false, boost::indeterminate,
                                  TeUnitScale::Undefined, boost::indeterminate);
    };
    EXPECT_EQ(format(1.23456789e6), "1.23457X");
    EXPECT_EQ(format(1), "1");
    TSettings& rSettings = gGetEngineeringFormatSettings();
    rSettings.SetDefaultEngineeringFormatDigits(4);
    rSettings.SetDefaultEngineeringFormatUnitScale(TeUnitScale::Engineering);
    rSettings.SetDefaultEngineeringFormatRemoveTrailingZeroes(false);
    rSettings.SetDefaultEngineeringFormatRemoveZeroExponents(false);
    EXPECT_EQ(format(1.23456789e6), "1.235e006");
    EXPECT_EQ(format(1), "1.000e000");
    rSettings = TSettings();
    EXPECT_EQ(format(1), "1");
}

} // namespace
