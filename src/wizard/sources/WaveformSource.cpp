#include "wizard/sources/WaveformSource.h"

#include "wizard/frame/PageText.h"

CString gHeadWithDC(const TSourceHead& rHead, const CString& rsDC)
{
    CString sHead = gSourceHeadText(rHead);
    gAppendIfAny(sHead, " dc ", rsDC);
    return sHead;
}
