#include "wizard/analysis/SourceName.h"

bool gIsSourceName(const CString& rsText)
{
    return CString("VvIi").Find(rsText[0]) >= 0;
}
