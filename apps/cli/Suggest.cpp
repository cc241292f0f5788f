#include "cli/Suggest.h"

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
/// How much of a text a message repeats, in bytes.
constexpr std::size_t kLongestQuote = 80;

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

std::size_t Distance(const std::string& rsWanted, const std::string& rsCandidate)
{
    constexpr std::size_t nTellingPart = 3;
    if (rsWanted == rsCandidate)
        return 0;
    if (rsWanted.size() >= nTellingPart && rsCandidate.find(rsWanted) != std::string::npos)
        return 1;
    return CountChanges(rsWanted, rsCandidate);
}
} // namespace

std::string gQuoted(std::string_view sText)
{
    if (sText.size() <= kLongestQuote)
        return '"' + std::string(sText) + '"';
    std::size_t nCut = kLongestQuote;
    while (nCut > 0 && (static_cast<unsigned char>(sText[nCut]) & 0xC0U) == 0x80U)
        --nCut; // between two characters
    return '"' + std::string(sText.substr(0, nCut)) + "...\"";
}

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
