#include "cli/call/CallCommand.h"

#include "cli/Failure.h"
#include "cli/JsonLine.h"
#include "cli/Output.h"
#include "cli/Quote.h"
#include "cli/RequestError.h"
#include "cli/Suggest.h"
#include "cli/call/CallTable.h"
#include "foundation/PathLogger.h"

#include <exception>
#include <iostream>
#include <memory>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
/// Reads a call and makes it. Result: the function's.
TJson Answer(const std::string& rsLine)
{
    const TJson call = gParseJsonLine(rsLine);
    const std::vector<std::string> known{"fn", "args"};
    for (const auto& [sMember, rValue] : call.items())
        if (sMember != "fn" && sMember != "args")
            throw CRequestError("the call has no member " + gQuoted(sMember) +
                                gDidYouMean(sMember, known));
    if (!call.contains("fn") || !call["fn"].is_string())
        throw CRequestError("the member \"fn\" isn't there or isn't the name of a function");
    std::span<const TJson> arguments;
    if (const auto args = call.find("args"); args != call.end()) {
        if (!args->is_array())
            throw CRequestError("the member \"args\" isn't a list");
        arguments = args->get_ref<const TJson::array_t&>();
    }
    return gCall(gFindCall(call["fn"].get<std::string>()), arguments);
}

TJson Reply(const std::string& rsLine)
{
    try {
        TJson reply{{"ok", true}};
        reply["result"] = Answer(rsLine);
        return reply;
    } catch (const std::exception& rError) {
        return {{"ok", false}, {"error", rError.what()}};
    }
}

void ListFunctions()
{
    std::string sList;
    for (const TCallFunction& rFunction : gCallTable())
        sList += gSignature(rFunction) + '\n';
    gWriteOut(sList);
}
} // namespace

void gAnswerCalls(const TCallOptions& rOptions, std::istream& rIn, std::ostream& rOut)
{
    gSetEnvironmentSource(std::make_shared<CMapEnvironment>(rOptions.environment));
    gGetEngineeringFormatSettings() = rOptions.format;
    TJson log = TJson::array();
    if (rOptions.bLog)
        gSetPathLogger([&log](const CStringU& rLine) { log.push_back(gToResult(rLine)); });
    for (std::string sLine; rOut && std::getline(rIn, sLine);) {
        TJson reply = Reply(sLine);
        if (rOptions.bLog) {
            reply["log"] = log;
            log = TJson::array();
        }
        rOut << gToLine(reply) << '\n' << std::flush;
    }
    gClearPathLogger();
    if (rIn.bad())
        throw std::runtime_error("can't read the calls");
    if (!rOut)
        throw std::runtime_error("can't write the replies");
}

int gRunCall(const TCallOptions& rOptions)
{
    if (rOptions.bList) {
        ListFunctions();
    } else {
        std::ios::sync_with_stdio(false);
        gAnswerCalls(rOptions, std::cin, std::cout);
    }
    return kDone;
}

} // namespace quorvawiz::cli
