#pragma once

#include "platform/base/StringAOperand.h"

#include <compare>
#include <concepts>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// The platform's 8-bit string: text in the system's code page (gGetSystemCodePage). All indices,
/// lengths and counts are in bytes; only MakeLower, MakeUpper and CompareNoCase look at characters.
/// A NUL may stand inside. A std::string_view argument must not be made from a null pointer.
///
/// A text class may derive from it and reach the bytes by Bytes(). The operators at the end of the
/// class are for CStringA alone: a derived class has its own, by its own idea of equality.
class CStringA
{
public:
    /// The empty text.
    CStringA() = default;

    /// A copy of a zero-terminated text.
    /// @param pText null gives the empty text
    CStringA(const char* pText);

    /// A copy of a text.
    CStringA(std::string_view sText);

    /// Takes over a text.
    CStringA(std::string sText) noexcept;

    /// A copy of the first bytes of a text.
    /// @param pText the bytes; may be null if nLength is 0
    /// @param nLength how many, at least 0
    /// @throws CInvalidArgException for a negative length, and for null with another length than 0
    CStringA(const char* pText, int nLength);

    /// A text of one byte over and over.
    /// @param chChar the byte
    /// @param nRepeat how often; below 1 gives the empty text
    explicit CStringA(char chChar, int nRepeat = 1);

    /// The bytes, valid until the text changes.
    operator std::string_view() const noexcept { return msBytes; }

    /// The bytes with a NUL behind them, valid until the text changes.
    [[nodiscard]] const char* GetString() const noexcept { return msBytes.c_str(); }

    /// The length in bytes.
    [[nodiscard]] int GetLength() const noexcept { return static_cast<int>(msBytes.size()); }

    /// Tells whether the length is 0.
    [[nodiscard]] bool IsEmpty() const noexcept { return msBytes.empty(); }

    /// Makes the text empty.
    void Empty() noexcept { msBytes.clear(); }

    /// One byte of the text, or the NUL behind it.
    /// @param nIndex from 0 to the length
    /// @throws CInvalidArgException for any other index
    char operator[](int nIndex) const { return GetAt(nIndex); }

    /// One byte, as operator[].
    [[nodiscard]] char GetAt(int nIndex) const;

    /// Changes one byte.
    /// @param nIndex from 0 to the length less 1
    /// @param chChar the new byte
    /// @throws CInvalidArgException for any other index
    void SetAt(int nIndex, char chChar);

    /// Appends a text, which may be a part of this one.
    CStringA& operator+=(std::string_view sText);
    /// Appends a zero-terminated text; null appends nothing.
    CStringA& operator+=(const char* pText);
    /// Appends one byte.
    CStringA& operator+=(char chChar);

    /// Compares by unsigned bytes.
    /// @return -1, 0 or 1: this text is the lesser, the same, the greater
    [[nodiscard]] int Compare(std::string_view sOther) const noexcept;

    /// Compares by unsigned bytes what MakeLower makes of both texts. So letters of different case
    /// are equal by the system's code page: A to Z, and each non-ASCII character by the simple
    /// mapping of Unicode; bytes that aren't valid in the code page are compared as they are.
    /// @return -1, 0 or 1: this text is the lesser, the same, the greater
    [[nodiscard]] int CompareNoCase(std::string_view sOther) const;

    /// Finds the first such byte.
    /// @param chChar the byte
    /// @param nStart where to begin
    /// @return its index, or -1; always -1 for a start below 0 or not below the length
    [[nodiscard]] int Find(char chChar, int nStart = 0) const noexcept;

    /// Finds the first such text.
    /// @param sText the text; the empty one is found at once, behind the end too
    /// @param nStart where to begin
    /// @return its index, or -1; always -1 for a start below 0 or above the length
    [[nodiscard]] int Find(std::string_view sText, int nStart = 0) const noexcept;

    /// Finds the last such byte.
    /// @return its index, or -1
    [[nodiscard]] int ReverseFind(char chChar) const noexcept;

    /// Finds the first byte that is in a set.
    /// @return its index, or -1
    [[nodiscard]] int FindOneOf(std::string_view sSet) const noexcept;

    /// The first bytes.
    /// @param nCount how many, clamped to 0 and the length
    [[nodiscard]] CStringA Left(int nCount) const;

    /// The last bytes.
    /// @param nCount how many, clamped to 0 and the length
    [[nodiscard]] CStringA Right(int nCount) const;

