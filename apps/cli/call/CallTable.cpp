#include "cli/call/CallTable.h"

#include "cli/Quote.h"
#include "cli/RequestError.h"
#include "cli/Suggest.h"

#include <algorithm>
#include <iterator>

namespace quorvawiz::cli
{
namespace
{
std::vector<TCallFunction> MakeTable()
{
    std::vector<TCallFunction> table;
    for (auto* const pFamily :
         {gNumberCalls, gPathCalls, gDiskCalls, gStringCalls, gTextFileCalls, gStoreCalls}) {
        std::vector<TCallFunction> family = pFamily();
        std::ranges::move(family, std::back_inserter(table));
    }
    std::ranges::sort(table, {}, &TCallFunction::sName);
    return table;
}

/// "2", or "2 to 7".
std::string WantedCount(const TCallFunction& rFunction)
{
    const std::size_t nMost = rFunction.argumentTypes.size();
    const std::string sLeast = std::to_string(rFunction.nRequired);
    return rFunction.nRequired == nMost ? sLeast : sLeast + " to " + std::to_string(nMost);
}
} // namespace

const std::vector<TCallFunction>& gCallTable()
{
    static const std::vector<TCallFunction> sTable = MakeTable();
    return sTable;
}

const TCallFunction& gFindCall(std::string_view sName)
{
    const auto& rTable = gCallTable();
    const auto found = std::ranges::find(rTable, sName, &TCallFunction::sName);
    if (found != rTable.end())
        return *found;
    std::vector<std::string> names;
    for (const TCallFunction& rFunction : rTable)
        names.push_back(rFunction.sName);
    throw CRequestError("there is no function " + gQuoted(sName) + gDidYouMean(sName, names));
}

TJson gCall(const TCallFunction& rFunction, std::span<const TJson> arguments)
{
    if (arguments.size() < rFunction.nRequired || arguments.size() > rFunction.argumentTypes.size())
        throw CRequestError(gSignature(rFunction) + " takes " + WantedCount(rFunction) +
                            " arguments, not " + std::to_string(arguments.size()));
    try {
        return rFunction.call(arguments);
    } catch (const CRequestError& rError) {
        throw CRequestError(gSignature(rFunction) + ": " + rError.what());
    }
}

} // namespace quorvawiz::cli
