#include "cli/SessionRequest.h"

#include "cli/JsonLine.h"
#include "cli/Quote.h"
#include "cli/RequestMembers.h"
#include "cli/Suggest.h"
#include "foundation/Paths.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
using TMembers = CRequestMembers;

constexpr const char* kTree = "tree";

TRequest OnField(TStep step)
{
    return TStepRequest{std::move(step)};
}

TRequest OnFrame(TStep step)
{
    step.bOnFrame = true;
    return TStepRequest{std::move(step)};
}

TRequest ReadOpen(const TMembers& rMembers)
{
    return TOpenRequest{rMembers.Utf8Of("page")};
}

TRequest ReadSet(const TMembers& rMembers)
{
    return OnField(
        {.op = EStep::Set, .sKey = rMembers.Utf8Of("field"), .sText = rMembers.Text("text")});
}

TRequest ReadSelect(const TMembers& rMembers)
{
    if (rMembers.Has("index") == rMembers.Has("entry"))
        throw CRequestError("one of the members \"index\" and \"entry\" is wanted");
    TStep step{.op = EStep::Select, .sKey = rMembers.Utf8Of("field")};
    if (rMembers.Has("entry")) {
        step.op = EStep::SelectEntry;
        step.sText = rMembers.Text("entry");
    } else {
        step.nIndex = rMembers.Index("index");
    }
    return OnField(std::move(step));
}

TRequest ReadCheck(const TMembers& rMembers)
{
    return OnField({.op = EStep::Check,
                    .sKey = rMembers.Utf8Of("field"),
                    .nIndex = rMembers.Flag("on") ? 1 : 0});
}

TRequest ReadChoose(const TMembers& rMembers)
{
    return OnField(
        {.op = EStep::Choose, .sKey = rMembers.Utf8Of("field"), .nIndex = rMembers.Index("index")});
}

template <EStep Op> TRequest ReadFieldOnly(const TMembers& rMembers)
{
    return OnField({.op = Op, .sKey = rMembers.Utf8Of("field")});
}

TRequest ReadKey(const TMembers& rMembers)
{
    const std::string sName = rMembers.Utf8Of("key");
    TStep step{.op = EStep::Key};
    if (!gParseKeyName(sName, step.key)) {
        throw CRequestError("there is no key " + gQuoted(sName) +
                            "; the keys are enter, escape, tab, shift+tab, up, down, left, right, "
                            "space and alt+X");
    }
    return OnField(step);
}

TRequest ReadInsert(const TMembers&)
{
    return OnFrame({.op = EStep::Click, .sKey = "insert"});
}

TRequest ReadClose(const TMembers&)
{
    return OnFrame({.op = EStep::Click, .sKey = "close"});
}

template <EStep Op> TRequest ReadTreePath(const TMembers& rMembers)
{
    return OnFrame({.op = Op, .sKey = kTree, .sText = rMembers.Text("path")});
}

TRequest ReadAnswers(const TMembers& rMembers)
{
    const TJson& rAnswers = rMembers.Value("answers");
    TAnswersRequest request;
    const auto isAnswer = [](const TJson& rAnswer) { return rAnswer == "yes" || rAnswer == "no"; };
    if (!rAnswers.is_array() || !std::ranges::all_of(rAnswers, isAnswer))
        throw CRequestError("the member \"answers\" isn't a list of \"yes\" and \"no\"");
    for (const TJson& rAnswer : rAnswers)
        request.answers.push_back(rAnswer == "yes");
    return request;
}

TRequest ReadFile(const TMembers& rMembers)
{
    const int nGiven =
        int{rMembers.Has("path")} + int{rMembers.Has("cancel")} + int{rMembers.Has("invalid")};
    if (nGiven != 1)
        throw CRequestError("one of the members \"path\", \"cancel\" and \"invalid\" is wanted");
    if (rMembers.Has("path")) {
        const CString sPath = rMembers.Text("path");
        // What a file dialog hands over is whole.
        if (!gIsAbsolutePath(CStringU(sPath)))
            throw CRequestError("the path " + gQuoted(sPath.GetString()) + " isn't a whole one");
        return TFileRequest{{TFileChoice::EEnd::Chosen, sPath}};
    }
    const bool bCancel = rMembers.Has("cancel");
    const char* const pName = bCancel ? "cancel" : "invalid";
    if (!rMembers.Flag(pName))
        throw CRequestError("the member " + gQuoted(pName) + " can only be true");
    return TFileRequest{
        {bCancel ? TFileChoice::EEnd::Cancelled : TFileChoice::EEnd::InvalidName, {}}};
}

template <auto Read> TRequest ReadAs(const TMembers& rMembers)
{
    return Read(rMembers);
}

TRequest ReadTab(const TMembers& rMembers)
{
    return OnField({.op = EStep::Select, .sKey = "tabs", .nIndex = rMembers.Index("index")});
}

template <class TPlainRequest> TRequest ReadPlain(const TMembers&)
{
    return TPlainRequest{};
}

/// One operation: its name, its members, and how they are read.
struct TOperation {
    const char* pName;
    std::vector<const char*> members;
    TRequest (*pRead)(const TMembers& rMembers);
};

const std::vector<TOperation>& Operations()
{
    static const std::vector<TOperation> sOperations{
        {"open", {"page"}, ReadOpen},
        {"set", {"field", "text"}, ReadSet},
        {"select", {"field", "index", "entry"}, ReadSelect},
        {"check", {"field", "on"}, ReadCheck},
        {"choose", {"field", "index"}, ReadChoose},
        {"click", {"field"}, ReadFieldOnly<EStep::Click>},
        {"double-click", {"field"}, ReadFieldOnly<EStep::DoubleClick>},
        {"focus", {"field"}, ReadFieldOnly<EStep::Focus>},
        {"key", {"key"}, ReadKey},
        {"insert", {}, ReadInsert},
        {"close", {}, ReadClose},
        {"expand", {"path"}, ReadTreePath<EStep::Expand>},
        {"collapse", {"path"}, ReadTreePath<EStep::Collapse>},
        {"answers", {"answers"}, ReadAnswers},
        {"file", {"path", "cancel", "invalid"}, ReadFile},
        {"load", {"path"}, ReadAs<gReadLoad>},
        {"browse", {"dialog", "recalculate", "class"}, ReadAs<gReadBrowse>},
        {"device-details", {"subckt", "name"}, ReadAs<gReadDeviceDetails>},
        {"rows", {"from", "count"}, ReadAs<gReadRows>},
        {"tab", {"index"}, ReadTab},
        {"state", {}, ReadPlain<TStateRequest>},
        {"reopen", {}, ReadPlain<TReopenRequest>},
        {"fresh", {}, ReadPlain<TFreshRequest>},
    };
    return sOperations;
}

const TOperation& FindOperation(const std::string& rsName)
{
    const auto& rOperations = Operations();
    const auto found = std::ranges::find(rOperations, rsName, &TOperation::pName);
    if (found != rOperations.end())
        return *found;
    std::vector<std::string> names;
    names.reserve(rOperations.size());
    for (const TOperation& rOperation : rOperations)
        names.emplace_back(rOperation.pName);
    throw CRequestError("there is no request " + gQuoted(rsName) + gDidYouMean(rsName, names));
}
} // namespace

TRequest gParseRequest(std::string_view sLine)
{
    const TJson object = gParseJsonLine(sLine);
    const TMembers members(object);
    const TOperation& rOperation = FindOperation(members.Utf8Of("op"));
    members.AllowOnly(rOperation.members);
    return rOperation.pRead(members);
}

} // namespace quorvawiz::cli
