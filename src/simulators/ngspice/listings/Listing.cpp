#include "simulators/ngspice/listings/Listing.h"

#include "simulators/ngspice/listings/Lines.h"

#include <algorithm>

namespace quorvawiz::ngspice
{
namespace
{

bool IsNumber(std::string_view sWord) noexcept
{
    return !sWord.empty() &&
           std::ranges::all_of(sWord, [](char c) { return c >= '0' && c <= '9'; });
}

} // namespace

std::vector<std::string_view> gReadListing(std::string_view sListing)
{
    std::vector<std::string_view> cards;
    while (!sListing.empty()) {
        std::string_view sRest = gNextLine(sListing);
        if (!IsNumber(gNextWord(sRest)) || !sRest.starts_with(" : ")) {
            continue;
        }
        const std::string_view sCard = gTrimmed(sRest.substr(3));
        // The title, which is numbered, too, is a comment in the netlists that we make.
        if (!sCard.empty() && !sCard.starts_with('*')) {
            cards.push_back(sCard);
        }
    }
    return cards;
}

} // namespace quorvawiz::ngspice
