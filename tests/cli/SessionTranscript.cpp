#include "cli/SessionTranscript.h"

#include "browser/Export.h"
#include "cli/Session.h"
#include "cli/TestWizard.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>

using nlohmann::json;

namespace
{
/// Takes away from a reply what the expectation doesn't name.
json PartOf(const json& rReply, const json& rExpected)
{
    if (!rReply.is_object() || !rExpected.is_object() || rExpected.empty())
        return rReply;
    json part = json::object();
    for (const auto& [sMember, rValue] : rExpected.items())
        if (rReply.contains(sMember))
            part[sMember] = PartOf(rReply[sMember], rValue);
    return part;
}
} // namespace

std::string gServe(const quorvawiz::cli::TWizard& rWizard, const std::string& rsInput)
{
    CRememberedBase::ResetAll();
    gGetLastExportPath() = {};
    std::istringstream in(rsInput);
    std::ostringstream out;
    quorvawiz::cli::CSession(rWizard, in, out).Run();
    return out.str();
}

void gExpectTranscript(const quorvawiz::cli::TWizard& rWizard,
                       const std::vector<TExchange>& rTranscript)
{
    std::string sInput;
    for (const TExchange& rExchange : rTranscript)
        sInput += rExchange.sRequest + '\n';
    std::istringstream replies(gServe(rWizard, sInput));
    for (const TExchange& rExchange : rTranscript) {
        std::string sLine;
        ASSERT_TRUE(std::getline(replies, sLine)) << "no reply to " << rExchange.sRequest;
        const json reply = json::parse(sLine);
        const json expected = json::parse(rExchange.sReply);
        EXPECT_EQ(PartOf(reply, expected), expected) << rExchange.sRequest << '\n' << sLine;
        EXPECT_EQ(reply["ok"].get<bool>(), !reply.contains("error")) << sLine;
    }
    std::string sMore;
    EXPECT_FALSE(std::getline(replies, sMore)) << sMore;
}

void gExpectTranscript(const std::vector<TExchange>& rTranscript)
{
    gExpectTranscript(gTestWizard(), rTranscript);
}
