// Any bytes as a text: every operation of the text type gives some text and keeps its promises.

#include "foundation/StringU.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace
{

void Require(bool bHolds)
{
    if (!bHolds) {
        std::abort();
    }
}

// What holds for every text, however odd its bytes.
void CheckText(const CStringU& rsText)
{
    const int nLength = rsText.GetByteLength();
    Require(rsText.ToWide().size() <= rsText.Text().size());
    Require(rsText.GetCharCount() <= nLength);
    Require(rsText.Left(nLength).Text() == rsText.Text());
    Require(CompareNoCase(rsText, rsText) == 0);
    Require(!(rsText < rsText));
    int nSteps = 0;
    for (TCharIterator it = rsText.begin(); !it.IsEnd(); ++it) {
        static_cast<void>(*it);
        ++nSteps;
    }
    Require(nSteps <= nLength);
    for (TCharIterator it = rsText.end(); it.GetIndex() > 0; --it) {
        static_cast<void>(*it);
    }
    // What comes from 16-bit text is well-formed, and then nothing is lost any more.
    const std::u16string sWide = rsText.ToWide();
    const CStringU sFormed(sWide);
    Require(sFormed.ToWide() == std::u16string_view(sWide).substr(0, sWide.find(u'\0')));
    Require(CStringU::FromWideBigEndian(sFormed.ToWideBigEndian()) == sFormed);
}

void CheckPair(const CStringU& rsLeft, const CStringU& rsRight)
{
    const int nOrder = CompareNoCase(rsLeft, rsRight);
    Require((nOrder < 0) == (CompareNoCase(rsRight, rsLeft) > 0));
    Require(((rsLeft < rsRight) ? 1 : 0) + ((rsRight < rsLeft) ? 1 : 0) +
                ((rsLeft == rsRight) ? 1 : 0) ==
            1);
    const int nFound = rsLeft.Find(rsRight);
    Require(nFound <= rsLeft.ReverseFind(rsRight));
    Require(nFound < 0 ||
            rsLeft.Text().substr(static_cast<std::size_t>(nFound)).starts_with(rsRight.Text()));
    Require(rsLeft.FindOneOf(rsRight).GetIndex() <= rsLeft.GetByteLength());
    Require(rsLeft.FindLastOf(rsRight).GetIndex() <= rsLeft.GetByteLength());
    CheckText(rsLeft + rsRight);
}

} // namespace

/// The first byte says how to read the rest, the second where to cut it in two.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    if (nSize < 2) {
        return 0;
    }
    const std::string_view sBytes(reinterpret_cast<const char*>(pData + 2), nSize - 2);
    const auto kind = static_cast<TTextKind>(pData[0] % 5);
    const std::size_t nCut = pData[1] % (sBytes.size() + 1);
    const CStringU sLeft(sBytes.substr(0, nCut), kind);
    CStringU sRight(sBytes.substr(nCut), kind);
    CheckText(sLeft);
    CheckPair(sLeft, sRight);
    static_cast<void>(sLeft.ToAnsi());
    sRight.Trim().MakeUpper();
    sRight.StripQuotes().AddQuotes();
    sRight.Replace(u'a', u'\u00e9');
    sRight.ReplaceNoCase(u'B', u'x');
    CheckText(sRight);
    return 0;
}
