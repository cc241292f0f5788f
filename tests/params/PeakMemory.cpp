#include "params/PeakMemory.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace
{

std::size_t gnNow = 0;
std::size_t gnPeak = 0;

void* Allocate(std::size_t nSize) noexcept
{
    void* const pBlock = std::malloc(nSize != 0 ? nSize : 1);
    gnNow += pBlock != nullptr ? malloc_usable_size(pBlock) : 0;
    gnPeak = std::max(gnPeak, gnNow);
    return pBlock;
}

void* AllocateOrThrow(std::size_t nSize)
{
    void* const pBlock = Allocate(nSize);
    if (pBlock == nullptr) {
        throw std::bad_alloc();
    }
    return pBlock;
}

void Free(void* pBlock) noexcept
{
    gnNow -= pBlock != nullptr ? malloc_usable_size(pBlock) : 0;
    std::free(pBlock);
}

} // namespace

CPeakMemory::CPeakMemory() noexcept : mnBefore(gnNow)
{
    gnPeak = gnNow;
}

std::size_t CPeakMemory::GetPeak() const noexcept
{
    return gnPeak - mnBefore;
}

std::size_t CPeakMemory::GetNow() const noexcept
{
    return gnNow - mnBefore;
}

// In the place of the library's, for all of the program. Each form that allocates by malloc has its
// counterpart here, so that no block goes back another way than it came.

void* operator new(std::size_t nSize)
{
    return AllocateOrThrow(nSize);
}

void* operator new[](std::size_t nSize)
{
    return AllocateOrThrow(nSize);
}

void* operator new(std::size_t nSize, const std::nothrow_t& /*rTag*/) noexcept
{
    return Allocate(nSize);
}

void* operator new[](std::size_t nSize, const std::nothrow_t& /*rTag*/) noexcept
{
    return Allocate(nSize);
}

void operator delete(void* pBlock) noexcept
{
    Free(pBlock);
}

void operator delete[](void* pBlock) noexcept
{
    Free(pBlock);
}

void operator delete(void* pBlock, std::size_t /*nSize*/) noexcept
{
    Free(pBlock);
}

void operator delete[](void* pBlock, std::size_t /*nSize*/) noexcept
{
    Free(pBlock);
}

void operator delete(void* pBlock, const std::nothrow_t& /*rTag*/) noexcept
{
    Free(pBlock);
}

void operator delete[](void* pBlock, const std::nothrow_t& /*rTag*/) noexcept
{
    Free(pBlock);
}
