// Chains of operations on well-formed texts against the same on their units, and any bytes through
// everything.

#include "foundation/RandomText.h"
#include "foundation/StringModel.h"
#include "foundation/StringU.h"
#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

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
        switch (random.Number(6)) {
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
        case 4: {
            const int nBytes = sText.GetByteLength() - (sText.begin() + nCut).GetIndex();
            sText = sText.Right(nBytes) + sText;
            sUnits = sUnits.substr(nUnit) + sUnits;
            break;
        }
        case 5: {
            const auto nLast = nUnit + static_cast<std::size_t>(random.Number(3));
            const int nFirst = (sText.begin() + nCut).GetIndex();
            const int nEnd = (sText.begin() + static_cast<int>(nLast)).GetIndex();
            sText = sText.Mid(nFirst, nEnd - nFirst);
            sUnits = sUnits.substr(nUnit, nLast - nUnit);
            break;
        }
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
        const std::string sStored(sText.Stored());
        ASSERT_EQ(sText.Text(), model::Text(sStored));
        ASSERT_EQ(sText.ToWide(), model::Wide(sStored));
        const std::vector<model::TPlace> places = model::Places(sStored);
        auto place = places.begin();
        for (TCharIterator it = sText.begin(); !it.IsEnd(); ++it, ++place) {
            ASSERT_NE(place, places.end());
            ASSERT_EQ(it.GetIndex(), static_cast<int>(place->nIndex));
            ASSERT_EQ(*it, place->chUnit);
        }
        ASSERT_EQ(place, places.end());
        ASSERT_EQ(sText.end().GetIndex(), sText.GetByteLength());
        const auto found = sText.Text().find(sOther.Text());
        ASSERT_EQ(sText.Find(sOther),
                  found == std::string_view::npos ? -1 : static_cast<int>(found));
        // All bytes of both are there, whatever they begin with.
        ASSERT_EQ((sText + sOther).Text(), std::string(sText.Text()) + std::string(sOther.Text()));
        const int nCut = random.Number(sText.GetByteLength());
        const auto nBytes = static_cast<std::size_t>(nCut);
        ASSERT_EQ(sText.Left(nCut).Stored(), model::Piece(sStored, 0, nBytes));
        ASSERT_EQ(sText.Mid(nCut).Stored(), model::Piece(sStored, nBytes, sStored.size()));
        const char16_t chWanted = random.Unit();
        const auto isWanted = [&](const model::TPlace& rPlace) {
            return rPlace.chUnit == chWanted;
        };
        const auto wanted = std::find_if(places.begin(), places.end(), isWanted);
        ASSERT_EQ(sText.Find(chWanted).GetIndex(), wanted == places.end()
                                                       ? sText.GetByteLength()
                                                       : static_cast<int>(wanted->nIndex));
        sText.Trim().StripQuotes().AddQuotes().MakeUpper().MakeLower();
        sText.ReplaceNoCase(random.Unit(), random.Unit());
        static_cast<void>(sText.ToAnsi());
        // What went through all that still is stored by the rule.
        ASSERT_EQ(sText.ToWide(), model::Wide(sText.Stored()));
    }
}

} // namespace
