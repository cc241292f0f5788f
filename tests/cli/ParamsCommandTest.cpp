#include "cli/Shell.h"
#include "params/CircuitParams.h"
#include "support/RunProgram.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <regex>
#include <string>
#include <vector>

namespace
{

using nlohmann::json;

/// An example of so many devices in a folder. Result: its path.
std::string MakeExample(const CTempFolder& rFolder, const std::string& rsName, int nDevices,
                        int nSeed = 1)
{
    const std::string sPath = rFolder.Path(rsName);
    EXPECT_EQ(gRunQuorvawiz({"make-example", sPath, "--devices", std::to_string(nDevices), "--seed",
                             std::to_string(nSeed)}),
              (TProgramRun{"", "", 0}));
    return sPath;
}

TEST(MakeExample, TheSameSeedMakesTheSameFile)
{
    const CTempFolder folder;
    MakeExample(folder, "a", 450);
    MakeExample(folder, "b", 450);
    MakeExample(folder, "c", 450, 2);
    EXPECT_EQ(folder.Read("a"), folder.Read("b"));
    EXPECT_NE(folder.Read("a"), folder.Read("c"));
    EXPECT_TRUE(folder.Read("a").starts_with("22 serialization::archive 17 0 0 "));
}

TEST(MakeExample, ThousandDevicesAreTheUsualOne)
{
    const CTempFolder folder;
    EXPECT_EQ(gRunQuorvawiz({"make-example", folder.Path("a")}), (TProgramRun{"", "", 0}));
    MakeExample(folder, "b", 1000);
    EXPECT_EQ(folder.Read("a"), folder.Read("b"));
}

TEST(MakeExample, WrongArguments)
{
    const CTempFolder folder;
    const std::string sOut = folder.Path("a");
    EXPECT_EQ(gRunQuorvawiz({"make-example", sOut, "--devices", "-1"}),
              (TProgramRun{
                  "", "quorvawiz: --devices takes a number from 0 to 10000000, not \"-1\"\n", 2}));
    EXPECT_EQ(gRunQuorvawiz({"make-example", sOut, "--seed", "x"}).nExitCode, 2);
    EXPECT_EQ(gRunQuorvawiz({"make-example"}),
              (TProgramRun{"", "quorvawiz: OUT is required; --help tells what is possible\n", 2}));
    EXPECT_EQ(gRunQuorvawiz({"make-example", folder.Path("none/a")}),
              (TProgramRun{"", "Params file open failed!\n", 1}));
    EXPECT_FALSE(std::filesystem::exists(sOut));
}

TEST(Params, Info)
{
    const CTempFolder folder;
    const std::string sPath = MakeExample(folder, "a", 450);
    const TProgramRun run = gRunQuorvawiz({"params", sPath, "info"});
    EXPECT_EQ(run.nExitCode, 0);
    EXPECT_EQ(run.sError, "");
    const std::string sSize = std::to_string(folder.Read("a").size());
    const std::string sExpected = "classes          5\n"
                                  "optical classes  1\n"
                                  "models           15\n"
                                  "devices          450\n"
                                  "subcircuits      3\n"
                                  "bytes            " +
                                  sSize +
                                  "\n"
                                  "archive version  17\n"
                                  "load time        T ms\n";
    EXPECT_EQ(std::regex_replace(run.sOut, std::regex("[0-9.]+ ms"), "T ms"), sExpected);
    const json info = json::parse(gRunQuorvawiz({"params", sPath, "info", "--json"}).sOut);
    EXPECT_EQ(info["devices"], 450);
    EXPECT_EQ(info["archive_version"], 17);
    EXPECT_EQ(info["bytes"], folder.Read("a").size());
}

TEST(Params, CheckFindsNothingInAnExample)
{
    const CTempFolder folder;
    for (const int nDevices : {0, 1, 450}) {
        EXPECT_EQ(gRunQuorvawiz({"params", MakeExample(folder, "a", nDevices), "check"}),
                  (TProgramRun{"every link leads somewhere\n", "", 0}));
    }
}

TEST(Params, CheckTellsDanglingLinks)
{
    const CTempFolder folder;
    TCircuitParams store;
    store.AddSubckt("a", 2);
    store.AddSubckt("b", 1); // takes the other one out of the table
    TModelData model;
    model.mModelHeader = {1, "n1", "MOS1", "n"};
    store.AddModel(model);
    TDeviceData device;
    device.mDeviceHeader = {3, "d1"};
    device.mModelHeader = {7, "n9", "MOS2", "n"};
    store.AddDevice(device);
    store.WriteThis(folder.Path("a"), "");
    const TProgramRun run = gRunQuorvawiz({"params", folder.Path("a"), "check", "--verbose"});
    EXPECT_EQ(run.sError, "");
    EXPECT_EQ(run.sOut, "subcircuit \"a\": its id 2 isn't its own in the table\n"
                        "model \"n1\" in subcircuit 1: there is no class \"MOS1\"\n"
                        "subcircuit 3 has devices and no name\n"
                        "device \"d1\" in subcircuit 3: there is no class \"MOS2\"\n"
                        "device \"d1\" in subcircuit 3: there is no model \"n9\" in subcircuit 7\n"
                        "dangling links: 5\n");
    EXPECT_EQ(run.nExitCode, 1);
}

TEST(Params, DumpTellsEverythingAsJson)
{
    const CTempFolder folder;
    const TProgramRun run = gRunQuorvawiz({"params", MakeExample(folder, "a", 250), "dump"});
    EXPECT_EQ(run.nExitCode, 0);
    const json dump = json::parse(run.sOut);
    EXPECT_EQ(dump["subcircuits"]["table"], (json{"top", "xpll1"}));
    ASSERT_EQ(dump["classes"].size(), 5U);
    std::vector<std::string> keys;
    for (const json& rClass : dump["classes"]) {
        keys.push_back(rClass["key"]);
    }
    EXPECT_THAT(keys, testing::ElementsAre("C", "R", "MOS3", "DIODE", "GUMMEL_POON"));
    EXPECT_EQ(dump["classes"][2]["model_params"][0],
              (json{{"name", "vto"},
                    {"kind", "double"},
                    {"value", 0.7},
                    {"is_set", false},
                    {"units", "V"},
                    {"description", "Zero-bias threshold voltage"},
                    {"aliases", {"vt0"}}}));
    EXPECT_EQ(dump["classes"][2]["state_params"][0]["value"], "uninitialized");
    EXPECT_EQ(dump["optical_classes"][0]["description"], "Fabry\u2013P\u00E9rot laser diode");
    ASSERT_EQ(dump["devices"].size(), 2U);
    EXPECT_EQ(dump["devices"][0]["devices"].size(), 200U);
    EXPECT_EQ(dump["devices"][1]["subcircuit"], 1);
    EXPECT_EQ(dump["devices"][1]["devices"].size(), 50U);
    EXPECT_EQ(dump["models"][1]["models"].size(), 5U);
}

/// A store with one of everything, and every kind of value.
void FillKinds(TCircuitParams& rStore)
{
    rStore.AddSubckt("top", 0);
    rStore.AddSubckt("x3", 3); // leaves a gap
    TModelClassDef definition;
    definition.mHeader = {"MOS1", "nmos", 7, 2.5, "a transistor"};
    TParamDef def;
    def.msName = "vto";
    def.mValue = 3;
    def.mIsSet = true;
    definition.mDeviceParamDefs.push_back(def);
    rStore.AddModelClass(definition);
    TModelData model;
    model.mModelHeader = {0, "n1", "MOS1", "nmos"};
    model.mModelParamValues["a"] = true;
    model.mModelParamValues["bb"] = CStringU(u"\u00E9");
    rStore.AddModel(model);
    model.mModelHeader = {3, "lost", "none", "x"};
    model.mModelParamValues.clear();
    rStore.AddModel(model);
    TDeviceData device;
    device.mDeviceHeader = {3, "m1"};
    device.mModelHeader = {0, "n1", "MOS1", "nmos"};
    device.mDeviceParamValues["m"] = -4;
    device.mDeviceParamValues["ww"] = 0.5;
    device.mStateParamValues["on"] = false;
    device.mStateParamValues["vgs"] = kUninitializedParamValue;
    rStore.AddDevice(device);
    device = {};
    device.mDeviceHeader = {3, "r10"};
    rStore.AddDevice(device);
}

TEST(Params, DumpOfEveryField)
{
    const CTempFolder folder;
    TCircuitParams store;
    FillKinds(store);
    store.WriteThis(folder.Path("a"), "");
    const TProgramRun run = gRunQuorvawiz({"params", folder.Path("a"), "dump"});
    EXPECT_EQ(run.nExitCode, 0);
    const json expected = json::parse(R"({
      "subcircuits": {"index": [{"name": "x3", "id": 3}, {"name": "top", "id": 0}],
                      "table": ["top", "", "", "x3"]},
      "classes": [{"key": "MOS1", "name": "MOS1", "type": "nmos", "level": 7, "version": 2.5,
                   "description": "a transistor", "model_params": [], "state_params": [],
                   "device_params": [{"name": "vto", "kind": "int", "value": 3, "is_set": true,
                                      "units": "", "description": "", "aliases": []}]}],
      "optical_classes": [],
      "models": [
        {"subcircuit": 0, "models": [
          {"key": "n1", "has_class": true,
           "model": {"subcircuit": 0, "name": "n1", "class": "MOS1", "type": "nmos"},
           "values": [{"name": "a", "kind": "bool", "value": true},
                      {"name": "bb", "kind": "text", "value": "\u00E9"}]}]},
        {"subcircuit": 3, "models": [
          {"key": "lost", "has_class": false,
           "model": {"subcircuit": 3, "name": "lost", "class": "none", "type": "x"},
           "values": []}]}],
      "devices": [
        {"subcircuit": 0, "devices": []},
        {"subcircuit": 3, "devices": [
          {"key": "m1", "has_class": true, "has_model": true,
           "device": {"subcircuit": 3, "name": "m1"},
           "model": {"subcircuit": 0, "name": "n1", "class": "MOS1", "type": "nmos"},
           "values": [{"name": "m", "kind": "int", "value": -4},
                      {"name": "ww", "kind": "double", "value": 0.5}],
           "state": [{"name": "on", "kind": "bool", "value": false},
                     {"name": "vgs", "kind": "double", "value": "uninitialized"}]},
          {"key": "r10", "has_class": false, "has_model": false,
           "device": {"subcircuit": 3, "name": "r10"},
           "model": {"subcircuit": 0, "name": "", "class": "", "type": ""},
           "values": [], "state": []}]}]})");
    EXPECT_EQ(json::parse(run.sOut), expected) << run.sOut;
}

