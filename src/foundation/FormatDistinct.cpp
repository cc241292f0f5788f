#include "foundation/NumberFormat.h"

std::string gFormatDistinct(double dShown, double dOther, TeUnitScale eScale)
{
    constexpr unsigned fewestDigits = 3;
    constexpr unsigned mostDigits = 29;
    eScale = gGetEngineeringFormatSettings().GetValidEngineeringFormatUnitScale(eScale);
    if (dShown != dOther) {
        for (unsigned nDigits = fewestDigits; nDigits <= mostDigits; ++nDigits) {
            const auto format = [nDigits, eScale](double dValue) {
                return gFormatEngineering(dValue, nDigits, true, false, true, eScale,
                                          boost::indeterminate);
            };
            std::string sShown = format(dShown);
            if (sShown != format(dOther)) {
                return sShown;
            }
        }
    }
    // Kept: the other's text. It differs from the shown one's for zeros of different sign.
    return gFormatEngineeringOptions(dOther, 17, gUnitScaleToOption(eScale));
}
