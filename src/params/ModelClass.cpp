#include "params/ModelClass.h"

#include "params/CompareTolerant.h"

bool CompareModelClassHeaders(const TModelClassHeader& rLeft,
                              const TModelClassHeader& rRight) noexcept
{
    if (rLeft.msType != rRight.msType) {
        return rLeft.msType < rRight.msType;
    }
    if (rLeft.msName != rRight.msName) {
        return rLeft.msName < rRight.msName;
    }
    if (rLeft.mnLevel != rRight.mnLevel) {
        return rLeft.mnLevel < rRight.mnLevel;
    }
    constexpr double tolerance = 1e-12;
    const int nVersions = CompareTolerant(rLeft.mdVersion, rRight.mdVersion, tolerance);
    if (nVersions != 0) {
        return nVersions < 0;
    }
    return rLeft.msDescription < rRight.msDescription;
}
