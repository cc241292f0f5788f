#pragma once

#include <cstddef>

class CStringA;

/// A place between two characters of a CStringU: a reference to the string and a byte index behind
/// its marker, from 0 to GetByteLength, which is the end. It follows the string: when that gets
/// shorter, an index past its end reads as the end. The string must live as long as the iterator.
class TCharIterator
{
public:
    /// @param rText the CStringU, by its stored bytes, which are referred to and not copied
    /// @param nIndex in bytes behind the marker; below 0 is the beginning, past the end is the end
    TCharIterator(const CStringA& rText, int nIndex) noexcept;

    /// The 16-bit character here, or 0 at the end. In a text that isn't UTF-8 it is the byte.
    [[nodiscard]] char16_t operator*() const noexcept;

    /// One character on; stays at the end.
    TCharIterator& operator++() noexcept;
    /// One character back; stays at the beginning.
    TCharIterator& operator--() noexcept;

    /// Moves by characters, stopping at either end.
    /// @param nCount how many; below 0 moves back
    TCharIterator& operator+=(int nCount) noexcept;
    /// Moves back by characters: += with the sign changed.
    TCharIterator& operator-=(int nCount) noexcept;

    /// A moved copy.
    friend TCharIterator operator+(TCharIterator iterator, int nCount) noexcept
    {
        return iterator += nCount;
    }
    /// A copy moved back.
    friend TCharIterator operator-(TCharIterator iterator, int nCount) noexcept
    {
        return iterator -= nCount;
    }

    /// The byte index behind the marker, at most GetByteLength.
    [[nodiscard]] int GetIndex() const noexcept;

    /// Tells whether this is the end.
    [[nodiscard]] bool IsEnd() const noexcept;

    /// The same place; of use only for iterators of one string.
    friend bool operator==(const TCharIterator& rLeft, const TCharIterator& rRight) noexcept
    {
        return rLeft.GetIndex() == rRight.GetIndex();
    }

private:
    const CStringA* mpText;
    std::size_t mnIndex;
};
