#include "platform/base/Ascii.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

namespace
{

TEST(AsciiTest, FindsTheFirstHighByteAtEveryPlaceOfEveryLength)
{
    for (std::size_t nLength = 0; nLength <= 40; ++nLength) {
        const std::string sPlain(nLength, '\x7F');
        EXPECT_EQ(gFindNonAscii(sPlain), nLength);
        EXPECT_TRUE(gIsAscii(sPlain));
        for (std::size_t nAt = 0; nAt < nLength; ++nAt) {
            std::string sText = sPlain;
            sText[nAt] = '\x80';
            sText.back() = '\xFF';
            EXPECT_EQ(gFindNonAscii(sText), nAt) << "length " << nLength;
            EXPECT_FALSE(gIsAscii(sText));
        }
    }
}

TEST(AsciiTest, CaseMappingIsThatOfTheClassicLocaleForEveryByte)
{
    for (int nByte = 0; nByte < 256; ++nByte) {
        const char chByte = static_cast<char>(nByte);
        EXPECT_EQ(gToLowerAscii(chByte), static_cast<char>(std::tolower(nByte))) << nByte;
        EXPECT_EQ(gToUpperAscii(chByte), static_cast<char>(std::toupper(nByte))) << nByte;
    }
}

} // namespace
