#include "foundation/DoubledPoint.h"

#include <cstddef>
#include <string_view>

std::string gRepairDoubledPoints(std::string sNumber)
{
    std::size_t nKept = 0;
    for (std::size_t nAt = 0; nAt < sNumber.size(); ++nAt) {
        const bool bDoubled = std::string_view(sNumber).substr(nAt).starts_with("..");
        sNumber[nKept++] = bDoubled ? '0' : sNumber[nAt];
        nAt += bDoubled ? 1 : 0;
    }
    sNumber.resize(nKept);
    return sNumber;
}
