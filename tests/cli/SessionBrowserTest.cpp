// The parameter browser in a session.

#include "cli/SessionTranscript.h"
#include "cli/TestWizard.h"
#include "params/SampleStore.h"
#include "support/RunProgram.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <string>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
using nlohmann::json;

/// A folder with a params file of the sample store.
class SessionBrowser : public testing::Test
{
protected:
    SessionBrowser()
    {
        TCircuitParams store;
        gFillSample(store);
        TModelClassDef optical =
            gClass("LASER", "laser", 2, {}, {gDef("mode", CStringU("a,b"))}, {gDef("on", true)});
        optical.mDeviceParamDefs[0].msUnits = CStringU(u"\u00B5m");
        store.AddOpticalClass(optical);
        store.AddDevice(gDevice(1, CStringU(u"q\u00E9,1"), {1, "n2", "MOS1", "nmos"}));
        store.WriteThis(Path("a"), "");
    }

    std::string Path(const std::string& rsName) const { return mFolder.Path(rsName); }
    std::string Load() const { return json{{"op", "load"}, {"path", Path("a")}}.dump(); }
    std::string File(const std::string& rsName) const
    {
        return json{{"op", "file"}, {"path", Path(rsName)}}.dump();
    }

    CTempFolder mFolder;
};

constexpr const char* kDevices = R"({"op":"browse","dialog":"devices"})";
constexpr const char* kModels = R"({"op":"browse","dialog":"library-models"})";
constexpr const char* kClasses = R"({"op":"browse","dialog":"simulator-models"})";
constexpr const char* kClose = R"({"op":"close"})";
constexpr const char* kExport = R"({"op":"click","field":"export"})";
constexpr const char* kDetails = R"({"op":"click","field":"details"})";
constexpr const char* kDone = R"({"ok":true})";

TEST_F(SessionBrowser, ADialogIsShownInPlaceOfTheWizard)
{
    gExpectTranscript({{Load(), R"({"ok":true,"page":"Tests"})"},
                       {kDevices, R"({"ok":true,"command":null,"insert_enabled":false,"page":null,
             "dialog":{"class":"TParameterBrowserDevicesDlg","title":"Quorva Devices"},
             "focus":"table","tree":null,
             "fields":{"table":{"kind":"table","index":0,"columns":["Name","Model","Type"],
                                "rows":4},
                       "quorva-models":{"visible":false},"recalculate":{"visible":false},
                       "details":{"visible":true},"export":{"visible":true},
                       "close":{"visible":true}},
             "table":{"columns":["Name","Model","Type"],"rows":4,"selected":0},"tabs":null})"},
                       {kClose, R"({"ok":true,"dialog":null,"fields":{},"result":false})"},
                       {R"({"op":"reopen"})", R"({"ok":true,"page":"Tests","dialog":null})"}});
}

TEST_F(SessionBrowser, RowsAreToldInParts)
{
    gExpectTranscript({{Load(), kDone},
                       {kDevices, kDone},
                       {R"({"op":"rows","from":1,"count":2})", R"({"ok":true,"rows":[
             {"item_data":1,"cells":[{"text":"x1.M2","highlight":false},
                {"text":"n2","highlight":false},{"text":"nmos","highlight":false}]},
             {"item_data":2,"cells":[{"text":"x1.r10","highlight":false},
                {"text":"","highlight":false},{"text":"","highlight":false}]}]})"},
                       {R"({"op":"rows","from":3,"count":10000})", R"({"rows":[
             {"item_data":3,"cells":[{"text":"x1.q\u00E9,1","highlight":false},
                {"text":"n2","highlight":false},{"text":"nmos","highlight":false}]}]})"},
                       {R"({"op":"rows","from":4,"count":1})", R"({"ok":true,"rows":[]})"},
                       {R"({"op":"rows","from":2147483647,"count":1})", R"({"ok":true,"rows":[]})"},
                       {R"({"op":"rows","from":0,"count":0})", R"({"ok":true,"rows":[]})"}});
}

