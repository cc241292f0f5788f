// Chains of operations on well-formed texts against the same on their units, and any bytes through
// everything.

#include "foundation/RandomText.h"
#include "foundation/StringU.h"
#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace
{

// What the marker rule makes of a text, by its units.
void ExpectStoredByTheRule(const CStringU& rsText, const std::u16string& rsUnits)
{
    ASSERT_EQ(rsText, CStringU(rsUnits));
    const bool bAscii =
        std::all_of(rsUnits.begin(), rsUnits.end(), [](char16_t ch) { return ch < 0x80; });
    ASSERT_EQ(rsText.IsUtf8(), !bAscii);
    const bool bMarked = !rsText.Stored().empty() && rsText.Stored().front() == '\x80';
    ASSERT_EQ(bMarked, !bAscii && rsUnits[0] < 0x80);
    ASSERT_EQ(rsText.ToWide(), rsUnits);
    ASSERT_EQ(CStringU(rsText.ToUtf8(), TTextKind::Utf8IfNeeded), rsText);
    ASSERT_EQ(CStringU::FromWideBigEndian(rsText.ToWideBigEndian()), rsText);
}

TEST(StringURandomTest, ChainsOfChangesKeepTheMarkerRule)
{
    CRandomText random(8);
    CStringU sText;
    std::u16string sUnits;
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const std::u16string sOther = random.Text(4);
        const int nCut = random.Number(static_cast<int>(sUnits.size()));
        const auto nUnit = static_cast<std::size_t>(nCut);
        switch (random.Number(4)) {
        case 0:
            sText += CStringU(sOther);
            sUnits += sOther;
            break;
        case 1:
            sText = CStringU(sOther) + sText;
            sUnits = sOther + sUnits;
            break;
        case 2:
            sText = sText.Left((sText.begin() + nCut).GetIndex());
            sUnits.resize(nUnit);
            break;
        case 3:
            sText = sText.Mid(sText.begin() + nCut);
            sUnits.erase(0, nUnit);
            break;
        default:
            sText += random.Number(1) == 0 ? u'a' : u'\u20ac';
            sUnits += sText.ToWide().back();
        }
        ExpectStoredByTheRule(sText, sUnits);
        if (HasFatalFailure())
            return;
        if (sUnits.size() > 40) {
            sText.Empty();
            sUnits.clear();
        }
    }
}

TEST(StringURandomTest, AnyBytesGiveSomeText)
{
    CRandomText random(9);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        CStringU sText(random.Bytes(12), static_cast<TTextKind>(random.Number(4)));
        const CStringU sOther(random.Bytes(4), TTextKind::Plain);
        ASSERT_EQ(CompareNoCase(sText, sText), 0);
        ASSERT_LE(sText.ToWide().size(), sText.Text().size());
        ASSERT_EQ(sText.end().GetIndex(), sText.GetByteLength());
        ASSERT_LE(sText.Find(sOther), sText.ReverseFind(sOther));
        // A stray first byte 0x80 reads as a marker.
        const int nBoth = sText.GetByteLength() + sOther.GetByteLength();
        ASSERT_LE(nBoth - (sText + sOther).GetByteLength(), 1);
        int nSteps = 0;
        for (TCharIterator it = sText.begin(); !it.IsEnd(); ++it)
            ++nSteps;
        ASSERT_LE(nSteps, sText.GetByteLength());
        sText.Trim().StripQuotes().AddQuotes().MakeUpper().MakeLower();
        sText.ReplaceNoCase(random.Unit(), random.Unit());
        static_cast<void>(sText.ToAnsi());
    }
}

} // namespace
