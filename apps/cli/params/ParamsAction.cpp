#include "cli/params/ParamsAction.h"

#include "cli/Failure.h"
#include "cli/Quote.h"
#include "cli/Suggest.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace quorvawiz::cli
{
namespace
{
void CheckArguments(const TParamsAction& rAction, const TParamsOptions& rOptions)
{
    const auto& rWanted = rAction.arguments;
    const auto& rGiven = rOptions.arguments;
    if (rGiven.size() > rWanted.size())
        throw CUsageError(rOptions.sAction + " takes nothing more, but is given " +
                          gQuoted(rGiven[rWanted.size()]));
    if (rGiven.size() == rWanted.size())
        return;
    std::string sNames;
    for (const char* const pName : rWanted)
        sNames += (sNames.empty() ? "" : " and ") + std::string(pName);
    throw CUsageError(rOptions.sAction + " needs " + sNames);
}

void CheckOptions(const TParamsAction& rAction, const TParamsOptions& rOptions)
{
    const struct {
        std::string_view sName;
        bool bGiven;
    } given[] = {
        {"--xml", rOptions.bXml},
        {"--json", rOptions.bJson},
        {"--csv", rOptions.csv.has_value()},
        {"--header", rOptions.bHeader},
        {"--subckt", rOptions.subckt.has_value()},
        {"--tab", rOptions.tab.has_value()},
    };
    for (const auto& rOption : given)
        if (rOption.bGiven &&
            std::ranges::find(rAction.options, rOption.sName) == rAction.options.end())
            throw CUsageError(rOptions.sAction + " takes no " + std::string(rOption.sName));
    if (rOptions.bJson && rOptions.csv)
        throw CUsageError("--json and --csv can't go together");
    if (rOptions.bHeader && !rOptions.csv)
        throw CUsageError("--header goes with --csv");
}
} // namespace

const TParamsAction& gFindAction(std::span<const TParamsAction> actions,
                                 const TParamsOptions& rOptions)
{
    const auto found = std::ranges::find(actions, rOptions.sAction, &TParamsAction::pName);
    if (found == actions.end()) {
        std::vector<std::string> names;
        for (const TParamsAction& rAction : actions)
            names.emplace_back(rAction.pName);
        throw CUsageError("there is no action " + gQuoted(rOptions.sAction) +
                          gDidYouMean(rOptions.sAction, names));
    }
    CheckArguments(*found, rOptions);
    CheckOptions(*found, rOptions);
    return *found;
}

} // namespace quorvawiz::cli
