#include "simulators/ngspice/cards/CardExpression.h"

#include "simulators/ngspice/listings/Lines.h"

#include <cstddef>

namespace quorvawiz::ngspice
{
namespace
{

bool IsOfName(char c) noexcept
{
    const char cLower = gToLowerAscii(c);
    return (cLower >= 'a' && cLower <= 'z') || (c >= '0' && c <= '9') || c == '_';
}

bool IsAssigned(std::string_view sBehindName) noexcept
{
    sBehindName = gTrimmed(sBehindName);
    return sBehindName.starts_with('=') && !sBehindName.starts_with("==");
}

/// How much deeper a byte leads into parentheses, braces and brackets.
int DepthOf(char c) noexcept
{
    switch (c) {
    case '(':
    case '{':
    case '[':
        return 1;
    case ')':
    case '}':
    case ']':
        return -1;
    default:
        return 0;
    }
}

} // namespace

std::string_view gReadCardExpression(std::string_view sBehind, const CParamPlans& rPlans)
{
    std::string_view sAll = gTrimmed(sBehind);
    if (sAll.starts_with('=')) {
        sAll.remove_prefix(1);
    }
    int nDepth = 0;
    std::size_t nAt = 0;
    while (nAt < sAll.size()) {
        std::size_t nEnd = nAt;
        while (nEnd < sAll.size() && IsOfName(sAll[nEnd])) {
            ++nEnd;
        }
        if (nEnd == nAt) {
            nDepth += DepthOf(sAll[nAt]);
            ++nAt;
            continue;
        }
        const bool bNextParam = nDepth <= 0 && IsAssigned(sAll.substr(nEnd)) &&
                                rPlans.FindSet(sAll.substr(nAt, nEnd - nAt)) != nullptr;
        if (bNextParam) {
            break;
        }
        nAt = nEnd;
    }
    return gTrimmed(sAll.substr(0, nAt));
}

} // namespace quorvawiz::ngspice
