#include "cli/params/ParamsCommand.h"

#include "cli/Failure.h"
#include "cli/Output.h"
#include "cli/params/BrowserTables.h"
#include "cli/params/DumpStore.h"
#include "cli/params/ParamsAction.h"
#include "cli/params/StoreLinks.h"
#include "cli/params/TellTables.h"
#include "cli/params/WriteCsv.h"
#include "params/CircuitParams.h"
#include "params/ParamsFileError.h"
#include "params/ReadParamsFile.h"

#include <chrono>

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

int Info(const TCircuitParams& rStore, const TParamsOptions& rOptions, const TLoadInfo& rLoad)
{
    gWriteOut(gTellInfo(rStore, rLoad, rOptions.bJson));
    return kDone;
}

int Check(const TCircuitParams& rStore, const TParamsOptions&, const TLoadInfo&)
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

int Dump(const TCircuitParams& rStore, const TParamsOptions&, const TLoadInfo&)
{
    gDumpStore(rStore, gWriteOut);
    return kDone;
}

int Save(const TCircuitParams& rStore, const TParamsOptions& rOptions, const TLoadInfo&)
{
    try {
        rStore.WriteThis(PathOf(rOptions.arguments.front()), rOptions.bXml ? "XML" : "");
        return kDone;
    } catch (const CParamsFileError& rError) {
        gWriteError(rError.what());
        if (rOptions.bVerbose)
            gComplain(rError.GetDetail());
        return kNothingDone;
    }
}

/// Tells what a window of the browser shows.
template <TBrowserWindow (*pCompose)(const TCircuitParams&, const TParamsOptions&)>
int Show(const TCircuitParams& rStore, const TParamsOptions& rOptions, const TLoadInfo&)
{
    TBrowserWindow window = pCompose(rStore, rOptions);
    if (rOptions.tab)
        gKeepTab(window, *rOptions.tab);
    if (rOptions.csv)
        return gWriteCsv(window.mTables.front().mTable, rOptions.bHeader, *rOptions.csv);
    if (rOptions.bJson)
        gTellAsJson(window, gWriteOut);
    else
        gWriteOut(gTellAsText(window));
    return kDone;
}

const std::vector<TParamsAction>& Actions()
{
    static const std::vector<TParamsAction> sActions{
        {"info", {}, {"--json"}, Info},
        {"check", {}, {}, Check},
        {"dump", {}, {}, Dump},
        {"save", {"OUT"}, {"--xml"}, Save},
        {"devices", {}, {"--json", "--csv", "--header", "--subckt"}, Show<gComposeDevices>},
        {"models", {}, {"--json", "--csv", "--header"}, Show<gComposeModels>},
        {"classes", {}, {"--json", "--csv", "--header"}, Show<gComposeClasses>},
        {"device",
         {"SUBCKT", "NAME"},
         {"--json", "--csv", "--header", "--tab"},
         Show<gComposeDevice>},
        {"model", {"SUBCKT", "NAME"}, {"--json", "--csv", "--header"}, Show<gComposeModel>},
        {"class", {"NAME"}, {"--json", "--csv", "--header", "--tab"}, Show<gComposeClass>},
    };
    return sActions;
}
} // namespace

int gRunParams(const TParamsOptions& rOptions)
{
    const TParamsAction& rAction = gFindAction(Actions(), rOptions);
    TLoadInfo load;
    const auto pStore = ReadFile(rOptions, load);
    return pStore == nullptr ? kNothingDone : rAction.pRun(*pStore, rOptions, load);
}

} // namespace quorvawiz::cli
