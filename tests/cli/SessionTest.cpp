#include "cli/SessionTranscript.h"
#include "cli/TestWizard.h"
#include "platform/base/CodePage.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
using nlohmann::json;

TEST(Session, AReplyHasAllMembersInThisOrder)
{
    EXPECT_EQ(gServe(gTestWizard(), kState),
              R"({"ok":true,"messages":[],"questions":[],"boxes":[],"file_dialogs":[],)"
              R"("inserted":[],"command":"","insert_enabled":false,"page":"Tests",)"
              R"("dialog":null,"focus":"tree",)"
              R"("tree":{"selected":"Tests","expanded":[]},)"
              R"("fields":{"heading":{"kind":"static","text":"Tests","enabled":true,)"
              R"("visible":true}}})"
              "\n");
    EXPECT_EQ(gServe(gTestWizard(), "{}"),
              R"({"ok":false,"error":"the member \"op\" is missing",)"
              R"("messages":[],"questions":[],"boxes":[],"file_dialogs":[],)"
              R"("inserted":[],"command":"","insert_enabled":false,"page":"Tests",)"
              R"("dialog":null,"focus":"tree",)"
              R"("tree":{"selected":"Tests","expanded":[]},)"
              R"("fields":{"heading":{"kind":"static","text":"Tests","enabled":true,)"
              R"("visible":true}}})"
              "\n");
}

TEST(Session, FieldsOfEveryKind)
{
    gExpectTranscript({{kOpen, R"({"page":"Tests/All kinds","insert_enabled":true,"fields":{
        "name":{"kind":"edit","label":"&Name:","text":"","unit":"V","enabled":true,"visible":true},
        "lines":{"kind":"multi-line-edit","label":"&Lines:","text":""},
        "kind":{"kind":"drop-down-list","label":"&Kind:","text":"","index":-1,
                "items":["linear","decade","octave"]},
        "node":{"kind":"drop-down","label":"N&ode:","text":"","index":-1,"items":["in","out"]},
        "list":{"kind":"list-box","label":null,"index":-1,"items":["in","out"]},
        "ac":{"kind":"check-box","label":"&AC","on":false},
        "type":{"kind":"radio","label":null,"index":-1,"enabled":true,"visible":true,
                "buttons":[{"label":"&Voltage","enabled":true,"visible":true},
                           {"label":"&Current","enabled":true,"visible":true},
                           {"label":"&Power","enabled":false,"visible":true}]},
        "sweep":{"kind":"button","label":"&Sweep...","enabled":true},
        "add":{"kind":"button","label":"Add","enabled":false,"visible":true},
        "secret":{"kind":"edit","label":"Secret:","enabled":true,"visible":false},
        "fixed":{"kind":"edit","label":null,"text":"as it is","read_only":true},
        "table":{"kind":"table","index":-1,"columns":["Name","Value"],
                 "items":[["r1","5"],["r2",""]]},
        "tabs":{"kind":"tabs","index":0,"items":["One","Two"]},
        "group":{"kind":"group","label":"Group","text":"Group"},
        "note":{"kind":"static","text":"a note"}}})"}});
}