TEST_F(SessionBrowser, ARowIsSelectedAndItsDetailsHaveTabs)
{
    gExpectTranscript(
        {{Load(), kDone},
         {kDevices, kDone},
         {R"({"op":"select","field":"table","index":2})", R"({"table":{"selected":2}})"},
         {kDetails, R"({"dialog":{"class":"TParameterBrowserDeviceDetailsDlg",
             "title":"Device Parameters: x1.r10"},"tabs":["Device"],
             "table":{"rows":0,"selected":-1},"fields":{"reevaluate":{"visible":false}}})"},
         {kClose, R"({"dialog":{"title":"Quorva Devices"}})"},
         {R"({"op":"select","field":"table","index":0})", R"({"table":{"selected":0}})"},
         {R"({"op":"double-click","field":"table"})",
          R"-({"dialog":{"title":"Device Parameters: m1 (n1)"},"tabs":["Model","Device"],
             "table":{"columns":["Name","Value","Units","Description"],"rows":2}})-"},
         {R"({"op":"rows","from":1,"count":1})", R"({"rows":[{"item_data":1,"cells":[
             {"text":"vto","highlight":false},{"text":"650m","highlight":true},
             {"text":"","highlight":false},{"text":"","highlight":false}]}]})"},
         {R"({"op":"tab","index":1})", R"({"fields":{"tabs":{"index":1}}})"},
         {R"({"op":"rows","from":0,"count":1})", R"({"rows":[{"item_data":0,"cells":[
             {"text":"l","highlight":false},{"text":"1u","highlight":false},
             {"text":"","highlight":false},{"text":"","highlight":false}]}]})"},
         {R"({"op":"tab","index":2})", R"({"error":"\"tabs\" has no index 2; the last is 1"})"},
         {kClose, R"({"dialog":{"title":"Quorva Devices"}})"},
         {R"({"op":"tab","index":0})",
          R"({"error":"there is no field \"tabs\"; did you mean \"table\"?"})"}});
}

TEST_F(SessionBrowser, ResultsOfTheDialogs)
{
    const std::string sDetails = R"({"op":"device-details","subckt":"top","name":"m1"})";
    gExpectTranscript({{Load(), kDone},
                       {R"({"op":"browse","dialog":"devices","recalculate":true})",
                        R"({"fields":{"recalculate":{"visible":true}}})"},
                       {R"({"op":"click","field":"recalculate"})", R"({"ok":true,"result":true})"},
                       {R"({"op":"state"})", R"({"ok":true,"dialog":null})"},
                       {R"({"op":"browse","dialog":"library-models","recalculate":true})", kDone},
                       {R"({"op":"click","field":"recalculate"})", R"({"ok":true,"result":true})"},
                       {R"({"op":"browse","dialog":"library-models","recalculate":false})",
                        R"({"fields":{"recalculate":{"visible":false}}})"},
                       {R"({"op":"key","key":"escape"})", R"({"ok":true,"result":false})"},
                       {R"({"op":"browse","dialog":"simulator-models","class":"MOS1"})",
                        R"({"dialog":{"title":"Quorva Models"},"table":{"rows":2,"selected":1}})"},
                       {kClose, R"({"ok":true,"result":null})"},
                       {sDetails, R"-({"dialog":{"title":"Device Parameters: top.m1 (n1)"},
             "fields":{"reevaluate":{"visible":true}}})-"},
                       {R"({"op":"click","field":"reevaluate"})", R"({"ok":true,"result":true})"},
                       {sDetails, kDone},
                       {kClose, R"({"ok":true,"result":false})"},
                       {R"({"op":"device-details","subckt":"","name":"x1"})",
                        R"-({"dialog":{"title":"Quorva Devices (x1)"},
             "fields":{"recalculate":{"visible":true}},"table":{"rows":3}})-"},
                       {kClose, R"({"ok":true,"result":false})"}});
}

TEST_F(SessionBrowser, ModelsAndTheirClass)
{
    gExpectTranscript(
        {{Load(), kDone},
         {kModels, R"({"table":{"columns":["Name","Type","Level","Quorva Name"],"rows":2}})"},
         {R"({"op":"select","field":"table","index":1})", kDone},
         {kDetails, R"({"dialog":{"class":"TParameterBrowserLibraryModelDetailsDlg",
             "title":"Library Model Details [x1.n2]"},"tabs":null})"},
         {kClose, kDone},
         {R"({"op":"click","field":"quorva-models"})",
          R"({"dialog":{"class":"TParameterBrowserQuorvaModelsDlg"},"table":{"selected":1}})"},
         {kDetails, R"({"dialog":{"class":"TParameterBrowserModelClassDetailsDlg",
             "title":"Model: MOS1 [Default values]"},"tabs":["Model","Device","State"]})"},
         {kDevices, R"({"error":"a dialog is open in front of another"})"}});
}