    /// The text from a byte on.
    /// @param nFirst its index, clamped to 0 and the length
    [[nodiscard]] CStringA Mid(int nFirst) const;

    /// Some bytes from a byte on.
    /// @param nFirst the index of the first, clamped to 0 and the length
    /// @param nCount how many, clamped to 0 and what there is
    [[nodiscard]] CStringA Mid(int nFirst, int nCount) const;

    /// Removes leading white space: blank, tab, line feed, vertical tab, form feed, CR.
    CStringA& TrimLeft();
    /// Removes trailing white space, the same set.
    CStringA& TrimRight();
    /// Removes leading and trailing white space, the same set.
    CStringA& Trim();

    /// Removes leading bytes that are in a set.
    CStringA& TrimLeft(std::string_view sSet);
    /// Removes trailing bytes that are in a set.
    CStringA& TrimRight(std::string_view sSet);
    /// Removes leading and trailing bytes that are in a set.
    CStringA& Trim(std::string_view sSet);

    /// Replaces every such byte.
    /// @return how many were replaced; 0 if both are the same
    int Replace(char chOld, char chNew) noexcept;

    /// Replaces every such text, from the front, without looking at what was put in.
    /// @param sOld the text to go; the empty one is never found
    /// @param sNew what comes in its place, perhaps empty
    /// @return how many were replaced
    int Replace(std::string_view sOld, std::string_view sNew);

    /// Removes every such byte.
    /// @return how many were removed
    int Remove(char chChar) noexcept;

    /// Inserts one byte.
    /// @param nIndex in front of which byte, clamped to 0 and the length
    /// @param chChar the byte
    /// @return the new length
    int Insert(int nIndex, char chChar);

    /// Inserts a text, which may be a part of this one.
    /// @param nIndex in front of which byte, clamped to 0 and the length
    /// @param sText the text
    /// @return the new length
    int Insert(int nIndex, std::string_view sText);

    /// Removes some bytes.
    /// @param nIndex the first, clamped to 0 and the length
    /// @param nCount how many, clamped to 0 and what there is
    /// @return the new length
    int Delete(int nIndex, int nCount = 1);

    /// Lowers each character by the system's code page. What isn't valid in it, and a character
    /// whose small letter it doesn't have, stays. In a code page with several bytes per character
    /// the length may change.
    CStringA& MakeLower();
    /// Raises each character: the mirror of MakeLower.
    CStringA& MakeUpper();

    /// Equality of the bytes; also with what reads as 8-bit text, null as the empty one.
    template <std::same_as<CStringA> TText, CStringAOperand TOther>
    friend bool operator==(const TText& rLeft, const TOther& rRight) noexcept
    {
        return std::string_view(rLeft) == gOperandView(rRight);
    }

    /// The order of the unsigned bytes; also with what reads as 8-bit text, null as the empty one.
    template <std::same_as<CStringA> TText, CStringAOperand TOther>
    friend std::strong_ordering operator<=>(const TText& rLeft, const TOther& rRight) noexcept
    {
        return std::string_view(rLeft) <=> gOperandView(rRight);
    }

    /// This text with another or a byte behind it.
    template <std::same_as<CStringA> TText, class TOther>
    requires CStringAOperand<TOther> || std::same_as<TOther, char>
    friend TText operator+(TText sLeft, const TOther& rRight)
    {
        sLeft += gOperandView(rRight);
        return sLeft;
    }

    /// This text with another or a byte in front of it.
    template <class TOther, std::same_as<CStringA> TText>
    requires(CStringAOperand<TOther> && !std::same_as<TOther, CStringA>) ||
        std::same_as<TOther, char> friend TText operator+(const TOther& rLeft, TText sRight)
    {
        sRight.Insert(0, gOperandView(rLeft));
        return sRight;
    }

protected:
    /// The bytes, for a derived text class.
    [[nodiscard]] const std::string& Bytes() const noexcept { return msBytes; }
    /// The bytes, for a derived text class to change.
    [[nodiscard]] std::string& Bytes() noexcept { return msBytes; }

private:
    std::string msBytes;
};

/// The platform's string of an 8-bit build.
using CString = CStringA;

/// The hash of the bytes, the same as that of a std::string_view of them.
template <> struct std::hash<CStringA> {
    /// @param rsText the text
    std::size_t operator()(const CStringA& rsText) const noexcept
    {
        return std::hash<std::string_view>()(rsText);
    }
};
