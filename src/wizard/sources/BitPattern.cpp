#include "wizard/sources/BitPattern.h"

#include "platform/ui/DataExchange.h"
#include "wizard/frame/PageText.h"

void DDX_BitPattern(CDataExchange* pDX, TBitPattern& rPattern)
{
    using namespace BitPattern;
    DDX_Text(pDX, kRounding, rPattern.msRounding);
    DDX_Text(pDX, kBitStream, rPattern.msBitStream);
    DDX_Text(pDX, kOnValue, rPattern.msOnValue);
    DDX_Text(pDX, kOffValue, rPattern.msOffValue);
    DDX_Text(pDX, kPulseWidth, rPattern.msPulseWidth);
    DDX_Text(pDX, kLowTime, rPattern.msLowTime);
    DDX_Text(pDX, kHighTime, rPattern.msHighTime);
    DDX_Text(pDX, kDelay, rPattern.msDelay);
    DDX_Text(pDX, kRiseTime, rPattern.msRiseTime);
    DDX_Text(pDX, kFallTime, rPattern.msFallTime);
}

void gAppendBitPattern(CString& rsLine, const char* pKeyword, const TBitPattern& rPattern)
{
    rsLine += pKeyword;
    rsLine += "({" + rPattern.msBitStream + "}";
    // Named parameters: the order is the line's, not that of the controls.
    gAppendIfAny(rsLine, " pw=", rPattern.msPulseWidth);
    gAppendIfAny(rsLine, " lt=", rPattern.msLowTime);
    gAppendIfAny(rsLine, " ht=", rPattern.msHighTime);
    gAppendIfAny(rsLine, " on=", rPattern.msOnValue);
    gAppendIfAny(rsLine, " off=", rPattern.msOffValue);
    gAppendIfAny(rsLine, " rt=", rPattern.msRiseTime);
    gAppendIfAny(rsLine, " ft=", rPattern.msFallTime);
    gAppendIfAny(rsLine, " delay=", rPattern.msDelay);
    rsLine += ")";
}
