// What a CStringU stores: constructions, the marker rule, pieces and concatenation.

#include "foundation/StringU.h"
#include "platform/base/CodePageScope.h"
#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <unordered_set>

namespace
{

using namespace std::string_view_literals;

TEST(StringUStoreTest, SixteenBitTextFollowsTheMarkerRule)
{
    struct Case {
        std::string_view sName;
        std::u16string_view sText;
        std::string_view sStored;
        int nBytes;
        int nChars;
    };
    const Case cases[] = {
        {"empty", u"", "", 0, 0},
        {"ASCII is stored as it is", u"abc", "abc", 3, 3},
        {"ASCII first: marked", u"a\u00e9", "\x80\x61\xC3\xA9", 3, 2},
        {"non-ASCII first: no marker",
         u"\u00e9"
         u"a",
         "\xC3\xA9\x61", 3, 2},
        {"a high character goes in as two sequences", u"\U0001F600", "\xED\xA0\xBD\xED\xB8\x80", 6,
         2},
        {"up to the first zero", u"a\0\u00e9"sv, "a", 1, 1},
        {"0x7F is ASCII", u"\u007f", "\x7F", 1, 1},
        {"0x80 isn't", u"\u0080", "\xC2\x80", 2, 1},
        {"the last of two bytes", u"\u07ff", "\xDF\xBF", 2, 1},
        {"the first of three bytes", u"\u0800", "\xE0\xA0\x80", 3, 1},
    };
    for (const Case& rCase : cases) {
        const CStringU sText(rCase.sText);
        EXPECT_EQ(sText.Stored(), rCase.sStored) << rCase.sName;
        EXPECT_EQ(sText.GetByteLength(), rCase.nBytes) << rCase.sName;
        EXPECT_EQ(sText.GetCharCount(), rCase.nChars) << rCase.sName;
        EXPECT_EQ(sText.ToWide(), rCase.sText.substr(0, rCase.sText.find(u'\0'))) << rCase.sName;
    }
}

TEST(StringUStoreTest, EightBitTextIsReadByItsKind)
{
    struct Case {
        std::string_view sName;
        TTextKind kind;
        std::string_view sText;
        std::string_view sStored;
    };
    const Case cases[] = {
        {"plain", TTextKind::Plain, "abc", "abc"},
        {"plain keeps high bytes", TTextKind::Plain, "a\xE9", "a\xE9"},
        {"plain keeps zeros", TTextKind::Plain, "a\0b"sv, "a\0b"sv},
        {"code page if needed, not needed", TTextKind::CodePageIfNeeded, "a\0b"sv, "a\0b"sv},
        {"code page if needed, needed", TTextKind::CodePageIfNeeded, "a\xE9", "\x80\x61\xC3\xA9"},
        {"code page if needed, cut at the zero", TTextKind::CodePageIfNeeded, "a\0\xE9"sv, "a"},
        {"code page, 7-bit", TTextKind::CodePage, "abc", "abc"},
        {"code page, cut at the zero", TTextKind::CodePage, "a\0b"sv, "a"},
        {"code page", TTextKind::CodePage, "\x80", "\xE2\x82\xAC"},
        {"UTF-8 if needed, not needed", TTextKind::Utf8IfNeeded, "abc", "abc"},
        {"UTF-8 if needed, ASCII first", TTextKind::Utf8IfNeeded, "a\xC3\xA9", "\x80\x61\xC3\xA9"},
        {"UTF-8 if needed, lead first", TTextKind::Utf8IfNeeded, "\xC3\xA9\x61", "\xC3\xA9\x61"},
        {"UTF-8 if needed, marked already", TTextKind::Utf8IfNeeded, "\x80\xC3\xA9",
         "\x80\xC3\xA9"},
        {"UTF-8 marks 7-bit text", TTextKind::Utf8, "abc",
         "\x80"
         "abc"},
        {"UTF-8, lead first", TTextKind::Utf8, "\xC3\xA9", "\xC3\xA9"},
        {"UTF-8, zero first", TTextKind::Utf8, "\0\xC3\xA9"sv, "\0\xC3\xA9"sv},
        {"UTF-8, 0x7F first", TTextKind::Utf8, "\x7F", "\x80\x7F"},
        {"UTF-8, empty", TTextKind::Utf8, "", ""},
    };
    const CCodePageScope scope(1252);
    for (const Case& rCase : cases) {
        EXPECT_EQ(CStringU(rCase.sText, rCase.kind).Stored(), rCase.sStored) << rCase.sName;
    }
    EXPECT_EQ(CStringU("a\xC3\xA9", TTextKind::Utf8).Stored(), "\x80\x61\xC3\xA9");
}

TEST(StringUStoreTest, ALiteralIsReadInTheSystemsCodePage)
{
    {
        const CCodePageScope scope(1252);
        EXPECT_EQ(CStringU("a\xE9").Stored(), "\x80\x61\xC3\xA9");
        EXPECT_EQ(CStringU(CString("a\xE9")).Stored(), "\x80\x61\xC3\xA9");
        EXPECT_EQ(CStringU(std::string("a\xE9")).Stored(), "\x80\x61\xC3\xA9");
        EXPECT_EQ(CStringU(u"a\u00e9"), "a\xE9");
        EXPECT_EQ("a\xE9", CStringU(u"a\u00e9"));
        EXPECT_EQ(CString("a\xE9"), CStringU(u"a\u00e9"));
        EXPECT_EQ("a\xE9" + CStringU("b"), u"a\u00e9"
                                           u"b");
    }
    EXPECT_EQ(CStringU("a\xC3\xA9"), u"a\u00e9");
    EXPECT_EQ(CStringU("\xF0\x9F\x98\x80").Stored(), "\xED\xA0\xBD\xED\xB8\x80");
    EXPECT_EQ(CStringU("\xE9").Stored(), "\xEF\xBF\xBD"); // one ill-formed part
}

TEST(StringUStoreTest, SevenBitLiteralsAreNeverConverted)
{
    // The bytes are a character of this code page, but only from a high byte on.
    const CCodePageScope scope(932);
    for (int nByte = 1; nByte < 128; ++nByte) {
        const std::string sByte(1, static_cast<char>(nByte));
        EXPECT_EQ(CStringU(sByte).Stored(), sByte);
    }
}

TEST(StringUStoreTest, NullAndZeroAreTheEmptyText)
{
    EXPECT_EQ(CStringU(static_cast<const char*>(nullptr)).Stored(), "");
    EXPECT_EQ(CStringU(static_cast<const char*>(nullptr), TTextKind::Utf8).Stored(), "");
    EXPECT_EQ(CStringU(static_cast<const char16_t*>(nullptr)).Stored(), "");
    EXPECT_EQ(CStringU(u'\0').Stored(), "");
    EXPECT_EQ(CStringU(u"a\u00e9").Stored(), "\x80\x61\xC3\xA9");
    EXPECT_EQ(CStringU(std::u16string(u"b")).Stored(), "b");
}

TEST(StringUStoreTest, OneCharacter)
{
    EXPECT_EQ(CStringU(u'a').Stored(), "a");
    EXPECT_EQ(CStringU(u'\u00e9').Stored(), "\xC3\xA9");
    EXPECT_EQ(CStringU(static_cast<char16_t>(0xD83D)).Stored(), "\xED\xA0\xBD");
}

TEST(StringUStoreTest, BigEndianUnitsAreSwappedInACopy)
{
    const std::u16string sSource = u"\u6100\uE900";
    EXPECT_EQ(CStringU::FromWideBigEndian(sSource), u"a\u00e9");
    EXPECT_EQ(sSource, u"\u6100\uE900");
    EXPECT_EQ(CStringU::FromWideBigEndian(u""), "");
    EXPECT_EQ(CStringU::FromWideBigEndian(nullptr), "");
    EXPECT_EQ(CStringU::FromWideBigEndian(std::u16string_view(sSource).substr(1)), u"\u00e9");
    EXPECT_EQ(CStringU(u"a\u00e9").ToWideBigEndian(), sSource);
    EXPECT_EQ(CStringU("a").ToWideBigEndian(), u"\u6100");
}

TEST(StringUStoreTest, GivesOut)
{
    const CStringU sText(u"a\u00e9\u20ac");
    EXPECT_STREQ(sText.Data(), "a\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(sText.ToUtf8(), "a\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(sText.ToAnsi(), "a\xC3\xA9\xE2\x82\xAC");
    EXPECT_EQ(sText.ToCodePage(1252), "a\xE9\x80");
    EXPECT_EQ(sText.ToCodePage(1251), "a?\x88");
    const CCodePageScope scope(1252);
    EXPECT_EQ(sText.ToAnsi(), "a\xE9\x80");
    EXPECT_EQ(CStringU(u"\U0001F600").ToAnsi(), "??"); // one per unit
    EXPECT_EQ(CStringU(u"\u0100").ToAnsi(), "?");      // no best fit
}

TEST(StringUStoreTest, PlainTextGoesOutAsItIs)
{
    const CStringU sText("a\xE9", TTextKind::Plain);
    EXPECT_EQ(sText.ToCodePage(1252), "a\xE9");
    EXPECT_EQ(sText.ToCodePage(4711), "a\xE9"); // nothing to convert, so the code page isn't asked
    EXPECT_EQ(sText.ToWide(), u"a\u00e9");      // high bytes widen unsigned
    EXPECT_EQ(CStringU("abc", TTextKind::Utf8).ToCodePage(4711), "abc");
    EXPECT_EQ(CStringU("a\0b"sv, TTextKind::Plain).ToWide(), u"a\0b"sv);
    EXPECT_EQ(CStringU("\xC3\xA9\0b"sv, TTextKind::Plain).ToWide(), u"\u00e9");
}

TEST(StringUStoreTest, CharCountGoesByLeadBytes)
{
    struct Case {
        std::string_view sText;
        int nChars;
    };
    const Case cases[] = {
        {"\xC3\xA9z", 2}, {"\xE2\x82\xAC", 1}, {"\xF0\x9F\x98\x80", 1}, {"\xF8\xF8z", 3},
        {"\xC3", 1},      {"\xE2z", 1},        {"\x81\x81\x81", 2},     {"\xC3\xA9\0z"sv, 3},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(CStringU(rCase.sText, TTextKind::Plain).GetCharCount(), rCase.nChars)
            << testing::PrintToString(rCase.sText);
    }
}

TEST(StringUStoreTest, PiecesFollowTheMarkerRule)
{
    const CStringU sText(u"a\u00e9"
                         u"bc");
    EXPECT_EQ(sText.Left(1).Stored(), "a");
    EXPECT_EQ(sText.Left(3).Stored(), "\x80\x61\xC3\xA9");
    EXPECT_EQ(sText.Left(2).Stored(), "\x80\x61\xC3"); // by bytes, so also inside a character
    EXPECT_EQ(sText.Left(0).Stored(), "");
    EXPECT_EQ(sText.Left(-1).Stored(), "");
    EXPECT_EQ(sText.Left(99), sText);
    EXPECT_EQ(sText.Right(1).Stored(), "c");
    EXPECT_EQ(sText.Right(4).Stored(), "\xC3\xA9"
                                       "bc");
    EXPECT_EQ(sText.Right(99), sText);
    EXPECT_EQ(sText.Mid(1).Stored(), "\xC3\xA9"
                                     "bc");
    EXPECT_EQ(sText.Mid(3).Stored(), "bc");
    EXPECT_EQ(sText.Mid(9).Stored(), "");
    EXPECT_EQ(sText.Mid(1, 2).Stored(), "\xC3\xA9");
    EXPECT_EQ(sText.Mid(sText.Find(u'b')).Stored(), "bc");
    EXPECT_EQ(sText.Mid(sText.end()).Stored(), "");
    EXPECT_EQ(CStringU("abc").Left(2).Stored(), "ab");
    EXPECT_EQ(CStringU("abc", TTextKind::Utf8).Left(2).Stored(), "ab");
}

TEST(StringUStoreTest, ConcatenationKeepsTheMarkerInFront)
{
    const CStringU sMarked(u"a\u00e9");
    const CStringU sLead(u"\u00e9");
    EXPECT_EQ((sMarked + "z").Stored(), "\x80\x61\xC3\xA9z");
    EXPECT_EQ(("z" + sLead).Stored(), "\x80z\xC3\xA9");
    EXPECT_EQ((sLead + "z").Stored(), "\xC3\xA9z");
    EXPECT_EQ(("z" + sMarked).Stored(), "\x80z\x61\xC3\xA9");
    EXPECT_EQ((sMarked + sMarked).Stored(), "\x80\x61\xC3\xA9\x61\xC3\xA9");
    EXPECT_EQ((CStringU() + sMarked).Stored(), sMarked.Stored());
    EXPECT_EQ((CStringU() + sLead).Stored(), sLead.Stored());
    EXPECT_EQ((CStringU("a") + "b").Stored(), "ab");
    CStringU sSelf(u"a\u00e9");
    sSelf += sSelf;
    EXPECT_EQ(sSelf.Stored(), "\x80\x61\xC3\xA9\x61\xC3\xA9");
    CStringU sChars;
    sChars += 'a';
    sChars += u'b';
    sChars += u'\u00e9';
    sChars += u'\0';
    EXPECT_EQ(sChars.Stored(), "\x80"
                               "ab\xC3\xA9");
    sChars += "\xC3\xA9z"; // in the system's code page, UTF-8
    EXPECT_EQ(sChars.ToWide(), u"ab\u00e9\u00e9z");
}

TEST(StringUStoreTest, FormatTakesTheTextBehindTheMarker)
{
    CStringU sText;
    sText.Format("%s=%d", CStringU(u"a\u00e9").Data(), -5);
    EXPECT_EQ(sText.Stored(), "\x80\x61\xC3\xA9=-5");
    sText.Format("%s", "abc");
    EXPECT_EQ(sText.Stored(), "abc");
    sText.Format("[%s]", std::string(5000, 'x').c_str());
    EXPECT_EQ(sText.GetByteLength(), 5002);
    sText.Format("%s", "");
    EXPECT_EQ(sText.Stored(), "");
    const CCodePageScope scope(1252); // which the result isn't read in
    sText.Format("%s", CStringU(u"a\u20ac\U0001F600").Data());
    EXPECT_EQ(sText.ToWide(), u"a\u20ac\U0001F600");
}

TEST(StringUStoreTest, AssignIsConstructionInPlace)
{
    const CCodePageScope scope(1252);
    for (const std::string_view sBytes : {"abc"sv, "a\xE9"sv, "\xC3\xA9"sv, ""sv, "a\0\xE9"sv}) {
        for (int nKind = 0; nKind < 5; ++nKind) {
            CStringU sText(u"old \u20ac");
            sText.Assign(sBytes, static_cast<TTextKind>(nKind));
            EXPECT_EQ(sText, CStringU(sBytes, static_cast<TTextKind>(nKind))) << nKind;
        }
    }
}

TEST(StringUStoreTest, AppendedUtf8MayBeCutInsideACharacter)
{
    CStringU sText("a");
    sText.AppendUtf8("\xC4");
    EXPECT_EQ(sText.Stored(), "\x80"
                              "a\xC4");
    sText.AppendUtf8("\x80z"); // the second half, and no marker
    EXPECT_EQ(sText, u"a\u0100z");
    CStringU sEmpty;
    sEmpty.AppendUtf8("");
    sEmpty.AppendUtf8("\xC3\xA9");
    EXPECT_EQ(sEmpty.Stored(), "\xC3\xA9");
    CStringU sStray;
    sStray.AppendUtf8("\x80z"); // a byte of its own, and no marker either
    EXPECT_EQ(sStray.Stored(), "\x80\x80z");
}

TEST(StringUStoreTest, BytesOfAFileComeBackAndAreStoredInOneWay)
{
    for (const std::string_view sBytes :
         {"abc"sv, "a\xC3\xA9"sv, "\xC3\xA9"sv, "\x80"sv, "\x80\x80z"sv, "\0\xC3\xA9"sv, ""sv}) {
        CStringU sAtOnce, sByByte, sOverwritten("xyz"), sResized(sBytes, TTextKind::Plain);
        sAtOnce.AppendUtf8(sBytes);
        for (const char chByte : sBytes)
            sByByte.AppendUtf8({&chByte, 1});
        sOverwritten.ResizeUtf8(sBytes.size());
        sOverwritten.OverwriteUtf8(0, sBytes);
        sResized.Empty();
        sResized.OverwriteUtf8(99, sBytes); // the end, wherever it is
        EXPECT_EQ(sAtOnce.Text(), sBytes);
        EXPECT_EQ(sByByte, sAtOnce);
        EXPECT_EQ(sOverwritten, sAtOnce);
        EXPECT_EQ(sResized, sAtOnce);
        const bool bGuarded = sBytes.starts_with('\x80');
        EXPECT_EQ(CStringU(sBytes, TTextKind::Utf8IfNeeded) == sAtOnce, !bGuarded);
    }
}

TEST(StringUStoreTest, OverwritingMovesTheMarkerWithTheText)
{
    CStringU sText(u"a\u00e9b");
    sText.OverwriteUtf8(1, "xy");
    EXPECT_EQ(sText.Stored(), "axyb");
    sText.OverwriteUtf8(0, "\xC3\xA9");
    EXPECT_EQ(sText.Stored(), "\xC3\xA9yb");
    sText.OverwriteUtf8(0, "z");
    EXPECT_EQ(sText.Stored(), "\x80z\xA9yb");
    sText.ResizeUtf8(1);
    EXPECT_EQ(sText.Stored(), "z");
    sText.ResizeUtf8(3);
    EXPECT_EQ(sText.Stored(), "z\0\0"sv);
}

TEST(StringUStoreTest, EqualTextsHaveOneHash)
{
    std::unordered_set<CStringU> texts{CStringU(u"a\u00e9"), CStringU("abc")};
    EXPECT_TRUE(texts.contains("a\xC3\xA9"));
    EXPECT_TRUE(texts.contains("abc"));
    EXPECT_FALSE(texts.contains("ab"));
}

TEST(StringUStoreTest, TheBaseSeesTheStoredBytes)
{
    const CStringU sText(u"a\u00e9");
    const CString& rsBase = sText;
    EXPECT_EQ(rsBase.GetLength(), 4);
    EXPECT_EQ(std::string_view(rsBase), "\x80\x61\xC3\xA9");
}

} // namespace
