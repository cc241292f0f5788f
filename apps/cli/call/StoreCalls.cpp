#include "cli/Quote.h"
#include "cli/call/CallTable.h"
#include "cli/params/StoreArguments.h"
#include "params/CompareTolerant.h"
#include "params/ModelsFilePath.h"
#include "params/SetParamValue.h"
#include "params/SubcktTable.h"

#include <string>

namespace quorvawiz::cli
{
namespace
{
TJson SetValue(int nKind, const TTypedValue& rSource, TParamValue target)
{
    SetParamValue(nKind, rSource.mValue, target);
    return gToResult(target);
}

/// A table may not get so big that a slip of a script takes all memory.
constexpr int kMostId = 1'000'000;

TJson Operate(TBidirectionalStringToIntMap& rTable, const TJson& rOperation)
{
    const auto sName = rOperation[0].get<std::string>();
    if (sName == "Add" && rOperation.size() == 3) {
        const int nId = gReadArgument<int>(rOperation[2]);
        if (nId > kMostId)
            throw CRequestError("takes ids up to " + std::to_string(kMostId) + " only");
        return rTable.Add(gReadArgument<CStringU>(rOperation[1]), nId);
    }
    if (sName == "Find" && rOperation.size() == 2)
        return rTable.Find(gReadArgument<CStringU>(rOperation[1]));
    if (sName == "GetName" && rOperation.size() == 2)
        return gToResult(rTable.GetName(gReadArgument<int>(rOperation[1])));
    if (sName == "GetCount" && rOperation.size() == 1)
        return rTable.GetCount();
    throw CRequestError("isn't one of Add(text, integer), Find(text), GetName(integer) and "
                        "GetCount(): " +
                        gQuoted(sName));
}

TJson LiveTable(const TTableOperations& rOperations)
{
    TBidirectionalStringToIntMap table;
    TJson results = TJson::array();
    for (std::size_t n = 0; n < rOperations.mOperations.size(); ++n) {
        try {
            results.push_back(Operate(table, rOperations.mOperations[n]));
        } catch (const CRequestError& rError) {
            throw CRequestError("operation " + std::to_string(n + 1) + ' ' + rError.what());
        }
    }
    TJson index = TJson::array();
    for (const auto& [rsName, nId] : table.mIndex)
        index.push_back({{"name", gToResult(rsName)}, {"id", nId}});
    TJson names = TJson::array();
    for (const CStringU& rsName : table.mTable)
        names.push_back(gToResult(rsName));
    return {{"results", results}, {"index", index}, {"table", names}};
}
} // namespace

std::vector<TCallFunction> gStoreCalls()
{
    return {
        gCallable("ParamValueToText",
                  [](const TParamValue& rValue) { return ParamValueToText(rValue); }),
        gCallable("SetParamValue", SetValue),
        gCallable("CompareTolerant",
                  [](TStoreNumber left, TStoreNumber right, double dTolerance) {
                      return CompareTolerant(left.mdNumber, right.mdNumber, dTolerance);
                  }),
        gCallable("CompareModelClassHeaders",
                  [](const TModelClassHeader& rLeft, const TModelClassHeader& rRight) {
                      return CompareModelClassHeaders(rLeft, rRight);
                  }),
        gCallable("TBidirectionalStringToIntMap", LiveTable),
        gCallable("gGetModelsFilePath", gGetModelsFilePath),
    };
}

} // namespace quorvawiz::cli
