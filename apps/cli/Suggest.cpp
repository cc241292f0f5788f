#include "cli/Suggest.h"

#include "cli/Quote.h"
#include "platform/base/Ascii.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
/// The longest text for which a neighbour is looked up, in bytes.
constexpr std::size_t kLongestSlip = 100;
/// How many letters have to be changed, added, dropped or swapped with their neighbour.
std::size_t CountChanges(std::string_view sFrom, std::string_view sTo)
{
    const std::size_t nWidth = sTo.size() + 1;
    std::vector<std::size_t> costs((sFrom.size() + 1) * nWidth);
    const auto at = [&](std::size_t i, std::size_t j) -> std::size_t& {
        return costs[i * nWidth + j];
    };
    for (std::size_t i = 0; i <= sFrom.size(); ++i) {
        for (std::size_t j = 0; j <= sTo.size(); ++j) {
            if (i == 0 || j == 0) {
                at(i, j) = i + j;
                continue;
            }
            const bool bSame = sFrom[i - 1] == sTo[j - 1];
            at(i, j) = std::min(
                {at(i - 1, j) + 1, at(i, j - 1) + 1, at(i - 1, j - 1) + (bSame ? 0U : 1U)});
            const bool bSwapped =
                i > 1 && j > 1 && sFrom[i - 1] == sTo[j - 2] && sFrom[i - 2] == sTo[j - 1];
            if (bSwapped)
                at(i, j) = std::min(at(i, j), at(i - 2, j - 2) + 1);
        }
    }
    return costs.back();
}

std::string Lower(std::string_view sText)
{
    std::string sLower(sText);
    std::ranges::transform(sLower, sLower.begin(), gToLowerAscii);
    return sLower;
}

/// Whether a text stands in another one between blanks, marks or ends. Both in small letters.
bool HasWords(std::string_view sText, std::string_view sWords)
{
    const auto isPartOfWord = [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
               static_cast<unsigned char>(c) >= 0x80;
    };
    for (std::size_t n = sText.find(sWords); n != std::string_view::npos;
         n = sText.find(sWords, n + 1)) {
        const std::size_t nEnd = n + sWords.size();
        if ((n == 0 || !isPartOfWord(sText[n - 1])) &&
            (nEnd == sText.size() || !isPartOfWord(sText[nEnd])))
            return true;
    }
    return false;
}

/// How unlike a candidate is; both in small letters.
std::size_t Distance(std::string_view sWanted, std::string_view sCandidate)
{
    enum : std::size_t { kSame, kSameName, kAmongWords, kContained, kOneChange = kContained };
    constexpr std::size_t nTellingWord = 2;
    constexpr std::size_t nTellingPart = 3;
    const std::string_view sName = sCandidate.substr(sCandidate.rfind('/') + 1);
    if (sWanted == sCandidate)
        return kSame;
    if (sWanted == sName)
        return kSameName;
    if (sWanted.size() >= nTellingWord && HasWords(sCandidate, sWanted))
        return kAmongWords;
    if (sWanted.size() >= nTellingPart && sCandidate.find(sWanted) != std::string_view::npos)
        return kContained;
    return std::min(CountChanges(sWanted, sCandidate), CountChanges(sWanted, sName)) - 1 +
           kOneChange;
}
} // namespace

std::string_view gNearest(std::string_view sWanted, std::span<const std::string> candidates)
{
    std::string_view sNearest;
    if (sWanted.size() > kLongestSlip)
        return sNearest;
    const std::string sLower = Lower(sWanted);
    std::size_t nLeast = std::numeric_limits<std::size_t>::max();
    for (const std::string& rsCandidate : candidates) {
        const std::size_t nDistance = Distance(sLower, Lower(rsCandidate));
        if (nDistance < nLeast) {
            nLeast = nDistance;
            sNearest = rsCandidate;
        }
    }
    return sNearest;
}

std::string gDidYouMean(std::string_view sWanted, std::span<const std::string> candidates)
{
    const std::string_view sNearest = gNearest(sWanted, candidates);
    return sNearest.empty() ? std::string() : "; did you mean " + gQuoted(sNearest) + '?';
}

} // namespace quorvawiz::cli
