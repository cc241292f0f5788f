#include "foundation/TextFile.h"
#include "platform/base/CodePageScope.h"
#include "platform/base/Exceptions.h"
#include "support/PrintStringU.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>

namespace
{

using namespace std::string_view_literals;

struct TWritten {
    std::string sBytes;
    int nLine;
};

// What a file of this encoding holds after some writing, and its line number.
TWritten Write(TTextEncoding encoding, const std::function<void(TTextFile&)>& rWrite,
               unsigned nFlags = 0)
{
    const CTempFolder folder;
    TTextFile file;
    EXPECT_TRUE(file.Open(folder.Path("a.txt"), encoding,
                          CFile::modeCreate | CFile::modeWrite | nFlags, nullptr));
    rWrite(file);
    EXPECT_EQ(file.GetLastErrorText(), "");
    const int nLine = file.GetLineNumber();
    file.Close();
    return {folder.Read("a.txt"), nLine};
}

TEST(TextFileWriteTest, TextGoesOutInTheEncoding)
{
    const CCodePageScope scope(1252);
    const CStringU sText(u"a\u00e9\n\u20ac\u0100");
    const auto write = [&sText](TTextFile& rFile) { EXPECT_TRUE(rFile.WriteText(sText)); };
    struct Case {
        TTextEncoding encoding;
        std::string_view sBytes;
    };
    const Case cases[] = {
        {EncodingAnsi, "a\xE9\r\n\x80?"},
        {EncodingUtf8, "a\xC3\xA9\r\n\xE2\x82\xAC\xC4\x80"},
        {EncodingUtf16, "a\0\xE9\0\r\0\n\0\xAC\x20\x00\x01"sv},
        {EncodingUtf16BigEndian, "\0a\0\xE9\0\r\0\n\x20\xAC\x01\x00"sv},
        {EncodingUtf8Bom, "\xEF\xBB\xBF"
                          "a\xC3\xA9\r\n\xE2\x82\xAC\xC4\x80"},
        {EncodingUtf16Bom, "\xFF\xFE"
                           "a\0\xE9\0\r\0\n\0\xAC\x20\x00\x01"sv},
        {EncodingUtf16BigEndianBom, "\xFE\xFF\0a\0\xE9\0\r\0\n\x20\xAC\x01\x00"sv},
    };
    for (const Case& rCase : cases) {
        const TWritten written = Write(rCase.encoding, write);
        EXPECT_EQ(written.sBytes, rCase.sBytes) << rCase.encoding;
        EXPECT_EQ(written.nLine, 2) << rCase.encoding;
    }
}

TEST(TextFileWriteTest, EightBitTextIsConvertedOnlyForTwoByteUnits)
{
    const CCodePageScope scope(1252);
    const auto stream = [](TTextFile& rFile) { rFile << "a\xE9\n"; };
    const auto exact = [](TTextFile& rFile) { EXPECT_TRUE(rFile.WriteText("a\xE9\n\r\0b", 6)); };
    EXPECT_EQ(Write(EncodingAnsi, stream).sBytes, "a\xE9\r\n");
    EXPECT_EQ(Write(EncodingUtf8, stream).sBytes, "a\xE9\r\n"); // as its bytes are
    EXPECT_EQ(Write(EncodingUtf16, stream).sBytes, "a\0\xE9\0\r\0\n\0"sv);
    EXPECT_EQ(Write(EncodingUtf16BigEndian, stream).sBytes, "\0a\0\xE9\0\r\0\n"sv);
    EXPECT_EQ(Write(EncodingAnsi, exact).sBytes, "a\xE9\n\r\0b"sv);
    EXPECT_EQ(Write(EncodingAnsi, exact).nLine, 0);
    EXPECT_EQ(Write(EncodingUtf8, exact).sBytes, "a\xE9\n\r\0b"sv);
    EXPECT_EQ(Write(EncodingUtf16, exact).sBytes, "a\0\xE9\0\r\0\n\0"sv);
    EXPECT_EQ(Write(EncodingUtf16, exact).nLine, 2);
}

TEST(TextFileWriteTest, LineEndsFollowTheRuleUnlessBinary)
{
    struct Case {
        std::string_view sName;
        CStringU sText;
        std::string_view sBytes;
        int nLine;
        std::string_view sBinary;
    };
    const Case cases[] = {
        {"line feed", "a\nb", "a\r\nb", 2, "a\nb"},
        {"carriage return and line feed give one line end", "a\r\nb", "a\r\nb", 2, "a\r\nb"},
        {"a dropped carriage return starts the count", "\r", "", 1, "\r"},
        {"nothing", "", "", 0, ""},
        {"a zero ends the text", CStringU("a\0b"sv), "a", 1, "a\0b"sv},
    };
    for (const Case& rCase : cases) {
        const auto write = [&rCase](TTextFile& rFile) { rFile << rCase.sText; };
        const TWritten text = Write(EncodingUtf8, write);
        EXPECT_EQ(text.sBytes, rCase.sBytes) << rCase.sName;
        EXPECT_EQ(text.nLine, rCase.nLine) << rCase.sName;
        const TWritten binary = Write(EncodingUtf8, write, CFile::typeBinary);
        EXPECT_EQ(binary.sBytes, rCase.sBinary) << rCase.sName;
        EXPECT_EQ(binary.nLine, 0) << rCase.sName;
    }
    const auto wide = [](TTextFile& rFile) { rFile << CStringU("a\n\0b"sv); };
    EXPECT_EQ(Write(EncodingUtf16BigEndian, wide, CFile::typeBinary).sBytes, "\0a\0\n\0\0\0b"sv);
}

TEST(TextFileWriteTest, ZerosInUtf8GoOutInEveryEncodingWhenBinary)
{
    const CCodePageScope scope(1252);
    const auto write = [](TTextFile& rFile) {
        rFile << CStringU("\xC3\xA9\0\0z\0"sv, TTextKind::Plain);
    };
    struct Case {
        TTextEncoding encoding;
        std::string_view sBytes;
        std::string_view sText; // without the binary bit the first zero ends it
    };
    const Case cases[] = {
        {EncodingAnsi, "\xE9\0\0z\0"sv, "\xE9"},
        {EncodingUtf8, "\xC3\xA9\0\0z\0"sv, "\xC3\xA9"},
        {EncodingUtf16, "\xE9\0\0\0\0\0z\0\0\0"sv, "\xE9\0"sv},
        {EncodingUtf16BigEndian, "\0\xE9\0\0\0\0\0z\0\0"sv, "\0\xE9"sv},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(Write(rCase.encoding, write, CFile::typeBinary).sBytes, rCase.sBytes);
        EXPECT_EQ(Write(rCase.encoding, write).sBytes, rCase.sText);
    }
}

TEST(TextFileWriteTest, NumbersGoOutAsText)
{
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    constexpr auto most = std::numeric_limits<std::uint64_t>::max();
    struct Case {
        std::string_view sText;
        std::function<void(TTextFile&)> write;
    };
    const Case cases[] = {
        {"-5", [](TTextFile& rFile) { rFile << -5; }},
        {"4294967295", [](TTextFile& rFile) { rFile << 4294967295U; }},
        {"-9223372036854775808", [](TTextFile& rFile) { rFile << least; }},
        {"18446744073709551615", [](TTextFile& rFile) { rFile << most; }},
        {"-7", [](TTextFile& rFile) { rFile << -7LL; }},
        {"7", [](TTextFile& rFile) { rFile << 7ULL; }},
        {"0.1", [](TTextFile& rFile) { rFile << 0.1; }},
        {"1e+100", [](TTextFile& rFile) { rFile << 1e100; }},
        {"1e-07", [](TTextFile& rFile) { rFile << 1e-7; }},
        {"0.0001", [](TTextFile& rFile) { rFile << 1e-4; }},
        {"123456789012", [](TTextFile& rFile) { rFile << 123456789012.0; }},
        {"1.23456789012e+12", [](TTextFile& rFile) { rFile << 1234567890123.0; }},
        {"0.333333333333", [](TTextFile& rFile) { rFile << 1.0 / 3; }},
        {"-0", [](TTextFile& rFile) { rFile << -0.0; }},
        {"-1.79769313486e+308", [](TTextFile& rFile) { rFile << -1.7976931348623157e308; }},
        {"inf", [](TTextFile& rFile) { rFile << std::numeric_limits<double>::infinity(); }},
        {"a1b2.5", [](TTextFile& rFile) { rFile << "a" << 1 << CStringU("b") << 2.5; }},
    };
    for (const Case& rCase : cases) {
        EXPECT_EQ(Write(EncodingUtf8, rCase.write).sBytes, rCase.sText);
    }
    EXPECT_EQ(Write(EncodingUtf16, cases[6].write).sBytes, "0\0.\0001\0"sv);
}

TEST(TextFileWriteTest, BadArgumentsAreRefused)
{
    TTextFile file(EncodingUtf8, "", "");
    EXPECT_THROW(file.WriteText("a", -1), CInvalidArgException);
    EXPECT_THROW(file.WriteText(nullptr, 1), CInvalidArgException);
    EXPECT_TRUE(file.WriteText(nullptr, 0));
    EXPECT_TRUE(file.WriteText(static_cast<const char*>(nullptr)));
    EXPECT_EQ(file.GetLength(), 0U);
}

TEST(TextFileWriteTest, MuchTextPassesTheBuffer)
{
    std::string sExpected;
    CStringU sBlock;
    for (int i = 0; i < 3000; ++i)
        sBlock += u"line \u20ac\n";
    const auto write = [&](TTextFile& rFile) {
        for (int i = 0; i < 50; ++i) {
            rFile << sBlock << "x\n";
            for (int n = 0; n < 3000; ++n)
                sExpected += "line \xE2\x82\xAC\r\n";
            sExpected += "x\r\n";
        }
    };
    const TWritten written = Write(EncodingUtf8, write);
    EXPECT_TRUE(written.sBytes == sExpected);
    EXPECT_EQ(written.nLine, 50 * 3001 + 1);
}

} // namespace
