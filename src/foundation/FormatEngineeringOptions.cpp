#include "foundation/NumberFormat.h"

std::string gFormatEngineeringOptions(double dValue, unsigned nDigits, int nOption1, int nOption2,
                                      int nOption3, int nOption4, int nOption5)
{
    bool bSignificant = true;
    bool bPadded = false;
    boost::tribool bRemoveTrailing = boost::indeterminate;
    boost::tribool bRemoveExponents = boost::indeterminate;
    TeUnitScale eScale = gGetEngineeringFormatSettings().GetDefaultEngineeringFormatUnitScale();
    for (const int nOption : {nOption1, nOption2, nOption3, nOption4, nOption5}) {
        if (nOption == TFormatOption::CountPlaces) {
            bSignificant = false;
        } else if (nOption == TFormatOption::Padded) {
            bPadded = true;
        } else if (nOption == TFormatOption::RemoveTrailingZeros ||
                   nOption == TFormatOption::KeepTrailingZeros) {
            bRemoveTrailing = nOption == TFormatOption::RemoveTrailingZeros;
        } else if (nOption == TFormatOption::RemoveZeroExponents ||
                   nOption == TFormatOption::KeepZeroExponents) {
            bRemoveExponents = nOption == TFormatOption::RemoveZeroExponents;
        } else if (nOption >= TFormatOption::FirstUnitScale && nOption < TFormatOption::None) {
            eScale = gNormalizeUnitScale(nOption - TFormatOption::FirstUnitScale);
        }
    }
    return gFormatEngineering(dValue, nDigits, bSignificant, bPadded, bRemoveTrailing, eScale,
                              bRemoveExponents);
}
