#include "support/RunProgram.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <quorvawiz/version.h>

#include <string>
#include <vector>

// The program as a user meets it: standard output, standard error and exit code, exactly.

namespace
{
using TArguments = std::vector<std::string>;

/// What an unreadable command line ends with.
std::string Complaint(const std::string& rsText)
{
    return "quorvawiz: " + rsText + '\n';
}

std::string Misread(const std::string& rsText)
{
    return Complaint(rsText + "; --help tells what is possible");
}

const std::string kTemperature = "Settings/Temperature";

TEST(Program, EveryWayToMisuseItIsTold)
{
    struct Case {
        const char* pName;
        TArguments arguments;
        std::string sError;
    };
    const std::vector<Case> cases{
        {"no subcommand", {}, Misread("a subcommand is required")},
        {"only an option", {"--rules", "unix"}, Misread("a subcommand is required")},
        {"unknown subcommand",
         {"page", "x"},
         Complaint("there is no command \"page\"; did you mean \"pages\"?")},
        {"unknown subcommand behind an option",
         {"--rules", "unix", "decsribe"},
         Complaint("there is no command \"decsribe\"; did you mean \"describe\"?")},
        {"two subcommands",
         {"pages", "session"},
         Misread("the following argument was not expected: \"session\"")},
        {"only an unknown option",
         {"--jsn"},
         Misread("the following argument was not expected: \"--jsn\"")},
        {"unknown option",
         {"--jsn", "pages"},
         Misread("the following argument was not expected: \"--jsn\"")},
        {"unknown option of a subcommand",
         {"pages", "--jsn"},
         Misread("the following argument was not expected: \"--jsn\"")},
        {"an option of another subcommand",
         {"session", "--json"},
         Misread("the following argument was not expected: \"--json\"")},
        {"an argument too many",
         {"pages", "x"},
         Misread("the following argument was not expected: \"x\"")},
        {"arguments too many",
         {"describe", "Settings", "x", "y"},
         Misread("the following arguments were not expected: \"x\" \"y\"")},
        {"session takes none",
         {"session", "x"},
         Misread("the following argument was not expected: \"x\"")},
        {"describe without a page", {"describe"}, Misread("PAGE is required")},
        {"compose without a page", {"compose"}, Misread("PAGE is required")},
        {"an option in place of an action",
         {"compose", kTemperature, "-x"},
         Misread("the following argument was not expected: \"-x\"")},
        {"unknown code page", {"--code-page", "7", "pages"}, Complaint("there is no code page 7")},
        {"a code page that isn't ASCII",
         {"--code-page", "1200", "pages"},
         Complaint("there is no code page 1200")},
        {"a code page that is no number",
         {"--code-page", "x", "pages"},
         Complaint("--code-page takes a number, not \"x\"")},
        {"a code page in other digits",
         {"--code-page", "0x4E4", "pages"},
         Complaint("--code-page takes a number, not \"0x4E4\"")},
        {"an empty code page",
         {"--code-page", "", "pages"},
         Complaint("--code-page takes a number, not \"\"")},
        {"a code page beyond all numbers",
         {"--code-page", "99999999999", "pages"},
         Complaint("there is no code page 99999999999")},
        {"a code page below 0",
         {"--code-page=-1", "pages"},
         Complaint("--code-page takes a number, not \"-1\"")},
        {"a code page without number",
         {"pages", "--code-page"},
         Misread("--code-page: 1 required NUMBER missing")},
        {"unknown path rules",
         {"--rules", "mac", "pages"},
         Complaint("there are no path rules \"mac\"; they are plain or unix")},
        {"path rules without name",
         {"session", "--rules"},
         Misread("--rules: 1 required NAME missing")},
        {"describe an unknown page",
         {"describe", "Settings/Temprature"},
         Complaint("there is no page \"Settings/Temprature\"; did you mean "
                   "\"Settings/Temperature\"?")},
        {"describe a class in other letters",
         {"describe", "csettingspage"},
         Complaint("there is no page \"csettingspage\"; did you mean \"CSettingsPage\"?")},
        {"compose an unknown page",
         {"compose", "Temperature", "x=1"},
         Complaint("there is no page \"Temperature\"; did you mean \"Settings/Temperature\"?")},
        {"unknown key",
         {"compose", kTemperature, "temp=27"},
         Complaint("there is no field \"temp\"; did you mean \"temperature-list\"?")},
        {"unknown button",
         {"compose", "Settings", "button-7"},
         Complaint("there is no field \"button-7\"; did you mean \"button-1\"?")},
        {"unknown prefix",
         {"compose", kTemperature, "sweep.start=1"},
         Complaint("there is no field \"sweep\"")},
        {"no key",
         {"compose", kTemperature, "=27"},
         Complaint("the argument \"=27\" names no field")},
        {"an action in brackets",
         {"compose", kTemperature, "[temperature-list=5]"},
         Complaint("the argument \"[temperature-list=5]\" can't stand in brackets")},
        {"empty brackets",
         {"compose", kTemperature, "[]"},
         Complaint("the argument \"[]\" can't stand in brackets")},
        {"a list in brackets",
         {"compose", kTemperature, "[a,b]"},
         Complaint("the argument \"[a,b]\" can't stand in brackets")},
        {"a page in brackets",
         {"describe", "[Settings/Temperature]"},
         Complaint("the argument \"[Settings/Temperature]\" can't stand in brackets")},
        {"a key with control characters",
         {"compose", kTemperature, "a\n\x1b[31m=1"},
         Complaint("there is no field \"a\\x0A\\x1B[31m\"; did you mean \"temperature-list\"?")},
        {"an unexpected argument with a line end",
         {"pages", "a\nb"},
         Misread("the following argument was not expected: \"a\\x0Ab\"")},
        {"an empty action",
         {"compose", kTemperature, ""},
         Complaint("the argument \"\" names no field")},
        {"braces are an action like any other",
         {"compose", kTemperature, "{}"},
         Complaint("there is no field \"{}\"; did you mean \"temperature-list\"?")},
        {"a subcommand's name is an action like any other",
         {"compose", kTemperature, "pages"},
         Complaint("there is no field \"pages\"; did you mean \"temperature-list\"?")},
        {"a text is missing",
         {"compose", kTemperature, "temperature-list"},
         Complaint("\"temperature-list\" is a box for text: it takes a text; "
                   "write temperature-list=TEXT")},
        {"a button takes no text",
         {"compose", "Settings", "button-1=x"},
         Complaint("\"button-1\" is a button: it is pressed; write button-1 alone")},
        {"a note takes nothing",
         {"compose", kTemperature, "note=x"},
         Complaint("\"note\" only shows a text: it takes nothing")},
        {"a text that doesn't fit",
         {"compose", kTemperature, "temperature-list=\u0439", "--code-page", "1252"},
         Complaint("the text for \"temperature-list\" doesn't fit in code page 1252")},
        {"a text that isn't UTF-8",
         {"compose", kTemperature, "temperature-list=\xff"},
         Complaint("the text for \"temperature-list\" isn't UTF-8")},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(gRunQuorvawiz(rCase.arguments), (TProgramRun{"", rCase.sError, 2}))
            << rCase.pName;
}

TEST(Program, ComposePrintsTheCommand)
{
    struct Case {
        const char* pName;
        TArguments arguments;
        TProgramRun run;
    };
    const std::vector<Case> cases{
        {"the worked example",
         {"compose", "Settings/Temperature", "temperature-list=0 27 85"},
         {".temp 0 27 85\n", "", 0}},
        {"by the class",
         {"compose", "CSettingsTemperaturePage", "temperature-list=27"},
         {".temp 27\n", "", 0}},
        {"in other letters",
         {"compose", "settings/TEMPERATURE", "temperature-list=27"},
         {".temp 27\n", "", 0}},
        {"a line feed starts a line",
         {"compose", kTemperature, "temperature-list=0\n27\n"},
         {".temp 0 27\n", "", 0}},
        {"a value like an option",
         {"compose", kTemperature, "temperature-list=--json"},
         {".temp --json\n", "", 0}},
        {"a value like a list of the parser's",
         {"compose", kTemperature, "temperature-list=[1,2]"},
         {".temp [1,2]\n", "", 0}},
        {"the options may stand behind",
         {"compose", kTemperature, "temperature-list=1", "--rules", "plain", "--code-page", "1252"},
         {".temp 1\n", "", 0}},
        {"as JSON",
         {"compose", kTemperature, "temperature-list=27", "--json"},
         {"{\"ok\":true,\"command\":\".temp 27\",\"messages\":[],\"questions\":[]}\n", "", 0}},
        {"a failed check", {"compose", kTemperature}, {"", "Missing temperature value.\n", 1}},
        {"a failed check as JSON",
         {"compose", "--json", kTemperature},
         {"{\"ok\":false,\"command\":null,\"messages\":[\"Missing temperature value.\"],"
          "\"questions\":[]}\n",
          "Missing temperature value.\n", 1}},
        {"a text that isn't ASCII",
         {"compose", kTemperature, "temperature-list=\u00e9"},
         {"", "Only ASCII characters are allowed\n", 1}},
        {"a category",
         {"compose", "Settings"},
         {"", "quorvawiz: the page on display has no command to insert\n", 1}},
        {"misuse as JSON",
         {"compose", kTemperature, "temp=1", "--json"},
         {"{\"ok\":false,\"command\":null,\"messages\":[],\"questions\":[],"
          "\"error\":\"there is no field \\\"temp\\\"; did you mean \\\"temperature-list\\\"?\"}\n",
          "quorvawiz: there is no field \"temp\"; did you mean \"temperature-list\"?\n", 2}},
        {"an unknown page as JSON",
         {"compose", "--json", "Setings"},
         {"{\"ok\":false,\"command\":null,\"messages\":[],\"questions\":[],"
          "\"error\":\"there is no page \\\"Setings\\\"; did you mean \\\"Settings\\\"?\"}\n",
          "quorvawiz: there is no page \"Setings\"; did you mean \"Settings\"?\n", 2}},
        {"JSON is always UTF-8",
         {"compose", kTemperature, "\xff=1", "--json"},
         {"{\"ok\":false,\"command\":null,\"messages\":[],\"questions\":[],"
          "\"error\":\"there is no field \\\"\\\\xFF\\\"; did you mean "
          "\\\"temperature-list\\\"?\"}\n",
          "quorvawiz: there is no field \"\\xFF\"; did you mean \"temperature-list\"?\n", 2}},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(gRunQuorvawiz(rCase.arguments), rCase.run) << rCase.pName;
}

TEST(Program, DescribeTellsThePage)
{
    EXPECT_EQ(gRunQuorvawiz({"describe", "settings/temperature"}),
              (TProgramRun{"Settings/Temperature  CSettingsTemperaturePage\n"
                           "\n"
                           "KEY               KIND             START VALUE        FLAGS  LABEL\n"
                           "temperature-list  multi-line-edit  \"\"                 -      "
                           "&List circuit temperatures, separated by spaces "
                           "(in degrees Celsius):\n"
                           "note              static           \"(default is 27)\"  -      -\n",
                           "", 0}));
    EXPECT_EQ(gRunQuorvawiz({"describe", "CInitializationPage"}),
              (TProgramRun{"Initialization  CInitializationPage\n"
                           "\n"
                           "KEY       KIND    START VALUE       FLAGS  LABEL\n"
                           "heading   static  \"Initialization\"  -      -\n"
                           "button-1  button  -                 -      DC guess\n"
                           "button-2  button  -                 -      Initial condition\n",
                           "", 0}));
}

TEST(Program, DescribeTellsThePageAsJson)
{
    EXPECT_EQ(
        gRunQuorvawiz({"describe", "--json", kTemperature}),
        (TProgramRun{
            R"({"page":"Settings/Temperature","class":"CSettingsTemperaturePage","controls":[)"
            R"({"key":"temperature-list","kind":"multi-line-edit",)"
            R"("label":"&List circuit temperatures, separated by spaces (in degrees Celsius):",)"
            R"("entries":null,"start_value":"","enabled":true,"visible":true,)"
            R"("read_only":false},)"
            R"({"key":"note","kind":"static","label":null,"entries":null,)"
            R"-("start_value":"(default is 27)","enabled":true,"visible":true,)-"
            R"("read_only":false}]})"
            "\n",
            "", 0}));
}

TEST(Program, EveryPageThatIsReadyCanBeDescribed)
{
    int nReady = 0;
    for (const auto& rPage : nlohmann::json::parse(gRunQuorvawiz({"pages", "--json"}).sOut)) {
        if (!rPage["built"].get<bool>())
            continue;
        ++nReady;
        const TProgramRun run = gRunQuorvawiz({"describe", rPage["class"].get<std::string>()});
        EXPECT_EQ(run.sError, "") << rPage;
        EXPECT_EQ(run.nExitCode, 0) << rPage;
    }
    EXPECT_GE(nReady, 9); // the categories at least
}

TEST(Program, TheVersionIsTold)
{
    const TProgramRun version{"quorvawiz " + std::string(quorvawiz::kVersion) + '\n', "", 0};
    EXPECT_EQ(gRunQuorvawiz({"--version"}), version);
    EXPECT_EQ(gRunQuorvawiz({"--version", "pages"}), version);
}

TEST(Program, SessionRunsToTheEndOfItsInput)
{
    EXPECT_EQ(gRunQuorvawiz({"session"}), (TProgramRun{"", "", 0}));
    const TProgramRun run = gRunQuorvawiz({"session"}, "{\"op\":\"close\"}\n\n");
    EXPECT_EQ(run, (TProgramRun{R"({"ok":true,"messages":[],"questions":[],"boxes":[],)"
                                R"("file_dialogs":[],"inserted":[],"command":null,)"
                                R"("insert_enabled":false,"page":null,"dialog":null,)"
                                R"("focus":null,"tree":null,"fields":{}})"
                                "\n"
                                R"({"ok":false,"error":"the line isn't JSON from byte 1 on",)"
                                R"("messages":[],"questions":[],"boxes":[],)"
                                R"("file_dialogs":[],"inserted":[],"command":null,)"
                                R"("insert_enabled":false,"page":null,"dialog":null,)"
                                R"("focus":null,"tree":null,"fields":{}})"
                                "\n",
                                "", 0}));
}

TEST(Program, SessionKeepsTextsInTheCodePage)
{
    const std::string sInput =
        "{\"op\":\"open\",\"page\":\"Settings/Temperature\"}\n"
        "{\"op\":\"set\",\"field\":\"temperature-list\",\"text\":\"\u0439\"}\n";
    const auto lastReply = [&sInput](const TArguments& rArguments) {
        const std::string sOut = gRunQuorvawiz(rArguments, sInput).sOut;
        return nlohmann::json::parse(sOut.substr(sOut.find('\n') + 1));
    };
    EXPECT_EQ(lastReply({"session"})["fields"]["temperature-list"]["text"], "\u0439");
    EXPECT_EQ(lastReply({"session", "--code-page", "1251"})["fields"]["temperature-list"]["text"],
              "\u0439");
    EXPECT_EQ(lastReply({"--code-page", "1252", "session"})["error"],
              "the member \"text\" doesn't fit in code page 1252");
}
} // namespace