TEST(Params, InfoTellsTheVersionOfTheFile)
{
    const CTempFolder folder;
    MakeExample(folder, "a", 1);
    std::string sFile = folder.Read("a");
    sFile.replace(sFile.find("archive 17 "), 11, "archive 9 ");
    const TProgramRun run = gRunQuorvawiz({"params", folder.Write("b", sFile), "info"});
    EXPECT_THAT(run.sOut, testing::HasSubstr("\narchive version  9\n"));
    const json info =
        json::parse(gRunQuorvawiz({"params", folder.Path("b"), "info", "--json"}).sOut);
    EXPECT_EQ(info["archive_version"], 9);
}

TEST(Params, SaveAsXmlWithoutAnyClass)
{
    const CTempFolder folder;
    TCircuitParams store;
    store.AddSubckt("top", 0);
    TDeviceData device;
    device.mDeviceHeader = {0, "d1"};
    store.AddDevice(device);
    store.WriteThis(folder.Path("a"), "");
    EXPECT_EQ(gRunQuorvawiz({"params", folder.Path("a"), "save", folder.Path("b"), "--xml"}),
              (TProgramRun{"", "", 0}));
    const std::string sXml = folder.Read("b");
    EXPECT_TRUE(sXml.starts_with("<?xml version=\"1.0\""));
    EXPECT_THAT(sXml, testing::HasSubstr("<s>d1</s>"));
    EXPECT_TRUE(sXml.ends_with("</cCircuitParams>\n</boost_serialization>\n\n"));
}

