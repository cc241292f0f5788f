#include "platform/base/IsWine.h"

#include <atomic>

namespace
{

std::atomic<bool> gbIsWine{false};

} // namespace

bool gIsWine() noexcept
{
    return gbIsWine.load(std::memory_order_relaxed);
}

void gSetIsWine(bool bIsWine) noexcept
{
    gbIsWine.store(bIsWine, std::memory_order_relaxed);
}
