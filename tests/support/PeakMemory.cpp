#include "support/PeakMemory.h"

#include "support/FailingMemory.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace
{

std::size_t gnNow = 0;
std::size_t gnPeak = 0;
CFailingMemory* gpFailing = nullptr;

void* Allocate(std::size_t nSize) noexcept
{
    void* const pBlock = std::malloc(nSize != 0 ? nSize : 1);
    gnNow += pBlock != nullptr ? malloc_usable_size(pBlock) : 0;
    gnPeak = std::max(gnPeak, gnNow);
    return pBlock;
}

void* AllocateOrThrow(std::size_t nSize)
{
    if (gpFailing != nullptr) {
        gpFailing->Count();
    }
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

CFailingMemory::CFailingMemory(int nGood, bool bOnce, EError eError) noexcept
    : mnGood(nGood), mbOnce(bOnce), meError(eError)
{
    gpFailing = this;
}

CFailingMemory::~CFailingMemory()
{
    gpFailing = nullptr;
}

void CFailingMemory::Count()
{
    if (mnGood-- > 0 || (mbOnce && mbFailed)) {
        return;
    }
    mnGood = 0;
    mbFailed = true;
    if (meError == EError::Stranger) {
        throw TStranger();
    }
    throw std::bad_alloc();
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
