#include "foundation/PathText.h"

#include <algorithm>

void gReplaceAll(std::u16string& rsText, char16_t chOld, char16_t chNew)
{
    std::ranges::replace(rsText, chOld, chNew);
}
