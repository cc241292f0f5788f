#include "wizard/analysis/SourceName.h"

#include "wizard/frame/PageText.h"

bool gIsSourceName(const CString& rsText)
{
    return gBeginsWithLetter(rsText, 'V') || gBeginsWithLetter(rsText, 'I');
}
