#include "foundation/DoubledPoint.h"

#include <cstddef>

std::string gRepairDoubledPoints(std::string sNumber)
{
    for (std::size_t nAt = 0; (nAt = sNumber.find("..", nAt)) != std::string::npos; ++nAt) {
        sNumber[nAt] = '0';
        sNumber.erase(nAt + 1, 1);
    }
    return sNumber;
}