TEST(Session, ActionsChangeTheFields)
{
    gExpectTranscript({
        {kOpen, R"({"ok":true,"focus":"tree"})"},
        {R"({"op":"set","field":"name","text":"x"})",
         R"({"ok":true,"focus":"name","fields":{"name":{"text":"x"}}})"},
        {R"({"op":"set","field":"lines","text":"a\rb\nc\r\nd"})",
         R"({"ok":true,"fields":{"lines":{"text":"a\rb\nc\r\nd"}}})"},
        {R"({"op":"select","field":"kind","index":1})",
         R"({"ok":true,"focus":"kind","fields":{"kind":{"index":1,"text":"decade"}}})"},
        {R"({"op":"select","field":"kind","entry":"OCTAVE"})",
         R"({"ok":true,"fields":{"kind":{"index":2,"text":"octave"}}})"},
        {R"({"op":"set","field":"node","text":"n1"})",
         R"({"ok":true,"fields":{"node":{"index":-1,"text":"n1"}}})"},
        {R"({"op":"select","field":"node","entry":"out"})",
         R"({"ok":true,"fields":{"node":{"index":1,"text":"out"}}})"},
        {R"({"op":"select","field":"list","index":0})",
         R"({"ok":true,"fields":{"list":{"index":0}}})"},
        {R"({"op":"double-click","field":"list"})",
         R"({"ok":true,"fields":{"note":{"text":"double-clicked"}}})"},
        {R"({"op":"select","field":"list","index":-1})",
         R"({"ok":true,"fields":{"list":{"index":-1}}})"},
        {R"({"op":"check","field":"ac","on":true})", R"({"ok":true,"fields":{"ac":{"on":true}}})"},
        {R"({"op":"check","field":"ac","on":true})", R"({"ok":true,"fields":{"ac":{"on":true}}})"},
        {R"({"op":"click","field":"ac"})", R"({"ok":true,"fields":{"ac":{"on":false}}})"},
        {R"({"op":"choose","field":"type","index":1})",
         R"({"ok":true,"focus":"type","fields":{"type":{"index":1}}})"},
        {R"({"op":"key","key":"up"})", R"({"ok":true,"fields":{"type":{"index":0}}})"},
        {R"({"op":"select","field":"table","index":1})",
         R"({"ok":true,"fields":{"table":{"index":1}}})"},
        {R"({"op":"select","field":"tabs","entry":"Two"})",
         R"({"ok":true,"fields":{"tabs":{"index":1}}})"},
        {R"({"op":"focus","field":"name"})", R"({"ok":true,"focus":"name"})"},
        {R"({"op":"key","key":"alt+L"})", R"({"ok":true,"focus":"lines"})"},
        {R"({"op":"focus","field":"tree"})", R"({"ok":true,"focus":"tree"})"},
    });
}

TEST(Session, ARefusedRequestChangesNothing)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {R"({"op":"set","field":"nam","text":"x"})",
         R"(there is no field "nam"; did you mean "name"?)"},
        {R"({"op":"set","field":"name","text":"a\nb"})",
         R"("name" is a single line: it takes no CR, LF or NUL)"},
        {R"({"op":"set","field":"name","text":"a\u0000b"})",
         R"("name" is a single line: it takes no CR, LF or NUL)"},
        {R"({"op":"set","field":"lines","text":"a\u0000b"})", R"("lines" takes no NUL)"},
        {R"({"op":"select","field":"tree","entry":"Tests"})", R"("tree" is a tree: use "open")"},
        {R"({"op":"set","field":"node","text":"a\rb"})",
         R"("node" is a single line: it takes no CR, LF or NUL)"},
        {R"({"op":"set","field":"fixed","text":"x"})", R"("fixed" is read-only)"},
        {R"({"op":"set","field":"secret","text":"x"})",
         R"("secret" is hidden; the nearest that can be used is "sweep")"},
        {R"({"op":"set","field":"kind","text":"x"})", R"("kind" is a list: it takes an entry)"},
        {R"({"op":"set","field":"note","text":"x"})",
         R"("note" only shows a text: it takes nothing)"},
        {R"({"op":"select","field":"kind","index":-1})",
         R"("kind" has no index -1; the last is 2)"},
        {R"({"op":"select","field":"kind","index":3})", R"("kind" has no index 3; the last is 2)"},
        {R"({"op":"select","field":"list","entry":"ou"})",
         R"("list" has no entry "ou"; did you mean "out"?)"},
        {R"({"op":"select","field":"name","index":0})",
         R"("name" is a box for text: it takes a text)"},
        {R"({"op":"check","field":"off","on":true})",
         R"("off" is disabled; the nearest that can be used is "node")"},
        {R"({"op":"check","field":"sweep","on":true})", R"("sweep" is a button: it is pressed)"},
        {R"({"op":"choose","field":"type","index":3})", R"("type" has no index 3; the last is 2)"},
        {R"({"op":"choose","field":"type","index":2})",
         R"("Power" of "type" is disabled; the nearest that can be used is "Voltage")"},
        {R"({"op":"click","field":"type"})",
         R"("type" is a group of radio buttons: it takes one of them)"},
        {R"({"op":"click","field":"add"})",
         R"("add" is disabled; the nearest that can be used is "ac")"},
        {R"({"op":"double-click","field":"name"})", R"("name" is a box for text: it takes a text)"},
        {R"({"op":"focus","field":"add"})",
         R"("add" is disabled; the nearest that can be used is "ac")"},
        {R"({"op":"expand","path":"Test"})",
         R"(the tree has no node "Test"; did you mean "Tests"?)"},
        {R"({"op":"open","page":"Tests/All"})",
         R"(there is no page "Tests/All"; did you mean "Tests/All kinds"?)"},
        {R"({"op":"open","page":"Tests/Not built"})",
         R"(the page "Tests/Not built" isn't built yet)"},
        {R"({"op":"key","key":"alt+Q"})", "the key means nothing here"},
        {R"({"op":"inserts"})", R"(there is no request "inserts"; did you mean "insert"?)"},
    };
    std::string sInput = kOpen + '\n';
    for (const auto& [sRequest, sError] : cases)
        sInput += sRequest + '\n';
    std::istringstream replies(gServe(gTestWizard(), sInput));
    std::string sLine;
    ASSERT_TRUE(std::getline(replies, sLine));
    const json opened = json::parse(sLine);
    for (const auto& [sRequest, sError] : cases) {
        ASSERT_TRUE(std::getline(replies, sLine));
        json reply = json::parse(sLine);
        EXPECT_EQ(reply.value("error", ""), sError) << sRequest;
        reply["ok"] = true;
        reply.erase("error");
        EXPECT_EQ(reply, opened) << sRequest;
    }
}

