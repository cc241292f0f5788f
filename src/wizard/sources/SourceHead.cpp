#include "wizard/sources/SourceHead.h"

#include "platform/ui/DataExchange.h"
#include "wizard/frame/PageText.h"

void DDX_SourceHead(CDataExchange* pDX, TSourceHead& rHead)
{
    DDX_Text(pDX, kSourceName, rHead.msName);
    DDX_Text(pDX, kPositiveTerminal, rHead.msPositiveTerminal);
    DDX_Text(pDX, kNegativeTerminal, rHead.msNegativeTerminal);
}

void gFillIfEmpty(CString& rsField, const char* pText)
{
    if (rsField.IsEmpty())
        rsField = pText;
}

CString gSourceHeadText(const TSourceHead& rHead)
{
    return rHead.msName + " " + rHead.msPositiveTerminal + " " + rHead.msNegativeTerminal;
}

void gPrefixSourceLetter(CString& rsLine, const CString& rsName, char chCapital)
{
    if (!gBeginsWithLetter(rsName, chCapital))
        rsLine.Insert(0, chCapital);
}
