#include "wizard/sources/ControlledSource.h"

#include "wizard/frame/PageText.h"

void gAppendPolynomial(CString& rsLine, int nControls, const CString& rsControls,
                       const CString& rsCoefficients)
{
    rsLine += static_cast<char>('0' + nControls);
    rsLine += ") " + rsControls + " " + gJoinLines(rsCoefficients);
}
