#pragma once

#include "foundation/CharIterator.h"
#include "foundation/Character.h"
#include "foundation/MarkerRule.h"
#include "foundation/StringOrder.h"
#include "platform/base/StringA.h"

#include <compare>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/// What 8-bit text means that a CStringU is made from.
enum class TTextKind {
    Plain = 0,            ///< the bytes as they are
    CodePageIfNeeded = 1, ///< in the system's code page; 7-bit text isn't converted
    CodePage = 2,         ///< in the system's code page, always converted
    Utf8IfNeeded = 3,     ///< in UTF-8; 7-bit text is taken as it is
    Utf8 = 4,             ///< in UTF-8 that gets its marker even where it is 7-bit
};

/// The text type for everything that may hold a name from outside the system's code page. It stores
/// plain 7-bit text as it is, and any other text as UTF-8 whose first byte has its top bit set: the
/// lead byte of the first character or, in front of an ASCII one, the marker 0x80. So the first
/// byte tells the two forms apart, and ASCII text costs nothing.
///
/// Characters are 16-bit units; a character above U+FFFF is two of them. 16-bit text is char16_t on
/// every system, std::u16string where it is owned. Lengths and indices are in bytes behind the
/// marker unless said otherwise, and a text has at most INT_MAX of them; nothing checks that. No
/// operation fails on malformed bytes; they give some text.
///
/// What converts to a CStringU, in comparisons and concatenations too: 8-bit text by
/// TTextKind::CodePageIfNeeded (so also a CString), and 16-bit text. A literal of 7-bit characters
/// is used where it stands.
///
/// The base class sees the stored bytes, marker included: GetString, GetLength, GetAt and
/// operator[] of it are for who wants those. Its operations that would change or compare them
/// without regard to the marker are not offered.
class CStringU : public CStringA
{
public:
    /// The empty text.
    CStringU() = default;

    /// 8-bit text in the system's code page; 7-bit text isn't converted.
    /// @param pText zero-terminated; null gives the empty text
    CStringU(const char* pText);
    /// The same with a length, zeros included where nothing is converted.
    CStringU(std::string_view sText);
    /// The same with a length.
    CStringU(const std::string& rsText);
    /// The same from the platform's string.
    CStringU(const CStringA& rsText);

    /// 8-bit text of a stated meaning.
    /// @param sText the bytes. A conversion from the code page ends at the first zero
    /// @param kind how to read them
    CStringU(std::string_view sText, TTextKind kind);
    /// 8-bit text of a stated meaning.
    /// @param pText zero-terminated; null gives the empty text
    /// @param kind how to read it
    CStringU(const char* pText, TTextKind kind);

    /// 16-bit text.
    /// @param pText zero-terminated; null gives the empty text
    CStringU(const char16_t* pText);
    /// 16-bit text up to its length or its first zero.
    CStringU(std::u16string_view sText);
    /// 16-bit text up to its length or its first zero.
    CStringU(const std::u16string& rsText);
    /// One 16-bit character; zero gives the empty text.
    explicit CStringU(TCharacter character);

    /// 16-bit text whose units have their high byte first.
    /// @param sText the units as they stand in such a source; up to the length or the first zero
    [[nodiscard]] static CStringU FromWideBigEndian(std::u16string_view sText);
    /// The same of zero-terminated text; null gives the empty text.
    [[nodiscard]] static CStringU FromWideBigEndian(const char16_t* pText);

    /// Becomes what a construction from the same gives, and keeps its room where it can.
    /// @param sText the bytes, none of them of this text
    /// @param kind how to read them
    void Assign(std::string_view sText, TTextKind kind);

    /// Makes room, so that a text that grows piece by piece is never moved.
    /// @param nSize how many stored bytes it will have at least, a marker among them
    void Reserve(std::size_t nSize) { Bytes().reserve(nSize); }

    /// Appends bytes of UTF-8, perhaps cut inside a character. Text gives all of them back, also
    /// where the first one is 0x80.
    /// @param sBytes the bytes, none of them of this text
    void AppendUtf8(std::string_view sBytes);
    /// Puts bytes of UTF-8 in the place of as many, as AppendUtf8 where they go past the end.
    /// @param nFirst the first byte to go, behind the marker; past the end is the end
    /// @param sBytes the bytes, none of them of this text
    void OverwriteUtf8(std::size_t nFirst, std::string_view sBytes);
    /// Cuts the text, perhaps inside a character, or lengthens it with zeros.
    /// @param nSize the new length in bytes behind the marker
    void ResizeUtf8(std::size_t nSize);

    /// A text with its values filled in, as printf does; the result is taken as
    /// TTextKind::Utf8IfNeeded. For "%s" give the text of a CStringU by Data. Not for floating
    /// point values, whose text would depend on the locale.
    void Format(const char* pFormat, ...) __attribute__((format(printf, 2, 3)));