TEST(Session, ADialogTakesTheRequestsUntilItEnds)
{
    gExpectTranscript({
        {kOpen, R"({"dialog":null})"},
        {R"({"op":"click","field":"sweep"})",
         R"({"ok":true,"dialog":{"class":"CTestSweepDlg","title":"Sweep"},"focus":"start",
             "page":"Tests/All kinds","tree":{"selected":"Tests/All kinds"},
             "insert_enabled":true,
             "fields":{"start":{"kind":"edit","label":"&Start:","text":""},
                       "accept":{"kind":"button","label":"&Accept"}}})"},
        {R"({"op":"set","field":"name","text":"x"})",
         R"({"error":"there is no field \"name\"; did you mean \"more\"?"})"},
        {R"({"op":"insert"})", R"({"error":"\"insert\" is behind another dialog"})"},
        {R"({"op":"close"})", R"({"error":"\"close\" is behind another dialog"})"},
        {R"({"op":"expand","path":"Tests"})", R"({"error":"\"tree\" is behind another dialog"})"},
        {R"({"op":"open","page":"Tests"})",
         R"({"error":"a dialog is open in front of the wizard"})"},
        {R"({"op":"click","field":"accept"})",
         R"({"ok":true,"messages":["Missing start."],"dialog":{"title":"Sweep"},
             "boxes":[{"text":"Missing start.","caption":"SPICE","flags":64,
                       "owner":"CTestSweepDlg"}]})"},
        {R"({"op":"set","field":"start","text":"1"})", R"({"ok":true,"messages":[],"boxes":[]})"},
        {R"({"op":"click","field":"more"})", R"({"ok":true,"fields":{"start":{"text":""}}})"},
        {R"({"op":"set","field":"start","text":"2"})", R"({"ok":true})"},
        {R"({"op":"key","key":"enter"})",
         R"({"ok":true,"fields":{"start":{"text":"1"}},"focus":"more"})"},
        {R"({"op":"click","field":"accept"})",
         R"({"ok":true,"dialog":null,"focus":"sweep","fields":{"name":{"text":""}}})"},
        {R"({"op":"click","field":"sweep"})", R"({"ok":true})"},
        {R"({"op":"key","key":"escape"})", R"({"ok":true,"dialog":null})"},
        {R"({"op":"set","field":"name","text":"x"})", R"({"ok":true})"},
        {R"({"op":"insert"})",
         R"({"ok":true,"inserted":[".all x sweep=1[2]"],"command":".all x sweep=1[2]"})"},
    });
}

TEST(Session, QuestionsAreAnswered)
{
    const std::string sAsk = R"({"op":"click","field":"ask"})";
    const std::string sYes = R"({"ok":true,"fields":{"note":{"text":"yes"}}})";
    const std::string sNo = R"({"ok":true,"fields":{"note":{"text":"no"}}})";
    gExpectTranscript({
        {kOpen, R"({"ok":true})"},
        {sAsk, R"({"ok":true,"questions":["Sure?"],"messages":[],
                   "boxes":[{"text":"Sure?","caption":"quorvawiz","flags":36,"owner":null}],
                   "fields":{"note":{"text":"no"}}})"},
        {R"({"op":"answers","answers":["yes","no","yes"]})", R"({"ok":true,"questions":[]})"},
        {sAsk, sYes},
        {sAsk, sNo},
        {R"({"op":"answers","answers":["no","yes"]})", R"({"ok":true})"},
        {sAsk, sNo},
        {R"({"op":"reopen"})", R"({"ok":true})"},
        {kOpen, R"({"ok":true})"},
        {sAsk, sYes},
        {sAsk, sNo},
        {R"({"op":"answers","answers":["yes"]})", R"({"ok":true})"},
        {R"({"op":"fresh"})", R"({"ok":true})"},
        {kOpen, R"({"ok":true})"},
        {sAsk, sNo},
    });
}

