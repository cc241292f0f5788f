#pragma once

#include <cstddef>
#include <cstring>
#include <stdexcept>

/// The place of a virtual function among those of its class, as the compiler laid it out: 0 is the
/// first. Two functions of one class tree compare by it. `pFunction`: a pointer to a virtual member
/// function. Throws std::invalid_argument when it isn't virtual.
///
/// Decodes the pointer as the Itanium C++ ABI, which g++ and clang follow, writes it: two words, of
/// which the first holds the offset in the table of virtual functions. The mark "virtual" is the
/// lowest bit of the first word, on ARM of the second one.
template <class TFunction> std::size_t gVirtualSlot(TFunction pFunction)
{
    struct TWords {
        std::ptrdiff_t nPointer;
        std::ptrdiff_t nAdjustment;
    } words{};
    static_assert(sizeof(pFunction) == sizeof(words));
    std::memcpy(&words, &pFunction, sizeof(words));
#if defined(__aarch64__) || defined(__arm__)
    const bool bVirtual = (words.nAdjustment & 1) != 0;
    const auto nOffset = static_cast<std::size_t>(words.nPointer);
#else
    const bool bVirtual = (words.nPointer & 1) != 0;
    const auto nOffset = static_cast<std::size_t>(words.nPointer - 1);
#endif
    if (!bVirtual)
        throw std::invalid_argument("the member function isn't virtual");
    return nOffset / sizeof(void*);
}
