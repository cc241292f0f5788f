#include "platform/base/StringA.h"

#include "CodePageScope.h"
#include "platform/base/Exceptions.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

namespace
{

using namespace std::string_view_literals;

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(StringATest, IsMadeFromEveryKindOfText)
{
    const char* const pNull = nullptr;
    struct Case {
        CString sMade;
        std::string_view sExpected;
    };
    const Case cases[] = {
        {CString(), ""},
        {CString("abc"), "abc"},
        {CString(pNull), ""},
        {CString(nullptr), ""},
        {CString("a\0b"sv), "a\0b"sv},
        {CString(std::string("abc")), "abc"},
        {CString("abcdef", 3), "abc"},
        {CString("a\0b", 3), "a\0b"sv},
        {CString("abc", 0), ""},
        {CString(nullptr, 0), ""},
        {CString('x'), "x"},
        {CString('y', 3), "yyy"},
        {CString('x', 0), ""},
        {CString('x', -1), ""},
        {CString('\0'), "\0"sv},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(std::string_view(rCase.sMade), rCase.sExpected);
        EXPECT_EQ(rCase.sMade.GetLength(), static_cast<int>(rCase.sExpected.size()));
        EXPECT_EQ(rCase.sMade.IsEmpty(), rCase.sExpected.empty());
        EXPECT_EQ(rCase.sMade.GetString()[rCase.sMade.GetLength()], '\0');
    }
    EXPECT_THROW(CString("abc", -1), CInvalidArgException);
    EXPECT_THROW(CString(nullptr, 1), CInvalidArgException);
}

TEST(StringATest, IsAssignedFromEveryKindOfText)
{
    CString sText;
    sText = "literal";
    EXPECT_EQ(sText, "literal");
    sText = std::string("string");
    EXPECT_EQ(sText, "string");
    sText = "view"sv;
    EXPECT_EQ(sText, "view");
    sText = CString("other");
    EXPECT_EQ(sText, "other");
    sText = static_cast<const char*>(nullptr);
    EXPECT_TRUE(sText.IsEmpty());
}

TEST(StringATest, EmptyMakesItEmpty)
{
    CString sText("abc");
    sText.Empty();
    EXPECT_TRUE(sText.IsEmpty());
    EXPECT_EQ(sText.GetLength(), 0);
    EXPECT_STREQ(sText.GetString(), "");
}

TEST(StringATest, IndexReadsUpToTheNulAndThrowsBeyond)
{
    const CString sText("ab");
    EXPECT_EQ(sText[0], 'a');
    EXPECT_EQ(sText[1], 'b');
    EXPECT_EQ(sText[2], '\0');
    EXPECT_EQ(sText.GetAt(2), '\0');
    EXPECT_EQ(CString()[0], '\0');
    for (const int nIndex : {3, -1, kMost, kLeast}) {
        EXPECT_THROW(static_cast<void>(sText[nIndex]), CInvalidArgException) << nIndex;
        EXPECT_THROW(static_cast<void>(sText.GetAt(nIndex)), CInvalidArgException) << nIndex;
    }
}

TEST(StringATest, SetAtChangesOneByteButNotTheNul)
{
    CString sText("abc");
    sText.SetAt(0, 'x');
    sText.SetAt(2, '\0');
    EXPECT_EQ(sText, "xb\0"sv);
    for (const int nIndex : {3, -1, kMost, kLeast}) {
        EXPECT_THROW(sText.SetAt(nIndex, 'y'), CInvalidArgException) << nIndex;
    }
    EXPECT_EQ(sText, "xb\0"sv);
}

TEST(StringATest, AppendsEveryKindOfText)
{
    CString sText;
    sText += "a";
    sText += 'b';
    sText += CString("c");
    sText += "d"sv;
    sText += std::string("e");
    sText += static_cast<const char*>(nullptr);
    EXPECT_EQ(sText, "abcde");
    sText += sText;
    EXPECT_EQ(sText, "abcdeabcde");
    sText += std::string_view(sText).substr(3, 2);
    EXPECT_EQ(sText, "abcdeabcdede");
    (sText += 'x') += "y";
    EXPECT_EQ(sText, "abcdeabcdedexy");
}

TEST(StringATest, JoinsEveryKindOfText)
{
    const CString sText("T");
    const char* const pNull = nullptr;
    EXPECT_EQ(sText + sText, "TT");
    EXPECT_EQ(sText + "a", "Ta");
    EXPECT_EQ("a" + sText, "aT");
    EXPECT_EQ(sText + 'a', "Ta");
    EXPECT_EQ('a' + sText, "aT");
    EXPECT_EQ(sText + "a"sv, "Ta");
    EXPECT_EQ("a"sv + sText, "aT");
    EXPECT_EQ(sText + std::string("a"), "Ta");
    EXPECT_EQ(std::string("a") + sText, "aT");
    EXPECT_EQ(sText + pNull, "T");
    EXPECT_EQ(pNull + sText, "T");
    EXPECT_EQ("(" + sText + ',' + sText + ")" + CString(), "(T,T)");
    EXPECT_EQ(sText, "T");
}

TEST(StringATest, ComparesByUnsignedBytes)
{
    struct Case {
        std::string_view sLeft;
        std::string_view sRight;
        int nResult;
    };
    const Case cases[] = {
        {"", "", 0},       {"", "a", -1},     {"a", "a", 0},        {"a", "b", -1},
        {"a", "ab", -1},   {"B", "a", -1},    {"a", "\xE9", -1},    {"a\0a"sv, "a\0b"sv, -1},
        {"a\0"sv, "a", 1}, {"Z", "\x7F", -1}, {"\x80", "\xFF", -1}, {"abc", "abd", -1},
    };
    for (const Case& rCase : cases) {
        const CString sLeft(rCase.sLeft);
        const CString sRight(rCase.sRight);
        EXPECT_EQ(sLeft.Compare(sRight), rCase.nResult);
        EXPECT_EQ(sRight.Compare(sLeft), -rCase.nResult);
        EXPECT_EQ(sLeft == sRight, rCase.nResult == 0);
        EXPECT_EQ(sLeft != sRight, rCase.nResult != 0);
        EXPECT_EQ(sLeft < sRight, rCase.nResult < 0);
        EXPECT_EQ(sLeft > sRight, rCase.nResult > 0);
        EXPECT_EQ(sLeft < rCase.sRight, rCase.nResult < 0);
        EXPECT_EQ(rCase.sLeft < sRight, rCase.nResult < 0);
    }
}

TEST(StringATest, EqualsEveryKindOfText)
{
    const CString sText("abc");
    const char* const pNull = nullptr;
    EXPECT_TRUE(sText == "abc");
    EXPECT_TRUE("abc" == sText);
    EXPECT_TRUE(sText == "abc"sv);
    EXPECT_TRUE("abc"sv == sText);
    EXPECT_TRUE(sText == std::string("abc"));
    EXPECT_TRUE(std::string("abc") == sText);
    EXPECT_TRUE(sText != "ABC");
    EXPECT_TRUE("ab" != sText);
    EXPECT_TRUE(sText < "abd");
    EXPECT_TRUE("abb" < sText);
    EXPECT_TRUE(sText >= std::string("abc"));
    EXPECT_TRUE(CString() == pNull);
    EXPECT_TRUE(CString() == nullptr);
    EXPECT_FALSE(sText == pNull);
}

TEST(StringATest, HashIsThatOfTheBytes)
{
    for (const std::string_view sText : {""sv, "abc"sv, "a\0b"sv, "\xFF"sv}) {
        EXPECT_EQ(std::hash<CString>()(CString(sText)), std::hash<std::string_view>()(sText));
    }
}

TEST(StringATest, CompareNoCaseFoldsByTheSystemCodePage)
{
    struct Case {
        unsigned nCodePage;
        std::string_view sLeft;
        std::string_view sRight;
        int nResult;
    };
    const Case cases[] = {
        {65001, "", "", 0},
        {65001, "", "a", -1},
        {65001, "ABC", "abc", 0},
        {65001, "ABC", "abd", -1},
        {65001, "abcd", "ABC", 1},
        {65001, "[", "a", -1},
        {65001, "Z", "_", 1}, // by the small letters: z is above the underscore
        {65001, "a\xC3\x89x", "A\xC3\xA9X", 0},
        {65001, "a\xC3\x89x", "A\xC3\xA9Y", -1},
        {65001, "\xC3\x89", "z", 1},
        {65001, "\xC9", "\xE9", -1}, // no letters in UTF-8
        {65001, "\xE2\x84\xAA", "k", 0},
        {65001, "a\xC3\xA9", "a", 1},
        {1252, "\xC9t\xC9", "\xE9T\xE9", 0},
        {1252, "\xC9", "\xE8", 1},
        {1252, "\xDF", "ss", 1},
        {1252, "\xD7", "\xF7", -1},
        {1251, "\xCF\xF0", "\xEF\xD0", 0},
        {932, "\x83\x41", "\x83\x61", -1}, // two different katakana
        {932, "x\x82\x60", "X\x82\x81", 0},
    };
    for (const Case& rCase : cases) {
        const CCodePageScope scope(rCase.nCodePage);
        const CString sLeft(rCase.sLeft);
        const CString sRight(rCase.sRight);
        EXPECT_EQ(sLeft.CompareNoCase(sRight), rCase.nResult)
            << rCase.nCodePage << " " << testing::PrintToString(std::string(rCase.sLeft));
        EXPECT_EQ(sRight.CompareNoCase(sLeft), -rCase.nResult)
            << rCase.nCodePage << " " << testing::PrintToString(std::string(rCase.sLeft));
    }
}

TEST(StringATest, CompareNoCaseOfAnyTwoBytesComparesTheirSmallLetters)
{
    for (const unsigned nCodePage : {65001U, 1252U}) {
        const CCodePageScope scope(nCodePage);
        for (int nLeft = 0; nLeft < 256; ++nLeft) {
            for (int nRight = 0; nRight < 256; ++nRight) {
                const CString sLeft(static_cast<char>(nLeft));
                const CString sRight(static_cast<char>(nRight));
                ASSERT_EQ(sLeft.CompareNoCase(sRight),
                          CString(sLeft).MakeLower().Compare(CString(sRight).MakeLower()))
                    << nCodePage << " " << nLeft << " " << nRight;
            }
        }
    }
}

TEST(StringATest, FindsBytesAndTexts)
{
    const CString sText("abcabc");
    struct CharCase {
        char chChar;
        int nStart;
        int nFound;
    };
    for (const CharCase& rCase : {CharCase{'a', 0, 0},
                                  {'a', 1, 3},
                                  {'c', 5, 5},
                                  {'c', 6, -1},
                                  {'c', 7, -1},
                                  {'x', 0, -1},
                                  {'a', -1, -1},
                                  {'a', kMost, -1},
                                  {'a', kLeast, -1},
                                  {'\0', 0, -1}}) {
        EXPECT_EQ(sText.Find(rCase.chChar, rCase.nStart), rCase.nFound) << rCase.nStart;
    }
    struct TextCase {
        std::string_view sWhat;
        int nStart;
        int nFound;
    };
    for (const TextCase& rCase : {TextCase{"abc", 0, 0},
                                  {"abc", 1, 3},
                                  {"bc", 4, 4},
                                  {"abcabcd", 0, -1},
                                  {"ABC", 0, -1},
                                  {"", 0, 0},
                                  {"", 6, 6},
                                  {"", 7, -1},
                                  {"abc", -1, -1},
                                  {"a", kMost, -1},
                                  {"a", kLeast, -1}}) {
        EXPECT_EQ(sText.Find(rCase.sWhat, rCase.nStart), rCase.nFound)
            << rCase.sWhat << " " << rCase.nStart;
    }
    EXPECT_EQ(sText.Find('b'), 1);
    EXPECT_EQ(sText.Find("ca"), 2);
    EXPECT_EQ(sText.Find(CString("ca")), 2);
    EXPECT_EQ(CString().Find(""), 0);
    EXPECT_EQ(CString().Find('a'), -1);

    EXPECT_EQ(sText.ReverseFind('a'), 3);
    EXPECT_EQ(sText.ReverseFind('x'), -1);
    EXPECT_EQ(CString().ReverseFind('a'), -1);

    EXPECT_EQ(sText.FindOneOf("cb"), 1);
    EXPECT_EQ(sText.FindOneOf("xyz"), -1);
    EXPECT_EQ(sText.FindOneOf(""), -1);
}

TEST(StringATest, LeftAndRightAreClamped)
{
    struct Case {
        int nCount;
        std::string_view sLeft;
        std::string_view sRight;
    };
    const CString sText("abcd");
    for (const Case& rCase : {Case{kLeast, "", ""},
                              {-1, "", ""},
                              {0, "", ""},
                              {1, "a", "d"},
                              {3, "abc", "bcd"},
                              {4, "abcd", "abcd"},
                              {5, "abcd", "abcd"},
                              {kMost, "abcd", "abcd"}}) {
        EXPECT_EQ(sText.Left(rCase.nCount), rCase.sLeft) << rCase.nCount;
        EXPECT_EQ(sText.Right(rCase.nCount), rCase.sRight) << rCase.nCount;
    }
}

TEST(StringATest, MidIsClamped)
{
    struct Case {
        int nFirst;
        int nCount;
        std::string_view sMid;
    };
    const CString sText("abcd");
    for (const Case& rCase : {Case{0, 2, "ab"},
                              {1, 2, "bc"},
                              {3, 1, "d"},
                              {3, 2, "d"},
                              {4, 1, ""},
                              {5, 1, ""},
                              {-1, 2, "ab"},
                              {1, -1, ""},
                              {1, 0, ""},
                              {kLeast, kMost, "abcd"},
                              {kMost, kMost, ""},
                              {1, kMost, "bcd"},
                              {2, kLeast, ""}}) {
        EXPECT_EQ(sText.Mid(rCase.nFirst, rCase.nCount), rCase.sMid)
            << rCase.nFirst << " " << rCase.nCount;
    }
    EXPECT_EQ(sText.Mid(0), "abcd");
    EXPECT_EQ(sText.Mid(-1), "abcd");
    EXPECT_EQ(sText.Mid(2), "cd");
    EXPECT_EQ(sText.Mid(4), "");
    EXPECT_EQ(sText.Mid(5), "");
}

bool IsWhite(char chChar)
{
    return chChar == ' ' || chChar == '\t' || chChar == '\r' || chChar == '\n' || chChar == '\v' ||
           chChar == '\f';
}

TEST(StringATest, TrimsEveryTextOfUpToTwoBytes)
{
    const auto check = [](const std::string& rsText) {
        std::string sLeft = rsText;
        while (!sLeft.empty() && IsWhite(sLeft.front())) {
            sLeft.erase(0, 1);
        }
        std::string sRight = rsText;
        while (!sRight.empty() && IsWhite(sRight.back())) {
            sRight.pop_back();
        }
        std::string sBoth = sLeft;
        while (!sBoth.empty() && IsWhite(sBoth.back())) {
            sBoth.pop_back();
        }
        CString sText(rsText);
        ASSERT_EQ(&sText.TrimLeft(), &sText);
        ASSERT_EQ(sText, sLeft);
        ASSERT_EQ(CString(rsText).TrimRight(), sRight);
        ASSERT_EQ(CString(rsText).Trim(), sBoth);
        ASSERT_EQ(CString(rsText).TrimRight().TrimLeft(), sBoth);
    };
    check("");
    for (int nFirst = 0; nFirst < 256; ++nFirst) {
        check(std::string(1, static_cast<char>(nFirst)));
        for (int nSecond = 0; nSecond < 256; ++nSecond) {
            check({static_cast<char>(nFirst), static_cast<char>(nSecond)});
        }
    }
}

TEST(StringATest, TrimKeepsWhiteSpaceInside)
{
    EXPECT_EQ(CString(" \t\r\n\v\f a \t b \f\v\n\r\t ").Trim(), "a \t b");
    EXPECT_EQ(CString("  a b  ").TrimLeft(), "a b  ");
    EXPECT_EQ(CString("  a b  ").TrimRight(), "  a b");
    EXPECT_EQ(CString(" \r\n ").Trim(), "");
}

TEST(StringATest, TrimsAGivenSet)
{
    struct Case {
        std::string_view sText;
        std::string_view sSet;
        std::string_view sLeft;
        std::string_view sRight;
        std::string_view sBoth;
    };
    const Case cases[] = {
        {"xyaxyx", "xy", "axyx", "xya", "a"},
        {"xyx", "xy", "", "", ""},
        {"abc", "", "abc", "abc", "abc"},
        {" a ", "a", " a ", " a ", " a "},
        {"", "a", "", "", ""},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(CString(rCase.sText).TrimLeft(rCase.sSet), rCase.sLeft);
        EXPECT_EQ(CString(rCase.sText).TrimRight(rCase.sSet), rCase.sRight);
        EXPECT_EQ(CString(rCase.sText).Trim(rCase.sSet), rCase.sBoth);
    }
    CString sItself("abca");
    EXPECT_EQ(sItself.Trim(std::string_view(sItself).substr(0, 1)), "bc");
}

TEST(StringATest, ReplacesBytes)
{
    struct Case {
        std::string_view sText;
        char chOld;
        char chNew;
        int nCount;
        std::string_view sResult;
    };
    for (const Case& rCase : {Case{"banana", 'a', 'o', 3, "bonono"},
                              {"banana", 'x', 'o', 0, "banana"},
                              {"banana", 'a', 'a', 0, "banana"},
                              {"", 'a', 'b', 0, ""},
                              {"a/b/", '/', '\\', 2, "a\\b\\"},
                              {"ab", 'a', '\0', 1, "\0b"sv}}) {
        CString sText(rCase.sText);
        EXPECT_EQ(sText.Replace(rCase.chOld, rCase.chNew), rCase.nCount);
        EXPECT_EQ(sText, rCase.sResult);
    }
}

TEST(StringATest, ReplacesTexts)
{
    struct Case {
        std::string_view sText;
        std::string_view sOld;
        std::string_view sNew;
        int nCount;
        std::string_view sResult;
    };
    for (const Case& rCase : {Case{"a\r\nb\r\n", "\r\n", "\n", 2, "a\nb\n"},
                              {"aaa", "a", "aa", 3, "aaaaaa"},
                              {"aaaa", "aa", "a", 2, "aa"},
                              {"abcabc", "bc", "", 2, "aa"},
                              {"abc", "abc", "x", 1, "x"},
                              {"abc", "", "x", 0, "abc"},
                              {"abc", "d", "x", 0, "abc"},
                              {"", "a", "x", 0, ""},
                              {"abab", "ab", "ab", 2, "abab"}}) {
        CString sText(rCase.sText);
        EXPECT_EQ(sText.Replace(rCase.sOld, rCase.sNew), rCase.nCount);
        EXPECT_EQ(sText, rCase.sResult);
    }
    CString sItself("ab");
    EXPECT_EQ(sItself.Replace(std::string_view(sItself).substr(0, 1), sItself), 1);
    EXPECT_EQ(sItself, "abb");
}

TEST(StringATest, RemovesBytes)
{
    CString sText("banana");
    EXPECT_EQ(sText.Remove('a'), 3);
    EXPECT_EQ(sText, "bnn");
    EXPECT_EQ(sText.Remove('a'), 0);
    EXPECT_EQ(sText.Remove('n'), 2);
    EXPECT_EQ(sText, "b");
    EXPECT_EQ(CString().Remove('a'), 0);
}

TEST(StringATest, InsertsClamped)
{
    struct Case {
        int nIndex;
        std::string_view sWhat;
        std::string_view sResult;
    };
    for (const Case& rCase : {Case{0, "x", "xabc"},
                              {1, "xy", "axybc"},
                              {3, "x", "abcx"},
                              {4, "x", "abcx"},
                              {kMost, "x", "abcx"},
                              {-1, "x", "xabc"},
                              {kLeast, "x", "xabc"},
                              {1, "", "abc"}}) {
        CString sText("abc");
        EXPECT_EQ(sText.Insert(rCase.nIndex, rCase.sWhat), static_cast<int>(rCase.sResult.size()));
        EXPECT_EQ(sText, rCase.sResult);
    }
    CString sText("abc");
    EXPECT_EQ(sText.Insert(1, '-'), 4);
    EXPECT_EQ(sText.Insert(99, '-'), 5);
    EXPECT_EQ(sText.Insert(-99, '-'), 6);
    EXPECT_EQ(sText, "-a-bc-");
    CString sItself("abc");
    EXPECT_EQ(sItself.Insert(1, sItself), 6);
    EXPECT_EQ(sItself, "aabcbc");
}

TEST(StringATest, DeletesClamped)
{
    struct Case {
        int nIndex;
        int nCount;
        std::string_view sResult;
    };
    for (const Case& rCase : {Case{0, 1, "bcd"},
                              {1, 2, "ad"},
                              {3, 1, "abc"},
                              {3, 9, "abc"},
                              {4, 1, "abcd"},
                              {5, 1, "abcd"},
                              {-1, 1, "bcd"},
                              {1, 0, "abcd"},
                              {1, -1, "abcd"},
                              {1, kMost, "a"},
                              {kMost, kMost, "abcd"},
                              {kLeast, kMost, ""}}) {
        CString sText("abcd");
        EXPECT_EQ(sText.Delete(rCase.nIndex, rCase.nCount), static_cast<int>(rCase.sResult.size()));
        EXPECT_EQ(sText, rCase.sResult) << rCase.nIndex << " " << rCase.nCount;
    }
    CString sText("abcd");
    EXPECT_EQ(sText.Delete(1), 3);
    EXPECT_EQ(sText, "acd");
}

TEST(StringATest, MakesLowerAndUpperByTheSystemCodePage)
{
    struct Case {
        unsigned nCodePage;
        std::string_view sText;
        std::string_view sLower;
        std::string_view sUpper;
    };
    for (const Case& rCase :
         {Case{65001, "", "", ""},
          {65001, "Abc-1Z", "abc-1z", "ABC-1Z"},
          {65001, "\xC3\x89t\xC3\xA9", "\xC3\xA9t\xC3\xA9", "\xC3\x89T\xC3\x89"},
          {1252, "\xC9t\xE9", "\xE9t\xE9", "\xC9T\xC9"}}) {
        const CCodePageScope scope(rCase.nCodePage);
        CString sLower(rCase.sText);
        EXPECT_EQ(&sLower.MakeLower(), &sLower);
        EXPECT_EQ(sLower, rCase.sLower);
        CString sUpper(rCase.sText);
        EXPECT_EQ(&sUpper.MakeUpper(), &sUpper);
        EXPECT_EQ(sUpper, rCase.sUpper);
    }
}

} // namespace
