#include "cli/Quote.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
TEST(Quote, WhatIsNotPrintableIsEscaped)
{
    struct Case {
        const char* pName;
        std::string sText;
        const char* pPrintable;
        bool bUtf8;
    };
    const std::vector<Case> cases{
        {"plain", "a\"b\\c ~", "a\"b\\c ~", true},
        {"empty", "", "", true},
        {"line ends", "a\r\nb", R"(a\x0D\x0Ab)", true},
        {"a NUL", std::string("a\0b", 3), R"(a\x00b)", true},
        {"an escape sequence", "\x1b[31m", R"(\x1B[31m)", true},
        {"delete", "\x7f", R"(\x7F)", true},
        {"a control character of two bytes", "\xc2\x9b", R"(\xC2\x9B)", true},
        {"two bytes", "\u00e9", "\u00e9", true},
        {"three bytes", "\u20ac", "\u20ac", true},
        {"four bytes", "\U0001f600", "\U0001f600", true},
        {"no UTF-8", "a\xff", R"(a\xFF)", false},
        {"the inside of a character alone", "\x80z", R"(\x80z)", false},
        {"cut off", "\xe2\x82", R"(\xE2\x82)", false},
        {"broken", "\xe2\x82z", R"(\xE2\x82z)", false},
        {"too long for its code", "\xc0\xaf", R"(\xC0\xAF)", false},
        {"too long, three bytes", "\xe0\x80\xaf", R"(\xE0\x80\xAF)", false},
        {"too long, four bytes", "\xf0\x80\x80\xaf", R"(\xF0\x80\x80\xAF)", false},
        {"a surrogate", "\xed\xa0\x80", R"(\xED\xA0\x80)", false},
        {"beyond the last code", "\xf4\x90\x80\x80", R"(\xF4\x90\x80\x80)", false},
        {"no lead byte", "\xf5\x80\x80\x80", R"(\xF5\x80\x80\x80)", false},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(gPrintable(rCase.sText), rCase.pPrintable) << rCase.pName;
        EXPECT_EQ(gQuoted(rCase.sText), '"' + std::string(rCase.pPrintable) + '"') << rCase.pName;
        EXPECT_EQ(gIsUtf8(rCase.sText), rCase.bUtf8) << rCase.pName;
    }
}

TEST(Quote, AQuoteIsCutBetweenCharacters)
{
    EXPECT_EQ(gQuoted("a\"b"), "\"a\"b\"");
    std::string sLong(79, 'x');
    EXPECT_EQ(gQuoted(sLong + "\u00e9!"), "\"" + sLong + "...\"");
    sLong += 'x';
    EXPECT_EQ(gQuoted(sLong), "\"" + sLong + "\"");
    EXPECT_EQ(gQuoted(sLong + 'x'), "\"" + sLong + "...\"");
}
} // namespace
} // namespace quorvawiz::cli
