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
        if (nOption == kCountPlaces) {
            bSignificant = false;
        } else if (nOption == kPadded) {
            bPadded = true;
        } else if (nOption == kRemoveTrailingZeros || nOption == kKeepTrailingZeros) {
            bRemoveTrailing = nOption == kRemoveTrailingZeros;
        } else if (nOption == kRemoveZeroExponents || nOption == kKeepZeroExponents) {
            bRemoveExponents = nOption == kRemoveZeroExponents;
        } else if (nOption >= kFirstUnitScale && nOption < kNoFormatOption) {
            eScale = gNormalizeUnitScale(nOption - kFirstUnitScale);
        }
    }
    return gFormatEngineering(dValue, nDigits, bSignificant, bPadded, bRemoveTrailing, eScale,
                              bRemoveExponents);
}
