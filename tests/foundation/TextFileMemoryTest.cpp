#include "foundation/RandomText.h"
#include "foundation/TextFile.h"
#include "support/PrintStringU.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace
{

using namespace std::string_view_literals;

TEST(TextFileMemoryTest, ATextOfItsOwnStartsAsACopy)
{
    const CStringU sText(u"a\u00e9\nb");
    TTextFile file(EncodingUtf8, sText, "name");
    EXPECT_TRUE(file.IsOpen());
    EXPECT_EQ(file.GetPosition(), 0U);
    EXPECT_EQ(file.GetLength(), 5U);
    EXPECT_EQ(file.ReadAll(), u"a\u00e9\nb\n");
    file << "!";
    file.Seek(0, CFile::begin);
    EXPECT_EQ(file.ReadAll(), u"a\u00e9\nb!\n");
    EXPECT_EQ(sText, u"a\u00e9\nb");
}

TEST(TextFileMemoryTest, TheCallersTextIsWrittenInPlace)
{
    CStringU sText;
    {
        TTextFile file(EncodingUtf8, &sText, "name");
        file << u"x\u00e9\n";
        EXPECT_EQ(sText, "");
        file.Flush();
        EXPECT_EQ(sText.Stored(), "\x80x\xC3\xA9\r\n");
        file << "y";
        file.Close();
        EXPECT_EQ(sText, u"x\u00e9\r\ny");
        EXPECT_TRUE(file.IsOpen());
        file.Seek(0, CFile::end);
        file << "z";
    }
    EXPECT_EQ(sText, u"x\u00e9\r\nyz");
}

TEST(TextFileMemoryTest, AnEmptyTextGetsTheMark)
{
    CStringU sText;
    {
        TTextFile file(EncodingUtf8Bom, &sText, "");
        EXPECT_EQ(file.GetLength(), 0U);
        EXPECT_EQ(file.GetPosition(), 0U);
        EXPECT_EQ(sText.Text(), "\xEF\xBB\xBF");
        file << "a";
    }
    EXPECT_EQ(sText.Text(), "\xEF\xBB\xBF"
                            "a");
    TTextFile again(EncodingUtf8Bom, &sText, "");
    EXPECT_EQ(again.ReadAll(), "a\n");
    CStringU sWide;
    {
        TTextFile file(EncodingUtf16Bom, &sWide, "");
        file << u"a\u00e9";
    }
    EXPECT_EQ(sWide.Text(), "\xFF\xFE"
                            "a\0\xE9\0"sv);
    TTextFile wide(EncodingUtf16Bom, &sWide, "");
    EXPECT_EQ(wide.ReadAll(), u"a\u00e9\n");
}

// The byte 0x80 is also the marker of a CStringU, and begins texts in some encodings.
TEST(TextFileMemoryTest, NoByteIsLostThatReadsAsTheMarker)
{
    struct Case {
        std::string_view sName;
        TTextEncoding encoding;
        std::string_view sBytes;
        CStringU sLine;
    };
    const Case cases[] = {
        {"UTF-16", EncodingUtf16, "\x80\x4E"sv, u"\u4e80"},
        {"UTF-16, high byte first", EncodingUtf16BigEndian, "\x80\x00"sv, u"\u8000"},
        {"malformed UTF-8", EncodingUtf8, "a\x80"sv, CStringU("a\x80", TTextKind::Utf8)},
    };
    for (const Case& rCase : cases) {
        CStringU sText;
        TTextFile file(rCase.encoding, &sText, "");
        file.Write(rCase.sBytes.data(), static_cast<unsigned>(rCase.sBytes.size()));
        file.Flush();
        EXPECT_EQ(sText.Text(), rCase.sBytes) << rCase.sName;
        EXPECT_EQ(file.GetLength(), rCase.sBytes.size()) << rCase.sName;
        file.Seek(0, CFile::begin);
        CStringU sLine;
        EXPECT_TRUE(file.ReadLine(sLine));
        EXPECT_EQ(sLine, rCase.sLine) << rCase.sName;
    }
    CStringU sText("abc");
    TTextFile file(EncodingUtf8, &sText, "");
    file.Write("\x80\x81", 2);
    file.Flush();
    EXPECT_EQ(sText.Text(), "\x80\x81"
                            "c");
    file.SetLength(1);
    EXPECT_EQ(sText.Text(), "\x80");
}

TEST(TextFileMemoryTest, WritesInTheMiddleReplaceAsManyBytes)
{
    struct Case {
        std::string_view sName;
        CStringU sText;
        int nPosition;
        CStringU sWritten;
        std::string_view sStored;
    };
    const Case cases[] = {
        {"inside", "abcdef", 1, "XY", "aXYdef"},
        {"past the end", "abc", 2, "XYZ", "abXYZ"},
        {"at the end", "abc", 3, "XY", "abcXY"},
        {"behind the end is the end", "abc", 9, "XY", "abcXY"},
        {"a plain text gets marked", "abcd", 1, u"\u00e9",
         "\x80"
         "a\xC3\xA9"
         "d"},
        {"a marked text gets plain", u"a\u00e9z", 1, "XY", "aXYz"},
        {"a mark in front goes with its character", u"a\u00e9", 0, u"\u00e9", "\xC3\xA9\xA9"},
        {"the first character", "abc", 0, u"\u00e9",
         "\xC3\xA9"
         "c"},
    };
    for (const Case& rCase : cases) {
        CStringU sText = rCase.sText;
        TTextFile file(EncodingUtf8, &sText, "");
        file.Seek(rCase.nPosition, CFile::begin);
        file << rCase.sWritten;
        const std::uint64_t nPosition = file.GetPosition();
        const std::uint64_t nLength = file.GetLength();
        file.Flush();
        EXPECT_EQ(sText.Stored(), rCase.sStored) << rCase.sName;
        EXPECT_EQ(file.GetPosition(), nPosition) << rCase.sName;
        EXPECT_EQ(file.GetLength(), nLength) << rCase.sName;
    }
}

TEST(TextFileMemoryTest, EveryByteComesBackWhateverTheFirstOnesAre)
{
    // In pieces too, as a buffer is written out: 0x80 in front reads as a marker unless guarded.
    const std::string sAlphabet("\0a\x7F\x80\x81\xC3\xE2\xF8\xFF"sv);
    for (const char chFirst : sAlphabet) {
        for (const char chSecond : sAlphabet) {
            for (const char chThird : sAlphabet) {
                const std::string sBytes{chFirst, chSecond, chThird};
                for (std::size_t nCut = 0; nCut <= sBytes.size(); ++nCut) {
                    CStringU sText;
                    TTextFile file(EncodingUtf8, &sText, "");
                    file.Write(sBytes.data(), static_cast<unsigned>(nCut));
                    file.Flush();
                    file.Write(sBytes.data() + nCut, static_cast<unsigned>(sBytes.size() - nCut));
                    file.Flush();
                    ASSERT_EQ(sText.Text(), sBytes) << testing::PrintToString(sBytes) << nCut;
                    file.Seek(static_cast<std::int64_t>(nCut), CFile::begin);
                    file.Write("x", 1);
                    file.Flush();
                    std::string sOverwritten = sBytes;
                    sOverwritten.replace(nCut, 1, "x");
                    ASSERT_EQ(sText.Text(), sOverwritten) << testing::PrintToString(sBytes) << nCut;
                    file.SetLength(2);
                    ASSERT_EQ(sText.Text(), sOverwritten.substr(0, 2));
                    const bool bMarkIsSpared = sOverwritten.front() != '\x80';
                    if (bMarkIsSpared) {
                        ASSERT_EQ(sText,
                                  CStringU(sOverwritten.substr(0, 2), TTextKind::Utf8IfNeeded));
                    }
                }
            }
        }
    }
}

TEST(TextFileMemoryTest, AfterCloseWritingGoesOnWhereItWas)
{
    CStringU sText;
    TTextFile file(EncodingUtf8Bom, &sText, "");
    file << "ab";
    file.Close();
    EXPECT_EQ(file.GetPosition(), 2U);
    file << "cd";
    file.Close();
    EXPECT_EQ(sText.Text(), "\xEF\xBB\xBF"
                            "abcd");
    file.Seek(1, CFile::begin);
    file.Close();
    file << "X";
    file.Close();
    EXPECT_EQ(sText.Text(), "\xEF\xBB\xBF"
                            "aXcd");
}

TEST(TextFileMemoryTest, FlushAndSetLengthKeepTheMarkOfTwoByteUnits)
{
    CStringU sText;
    TTextFile file(EncodingUtf16Bom, &sText, "");
    file << u"a\u00e9\n";
    file.Flush();
    EXPECT_EQ(sText.Text(), "\xFF\xFE"
                            "a\0\xE9\0\r\0\n\0"sv);
    EXPECT_EQ(file.GetLength(), 8U);
    file.SetLength(file.GetLength());
    EXPECT_EQ(file.GetLength(), 8U);
    file.SetLength(4);
    EXPECT_EQ(sText.Text(), "\xFF\xFE"
                            "a\0\xE9\0"sv);
    file.SetLength(6);
    EXPECT_EQ(sText.Text(), "\xFF\xFE"
                            "a\0\xE9\0\0\0"sv);
    file.SetLength(0);
    EXPECT_EQ(sText.Text(), "\xFF\xFE");
    EXPECT_EQ(file.GetPosition(), 0U);
}

TEST(TextFileMemoryTest, IsNoFileToDuplicate)
{
    const TTextFile file(EncodingUtf8, "abc", "");
    EXPECT_THROW(static_cast<void>(file.Duplicate()), CFileException);
}

TEST(TextFileMemoryTest, ATextGetsNoLongerThanItsLengthsCanSay)
{
    CStringU sText("abc");
    TTextFile file(EncodingUtf8, &sText, "");
    EXPECT_THROW(file.SetLength(0x80000000U), CFileException);
    EXPECT_THROW(file.SetLength(~std::uint64_t{0}), CFileException);
    EXPECT_EQ(sText, "abc");
}

TEST(TextFileMemoryTest, SetLengthCutsAndLengthens)
{
    CStringU sText(u"a\u00e9z");
    TTextFile file(EncodingUtf8, &sText, "");
    file.SetLength(3);
    EXPECT_EQ(sText.Stored(), "\x80"
                              "a\xC3\xA9");
    file.SetLength(1);
    EXPECT_EQ(sText.Stored(), "a");
    file.SetLength(3);
    EXPECT_EQ(sText.Stored(), "a\0\0"sv);
    CStringU sMarked;
    TTextFile marked(EncodingUtf8Bom, &sMarked, "");
    marked << "abc";
    marked.SetLength(0);
    EXPECT_EQ(sMarked.Text(), "\xEF\xBB\xBF");
}

TEST(TextFileMemoryTest, AFileOnTheDiskMayFollow)
{
    CStringU sText;
    TTextFile file(EncodingUtf8, &sText, "");
    file << "a";
    EXPECT_FALSE(file.Open("/nowhere/at/all", CFile::modeRead, nullptr));
    EXPECT_EQ(sText, "a");
    EXPECT_FALSE(file.IsOpen());
}

TEST(TextFileMemoryTest, AFileOpenedByThePlatformsFormTakesItsPlace)
{
    const CTempFolder folder;
    CStringU sText;
    TTextFile file(EncodingUtf8, &sText, "");
    file << "kept";
    CFile& rBase = file;
    ASSERT_TRUE(rBase.Open(folder.Write("a.txt", "disk").c_str(), CFile::modeReadWrite));
    EXPECT_EQ(sText, "kept");
    EXPECT_EQ(file.GetLength(), 4U);
    EXPECT_EQ(file.ReadAll(), "disk\n");
    file << "!";
    file.Close();
    EXPECT_EQ(folder.Read("a.txt"), "disk!");
    EXPECT_EQ(sText, "kept");
    EXPECT_FALSE(file.IsOpen());
}

TEST(TextFileMemoryTest, RandomOperationsAreThoseOfAString)
{
    CRandomText random(11);
    std::string sModel;
    std::size_t nPosition = 0;
    CStringU sText;
    TTextFile file(EncodingUtf8, &sText, "");
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const auto nNumber = static_cast<std::size_t>(random.Number(20));
        switch (random.Number(4)) {
        case 0: {
            const std::string sBytes(CStringU(random.Text(8)).Text());
            file.Write(sBytes.data(), static_cast<unsigned>(sBytes.size()));
            sModel.replace(nPosition, sBytes.size(), sBytes);
            nPosition += sBytes.size();
            break;
        }
        case 1: {
            std::string sRead(nNumber, '\0');
            sRead.resize(file.Read(sRead.data(), static_cast<unsigned>(nNumber)));
            ASSERT_EQ(sRead, sModel.substr(nPosition, nNumber));
            nPosition += sRead.size();
            break;
        }
        case 2:
            nPosition = std::min(nNumber, sModel.size());
            ASSERT_EQ(file.Seek(static_cast<std::int64_t>(nPosition), CFile::begin), nPosition);
            break;
        case 3:
            file.Flush();
            ASSERT_EQ(sText, CStringU(sModel, TTextKind::Utf8IfNeeded));
            break;
        default:
            if (sModel.size() > 200) {
                file.SetLength(0);
                file.Seek(0, CFile::begin);
                sModel.clear();
                nPosition = 0;
            }
        }
        ASSERT_EQ(file.GetPosition(), nPosition);
        ASSERT_EQ(file.GetLength(), sModel.size());
    }
}

} // namespace
