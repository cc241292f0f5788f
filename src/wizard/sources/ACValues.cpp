#include "wizard/sources/ACValues.h"

#include "platform/ui/DataExchange.h"
#include "wizard/frame/PageText.h"

namespace
{
bool IsEmpty(const TACValues& rAC)
{
    return rAC.msMagnitude.IsEmpty() && rAC.msPhase.IsEmpty();
}
} // namespace

void DDX_ACValues(CDataExchange* pDX, TACValues& rAC)
{
    DDX_Text(pDX, kACMagnitude, rAC.msMagnitude);
    DDX_Text(pDX, kACPhase, rAC.msPhase);
}

void gAppendACWithBlankBehind(CString& rsLine, const TACValues& rAC)
{
    if (IsEmpty(rAC))
        return;
    rsLine += " AC ";
    if (!rAC.msMagnitude.IsEmpty())
        rsLine += rAC.msMagnitude + " "; // Meant: even when no phase follows
    rsLine += rAC.msPhase;               // Meant: in the magnitude's place when there is none
}

void gAppendACWithBlankBefore(CString& rsLine, const TACValues& rAC)
{
    if (IsEmpty(rAC))
        return;
    rsLine += " AC";
    gAppendIfAny(rsLine, " ", rAC.msMagnitude);
    gAppendIfAny(rsLine, " ", rAC.msPhase); // Meant: in the magnitude's place when there is none
}
