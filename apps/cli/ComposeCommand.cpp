#include "cli/ComposeCommand.h"

#include "cli/Composer.h"
#include "cli/Failure.h"
#include "cli/FieldJson.h"
#include "cli/Output.h"
#include "cli/Quote.h"

#include <nlohmann/json.hpp>

#include <exception>

namespace quorvawiz::cli
{
namespace
{
TComposition Compose(const TWizard& rWizard, const TComposeOptions& rOptions)
{
    try {
        const std::vector<TPage> pages = gListPages(rWizard);
        const TPage& rPage = gFindBuiltPage(pages, rOptions.sPage);
        std::vector<TComposeArgument> arguments;
        arguments.reserve(rOptions.arguments.size());
        for (const std::string& rsArgument : rOptions.arguments)
            arguments.push_back(gParseArgument(rsArgument));
        return gCompose(rWizard, rPage, arguments);
    } catch (const CUsageError& rError) {
        TComposition composition;
        composition.sMisuse = rError.what();
        return composition;
    } catch (const std::exception& rException) {
        TComposition composition;
        composition.sFailure = gPrintable(rException.what());
        return composition;
    }
}

int ExitCodeOf(const TComposition& rComposition)
{
    if (!rComposition.sFailure.empty())
        return kProgramFailure;
    if (!rComposition.sMisuse.empty())
        return kWronglyAsked;
    return rComposition.command ? kDone : kNothingDone;
}

/// What the program itself has to say; empty if nothing.
std::string ComplaintOf(const TComposition& rComposition)
{
    if (!rComposition.sFailure.empty())
        return rComposition.sFailure;
    if (!rComposition.sMisuse.empty())
        return rComposition.sMisuse;
    if (!rComposition.command && rComposition.sRefusal.empty() && rComposition.boxes.empty())
        return "the page inserted nothing";
    return rComposition.sRefusal;
}

TJson ToJson(const TComposition& rComposition)
{
    TJson json = {{"ok", ExitCodeOf(rComposition) == kDone},
                  {"command", rComposition.command ? TJson(*rComposition.command) : TJson()},
                  {"messages", TJson::array()},
                  {"questions", TJson::array()}};
    for (const TBoxText& rBox : rComposition.boxes)
        json[rBox.bQuestion ? "questions" : "messages"].push_back(rBox.sText);
    if (const std::string sComplaint = ComplaintOf(rComposition); !sComplaint.empty())
        json["error"] = sComplaint;
    return json;
}
} // namespace

int gRunCompose(const TWizard& rWizard, const TComposeOptions& rOptions)
{
    const TComposition composition = Compose(rWizard, rOptions);
    for (const TBoxText& rBox : composition.boxes)
        gWriteError(rBox.bQuestion ? rBox.sText + " (answered no)" : rBox.sText);
    if (const std::string sComplaint = ComplaintOf(composition); !sComplaint.empty())
        gComplain(sComplaint);

    if (rOptions.bJson)
        gWriteOut(gToLine(ToJson(composition)) + '\n');
    else if (composition.command)
        gWriteOut(*composition.command + '\n');
    return ExitCodeOf(composition);
}

} // namespace quorvawiz::cli
