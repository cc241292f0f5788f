#include "params/CompareTolerant.h"

#include "params/ParamValue.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kUnset = kUninitializedParamValue;

struct TCompareCase {
    std::string msName;
    double mdLeft;
    double mdRight;
    double mdTolerance;
    int mnExpected;
};

TEST(CompareTolerantTest, Rule)
{
    const std::vector<TCompareCase> cases{
        {"the same", 1, 1, 0, 0},
        {"greater", 2, 1, 1e-12, 1},
        {"less", 1, 2, 1e-12, -1},
        {"less than the least difference", 1e-28, 0, 0, 0},
        {"more than the least difference", 1.1e-28, 0, 1e-12, 1},
        {"less, and near zero", -1.1e-28, 0, 1e-12, -1},
        {"1 is 0.5 times 2: within 1e-12 times 2", 1 + 1.9e-12, 1, 1e-12, 0},
        {"1 is 0.5 times 2: beyond 1e-12 times 2", 1 + 2.1e-12, 1, 1e-12, 1},
        {"the larger magnitude gives the exponent", 1, 3, 0.5, 0},
        {"of negative numbers too", -3, 1, 1, 0},
        {"of negative numbers beyond", -3.1, 1, 1, -1},
        {"at the tolerance itself", 4, 2, 0.25, 0},
        {"zeros of both signs", 0.0, -0.0, 0, 0},
        {"infinities", kInfinity, -kInfinity, 1e-12, 1},
        {"the same infinity", kInfinity, kInfinity, 1e-12, 0},
        {"NaN on the left", kNan, 1, 1e-12, 0},
        {"NaN on the right", 1, kNan, 1e-12, 0},
        {"two NaNs", kNan, kNan, 1e-12, 0},
        {"uninitialised on the left", kUnset, 1, 1e-12, 1},
        {"uninitialised on the right", 1, kUnset, 1e-12, 1},
        {"both uninitialised", kUnset, kUnset, 1e-12, 1},
        {"uninitialised and NaN", kUnset, kNan, 1e-12, 1},
        {"NaN and uninitialised", kNan, kUnset, 1e-12, 1},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(CompareTolerant(row.mdLeft, row.mdRight, row.mdTolerance), row.mnExpected)
            << row.msName;
    }
}

} // namespace
