#include "params/SetParamValue.h"

#include "params/PrintParams.h"

#include <boost/any.hpp>
#include <boost/variant/get.hpp>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

struct TSetCase {
    std::string msName;
    int mnKind;
    boost::any mSource;
    TParamValue mTarget;
    TParamValue mExpected;
};

TEST(SetParamValueTest, EachKindTakesEachSource)
{
    const double dNan = std::nan("");
    const CStringU text("nmos");
    const std::vector<TSetCase> cases{
        {"bool as it stands", 1, true, 7, true},
        {"bool from int", 1, 2, 7, true},
        {"bool from int 0", 1, 0, 7, false},
        {"bool from double", 1, 1e-27, 7, true},
        {"bool from a double that compares as 0", 1, 1e-28, 7, false},
        {"bool from uninitialised", 1, kUninitializedParamValue, 7, true},
        {"bool from another NaN", 1, dNan, 7, false},
        {"int as it stands", 2, -5, true, -5},
        {"int from bool", 2, true, 0.0, 1},
        {"int rounded up", 2, 2.5, true, 3},
        {"int rounded down", 2, 2.4999, true, 2},
        {"int, half away from zero", 2, -2.5, true, -3},
        {"int, half of the least", 2, 0.49999999999999994, true, 0},
        {"int above the range", 2, 1e10, true, kMost},
        {"int below the range", 2, -1e10, true, kLeast},
        {"int from infinity", 2, kInfinity, true, kMost},
        {"int from minus infinity", 2, -kInfinity, true, kLeast},
        {"int from NaN", 2, dNan, true, 0},
        {"double as it stands", 3, 1.5, true, 1.5},
        {"double from int", 3, 3, true, 3.0},
        {"double from bool", 3, true, true, 1.0},
        {"double from false", 3, false, true, 0.0},
        {"text", 5, text, true, text},
        {"other kind", 4, 1, text, text},
        {"other kind, other source", 6, 'c', text, text},
        {"kind 0", 0, 1, 2.0, 2.0},
        {"kind 8", 8, boost::any(), 2.0, 2.0},
        {"negative kind", -1, 1, 2.0, 2.0},
    };
    for (const auto& row : cases) {
        TParamValue target = row.mTarget;
        SetParamValue(row.mnKind, row.mSource, target);
        EXPECT_EQ(target.which(), row.mExpected.which()) << row.msName;
        EXPECT_TRUE(target == row.mExpected) << row.msName;
    }
}

TEST(SetParamValueTest, Uninitialised)
{
    for (const boost::any& rSource : {boost::any(), boost::any(1.5), boost::any('c')}) {
        TParamValue target = CStringU("text");
        SetParamValue(7, rSource, target);
        EXPECT_EQ(ParamValueToText(target), "<uninitialized>");
    }
}

TEST(SetParamValueTest, AnySourceOfAnotherTypeIsABadCast)
{
    const CStringU text("text");
    const std::vector<boost::any> others{boost::any(), 'c', 1.5F, 1L, std::string("text"), "text"};
    for (const int nKind : {1, 2, 3, 5}) {
        for (const boost::any& rOther : others) {
            TParamValue target = 7;
            EXPECT_THROW(SetParamValue(nKind, rOther, target), boost::bad_any_cast) << nKind;
            EXPECT_TRUE(target == TParamValue(7));
        }
        TParamValue target = 7;
        const boost::any wrong = nKind == 5 ? boost::any(1) : boost::any(text);
        EXPECT_THROW(SetParamValue(nKind, wrong, target), boost::bad_any_cast) << nKind;
    }
}

TEST(SetParamValueTest, WritesOnlyWhatDiffers)
{
    TParamValue target = -0.0;
    SetParamValue(3, 0.0, target);
    EXPECT_TRUE(std::signbit(boost::get<double>(target))); // equal, so it stays
    SetParamValue(3, 1, target);
    EXPECT_TRUE(target == TParamValue(1.0));
    SetParamValue(2, 1, target); // equal as a number, but another alternative
    EXPECT_TRUE(target == TParamValue(1));
}

} // namespace
