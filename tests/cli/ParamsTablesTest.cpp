// The tables of the parameter browser on the command line.

#include "params/SampleStore.h"
#include "support/RunProgram.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace
{

using nlohmann::json;

/// A params file of the sample store, with an optical class and a device whose texts need care.
class CSampleFile
{
public:
    CSampleFile()
    {
        TCircuitParams store;
        gFillSample(store);
        TModelClassDef optical =
            gClass("LASER", "laser", 2, {}, {gDef("mode", CStringU("a,b"))}, {});
        optical.mDeviceParamDefs[0].msUnits = CStringU(u"\u00B5m");
        store.AddOpticalClass(optical);
        store.AddDevice(gDevice(1, CStringU(u"q\u00E9,1"), {1, "n2", "MOS1", "nmos"}));
        store.WriteThis(mFolder.Path("a"), "");
    }

    TProgramRun Run(std::vector<std::string> arguments) const
    {
        arguments.insert(arguments.begin(), {"params", mFolder.Path("a")});
        return gRunQuorvawiz(arguments);
    }

    const CTempFolder& Folder() const { return mFolder; }

private:
    CTempFolder mFolder;
};

TEST(ParamsTables, ListsAsText)
{
    const struct {
        std::vector<std::string> arguments;
        std::string sOut;
    } cases[] = {
        {{"devices"},
         "Name     Model  Type\n"
         "m1       n1     nmos\n"
         "x1.M2    n2     nmos\n"
         "x1.r10\n"
         "x1.q\u00E9,1  n2     nmos\n"},
        {{"devices", "--subckt", "x1"},
         "Name        Model  Type\n"
         "x1.x1.M2    n2     nmos\n"
         "x1.x1.r10\n"
         "x1.x1.q\u00E9,1  n2     nmos\n"},
        {{"devices", "--subckt", "top"},
         "Name    Model  Type\n"
         "top.m1  n1     nmos\n"},
        {{"devices", "--subckt", ""},
         "Name     Model  Type\n"
         "m1       n1     nmos\n"
         "x1.M2    n2     nmos\n"
         "x1.r10\n"
         "x1.q\u00E9,1  n2     nmos\n"},
        {{"models"},
         "Name   Type  Level  Quorva Name\n"
         "n1     nmos  1      MOS1\n"
         "x1.n2  nmos  1      MOS1\n"},
        {{"classes"},
         "Name   Type   Level  Version  Description\n"
         "LASER  laser  2      1.5      a laser\n"
         "MOS1   nmos   1      1.5      a nmos\n"},
    };
    const CSampleFile file;
    for (const auto& rCase : cases) {
        EXPECT_EQ(file.Run(rCase.arguments), (TProgramRun{rCase.sOut, "", 0}));
    }
}

TEST(ParamsTables, DetailsAsTextHaveAStarBeforeWhatIsSet)
{
    const struct {
        std::vector<std::string> arguments;
        std::string sOut;
    } cases[] = {
        {{"device", "top", "m1"},
         "Device Parameters: top.m1 (n1)\n"
         "\n"
         "Model\n"
         "   Name  Value  Units  Description\n"
         "   kp    20u\n"
         "*  vto   650m\n"
         "\n"
         "Device\n"
         "   Name  Value  Units  Description\n"
         "   l     1u\n"
         "*  w     2u\n"},
        {{"device", "", "m1", "--tab", "DEVICE"},
         "Device Parameters: m1 (n1)\n"
         "\n"
         "Device\n"
         "   Name  Value  Units  Description\n"
         "   l     1u\n"
         "*  w     2u\n"},
        {{"device", "x1", "r10"},
         "Device Parameters: x1.r10\n"
         "\n"
         "Device\n"
         "  Name  Value  Units  Description\n"},
        {{"model", "x1", "n2"},
         "Library Model Details [x1.n2]\n"
         "\n"
         "  Name  Value  Units  Description\n"
         "  kp    20u\n"
         "  vto   700m\n"},
        {{"class", "MOS1", "--tab", "state"},
         "Model: MOS1 [Default values]\n"
         "\n"
         "State\n"
         "  Name  Value            Units  Description\n"
         "  on    false\n"
         "  vgs   <uninitialized>\n"},
        {{"class", "LASER"},
         "Model: LASER [Default values]\n"
         "\n"
         "Model\n"
         "  Name  Value  Units  Description\n"
         "\n"
         "Device\n"
         "  Name  Value  Units  Description\n"
         "  mode  a,b    \u00B5m\n"
         "\n"
         "State\n"
         "  Name  Value  Units  Description\n"},
    };
    const CSampleFile file;
    for (const auto& rCase : cases) {
        EXPECT_EQ(file.Run(rCase.arguments), (TProgramRun{rCase.sOut, "", 0}));
    }
}

TEST(ParamsTables, Csv)
{
    const struct {
        std::vector<std::string> arguments;
        std::string sCsv;
    } cases[] = {
        {{"devices"},
         "m1,n1,nmos\r\n"
         "x1.M2,n2,nmos\r\n"
         "x1.r10, , \r\n"
         "\"x1.q\u00E9,1\",n2,nmos\r\n"},
        {{"devices", "--subckt", "top", "--header"}, "Name,Model,Type\r\ntop.m1,n1,nmos\r\n"},
        {{"models", "--header"},
         "Name,Type,Level,Quorva Name\r\nn1,nmos,1,MOS1\r\nx1.n2,nmos,1,MOS1\r\n"},
        {{"classes"}, "LASER,laser,2,1.5,a laser\r\nMOS1,nmos,1,1.5,a nmos\r\n"},
        {{"device", "top", "m1"}, "kp,20u, , \r\nvto,650m, , \r\n"},
        {{"device", "top", "m1", "--tab", "Device"}, "l,1u, , \r\nw,2u, , \r\n"},
        {{"device", "x1", "r10"}, ""},
        {{"model", "top", "n1"}, "kp,20u, , \r\nvto,650m, , \r\n"},
        {{"class", "LASER"}, ""},
        {{"class", "LASER", "--tab", "device", "--header"},
         "Name,Value,Units,Description\r\nmode,\"a,b\",\u00B5m, \r\n"},
    };
    const CSampleFile file;
    for (const auto& rCase : cases) {
        std::vector<std::string> arguments = rCase.arguments;
        arguments.insert(arguments.end(), {"--csv", "-"});
        EXPECT_EQ(file.Run(arguments), (TProgramRun{rCase.sCsv, "", 0}));
        arguments.back() = file.Folder().Path("out.csv");
        EXPECT_EQ(file.Run(arguments), (TProgramRun{"", "", 0}));
        EXPECT_EQ(file.Folder().Read("out.csv"), rCase.sCsv);
    }
}

TEST(ParamsTables, CsvIsInTheCodePage)
{
    const CSampleFile file;
    const std::string sCsv = "m1,n1,nmos\r\nx1.M2,n2,nmos\r\nx1.r10, , \r\n"
                             "\"x1.q\xE9,1\",n2,nmos\r\n";
    EXPECT_EQ(file.Run({"devices", "--csv", "-", "--code-page", "1252"}),
              (TProgramRun{sCsv, "", 0}));
    EXPECT_EQ(file.Run({"devices", "--csv", file.Folder().Path("b"), "--code-page", "1252"}),
              (TProgramRun{"", "", 0}));
    EXPECT_EQ(file.Folder().Read("b"), sCsv);
}

// The first byte decides how a text stands in the memory.
TEST(ParamsTables, CsvThatBeginsOutsideAscii)
{
    const CTempFolder folder;
    TCircuitParams store;
    store.AddSubckt("top", 0);
    store.AddDevice(gDevice(0, CStringU(u"\u00E9"), {}));
    store.WriteThis(folder.Path("a"), "");
    const auto csv = [&](const char* pCodePage) {
        return gRunQuorvawiz(
            {"params", folder.Path("a"), "devices", "--csv", "-", "--code-page", pCodePage});
    };
    EXPECT_EQ(csv("65001"), (TProgramRun{"\u00E9, , \r\n", "", 0}));
    EXPECT_EQ(csv("1252"), (TProgramRun{"\xE9, , \r\n", "", 0}));
}

TEST(ParamsTables, CsvThatCanNotBeWrittenIsTold)
{
    const CSampleFile file;
    EXPECT_EQ(
        file.Run({"devices", "--csv", "/dev/full"}),
        (TProgramRun{"", "Error writing to file \"/dev/full\": No space left on device\n", 1}));
    const TProgramRun run = file.Run({"devices", "--csv", file.Folder().Path("a") + "/b"});
    EXPECT_EQ(run.nExitCode, 1);
    EXPECT_EQ(run.sOut, "");
    EXPECT_NE(run.sError, "");
    EXPECT_EQ(gRunQuorvawiz({"params", file.Folder().Path("none"), "devices", "--csv",
                             file.Folder().Path("b")})
                  .nExitCode,
              1);
    EXPECT_FALSE(std::filesystem::exists(file.Folder().Path("b")));
}

TEST(ParamsTables, Json)
{
    const struct {
        std::vector<std::string> arguments;
        std::string sOut;
    } cases[] = {
        {{"models"},
         R"({"title":"Library Models","tables":[{"label":null,)"
         R"("columns":["Name","Type","Level","Quorva Name"],"rows":[)"
         R"({"cells":["n1","nmos","1","MOS1"],"set":false},)"
         R"({"cells":["x1.n2","nmos","1","MOS1"],"set":false}]}]})"},
        {{"device", "top", "m1"},
         R"-({"title":"Device Parameters: top.m1 (n1)","tables":[{"label":"Model",)-"
         R"("columns":["Name","Value","Units","Description"],"rows":[)"
         R"({"cells":["kp","20u","",""],"set":false},)"
         R"({"cells":["vto","650m","",""],"set":true}]},{"label":"Device",)"
         R"("columns":["Name","Value","Units","Description"],"rows":[)"
         R"({"cells":["l","1u","",""],"set":false},)"
         R"({"cells":["w","2u","",""],"set":true}]}]})"},
        {{"device", "x1", "r10"},
         R"({"title":"Device Parameters: x1.r10","tables":[{"label":"Device",)"
         R"("columns":["Name","Value","Units","Description"],"rows":[]}]})"},
        {{"class", "LASER", "--tab", "Device"},
         R"({"title":"Model: LASER [Default values]","tables":[{"label":"Device",)"
         R"("columns":["Name","Value","Units","Description"],"rows":[)"
         "{\"cells\":[\"mode\",\"a,b\",\"\u00B5m\",\"\"],\"set\":false}]}]}"},
    };
    const CSampleFile file;
    for (const auto& rCase : cases) {
        std::vector<std::string> arguments = rCase.arguments;
        arguments.emplace_back("--json");
        EXPECT_EQ(file.Run(arguments), (TProgramRun{rCase.sOut + '\n', "", 0}));
    }
}

TEST(ParamsTables, NamesThatNeedCareInALineAndInJson)
{
    const CTempFolder folder;
    TCircuitParams store;
    store.AddSubckt("top", 0);
    store.AddDevice(gDevice(0, "a\"\n\\", {}));
    store.AddDevice(gDevice(0, CStringU("\xFFzz", TTextKind::Plain), {}));
    store.WriteThis(folder.Path("a"), "");
    EXPECT_EQ(gRunQuorvawiz({"params", folder.Path("a"), "devices"}),
              (TProgramRun{"Name     Model  Type\n?zz\na\"\\x0A\\\n", "", 0}));
    const TProgramRun run = gRunQuorvawiz({"params", folder.Path("a"), "devices", "--json"});
    const json rows = json::parse(run.sOut)["tables"][0]["rows"];
    EXPECT_EQ(rows[0]["cells"][0], "?zz"); // as the window shows it
    EXPECT_EQ(rows[1]["cells"][0], "a\"\n\\");
    EXPECT_EQ(gRunQuorvawiz({"params", folder.Path("a"), "device", "top", "a\"\n\\"}).sOut,
              "Device Parameters: top.a\"\\x0A\\\n"
              "\n"
              "Device\n"
              "  Name  Value  Units  Description\n");
}

TEST(ParamsTables, CharactersThatTheWindowCutsAreCutInEveryForm)
{
    const CTempFolder folder;
    TCircuitParams store;
    store.AddSubckt("top", 0);
    store.AddDevice(gDevice(0, CStringU("\xF0\x9F\x98\x80", TTextKind::Utf8IfNeeded), {}));
    store.WriteThis(folder.Path("a"), "");
    // Texts are 16 bits a character: U+1F600 is U+F600 here.
    const std::string sShown = "\xEF\x98\x80";
    EXPECT_EQ(gRunQuorvawiz({"params", folder.Path("a"), "devices"}).sOut,
              "Name  Model  Type\n" + sShown + '\n');
    EXPECT_EQ(gRunQuorvawiz({"params", folder.Path("a"), "devices", "--csv", "-"}).sOut,
              sShown + ", , \r\n");
    const TProgramRun run = gRunQuorvawiz({"params", folder.Path("a"), "devices", "--json"});
    EXPECT_EQ(json::parse(run.sOut)["tables"][0]["rows"][0]["cells"][0], sShown);
}

TEST(ParamsTables, ANameThatLeadsNowhereIsntSuggested)
{
    const CTempFolder folder;
    TCircuitParams store;
    store.AddSubckt("top", 0);
    store.mSubcktTable.mIndex["N"] = -1; // as a damaged file has it
    store.WriteThis(folder.Path("a"), "");
    EXPECT_EQ(
        gRunQuorvawiz({"params", folder.Path("a"), "devices", "--subckt", "N"}),
        (TProgramRun{"", "quorvawiz: there is no subcircuit \"N\"; did you mean \"top\"?\n", 2}));
}

TEST(ParamsTables, WrongArguments)
{
    const struct {
        std::vector<std::string> arguments;
        std::string sMessage;
    } cases[] = {
        {{"device"}, "device needs SUBCKT and NAME"},
        {{"model", "top"}, "model needs SUBCKT and NAME"},
        {{"class"}, "class needs NAME"},
        {{"devices", "x1"}, "devices takes nothing more, but is given \"x1\""},
        {{"device", "top", "m1", "x"}, "device takes nothing more, but is given \"x\""},
        {{"device", "tpo", "m1"}, "there is no subcircuit \"tpo\"; did you mean \"top\"?"},
        {{"device", "top", "M1"}, "there is no device \"M1\" in \"top\"; did you mean \"m1\"?"},
        {{"device", "", "zz"}, "there is no device \"zz\" on the top level; did you mean \"m1\"?"},
        {{"model", "x1", "n1"}, "there is no model \"n1\" in \"x1\"; did you mean \"n2\"?"},
        {{"class", "mos"}, "there is no class \"mos\"; did you mean \"MOS1\"?"},
        {{"class", "laser"}, "there is no class \"laser\"; did you mean \"LASER\"?"},
        {{"devices", "--subckt", "x2"}, "there is no subcircuit \"x2\"; did you mean \"x1\"?"},
        {{"class", "MOS1", "--tab", "Stat"}, "there is no tab \"Stat\"; did you mean \"State\"?"},
        {{"device", "x1", "r10", "--tab", "model"},
         "there is no tab \"model\"; did you mean \"Device\"?"},
        {{"models", "--subckt", "x1"}, "models takes no --subckt"},
        {{"model", "x1", "n2", "--tab", "Model"}, "model takes no --tab"},
        {{"info", "--csv", "-"}, "info takes no --csv"},
        {{"dump", "--header"}, "dump takes no --header"},
        {{"devices", "--header"}, "--header goes with --csv"},
        {{"devices", "--json", "--csv", "-"}, "--json and --csv can't go together"},
        {{"devices", "--xml"}, "devices takes no --xml"},
    };
    const CSampleFile file;
    for (const auto& rCase : cases) {
        EXPECT_EQ(file.Run(rCase.arguments),
                  (TProgramRun{"", "quorvawiz: " + rCase.sMessage + '\n', 2}));
    }
}

TEST(ParamsTables, AnEmptyStoreHasColumnsAndNoRows)
{
    const CTempFolder folder;
    TCircuitParams().WriteThis(folder.Path("a"), "");
    const auto run = [&](const char* pAction, std::vector<std::string> more = {}) {
        more.insert(more.begin(), {"params", folder.Path("a"), pAction});
        return gRunQuorvawiz(more);
    };
    EXPECT_EQ(run("devices"), (TProgramRun{"Name  Model  Type\n", "", 0}));
    EXPECT_EQ(run("models"), (TProgramRun{"Name  Type  Level  Quorva Name\n", "", 0}));
    EXPECT_EQ(run("classes"), (TProgramRun{"Name  Type  Level  Version  Description\n", "", 0}));
    EXPECT_EQ(run("devices", {"--csv", "-"}), (TProgramRun{"", "", 0}));
    EXPECT_EQ(run("device", {"", "m1"}),
              (TProgramRun{"", "quorvawiz: there is no device \"m1\" on the top level\n", 2}));
    EXPECT_EQ(run("class", {"MOS1"}),
              (TProgramRun{"", "quorvawiz: there is no class \"MOS1\"\n", 2}));
}

} // namespace