TEST(Params, SaveToAPipe)
{
    const CTempFolder folder;
    const std::string sPath = MakeExample(folder, "a", 450); // more than a pipe holds at once
    EXPECT_EQ(gRunShell("quorvawiz params " + sPath + " save /dev/stdout | cat"), folder.Read("a"));
}

TEST(Params, SaveWritesTheSameFileAndXmlOnlyWithoutClasses)
{
    const CTempFolder folder;
    const std::string sPath = MakeExample(folder, "a", 450);
    const std::string sOut = folder.Path("b");
    EXPECT_EQ(gRunQuorvawiz({"params", sPath, "save", sOut}), (TProgramRun{"", "", 0}));
    EXPECT_EQ(folder.Read("b"), folder.Read("a"));
    EXPECT_EQ(gRunQuorvawiz({"params", sPath, "save", sOut, "--xml"}),
              (TProgramRun{"", "Params file WriteThis() operation failed!\n", 1}));
    EXPECT_EQ(folder.Read("b"), folder.Read("a"));
    EXPECT_EQ(gRunQuorvawiz({"params", sPath, "save", folder.Path("none/b")}),
              (TProgramRun{"", "Params file open failed!\n", 1}));
}

TEST(Params, AFileThatCanNotBeRead)
{
    const CTempFolder folder;
    const std::string sPath = folder.Write("a", "22 serialization::archive 17 0 0 0");
    const std::string sMessage =
        "Error reading data file '" + sPath + "': Params file ReadThis() operation failed!\n";
    for (const char* const pAction : {"info", "check", "dump"}) {
        EXPECT_EQ(gRunQuorvawiz({"params", sPath, pAction}), (TProgramRun{"", sMessage, 1}));
    }
    EXPECT_EQ(gRunQuorvawiz({"params", sPath, "info", "--verbose"}),
              (TProgramRun{"", sMessage + "quorvawiz: byte 34: the file ends here\n", 1}));
    EXPECT_EQ(gRunQuorvawiz({"params", "/proc/self/mem", "info", "--verbose"}),
              (TProgramRun{"",
                           "Error reading data file '/proc/self/mem': Params file ReadThis() "
                           "operation failed!\n"
                           "quorvawiz: byte 0: the system can't read the file here\n",
                           1}));
    const std::string sNone = folder.Path("none");
    EXPECT_EQ(gRunQuorvawiz({"params", sNone, "info"}),
              (TProgramRun{"", "Error reading data file '" + sNone + "': File not found\n", 1}));
}

