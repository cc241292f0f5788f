#include "platform/base/IsWine.h"

namespace
{

bool gbIsWine = false;

} // namespace

bool gIsWine() noexcept
{
    return gbIsWine;
}

void gSetIsWine(bool bIsWine) noexcept
{
    gbIsWine = bIsWine;
}