    /// Not there, because it would hand out the marker: see Text and Stored.
    operator std::string_view() const = delete;

    /// Tells whether the text is UTF-8: its first byte has its top bit set.
    [[nodiscard]] bool IsUtf8() const noexcept { return gIsStoredUtf8(Bytes()); }

    /// The bytes behind the marker, valid until the text changes.
    [[nodiscard]] std::string_view Text() const noexcept { return gBehindMarker(Bytes()); }
    /// The bytes behind the marker, zero-terminated, valid until the text changes.
    [[nodiscard]] const char* Data() const noexcept { return Text().data(); }
    /// The stored bytes with the marker, valid until the text changes; not for the outside world.
    [[nodiscard]] std::string_view Stored() const noexcept { return Bytes(); }

    /// The text behind the marker as a plain string.
    [[nodiscard]] CStringA ToUtf8() const;
    /// The text in a code page, without best fit; a 16-bit unit that doesn't fit becomes "?". Plain
    /// text is copied.
    /// @param nCodePage a known code page
    /// @throws CInvalidArgException for an unknown one, where something is to be converted
    [[nodiscard]] CStringA ToCodePage(unsigned nCodePage) const;
    /// The text in the system's code page.
    [[nodiscard]] CStringA ToAnsi() const;
    /// The text in 16-bit units: of plain text each byte as it is, of UTF-8 each sequence up to the
    /// first zero.
    [[nodiscard]] std::u16string ToWide() const;
    /// The text in 16-bit units with their high byte first.
    [[nodiscard]] std::u16string ToWideBigEndian() const;

    /// The length in bytes, without the marker.
    [[nodiscard]] int GetByteLength() const noexcept { return static_cast<int>(Text().size()); }
    /// The number of characters: of UTF-8 the sequences as their lead bytes state them.
    [[nodiscard]] int GetCharCount() const noexcept;

    /// The place of the first character.
    [[nodiscard]] TCharIterator begin() const noexcept { return {*this, 0}; }
    /// The place behind the last character.
    [[nodiscard]] TCharIterator end() const noexcept { return {*this, GetByteLength()}; }

    /// The first bytes. A piece of UTF-8 is plain again where it has lost all non-ASCII characters.
    /// @param nCount how many bytes, clamped to 0 and the length
    [[nodiscard]] CStringU Left(int nCount) const;
    /// The last bytes.
    /// @param nCount how many bytes, clamped to 0 and the length
    [[nodiscard]] CStringU Right(int nCount) const;
    /// The text from a byte on.
    /// @param nFirst its index, clamped to 0 and the length
    [[nodiscard]] CStringU Mid(int nFirst) const;
    /// Some bytes from a byte on.
    /// @param nFirst the index of the first, clamped to 0 and the length
    /// @param nCount how many, clamped to 0 and what there is
    [[nodiscard]] CStringU Mid(int nFirst, int nCount) const;
    /// The text from an iterator of this string to the end.
    [[nodiscard]] CStringU Mid(const TCharIterator& rFirst) const { return Mid(rFirst.GetIndex()); }

    /// Appends a text, which may be this one. A plain text that takes on UTF-8 gets the marker.
    CStringU& operator+=(const CStringU& rsText);
    /// Appends a zero-terminated text of the system's code page; null appends nothing.
    CStringU& operator+=(const char* pText);
    /// Appends one 16-bit character; zero appends nothing.
    CStringU& operator+=(char16_t chChar);
    /// Appends one character of the system's code page.
    CStringU& operator+=(char chChar);

    /// This text with another behind it.
    friend CStringU operator+(const CStringU& rsLeft, const CStringU& rsRight);
    /// This text with another behind it, in the room that it has.
    friend CStringU operator+(CStringU&& rsLeft, const CStringU& rsRight);
    /// This text with a literal behind it.
    friend CStringU operator+(const CStringU& rsLeft, const char* pRight);
    /// This text with a literal behind it, in the room that it has.
    friend CStringU operator+(CStringU&& rsLeft, const char* pRight);
    /// This text with a literal in front of it.
    friend CStringU operator+(const char* pLeft, const CStringU& rsRight);

    /// Equality of the stored bytes, which is that of the texts by the rule of the marker.
    friend bool operator==(const CStringU& rsLeft, const CStringU& rsRight) noexcept
    {
        return rsLeft.Stored() == rsRight.Stored();
    }
    /// Equality with a literal.
    friend bool operator==(const CStringU& rsLeft, const char* pRight);
    /// The fast total order of gCompareStored, which goes by length first.
    friend std::strong_ordering operator<=>(const CStringU& rsLeft,
                                            const CStringU& rsRight) noexcept
    {
        return gCompareStored(rsLeft.Stored(), rsRight.Stored());
    }
    /// The order with a literal.
    friend std::strong_ordering operator<=>(const CStringU& rsLeft, const char* pRight);

