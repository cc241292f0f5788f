#include "params/CompareTolerant.h"

#include "params/ParamValue.h"

#include <cmath>

int CompareTolerant(double dLeft, double dRight, double dTolerance) noexcept
{
    if (gIsUninitialized(dLeft) || gIsUninitialized(dRight)) {
        if (dLeft == dRight) {
            return 0;
        }
        return dRight > dLeft ? -1 : 1; // kept: always 1, as one of them is a NaN
    }
    constexpr double leastDifference = 1e-28;
    const double dDifference = dLeft - dRight;
    if (std::fabs(dDifference) <= leastDifference) {
        return 0;
    }
    int nExponent = 0;
    std::frexp(std::fabs(dLeft) > std::fabs(dRight) ? dLeft : dRight, &nExponent);
    const double dMost = std::ldexp(dTolerance, nExponent);
    return (dDifference > dMost ? 1 : 0) - (dDifference < -dMost ? 1 : 0);
}
