#include "foundation/StringU.h"
#include "platform/base/Ascii.h"
#include "platform/base/CodePage.h"

#include <algorithm>

// A text that isn't UTF-8 is mapped byte by byte and not by the base class, which would read a
// stray high byte by the code page.
CStringU& CStringU::MapCase(char (*pMapAscii)(char) noexcept,
                            char16_t (*pMapUnit)(char16_t) noexcept)
{
    if (!IsUtf8()) {
        std::transform(Bytes().begin(), Bytes().end(), Bytes().begin(), pMapAscii);
        return *this;
    }
    std::u16string sWide = ToWide();
    bool bChanged = false;
    for (char16_t& rchUnit : sWide) {
        const char16_t chMapped = pMapUnit(rchUnit);
        bChanged = bChanged || chMapped != rchUnit;
        rchUnit = chMapped;
    }
    if (bChanged) {
        *this = CStringU(sWide);
    }
    return *this;
}

CStringU& CStringU::MakeLower()
{
    return MapCase(gToLowerAscii, gToLowerWide);
}

CStringU& CStringU::MakeUpper()
{
    return MapCase(gToUpperAscii, gToUpperWide);
}