    /// Compares without regard to case; see the function CompareNoCase.
    [[nodiscard]] int CompareNoCase(const CStringU& rsOther) const noexcept;
    /// Tells whether the text begins with another, byte for byte.
    [[nodiscard]] bool StartsWith(const CStringU& rsText) const noexcept;
    /// Tells whether the text begins with a literal.
    [[nodiscard]] bool StartsWith(const char* pText) const;
    /// Tells whether the text ends with another, byte for byte.
    [[nodiscard]] bool EndsWith(const CStringU& rsText) const noexcept;
    /// Tells whether the text ends with a literal.
    [[nodiscard]] bool EndsWith(const char* pText) const;

    /// Lowers each character by the simple mapping of Unicode, of a plain text A to Z only.
    CStringU& MakeLower();
    /// Raises each character: the mirror of MakeLower.
    CStringU& MakeUpper();

    /// Finds the first such character.
    /// @return its place, or the end
    [[nodiscard]] TCharIterator Find(TCharacter character) const noexcept;
    /// Finds the first character that is the same when both are lowered.
    /// @return its place, or the end
    [[nodiscard]] TCharIterator FindNoCase(TCharacter character) const noexcept;
    /// Finds the first such text.
    /// @param rsText the text; the empty one is found at once
    /// @return its byte index behind the marker, or -1
    [[nodiscard]] int Find(const CStringU& rsText) const noexcept;
    /// The same for a literal.
    [[nodiscard]] int Find(const char* pText) const;
    /// Finds the last such text.
    /// @param rsText the text; the empty one is found at the end
    /// @return its byte index behind the marker, or -1
    [[nodiscard]] int ReverseFind(const CStringU& rsText) const noexcept;
    /// The same for a literal.
    [[nodiscard]] int ReverseFind(const char* pText) const;
    /// Finds the first character that is in a set.
    /// @return its place, or the end
    [[nodiscard]] TCharIterator FindOneOf(const CStringU& rsSet) const noexcept;
    /// Finds the last character that is in a set.
    /// @return its place, or the end
    [[nodiscard]] TCharIterator FindLastOf(const CStringU& rsSet) const noexcept;

    /// Replaces every such character.
    /// @return how many there were; 0 if one of the two is zero, and in a plain text if the new one
    ///         is ASCII and the old one isn't
    int Replace(TCharacter oldOne, TCharacter newOne);
    /// Replaces every character that is the same when both are lowered.
    /// @return as Replace
    int ReplaceNoCase(TCharacter oldOne, TCharacter newOne);

    /// Removes leading white space, as gIsWhiteSpace has it.
    CStringU& TrimLeft();
    /// Removes trailing white space, as gIsWhiteSpace has it.
    CStringU& TrimRight();
    /// Removes leading and trailing white space.
    CStringU& Trim();

    /// Removes the first and the last character if both are quotes, as gIsQuote has it.
    CStringU& StripQuotes();
    /// Puts a double quotation mark at each end, unless the text begins and ends with a quote.
    CStringU& AddQuotes();

private:
    struct TStored; // tells the constructor that takes stored bytes from the others
    CStringU(std::string sStored, const TStored& rTag) noexcept;

    [[nodiscard]] static CStringU Joined(std::string_view sLeft, std::string_view sRight);
    [[nodiscard]] CStringU Piece(std::size_t nFirst, std::size_t nCount) const;
    int ReplaceIn(char16_t chOld, char16_t chNew, char16_t (*pFold)(char16_t) noexcept);
    CStringU& MapCase(char (*pMapAscii)(char) noexcept, char16_t (*pMapUnit)(char16_t) noexcept);

    // They know nothing of the marker:
    using CStringA::Compare;
    using CStringA::Delete;
    using CStringA::Insert;
    using CStringA::Remove;
    using CStringA::SetAt;
};

/// Compares without regard to case: A to Z and, from 0x80 on, each 16-bit character by the simple
/// mapping of Unicode; by length, zeros included. Any bytes have their place in one order: it is
/// that of the characters that each text gives when it is decoded from its beginning.
/// @return below 0, 0, above 0: the left text is the lesser, the same, the greater. The size means
///         nothing
[[nodiscard]] int CompareNoCase(const CStringU& rsLeft, const CStringU& rsRight) noexcept;

/// The order without regard to case, for maps whose key is a CStringU.
struct TStringLessNoCase {
    /// Tells whether the left text is the lesser by CompareNoCase.
    bool operator()(const CStringU& rsLeft, const CStringU& rsRight) const noexcept
    {
        return CompareNoCase(rsLeft, rsRight) < 0;
    }
};

/// The hash of the stored bytes.
template <> struct std::hash<CStringU> {
    /// @param rsText the text
    std::size_t operator()(const CStringU& rsText) const noexcept
    {
        return std::hash<std::string_view>()(rsText.Stored());
    }
};
