#include "simulators/ngspice/cards/CardTokens.h"

#include "simulators/ngspice/listings/Lines.h"

namespace quorvawiz::ngspice
{
namespace
{

bool IsBetweenWords(char c) noexcept
{
    return gIsBlank(c) || c == ',' || c == '(' || c == ')';
}

/// Where the word that begins here ends.
std::size_t EndOfWord(std::string_view sRest) noexcept
{
    const char cFirst = sRest.front();
    const char cLast = cFirst == '{' ? '}' : cFirst == '\'' || cFirst == '"' ? cFirst : '\0';
    if (cLast != '\0') {
        const std::size_t nLast = sRest.find(cLast, 1);
        return nLast == std::string_view::npos ? sRest.size() : nLast + 1;
    }
    std::size_t nEnd = 0;
    while (nEnd < sRest.size() && !IsBetweenWords(sRest[nEnd]) && sRest[nEnd] != '=') {
        ++nEnd;
    }
    return nEnd;
}

} // namespace

void gReadCardTokens(std::string_view sCard, std::vector<TCardToken>& rTokens)
{
    rTokens.clear();
    bool bValue = false;
    while (!sCard.empty()) {
        if (IsBetweenWords(sCard.front())) {
            sCard.remove_prefix(1);
        } else if (sCard.front() == '=') {
            if (!rTokens.empty()) {
                rTokens.back().bAssigned = true;
            }
            bValue = true;
            sCard.remove_prefix(1);
        } else {
            const std::size_t nEnd = EndOfWord(sCard);
            rTokens.push_back({sCard.substr(0, nEnd), false, bValue});
            bValue = false;
            sCard.remove_prefix(nEnd);
        }
    }
}

} // namespace quorvawiz::ngspice