TEST_F(SessionBrowser, WhatIsRefused)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {kDevices, "no params file is loaded"},
        {R"({"op":"device-details","subckt":"","name":"m1"})", "no params file is loaded"},
        {R"({"op":"load"})", R"(the member "path" is missing)"},
        {R"({"op":"load","path":"/none/a"})", "Error reading data file '/none/a': File not found"},
        {R"({"op":"browse","dialog":"device"})",
         R"(there is no dialog "device"; did you mean "devices"?)"},
        {R"({"op":"browse","dialog":"devices","class":"C"})",
         R"(the dialog "devices" takes no "class")"},
        {R"({"op":"browse","dialog":"simulator-models","recalculate":false})",
         R"(the dialog "simulator-models" takes no "recalculate")"},
        {R"({"op":"browse","dialog":"devices","recalculate":1})",
         R"(the member "recalculate" isn't true or false)"},
        {R"({"op":"rows","from":0,"count":1})", "the dialog has no table to tell rows of"},
        {R"({"op":"rows","from":-1,"count":1})", R"(the member "from" isn't from 0 to 2147483647)"},
        {R"({"op":"rows","from":0,"count":10001})", R"(the member "count" isn't from 0 to 10000)"},
        {R"({"op":"tab","index":0})", R"(there is no field "tabs")"},
    };
    std::vector<TExchange> transcript;
    transcript.reserve(cases.size());
    for (const auto& [sRequest, sError] : cases)
        transcript.push_back(
            {sRequest, json{{"ok", false}, {"error", sError}, {"page", "Tests"}}.dump()});
    gExpectTranscript(transcript);
}

TEST_F(SessionBrowser, AFileThatCanNotBeReadLeavesTheStoreThatIsLoaded)
{
    gExpectTranscript({{Load(), kDone},
                       {R"({"op":"load","path":"/none/a"})", R"({"ok":false})"},
                       {kDevices, R"({"table":{"rows":4}})"}});
}

// A store lives as long as the dialog that shows it.
TEST_F(SessionBrowser, AnotherFileCanBeLoadedWhileADialogIsOpen)
{
    TCircuitParams().WriteThis(Path("b"), "");
    const std::string sLoad = json{{"op", "load"}, {"path", Path("b")}}.dump();
    gExpectTranscript({{Load(), kDone},
                       {kDevices, kDone},
                       {sLoad, R"({"table":{"rows":4}})"},
                       {kDetails, R"-({"dialog":{"title":"Device Parameters: m1 (n1)"}})-"},
                       {kClose, R"({"table":{"rows":4}})"},
                       {kDevices, R"({"table":{"rows":0,"selected":-1}})"}});
}

TEST_F(SessionBrowser, TheWizardAndTheDialogsFollowEachOther)
{
    gExpectTranscript({{kOpen, R"({"page":"Tests/All kinds"})"},
                       {Load(), R"({"page":"Tests/All kinds"})"},
                       {kDevices, R"({"page":null,"dialog":{"title":"Quorva Devices"}})"},
                       {R"({"op":"insert"})", R"({"error":"the wizard is closed"})"},
                       {kClasses, R"({"dialog":{"title":"Quorva Models"}})"},
                       {kOpen, R"({"page":"Tests/All kinds","dialog":null})"},
                       {kModels, R"({"dialog":{"title":"Library Models"}})"},
                       {R"({"op":"open","page":"CTestLonePage"})", R"({"page":"CTestLonePage"})"},
                       {kModels, R"({"dialog":{"title":"Library Models"}})"},
                       {R"({"op":"reopen"})", R"({"page":"Tests","dialog":null})"},
                       {kModels, R"({"dialog":{"title":"Library Models"}})"},
                       {kClose, R"({"dialog":null,"result":false})"},
                       {kDetails, R"({"error":"the wizard is closed"})"}});
}

TEST_F(SessionBrowser, ExportsBeginWhereTheLastOneWentUntilAllIsForgotten)
{
    const std::string sFirst = R"({"ok":true,"file_dialogs":[{"kind":"save","folder":"","name":"",
        "filter":"Comma-Separated Value Files (*.csv)|*.csv|All Files (*.*)|*.*||","flags":6,
        "default_extension":"csv"}]})";
    std::string sFolder = Path("x");
    sFolder.resize(sFolder.size() - 2);
    const std::string sSecond = json{
        {"file_dialogs",
         {{{"kind", "save"},
           {"folder", sFolder},
           {"name", Path("out.csv")},
           {"filter", "Comma-Separated Value Files (*.csv)|*.csv|All Files (*.*)|*.*||"},
           {"flags", 6},
           {"default_extension",
            "csv"}}}}}.dump();
    gExpectTranscript({{Load(), kDone},
                       {kDevices, kDone},
                       {File("out.csv"), kDone},
                       {kExport, sFirst},
                       {kExport, sSecond},
                       {R"({"op":"fresh"})", R"({"page":"Tests"})"},
                       {kDevices, R"({"error":"no params file is loaded"})"},
                       {Load(), kDone},
                       {kModels, kDone},
                       {kExport, sFirst}});
    EXPECT_EQ(mFolder.Read("out.csv"),
              "m1,n1,nmos\r\nx1.M2,n2,nmos\r\nx1.r10, , \r\n\"x1.q\u00E9,1\",n2,nmos\r\n");
}