TEST(Session, FileDialogsAreAnswered)
{
    const std::string sFile = R"({"op":"click","field":"file"})";
    gExpectTranscript({
        {kOpen, R"({"ok":true,"file_dialogs":[]})"},
        {sFile, R"({"ok":true,"fields":{"note":{"text":"cancelled"}},
                    "file_dialogs":[{"kind":"save","folder":"/data","name":"a.txt",
                                     "filter":"All (*.*)|*.*||","flags":2050,
                                     "default_extension":"txt"}]})"},
        {R"({"op":"file","path":"/data/b.txt"})", R"({"ok":true,"file_dialogs":[]})"},
        {R"({"op":"file","invalid":true})", R"({"ok":true})"},
        {R"({"op":"file","cancel":true})", R"({"ok":true})"},
        {sFile, R"({"ok":true,"fields":{"note":{"text":"/data/b.txt"}}})"},
        {sFile, R"({"ok":true,"fields":{"note":{"text":"invalid name"}}})"},
        {sFile, R"({"ok":true,"fields":{"note":{"text":"cancelled"}}})"},
    });
}

TEST(Session, TheTreeIsOpenedAndClosed)
{
    gExpectTranscript({
        {kState, R"({"tree":{"selected":"Tests","expanded":[]}})"},
        {R"({"op":"expand","path":"tests"})",
         R"({"ok":true,"tree":{"selected":"Tests","expanded":["Tests"]}})"},
        {R"({"op":"collapse","path":"Tests"})", R"({"ok":true,"tree":{"expanded":[]}})"},
        {R"({"op":"open","page":"CTestAllKindsPage"})",
         R"({"ok":true,"page":"Tests/All kinds",
             "tree":{"selected":"Tests/All kinds","expanded":["Tests"]}})"},
        {R"({"op":"collapse","path":"Tests"})",
         R"({"ok":true,"page":"Tests","insert_enabled":false,
             "tree":{"selected":"Tests","expanded":[]}})"},
        {R"({"op":"insert"})", R"({"error":"\"insert\" is disabled"})"},
        {R"({"op":"key","key":"enter"})", R"({"error":"\"insert\" is disabled"})"},
    });
}

TEST(Session, TextsTravelAsUtf8)
{
    gSetSystemCodePage(kCodePageWindows1252);
    gExpectTranscript({
        {kOpen, R"({"ok":true})"},
        {"{\"op\":\"set\",\"field\":\"name\",\"text\":\"\u00e9\u20ac\"}",
         "{\"ok\":true,\"fields\":{\"name\":{\"text\":\"\u00e9\u20ac\"}}}"},
        {"{\"op\":\"set\",\"field\":\"name\",\"text\":\"\u0439\"}",
         "{\"error\":\"the member \\\"text\\\" doesn't fit in code page 1252\","
         "\"fields\":{\"name\":{\"text\":\"\u00e9\u20ac\"}}}"},
        {R"({"op":"insert"})", R"({"messages":["Only ASCII characters are allowed"],
                                   "inserted":[]})"},
    });
    gSetSystemCodePage(kCodePageUtf8);
}

TEST(Session, BytesThatAreNotValidInTheCodePageTravelAsWindows1252)
{
    const TWizard wizard = gTestWizard();
    TWizard insertsBytes = wizard;
    insertsBytes.run = [&wizard](QuorvaCommandWizardTarget& rTarget) {
        rTarget.InsertCommand("a\xe9\x80");
        wizard.run(rTarget);
    };
    gExpectTranscript(insertsBytes, {{kState, "{\"inserted\":[\"a\u00e9\u20ac\"]}"}});
}

TEST(Session, ALongTextIsTakenAndTold)
{
    const std::string sLong(1 << 20, 'x');
    const std::string sOut =
        gServe(gTestWizard(),
               kOpen + "\n{\"op\":\"set\",\"field\":\"name\",\"text\":\"" + sLong + "\"}\n");
    EXPECT_NE(sOut.find("\"text\":\"" + sLong + "\""), std::string::npos);
}

} // namespace
} // namespace quorvawiz::cli
