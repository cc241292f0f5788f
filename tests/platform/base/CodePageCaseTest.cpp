#include "platform/base/CodePageCase.h"

#include "CodePageScope.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace
{

TEST(CodePageCaseTest, MapsByTheSystemCodePage)
{
    struct Case {
        unsigned nCodePage;
        std::string_view sText;
        std::string_view sLower;
        std::string_view sUpper;
    };
    const Case cases[] = {
        {65001, "", "", ""},
        {65001, "aZ@[`{09", "az@[`{09", "AZ@[`{09"},
        {65001, "A\xC3\x89\xC3\xA9z", "a\xC3\xA9\xC3\xA9z", "A\xC3\x89\xC3\x89Z"},
        // Not valid in UTF-8, so no letters:
        {65001, "\xC9X\xE9", "\xC9x\xE9", "\xC9X\xE9"},
        {65001, "A\xE2\x82", "a\xE2\x82", "A\xE2\x82"},
        // The kelvin sign and the capital I with a dot have ASCII small letters:
        {65001, "\xE2\x84\xAA\xC4\xB0", "ki", "\xE2\x84\xAA\xC4\xB0"},
        // Above U+FFFF nothing is mapped, though the first letter has a small one:
        {65001, "\xF0\x90\x90\x80\xF0\x9F\x98\x80", "\xF0\x90\x90\x80\xF0\x9F\x98\x80",
         "\xF0\x90\x90\x80\xF0\x9F\x98\x80"},
        {1252, "A\xC9\xE9z\xDF", "a\xE9\xE9z\xDF", "A\xC9\xC9Z\xDF"},
        {1252, "\x8A\x9F\xD7\xF7", "\x9A\xFF\xD7\xF7", "\x8A\x9F\xD7\xF7"},
        // The capital of the micro sign is a Greek letter, which isn't there:
        {1252, "\xB5", "\xB5", "\xB5"},
        {1251, "\xCF\xF0", "\xEF\xF0", "\xCF\xD0"},
        {1254, "I\xDDi\xFD", "iii\xFD", "I\xDDII"},
        // The trail bytes of the two katakana are an ASCII letter and a backslash:
        {932,
         "\x83\x41\x83\x5C"
         "B",
         "\x83\x41\x83\x5C"
         "b",
         "\x83\x41\x83\x5C"
         "B"},
        {932, "\x82\x60\x82\x81", "\x82\x81\x82\x81", "\x82\x60\x82\x60"},
    };
    for (const Case& rCase : cases) {
        const CCodePageScope scope(rCase.nCodePage);
        const std::string sName = testing::PrintToString(std::string(rCase.sText));
        EXPECT_EQ(gToLowerInCodePage(rCase.sText), rCase.sLower) << rCase.nCodePage << sName;
        EXPECT_EQ(gToUpperInCodePage(rCase.sText), rCase.sUpper) << rCase.nCodePage << sName;
    }
}

TEST(CodePageCaseTest, EveryByteOfWindows1252KeepsItsLengthAndSettles)
{
    const CCodePageScope scope(1252);
    for (int nByte = 0; nByte < 256; ++nByte) {
        const std::string sByte(1, static_cast<char>(nByte));
        const std::string sLower = gToLowerInCodePage(sByte);
        const std::string sUpper = gToUpperInCodePage(sByte);
        EXPECT_EQ(sLower.size(), 1U) << nByte;
        EXPECT_EQ(sUpper.size(), 1U) << nByte;
        EXPECT_EQ(gToLowerInCodePage(sLower), sLower) << nByte;
        EXPECT_EQ(gToUpperInCodePage(sUpper), sUpper) << nByte;
        EXPECT_EQ(gToLowerInCodePage(sUpper), sLower) << nByte;
    }
}

} // namespace
