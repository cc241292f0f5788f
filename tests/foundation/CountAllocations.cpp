#include "foundation/CountAllocations.h"

#include <cstdlib>
#include <new>

namespace
{

std::size_t gnCount = 0;

void* Allocate(std::size_t nSize) noexcept
{
    ++gnCount;
    return std::malloc(nSize != 0 ? nSize : 1);
}

void* AllocateOrThrow(std::size_t nSize)
{
    void* const pBlock = Allocate(nSize);
    if (pBlock == nullptr) {
        throw std::bad_alloc();
    }
    return pBlock;
}

} // namespace

std::size_t gCountAllocations() noexcept
{
    return gnCount;
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
    std::free(pBlock);
}

void operator delete[](void* pBlock) noexcept
{
    std::free(pBlock);
}

void operator delete(void* pBlock, std::size_t /*nSize*/) noexcept
{
    std::free(pBlock);
}

void operator delete[](void* pBlock, std::size_t /*nSize*/) noexcept
{
    std::free(pBlock);
}

void operator delete(void* pBlock, const std::nothrow_t& /*rTag*/) noexcept
{
    std::free(pBlock);
}

void operator delete[](void* pBlock, const std::nothrow_t& /*rTag*/) noexcept
{
    std::free(pBlock);
}
