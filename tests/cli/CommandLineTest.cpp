#include "cli/CommandLine.h"

#include "cli/Failure.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
std::variant<TCommandLine, TInformation> Read(std::vector<const char*> arguments)
{
    arguments.insert(arguments.begin(), "quorvawiz");
    return gReadCommandLine(static_cast<int>(arguments.size()), arguments.data());
}

TEST(CommandLine, TheOptionsMayStandAnywhere)
{
    struct Case {
        const char* pName;
        std::vector<const char*> arguments;
        bool bUnixRules;
        unsigned nCodePage;
    };
#ifdef _WIN32
    constexpr bool bUnixHere = false;
#else
    constexpr bool bUnixHere = true;
#endif
    const std::vector<Case> cases{
        {"not given", {"compose", "P", "a=1"}, bUnixHere, 65001},
        {"in front",
         {"--rules", "plain", "--code-page", "1252", "compose", "P", "a=1"},
         false,
         1252},
        {"unix", {"--rules", "unix", "compose", "P", "a=1"}, true, 65001},
        {"behind the command",
         {"compose", "--rules=plain", "P", "--code-page=1251", "a=1"},
         false,
         1251},
        {"at the end",
         {"compose", "P", "a=1", "--rules", "plain", "--code-page", "1250"},
         false,
         1250},
        {"zeros in front", {"compose", "P", "a=1", "--code-page", "01252"}, bUnixHere, 1252},
    };
    for (const Case& rCase : cases) {
        const auto line = std::get<TCommandLine>(Read(rCase.arguments));
        EXPECT_EQ(line.bUnixRules, rCase.bUnixRules) << rCase.pName;
        EXPECT_EQ(line.nCodePage, rCase.nCodePage) << rCase.pName;
        const auto& rCompose = std::get<TComposeOptions>(line.command);
        EXPECT_EQ(rCompose.sPage, "P") << rCase.pName;
        EXPECT_EQ(rCompose.arguments, std::vector<std::string>{"a=1"}) << rCase.pName;
        EXPECT_FALSE(rCompose.bJson) << rCase.pName;
    }
}

TEST(CommandLine, EveryCommandIsRead)
{
    const auto command = [](std::vector<const char*> arguments) {
        return std::get<TCommandLine>(Read(std::move(arguments))).command;
    };
    EXPECT_FALSE(std::get<TPagesOptions>(command({"pages"})).bJson);
    EXPECT_TRUE(std::get<TPagesOptions>(command({"pages", "--json"})).bJson);
    EXPECT_EQ(std::get<TDescribeOptions>(command({"describe", "P"})).sPage, "P");
    EXPECT_TRUE(std::get<TDescribeOptions>(command({"describe", "P", "--json"})).bJson);
    EXPECT_TRUE(std::get<TComposeOptions>(command({"compose", "P", "--json"})).bJson);
    EXPECT_TRUE(std::holds_alternative<TSessionOptions>(command({"session"})));
}

TEST(CommandLine, ActionsAreKeptAsTheyAreWritten)
{
    const std::vector<std::string> actions{"a=[1,2]", "[",       "]",     "{}",
                                           "",        "a=\"b\"", "b = c", "pages"};
    std::vector<const char*> arguments{"compose", "P"};
    arguments.reserve(arguments.size() + actions.size());
    for (const std::string& rsAction : actions)
        arguments.push_back(rsAction.c_str());
    const auto line = std::get<TCommandLine>(Read(arguments));
    EXPECT_EQ(std::get<TComposeOptions>(line.command).arguments, actions);
}
} // namespace
} // namespace quorvawiz::cli
