#include "cli/params/ParamsCommand.h"

#include "cli/Failure.h"
#include "cli/Output.h"
#include "cli/Quote.h"
#include "cli/Suggest.h"
#include "cli/params/DumpStore.h"
#include "cli/params/StoreInfo.h"
#include "cli/params/StoreLinks.h"
#include "params/CircuitParams.h"
#include "params/ParamsFileError.h"
#include "params/ReadParamsFile.h"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
CStringU PathOf(const std::string& rsPath)
{
    return {rsPath, TTextKind::Utf8IfNeeded};
}

/// Reads the file and tells the user where that fails. Result: null then.
boost::shared_ptr<TCircuitParams> ReadFile(const TParamsOptions& rOptions, TLoadInfo& rLoad)
{
    const auto start = std::chrono::steady_clock::now();
    TReadParamsFile read = gReadParamsFile(PathOf(rOptions.sFile));
    const std::chrono::duration<double, std::milli> elapsed =
        std::chrono::steady_clock::now() - start;
    rLoad = {rOptions.sFile, read.mnArchiveVersion, elapsed.count()};
    if (read.msMessage.IsEmpty())
        return read.mpStore;
    gWriteError(read.msMessage.Text());
    if (rOptions.bVerbose)
        gComplain(read.msDetail);
    return nullptr;
}

int Save(const TCircuitParams& rStore, const TParamsOptions& rOptions)
{
    try {
        rStore.WriteThis(PathOf(rOptions.sOut), rOptions.bXml ? "XML" : "");
        return kDone;
    } catch (const CParamsFileError& rError) {
        gWriteError(rError.what());
        if (rOptions.bVerbose)
            gComplain(rError.GetDetail());
        return kNothingDone;
    }
}

int Check(const TCircuitParams& rStore)
{
    const std::vector<std::string> dangling = gFindDanglingLinks(rStore);
    std::string sLines;
    for (const std::string& rsLink : dangling)
        sLines += rsLink + '\n';
    sLines += dangling.empty() ? "every link leads somewhere\n"
                               : "dangling links: " + std::to_string(dangling.size()) + '\n';
    gWriteOut(sLines);
    return dangling.empty() ? kDone : kNothingDone;
}

void CheckArguments(const TParamsOptions& rOptions)
{
    static const std::vector<std::string> sActions{"info", "check", "dump", "save"};
    const std::string& rsAction = rOptions.sAction;
    if (std::ranges::find(sActions, rsAction) == sActions.end())
        throw CUsageError("there is no action " + gQuoted(rsAction) +
                          gDidYouMean(rsAction, sActions));
    if (rsAction == "save" && rOptions.sOut.empty())
        throw CUsageError("save needs a file to write");
    if (rsAction != "save" && !rOptions.sOut.empty())
        throw CUsageError(rsAction + " takes no second file, but is given " +
                          gQuoted(rOptions.sOut));
    if (rsAction != "save" && rOptions.bXml)
        throw CUsageError(rsAction + " takes no --xml");
    if (rsAction != "info" && rOptions.bJson)
        throw CUsageError(rsAction + " takes no --json");
}
} // namespace

int gRunParams(const TParamsOptions& rOptions)
{
    CheckArguments(rOptions);
    TLoadInfo load;
    const auto pStore = ReadFile(rOptions, load);
    if (pStore == nullptr)
        return kNothingDone;
    if (rOptions.sAction == "save")
        return Save(*pStore, rOptions);
    if (rOptions.sAction == "check")
        return Check(*pStore);
    if (rOptions.sAction == "dump")
        gDumpStore(*pStore, gWriteOut);
    else
        gWriteOut(gTellInfo(*pStore, load, rOptions.bJson));
    return kDone;
}

} // namespace quorvawiz::cli
