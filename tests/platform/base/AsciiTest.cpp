#include "platform/base/Ascii.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>
#include <vector>

namespace
{

TEST(AsciiTest, FindsTheFirstHighByteAtEveryPlaceOfEveryLength)
{
    for (std::size_t nLength = 0; nLength <= 150; ++nLength) {
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

TEST(AsciiTest, FindsTheFirstHighUnitAtEveryPlace)
{
    for (std::size_t nLength = 0; nLength <= 40; ++nLength) {
        const std::u16string sPlain(nLength, u'\x7F');
        EXPECT_EQ(gFindNonAscii(sPlain), nLength);
        for (std::size_t nAt = 0; nAt < nLength; ++nAt) {
            std::u16string sText = sPlain;
            sText[nAt] = u'\x80';
            sText.back() = u'\xFF00';
            EXPECT_EQ(gFindNonAscii(sText), nAt) << "length " << nLength;
        }
    }
}

TEST(AsciiTest, WidensAndNarrowsTextsOfEveryLength)
{
    for (std::size_t nLength = 0; nLength <= 600; ++nLength) {
        std::string sBytes;
        std::u16string sUnits;
        for (std::size_t i = 0; i < nLength; ++i) {
            sBytes += static_cast<char>(i);
            sUnits += static_cast<char16_t>(i & 0xFF);
        }
        std::u16string sWidened = u"x";
        gAppendWidened(sBytes, sWidened);
        EXPECT_EQ(sWidened, u"x" + sUnits);
        std::string sNarrowed(nLength, '\0');
        gNarrowAscii(sUnits, sNarrowed.data());
        EXPECT_EQ(sNarrowed, sBytes);
    }
}

TEST(AsciiTest, BlocksOfShortTextsEndInZeros)
{
    const std::string sBytes = "0123456789abcdefg";
    for (std::size_t nLength = 0; nLength <= sBytes.size(); ++nLength) {
        // On the heap and of this length, so that a sanitizer sees what is read behind the end.
        const std::vector<char> text(sBytes.begin(), sBytes.begin() + static_cast<long>(nLength));
        const TByteBlock block = gLoadSome({text.data(), text.size()});
        for (std::size_t nAt = 0; nAt < kByteBlock; ++nAt) {
            EXPECT_EQ(block[nAt], nAt < nLength ? sBytes[nAt] : 0) << nLength << ' ' << nAt;
        }
    }
}

TEST(AsciiTest, BlocksFindWhatHoldsAmongWhatMayHold)
{
    for (std::size_t nLength = 0; nLength <= 150; ++nLength) {
        const auto find = [](const std::string& rsText) {
            return gFindByBlocks(
                rsText, [](TByteBlock block) { return block < 'c'; },
                [](char chByte) { return chByte == 'b'; });
        };
        const std::string sMayHold(nLength, 'a');
        EXPECT_EQ(find(sMayHold), nLength);
        for (std::size_t nAt = 0; nAt < nLength; ++nAt) {
            std::string sText = sMayHold;
            sText.back() = 'b';
            sText[nAt] = 'b';
            EXPECT_EQ(find(sText), nAt) << "length " << nLength;
        }
    }
}

TEST(AsciiTest, BlocksFind)
{
    for (std::size_t nAt = 0; nAt < kByteBlock; ++nAt) {
        std::string sOne(kByteBlock, 'a');
        sOne[nAt] = 'b';
        EXPECT_EQ(gFindSet(gLoadBlock(sOne.data()) == 'b'), nAt);
        EXPECT_TRUE(gAnySet(gLoadBlock(sOne.data()) == 'b'));
        EXPECT_FALSE(gAnySet(gLoadBlock(sOne.data()) == 'c'));
        EXPECT_GE(gFindSet(gLoadBlock(sOne.data()) == 'c'), kByteBlock);
    }
}

} // namespace
