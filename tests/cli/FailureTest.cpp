#include "cli/Shell.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// What the program does when its surroundings fail.

namespace
{
TEST(Failure, IsToldWithExitCode3)
{
    struct Case {
        const char* pName;
        const char* pCommand;
        const char* pOutput;
    };
    const std::vector<Case> cases{
        {"pages to a full disk", "quorvawiz pages > /dev/full",
         "quorvawiz: can't write to the standard output\n"},
        {"describe", "quorvawiz describe Settings > /dev/full",
         "quorvawiz: can't write to the standard output\n"},
        {"compose", "quorvawiz compose Settings/Temperature temperature-list=27 > /dev/full",
         "quorvawiz: can't write to the standard output\n"},
        {"help", "quorvawiz --help > /dev/full", "quorvawiz: can't write to the standard output\n"},
        {"session", "echo '{\"op\":\"state\"}' | quorvawiz session > /dev/full",
         "quorvawiz: can't write the session's replies\n"},
        {"a session that can't read", "quorvawiz session < /",
         "quorvawiz: can't read the session's requests\n"},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(gRunShell(std::string(rCase.pCommand) + "; echo $?"),
                  std::string(rCase.pOutput) + "3\n")
            << rCase.pName;
}
} // namespace
