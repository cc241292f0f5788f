#include "foundation/RandomText.h"
#include "foundation/TextFile.h"
#include "platform/base/CodePageScope.h"
#include "support/PrintStringU.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace
{

using namespace std::string_view_literals;

constexpr std::size_t kBuffer = 0x100000;

std::vector<CStringU> LinesOf(TTextFile& rFile)
{
    std::vector<CStringU> lines;
    CStringU sLine;
    while (rFile.ReadLine(sLine))
        lines.push_back(sLine);
    EXPECT_EQ(sLine, "");
    return lines;
}

using TLines = std::vector<CStringU>;

TEST(TextFileReadTest, ReadsLines)
{
    struct Case {
        std::string_view sName;
        TTextEncoding encoding;
        std::string_view sBytes;
        TLines lines;
    };
    const Case cases[] = {
        {"empty", EncodingUtf8, "", {}},
        {"no line end", EncodingUtf8, "a", {"a"}},
        {"a closing line feed ends the last line", EncodingUtf8, "a\n", {"a"}},
        {"an empty line between", EncodingUtf8, "a\r\n\r\nb", {"a", "", "b"}},
        {"line feeds alone", EncodingUtf8, "\n\n", {"", ""}},
        {"every carriage return goes", EncodingUtf8, "\ra\rb\r\r\nc\r", {"ab", "c"}},
        {"a carriage return alone is a line", EncodingUtf8, "\r", {""}},
        {"a zero cuts the line", EncodingUtf8, "ab\0cd\nef\0"sv, {"ab", "ef"}},
        {"a zero and a carriage return", EncodingUtf8, "ab\r\0cd\r\n"sv, {"ab"}},
        {"UTF-8 gets its marker", EncodingUtf8, "a\xC3\xA9\nb", {u"a\u00e9", "b"}},
        {"malformed UTF-8 stays as it is",
         EncodingUtf8,
         "\xE9x",
         {CStringU("\xE9x", TTextKind::Plain)}},
        {"a stray byte at the front is no marker",
         EncodingUtf8,
         "\x80\x80z\n\x80"
         "a\n\x80\xC3\xA9\n\x80\ra",
         {CStringU("\x80\x80\x80z", TTextKind::Plain),
          CStringU("\x80\x80"
                   "a",
                   TTextKind::Plain),
          CStringU("\x80\x80\xC3\xA9", TTextKind::Plain),
          CStringU("\x80\x80"
                   "a",
                   TTextKind::Plain)}},
        {"the code page", EncodingAnsi, "a\xE9\n\x80\nb", {u"a\u00e9", u"\u20ac", "b"}},
        {"UTF-16", EncodingUtf16, "a\0\n\0\xE9\0\xAC\x20"sv, {"a", u"\u00e9\u20ac"}},
        {"UTF-16, odd last byte", EncodingUtf16, "a\0\n\0b\0c"sv, {"a", "b"}},
        {"UTF-16, only an odd byte", EncodingUtf16, "a", {}},
        {"UTF-16, carriage return and zero", EncodingUtf16, "a\0\r\0\n\0b\0\0\0c\0"sv, {"a", "b"}},
        {"UTF-16, no line feed by its bytes", EncodingUtf16, "\x0A\x0A\x0D\x0A", {u"\u0a0a\u0a0d"}},
        {"big-endian", EncodingUtf16BigEndian, "\0a\0\n\0\xE9\x20\xAC"sv, {"a", u"\u00e9\u20ac"}},
        {"big-endian surrogates", EncodingUtf16BigEndian, "\xD8\x3D\xDE\x00"sv, {u"\U0001F600"}},
    };
    const CTempFolder folder;
    const CCodePageScope scope(1252);
    for (const Case& rCase : cases) {
        const CStringU sName(folder.Write("a.txt", rCase.sBytes));
        TTextFile file;
        // Opened for writing too, the given encoding stands.
        ASSERT_TRUE(file.Open(sName, rCase.encoding, CFile::modeReadWrite, nullptr));
        EXPECT_EQ(LinesOf(file), rCase.lines) << rCase.sName;
        CStringU sAll;
        for (const CStringU& rsLine : rCase.lines)
            sAll += rsLine + "\n";
        file.Seek(0, CFile::begin);
        EXPECT_EQ(file.ReadAll(), sAll) << rCase.sName;
    }
}

TEST(TextFileReadTest, CountsItsCalls)
{
    TTextFile file(EncodingUtf8, "a\nb", "");
    CStringU sLine;
    EXPECT_EQ(file.GetLineNumber(), 0);
    EXPECT_TRUE(file.ReadLine(sLine));
    EXPECT_EQ(file.GetLineNumber(), 1);
    EXPECT_TRUE(file.ReadLine(sLine));
    EXPECT_FALSE(file.ReadLine(sLine));
    EXPECT_EQ(file.GetLineNumber(), 3); // also the call that finds the end
}

TEST(TextFileReadTest, AClosedFileHasNoLines)
{
    TTextFile file;
    CStringU sLine("old");
    EXPECT_FALSE(file.ReadLine(sLine));
    EXPECT_EQ(sLine, "");
    EXPECT_EQ(file.GetLineNumber(), 0);
    EXPECT_EQ(file.ReadAll(), "");
}

TEST(TextFileReadTest, LinesMayStandAcrossTheEndOfTheBuffer)
{
    const CTempFolder folder;
    // Moves the border of the buffer over "x, e acute, CR, LF, y" byte by byte, in every encoding.
    for (std::size_t nShift = 0; nShift < 8; ++nShift) {
        for (const TTextEncoding encoding :
             {EncodingAnsi, EncodingUtf8, EncodingUtf16, EncodingUtf16BigEndian}) {
            const bool bTwoBytes = gHasTwoByteUnits(encoding);
            const std::size_t nLong = (kBuffer - nShift) / (bTwoBytes ? 2 : 1);
            const CStringU sLong = CStringU(std::u16string(nLong, u'l')) + u"x\u00e9";
            {
                TTextFile writer;
                ASSERT_TRUE(writer.Open(folder.Path("a.txt"), encoding,
                                        CFile::modeCreate | CFile::modeWrite, nullptr));
                writer << sLong << "\ny";
            }
            TTextFile file;
            ASSERT_TRUE(file.Open(folder.Path("a.txt"), encoding, CFile::modeReadWrite, nullptr));
            EXPECT_TRUE(LinesOf(file) == TLines({sLong, "y"})) << nShift << ' ' << encoding;
            // One byte off, so that a unit of two bytes is cut by the border.
            file.Seek(1, CFile::begin);
            char ch = 0;
            EXPECT_EQ(file.Read(&ch, 1), 1U);
            file.Seek(bTwoBytes ? 2 : 1, CFile::begin);
            EXPECT_TRUE(LinesOf(file) == TLines({sLong.Mid(1), "y"})) << nShift << ' ' << encoding;
        }
    }
}

TEST(TextFileReadTest, ALineMayBeLongerThanTheBuffer)
{
    const std::string sLong(3 * kBuffer + 5, 'x');
    TTextFile file(EncodingUtf8, CStringU(sLong) + "\r\nb", "");
    EXPECT_TRUE(LinesOf(file) == TLines({sLong, "b"}));
}

TEST(TextFileReadTest, RandomTextsAreSplitAsOneByOne)
{
    CRandomText random(10);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        std::u16string sUnits = random.Text(20);
        for (char16_t& rchUnit : sUnits) {
            if (random.Number(4) == 0)
                rchUnit = u"\r\n"[random.Number(1)];
        }
        TLines expected;
        std::u16string sLine;
        for (const char16_t chUnit : sUnits) {
            if (chUnit == u'\n') {
                expected.emplace_back(sLine);
                sLine.clear();
            } else if (chUnit != u'\r') {
                sLine += chUnit;
            }
        }
        if (!sUnits.empty() && sUnits.back() != u'\n')
            expected.emplace_back(sLine);
        TTextFile file(EncodingUtf8, CStringU(sUnits), "");
        ASSERT_EQ(LinesOf(file), expected);
    }
}

} // namespace
