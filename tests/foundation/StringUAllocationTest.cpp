// Plain ASCII takes no more from the heap than the result itself.

#include "foundation/CountAllocations.h"
#include "foundation/StringU.h"
#include "foundation/TextFile.h"
#include "support/PrintStringU.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <string_view>
#include <utility>

namespace
{

// All of them too long to be kept inside a string.
constexpr const char* kLong = "a name that is too long for the room inside a string";
constexpr const char* kLongUpper = "A NAME THAT IS TOO LONG FOR THE ROOM INSIDE A STRING";
constexpr const char* kTail = "too long for the room inside a string";

TEST(StringUAllocationTest, PlainAsciiTakesNoMoreThanTheResult)
{
    const CStringU sText(kLong);
    const CStringU sUpper(kLongUpper);
    const std::u16string sWide = sText.ToWide();
    CStringU sRoom = sText + sText;
    CStringU sChanged = sText;
    bool bHolds = true;
    struct Case {
        std::string_view sName;
        std::size_t nAllocations;
        std::function<void()> call;
    };
    const Case cases[] = {
        {"construction", 1, [&] { bHolds = !CStringU(kLong).IsEmpty(); }},
        {"construction of 16-bit text", 1, [&] { bHolds = !CStringU(sWide).IsEmpty(); }},
        {"assignment into room", 0, [&] { sRoom.Assign(kLong, TTextKind::CodePageIfNeeded); }},
        {"equality with a literal", 0, [&] { bHolds = sText == kLong && kLong == sText; }},
        {"inequality with a literal", 0, [&] { bHolds = sText != kTail; }},
        {"order with a literal", 0, [&] { bHolds = kTail < sText; }},
        {"Find", 0, [&] { bHolds = sText.Find(kTail) > 0; }},
        {"ReverseFind", 0, [&] { bHolds = sText.ReverseFind(kTail) > 0; }},
        {"StartsWith", 0, [&] { bHolds = sText.StartsWith(kLong); }},
        {"EndsWith", 0, [&] { bHolds = sText.EndsWith(kTail); }},
        {"FindOneOf", 0, [&] { bHolds = !sText.FindOneOf(sUpper).IsEnd(); }},
        {"FindNoCase", 0, [&] { bHolds = sText.FindNoCase(u'Z').IsEnd(); }},
        {"CompareNoCase", 0, [&] { bHolds = CompareNoCase(sText, sUpper) == 0; }},
        {"+", 1, [&] { bHolds = !(sText + sUpper).IsEmpty(); }},
        {"+ with a literal behind", 1, [&] { bHolds = !(sText + kTail).IsEmpty(); }},
        {"+ with a literal in front", 1, [&] { bHolds = !(kTail + sText).IsEmpty(); }},
        {"+= into room", 0,
         [&] {
             sRoom.Empty();
             sRoom += kTail;
             sRoom += sText.Data();
             sRoom += 'x';
             sRoom += u'y';
         }},
        {"+ in the room of a temporary", 0,
         [&] {
             sRoom.Empty();
             sRoom = std::move(sRoom) + kTail + "x";
         }},
        {"Left", 1, [&] { bHolds = !sText.Left(40).IsEmpty(); }},
        {"Mid", 1, [&] { bHolds = !sText.Mid(5).IsEmpty(); }},
        {"case conversion", 0, [&] { sChanged.MakeUpper().MakeLower(); }},
        {"Replace", 0, [&] { bHolds = sChanged.Replace(u'a', u'a') > 0; }},
        {"Trim of a text without white space", 0, [&] { sChanged.Trim(); }},
        {"ToWide", 1, [&] { bHolds = !sText.ToWide().empty(); }},
        {"ToAnsi", 1, [&] { bHolds = !sText.ToAnsi().IsEmpty(); }},
        {"ToUtf8", 1, [&] { bHolds = !sText.ToUtf8().IsEmpty(); }},
    };
    for (const Case& rCase : cases) {
        const std::size_t nBefore = gCountAllocations();
        rCase.call();
        const std::size_t nTaken = gCountAllocations() - nBefore;
        EXPECT_EQ(nTaken, rCase.nAllocations) << rCase.sName;
        EXPECT_TRUE(bHolds) << rCase.sName;
    }
}

TEST(StringUAllocationTest, TheLineBufferHasRoomGrowsAndIsFreedByClose)
{
    const CStringU sLong(std::string(1000, 'x'));
    for (const TTextEncoding encoding : {EncodingUtf8, EncodingUtf16}) {
        const CTempFolder folder;
        TTextFile file;
        ASSERT_TRUE(file.Open(folder.Path("a"), encoding,
                              CFile::modeCreate | CFile::modeWrite | CFile::typeBinary, nullptr));
        // Returns inside, so that lines of bytes go through the buffer, too.
        file << "a\r\r\n" << sLong << "\r\r\n" << sLong << "\r\r\n";
        file.Close();
        CStringU sLine;
        std::vector<std::size_t> taken; // by each line
        const auto readLine = [&] {
            const std::size_t nBefore = gCountAllocations();
            ASSERT_TRUE(file.ReadLine(sLine));
            taken.push_back(gCountAllocations() - nBefore);
        };
        for (int nTime = 0; nTime < 2; ++nTime) {
            ASSERT_TRUE(file.Open(folder.Path("a"), encoding, CFile::modeRead, nullptr));
            taken.clear();
            for (int nLine = 0; nLine < 3; ++nLine) {
                readLine();
            }
            file.Close();
        }
        EXPECT_GT(taken[0], 0U) << encoding; // made anew after Close
        EXPECT_EQ(taken[1], taken[2]) << encoding;
    }
}

} // namespace