// What `--csv` writes is byte for byte what the window's export writes.
TEST_F(SessionBrowser, TheCommandLineWritesWhatTheExportsWrite)
{
    const std::string sSecondTab = R"({"op":"tab","index":1})";
    const std::string sThirdTab = R"({"op":"tab","index":2})";
    const std::string sSecondRow = R"({"op":"select","field":"table","index":1})";
    const std::string sDevice = R"({"op":"device-details","subckt":"top","name":"m1"})";
    const struct {
        std::vector<std::string> arguments;
        std::vector<std::string> requests; // that lead to the table
    } cases[] = {
        {{"devices"}, {kDevices}},
        {{"devices", "--subckt", "x1"}, {R"({"op":"device-details","subckt":"","name":"x1"})"}},
        {{"models"}, {kModels}},
        {{"classes"}, {kClasses}},
        {{"device", "top", "m1"}, {sDevice}},
        {{"device", "top", "m1", "--tab", "Device"}, {sDevice, sSecondTab}},
        {{"device", "x1", "r10"}, {R"({"op":"device-details","subckt":"x1","name":"r10"})"}},
        {{"model", "x1", "n2"}, {kModels, sSecondRow, kDetails}},
        {{"class", "MOS1"}, {kClasses, sSecondRow, kDetails}},
        {{"class", "LASER", "--tab", "device"}, {kClasses, kDetails, sSecondTab}},
        {{"class", "LASER", "--tab", "state"}, {kClasses, kDetails, sThirdTab}},
    };
    for (const auto& rCase : cases) {
        std::vector<TExchange> transcript{{Load(), kDone}};
        for (const std::string& rsRequest : rCase.requests)
            transcript.push_back({rsRequest, kDone});
        transcript.push_back({File("export.csv"), kDone});
        transcript.push_back({kExport, kDone});
        gExpectTranscript(transcript);
        std::vector<std::string> arguments{"params", Path("a")};
        arguments.insert(arguments.end(), rCase.arguments.begin(), rCase.arguments.end());
        arguments.insert(arguments.end(), {"--csv", "-"});
        EXPECT_EQ(gRunQuorvawiz(arguments), (TProgramRun{mFolder.Read("export.csv"), "", 0}))
            << rCase.arguments.front();
        std::filesystem::remove(Path("export.csv"));
    }
}

TEST_F(SessionBrowser, AReplyHasNoMoreOfManyRowsThanTheirNumber)
{
    TCircuitParams store;
    store.AddSubckt("top", 0);
    for (int nDevice = 0; nDevice < 20'000; ++nDevice)
        store.AddDevice(gDevice(0, std::to_string(nDevice), {}));
    store.WriteThis(Path("a"), "");
    const std::string sReplies = gServe(gTestWizard(), Load() + '\n' + kDevices + '\n');
    EXPECT_THAT(sReplies, testing::HasSubstr(R"("rows":20000)"));
    EXPECT_LT(sReplies.size(), 3'000U);
}

TEST_F(SessionBrowser, TheMembersOfAReplyAndTheirOrder)
{
    const std::string sReplies =
        gServe(gTestWizard(), Load() + '\n' + kDevices + '\n' +
                                  R"({"op":"rows","from":0,"count":0})" + '\n' + kClose + '\n');
    EXPECT_THAT(sReplies,
                testing::HasSubstr(
                    R"({"ok":true,"messages":[],"questions":[],"boxes":[],"file_dialogs":[],)"
                    R"("inserted":[],"command":null,"insert_enabled":false,"page":null,)"
                    R"("dialog":{"class":"TParameterBrowserDevicesDlg","title":"Quorva Devices"},)"
                    R"("focus":"table","tree":null,"fields":{"table":{"kind":"table","label":null,)"
                    R"("index":0,"columns":["Name","Model","Type"],"rows":4,)"));
    EXPECT_THAT(sReplies,
                testing::HasSubstr(R"("table":{"columns":["Name","Model","Type"],"rows":4,)"
                                   R"("selected":0,"widths":[150,150,150]},"tabs":null,"rows":[]})"
                                   "\n"));
    EXPECT_THAT(sReplies, testing::EndsWith(R"("fields":{},"result":false})"
                                            "\n"));
}

TEST_F(SessionBrowser, ADialogThatAnotherRequestClosesHasNoResult)
{
    for (const char* const pRequest : {kClasses, R"({"op":"reopen"})"}) {
        const std::string sReplies =
            gServe(gTestWizard(), Load() + '\n' + kDevices + '\n' + pRequest + '\n');
        EXPECT_THAT(sReplies, testing::Not(testing::HasSubstr("\"result\""))) << pRequest;
    }
}
} // namespace
} // namespace quorvawiz::cli
