// White space and quotes at the ends.

#include "foundation/CharClass.h"
#include "foundation/RandomText.h"
#include "foundation/StringModel.h"
#include "foundation/StringU.h"
#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace
{

TEST(StringUTrimTest, WhiteSpaceAndQuotesAreTheseUnitsAndNoOthers)
{
    const std::set<int> whiteSpace{32,   9,    10,   11,   12,    13,   8192, 8193,
                                   8194, 8195, 8196, 8197, 8198,  8199, 8200, 8201,
                                   8202, 8203, 8239, 8287, 12288, 65279};
    const std::set<int> quotes{34, 171, 8220, 8223, 65282};
    for (int nUnit = 0; nUnit < 0x10000; ++nUnit) {
        EXPECT_EQ(gIsWhiteSpace(static_cast<char16_t>(nUnit)), whiteSpace.contains(nUnit)) << nUnit;
        EXPECT_EQ(gIsQuote(static_cast<char16_t>(nUnit)), quotes.contains(nUnit)) << nUnit;
    }
}

TEST(StringUTrimTest, Trims)
{
    struct Case {
        std::string_view sName;
        CStringU sText;
        std::string_view sLeft;
        std::string_view sRight;
        std::string_view sBoth;
    };
    const Case cases[] = {
        {"nothing to trim", "a b", "a b", "a b", "a b"},
        {"blanks", "  a b ", "a b ", "  a b", "a b"},
        {"all blank", " \t\r\n\v\f", "", "", ""},
        {"empty", "", "", "", ""},
        {"a piece may be plain", u"\u3000a\u2003",
         "\x80"
         "a\xE2\x80\x83",
         "\xE3\x80\x80"
         "a",
         "a"},
        {"a piece may lose its marker", u" \u00e9", "\xC3\xA9", "\x80 \xC3\xA9", "\xC3\xA9"},
        {"the file mark", u"\ufeffa", "a",
         "\xEF\xBB\xBF"
         "a",
         "a"},
        {"U+00A0 stays", u"\u00a0", "\xC2\xA0", "\xC2\xA0", "\xC2\xA0"},
        {"no word of the base: a zero stays", CStringU(std::string_view("\0 ", 2)),
         std::string_view("\0 ", 2), std::string_view("\0", 1), std::string_view("\0", 1)},
    };
    for (const Case& rCase : cases) {
        CStringU sLeft = rCase.sText;
        EXPECT_EQ(sLeft.TrimLeft().Stored(), rCase.sLeft) << rCase.sName;
        CStringU sRight = rCase.sText;
        EXPECT_EQ(sRight.TrimRight().Stored(), rCase.sRight) << rCase.sName;
        CStringU sBoth = rCase.sText;
        EXPECT_EQ(sBoth.Trim().Stored(), rCase.sBoth) << rCase.sName;
    }
}

TEST(StringUTrimTest, QuotesGoAndCome)
{
    struct Case {
        std::string_view sName;
        CStringU sText;
        CStringU sStripped;
        CStringU sAdded;
    };
    const Case cases[] = {
        {"empty", "", "", "\"\""},
        {"no quotes", "ab", "ab", "\"ab\""},
        {"quotes", "\"ab\"", "ab", "\"ab\""},
        {"only in front", "\"ab", "\"ab", "\"\"ab\""},
        {"only at the end", "ab\"", "ab\"", "\"ab\"\""},
        {"two quotes and nothing inside", "\"\"", "", "\"\""},
        {"one quote is first and last", "\"", "\"", "\""},
        {"other quotes", u"\u201cab\u201f", "ab", u"\u201cab\u201f"},
        {"mixed quotes", u"\u00aba\u00e9\"", u"a\u00e9", u"\u00aba\u00e9\""},
        {"full width", u"\uff02\u00e9\uff02", u"\u00e9", u"\uff02\u00e9\uff02"},
        {"the right mark isn't one", u"\u201ca\u201d", u"\u201ca\u201d", u"\"\u201ca\u201d\""},
        {"only one pair", "\"\"a\"\"", "\"a\"", "\"\"a\"\""},
        {"one other quote", u"\u201c", u"\u201c", u"\u201c"},
        {"non-ASCII inside", u"\u00e9", u"\u00e9", u"\"\u00e9\""},
    };
    for (const Case& rCase : cases) {
        CStringU sStripped = rCase.sText;
        EXPECT_EQ(sStripped.StripQuotes(), rCase.sStripped) << rCase.sName;
        CStringU sAdded = rCase.sText;
        EXPECT_EQ(sAdded.AddQuotes(), rCase.sAdded) << rCase.sName;
    }
}

// Of stored bytes: what stands before the white space at the end. A text that has none there stays
// as it is stored, malformed ones too.
std::string RightTrimmedByPlaces(const std::string& rsStored)
{
    std::vector<model::TPlace> places = model::Places(rsStored);
    const std::size_t nSize = model::Text(rsStored).size();
    std::size_t nEnd = nSize;
    while (!places.empty() && gIsWhiteSpace(places.back().chUnit)) {
        nEnd = places.back().nIndex;
        places.pop_back();
    }
    return nEnd == nSize ? rsStored : model::Piece(rsStored, 0, nEnd);
}

// Its mirror. It decodes anew: a lead byte that has lost what follows it may be another character.
std::string LeftTrimmedByPlaces(const std::string& rsStored)
{
    const std::vector<model::TPlace> places = model::Places(rsStored);
    const std::size_t nSize = model::Text(rsStored).size();
    const auto isText = [](const model::TPlace& rPlace) { return !gIsWhiteSpace(rPlace.chUnit); };
    const auto first = std::find_if(places.begin(), places.end(), isText);
    const std::size_t nFirst = first == places.end() ? nSize : first->nIndex;
    return nFirst == 0 ? rsStored : model::Piece(rsStored, nFirst, nSize - nFirst);
}

TEST(StringUTrimTest, EveryOneAndTwoByteTextIsTrimmedByItsCharacters)
{
    int nTrimmed = 0;
    for (int nFirst = 0; nFirst < 256; ++nFirst) {
        for (int nSecond = -1; nSecond < 256; ++nSecond) {
            std::string sBytes(1, static_cast<char>(nFirst));
            if (nSecond >= 0)
                sBytes += static_cast<char>(nSecond);
            CStringU sText(sBytes, TTextKind::Plain);
            const std::string sExpected = LeftTrimmedByPlaces(RightTrimmedByPlaces(sBytes));
            ASSERT_EQ(sText.Trim().Stored(), sExpected) << nFirst << ' ' << nSecond;
            nTrimmed += sExpected.size() < sBytes.size() ? 1 : 0;
        }
    }
    EXPECT_GT(nTrimmed, 2 * 6 * 250); // about as many have one of the six blanks
}

TEST(StringUTrimTest, RandomTextsAreTrimmedAndQuotedByTheirUnits)
{
    CRandomText random(6);
    for (int nRound = 0; nRound < kRandomRounds; ++nRound) {
        const std::u16string sUnits = random.Text(6);
        std::u16string sLeft = sUnits, sRight = sUnits, sBare = sUnits, sQuoted = sUnits;
        while (!sLeft.empty() && gIsWhiteSpace(sLeft.front()))
            sLeft.erase(0, 1);
        while (!sRight.empty() && gIsWhiteSpace(sRight.back()))
            sRight.pop_back();
        const bool bQuoted = !sUnits.empty() && gIsQuote(sUnits.front()) && gIsQuote(sUnits.back());
        if (bQuoted && sUnits.size() > 1)
            sBare = sUnits.substr(1, sUnits.size() - 2);
        if (!bQuoted)
            sQuoted = u'"' + sUnits + u'"';
        ASSERT_EQ(CStringU(sUnits).TrimLeft(), CStringU(sLeft));
        ASSERT_EQ(CStringU(sUnits).TrimRight(), CStringU(sRight));
        ASSERT_EQ(CStringU(sUnits).StripQuotes(), CStringU(sBare));
        ASSERT_EQ(CStringU(sUnits).AddQuotes(), CStringU(sQuoted));
    }
}

} // namespace
