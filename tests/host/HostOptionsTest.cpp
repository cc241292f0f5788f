#include "quorvahost/HostOptions.h"

#include "host/PrintQt.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorvawiz::host
{
namespace
{
using enum EHostTask;
using enum ECommandSink;

struct TGoodCase {
    const char* pArguments; // parted by blanks
    THostOptions options;
};

QStringList Split(const char* pArguments)
{
    return QString::fromLatin1(pArguments).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

TEST(HostOptions, GoodCommandLines)
{
    const std::vector<TGoodCase> cases{
        {"", {Edit, Output, {}}},
        {"a.cir", {Edit, Output, "a.cir"}},
        {"a.cir --import", {Edit, Output, "a.cir", EBrowserList::Devices, true}},
        {"--import a.cir", {Edit, Output, "a.cir", EBrowserList::Devices, true}},
        {"-- -a.cir", {Edit, Output, "-a.cir"}},
        {"-", {Edit, Output, "-"}},
        {"--wizard", {Wizard, Output, {}}},
        {"--wizard --append a.cir", {Wizard, File, "a.cir"}},
        {"--append=a.cir --wizard", {Wizard, File, "a.cir"}},
        {"--append --wizard --wizard", {Wizard, File, "--wizard"}},
        {"--wizard --clipboard", {Wizard, Clipboard, {}}},
        {"--browse a.params", {Browse, Output, "a.params"}},
        {"--browse=a.params", {Browse, Output, "a.params"}},
        {"--browse --list --list devices", {Browse, Output, "--list"}},
        {"--list library-models --browse a", {Browse, Output, "a", EBrowserList::LibraryModels}},
        {"--browse a --list=simulator-models",
         {Browse, Output, "a", EBrowserList::SimulatorModels}},
    };
    for (const TGoodCase& rCase : cases) {
        const auto read = gReadHostOptions(Split(rCase.pArguments));
        const auto* const pOptions = std::get_if<THostOptions>(&read);
        ASSERT_NE(pOptions, nullptr) << rCase.pArguments;
        EXPECT_EQ(*pOptions, rCase.options) << rCase.pArguments;
    }
}

TEST(HostOptions, HelpAndVersionComeFirst)
{
    for (const char* const pArguments : {"--help", "-h", "--wizard --help", "--append a --help"}) {
        const auto read = gReadHostOptions(Split(pArguments));
        ASSERT_TRUE(std::holds_alternative<THostOptions>(read)) << pArguments;
        EXPECT_EQ(std::get<THostOptions>(read).task, Help) << pArguments;
    }
    const auto read = gReadHostOptions(Split("--version a.cir"));
    ASSERT_TRUE(std::holds_alternative<THostOptions>(read));
    EXPECT_EQ(std::get<THostOptions>(read).task, Version);
}

struct TBadCase {
    const char* pArguments;
    const char* pMessage;
};

TEST(HostOptions, BadCommandLines)
{
    const std::vector<TBadCase> cases{
        {"--wizzard", "unknown option: --wizzard"},
        {"-x", "unknown option: -x"},
        {"--wizard=1", "--wizard takes no value"},
        {"--help=", "--help takes no value"},
        {"--import", "--import goes with a netlist to open"},
        {"--import --wizard", "--import goes with a netlist to open"},
        {"--import --browse a", "--import goes with a netlist to open"},
        {"a.cir --import=1", "--import takes no value"},
        {"--browse", "--browse needs a file"},
        {"--browse=", "--browse needs a file"},
        {"--browse a --browse b", "give --browse once"},
        {"--browse a b", "--browse takes its file and nothing else"},
        {"--browse a --wizard", "--browse takes its file and nothing else"},
        {"--browse a --append b", "--browse takes its file and nothing else"},
        {"--browse a --list", "--list is one of: devices, library-models, simulator-models"},
        {"--browse a --list classes",
         "--list is one of: devices, library-models, simulator-models"},
        {"--list devices", "--list goes with --browse"},
        {"a.cir b.cir", "more than one file: b.cir"},
        {"--append", "--append needs a file"},
        {"--wizard --append=", "--append needs a file"},
        {"--append a.cir", "--append and --clipboard go with --wizard"},
        {"--clipboard", "--append and --clipboard go with --wizard"},
        {"--wizard --append a --clipboard", "give --append or --clipboard, once"},
        {"--wizard --append a --append b", "give --append or --clipboard, once"},
        {"--wizard a.cir", "--wizard takes no file; --append FILE adds commands to one"},
        {"--bad --help", "unknown option: --bad"},
    };
    for (const TBadCase& rCase : cases) {
        const auto read = gReadHostOptions(Split(rCase.pArguments));
        const auto* const pFault = std::get_if<TUsageFault>(&read);
        ASSERT_NE(pFault, nullptr) << rCase.pArguments;
        EXPECT_EQ(pFault->sMessage, rCase.pMessage) << rCase.pArguments;
    }
    const auto read = gReadHostOptions({QString()});
    ASSERT_TRUE(std::holds_alternative<TUsageFault>(read));
    EXPECT_EQ(std::get<TUsageFault>(read).sMessage, "a file's name is empty");
}
} // namespace
} // namespace quorvawiz::host
