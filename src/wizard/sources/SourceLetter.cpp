#include "wizard/sources/SourceLetter.h"

#include "wizard/frame/PageText.h"

void gPutSourceLetter(CString& rsLine, const CString& rsName, char chCapital)
{
    if (!gBeginsWithLetter(rsName, chCapital))
        rsLine.Insert(0, chCapital);
}
