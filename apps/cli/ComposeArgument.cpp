#include "cli/ComposeArgument.h"

#include "cli/Failure.h"
#include "cli/Quote.h"

#include <algorithm>

namespace quorvawiz::cli
{

TComposeArgument gParseArgument(std::string_view sArgument)
{
    TComposeArgument argument;
    const auto nEquals = sArgument.find('=');
    if (nEquals != std::string_view::npos)
        argument.value = sArgument.substr(nEquals + 1);

    std::string_view sRest = sArgument.substr(0, nEquals);
    for (auto nDot = sRest.find('.'); nDot != std::string_view::npos; nDot = sRest.find('.')) {
        argument.prefix.emplace_back(sRest.substr(0, nDot));
        sRest.remove_prefix(nDot + 1);
    }
    argument.sKey = sRest;
    const auto isEmpty = [](const std::string& rsKey) { return rsKey.empty(); };
    if (argument.sKey.empty() || std::ranges::any_of(argument.prefix, isEmpty))
        throw CUsageError("the argument " + gQuoted(sArgument) + " names no field");
    return argument;
}

TComposeMove gNextMove(const std::vector<std::string>& rOpen, const TComposeArgument* pNext)
{
    using EKind = TComposeMove::EKind;
    if (!pNext)
        return {rOpen.empty() ? EKind::Insert : EKind::Accept, {}};
    const auto [open, wanted] = std::ranges::mismatch(rOpen, pNext->prefix);
    if (open != rOpen.end())
        return {EKind::Accept, {}};
    if (wanted != pNext->prefix.end())
        return {EKind::Open, *wanted};
    return {EKind::Act, {}};
}

} // namespace quorvawiz::cli
