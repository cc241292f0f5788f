#include "foundation/NumberFormat.h"
#include "foundation/StringU.h"

CStringU gParseEngineeringText(const CStringU& rText, double& rdResult, boost::tribool bUseSi)
{
    const bool bSi =
        gGetEngineeringFormatSettings().GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(bUseSi);
    return gParseEngineering(rText.Data(), rdResult, nullptr, bSi);
}