TEST(Params, WrongArguments)
{
    const CTempFolder folder;
    const std::string sPath = MakeExample(folder, "a", 1);
    const struct {
        std::vector<std::string> arguments;
        std::string sMessage;
    } cases[] = {
        {{"inof"}, "there is no action \"inof\"; did you mean \"info\"?"},
        {{"save"}, "save needs OUT"},
        {{"save", "a", "b"}, "save takes nothing more, but is given \"b\""},
        {{"info", "x"}, "info takes nothing more, but is given \"x\""},
        {{"dump", "--xml"}, "dump takes no --xml"},
        {{"check", "--json"}, "check takes no --json"},
    };
    for (const auto& row : cases) {
        std::vector<std::string> arguments{"params", sPath};
        arguments.insert(arguments.end(), row.arguments.begin(), row.arguments.end());
        EXPECT_EQ(gRunQuorvawiz(arguments),
                  (TProgramRun{"", "quorvawiz: " + row.sMessage + '\n', 2}));
    }
    EXPECT_EQ(
        gRunQuorvawiz({"params", sPath}),
        (TProgramRun{"", "quorvawiz: ACTION is required; --help tells what is possible\n", 2}));
    EXPECT_EQ(gRunQuorvawiz({"params"}),
              (TProgramRun{"", "quorvawiz: FILE is required; --help tells what is possible\n", 2}));
}

} // namespace
