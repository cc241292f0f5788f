#include "cli/Composer.h"

#include "cli/Failure.h"
#include "cli/TestWizard.h"
#include "platform/ui/Desktop.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
/// Composes with the test wizard, in a process that is fresh.
TComposition Compose(const std::string& rsPage, const std::vector<std::string>& rArguments)
{
    CRememberedBase::ResetAll();
    const TWizard wizard = gTestWizard();
    const std::vector<TPage> pages = gListPages(wizard);
    std::vector<TComposeArgument> arguments;
    arguments.reserve(rArguments.size());
    for (const std::string& rsArgument : rArguments)
        arguments.push_back(gParseArgument(rsArgument));
    return gCompose(wizard, gFindBuiltPage(pages, rsPage), arguments);
}

/// All that was shown, a question with a '?' in front.
std::vector<std::string> Shown(const TComposition& rComposition)
{
    std::vector<std::string> shown;
    for (const TBoxText& rBox : rComposition.boxes)
        shown.push_back((rBox.bQuestion ? "?" : "") + rBox.sText);
    return shown;
}

TEST(Composer, ActsAsTheArgumentsSay)
{
    struct Case {
        const char* pName;
        std::vector<std::string> arguments;
        const char* pCommand;
    };
    const std::vector<Case> cases{
        {"an edit", {"name=x"}, ".all x"},
        {"the last text counts", {"name=x", "name=y"}, ".all y"},
        {"LF in a text box", {"name=x", "lines=a\nb"}, ".all x lines=a\nb"},
        {"CR LF stays", {"name=x", "lines=a\r\nb"}, ".all x lines=a\nb"},
        {"an entry", {"name=x", "kind=decade"}, ".all x kind=decade"},
        {"an entry in other letters", {"name=x", "kind=DECADE"}, ".all x kind=decade"},
        {"an index", {"name=x", "kind=#2"}, ".all x kind=octave"},
        {"a typed entry", {"name=x", "node=out"}, ".all x node=out"},
        {"a typed text", {"name=x", "node=n1"}, ".all x node=n1"},
        {"a typed box's index", {"name=x", "node=#1"}, ".all x node=out"},
        {"no index, so a text", {"name=x", "node=#2"}, ".all x node=#2"},
        {"an index beyond int, so a text",
         {"name=x", "node=#99999999999"},
         ".all x node=#99999999999"},
        {"a text that differs from an entry in its letters only",
         {"name=x", "node=OUT"},
         ".all x node=OUT"},
        {"a list", {"name=x", "list=in"}, ".all x list=in"},
        {"a list's selection goes", {"name=x", "list=in", "list=#-1"}, ".all x"},
        {"a check box", {"name=x", "ac=on"}, ".all x ac"},
        {"on twice is on", {"name=x", "ac=on", "ac=on"}, ".all x ac"},
        {"off again", {"name=x", "ac=on", "ac=off"}, ".all x"},
        {"a radio label", {"name=x", "type=Current"}, ".all x type=&Current"},
        {"a radio label with its mark", {"name=x", "type=&current"}, ".all x type=&Current"},
        {"a radio index", {"name=x", "type=#0"}, ".all x type=&Voltage"},
        {"a table's row", {"name=x", "table=#1"}, ".all x row=r2"},
        {"a tab", {"name=x", "tabs=Two"}, ".all x tab"},
        {"a button", {"name=x", "file"}, ".all x note=cancelled"},
    };
    for (const Case& rCase : cases) {
        const TComposition composition = Compose("Tests/All kinds", rCase.arguments);
        EXPECT_EQ(composition.command, rCase.pCommand) << rCase.pName;
        EXPECT_EQ(composition.sMisuse, "") << rCase.pName;
        EXPECT_EQ(composition.sRefusal, "") << rCase.pName;
    }
}

TEST(Composer, OpensAndAcceptsDialogs)
{
    struct Case {
        const char* pName;
        std::vector<std::string> arguments;
        const char* pCommand;
    };
    const std::vector<Case> cases{
        {"at the end", {"name=x", "sweep.start=1"}, ".all x sweep=1"},
        {"before another field", {"sweep.start=1", "name=x"}, ".all x sweep=1"},
        {"opened by the button", {"name=x", "sweep", "sweep.start=1"}, ".all x sweep=1"},
        {"cancelled", {"name=x", "sweep.start=1", "sweep.cancel"}, ".all x"},
        {"accepted by name", {"name=x", "sweep.start=1", "sweep.accept"}, ".all x sweep=1"},
        {"accepted, then opened anew",
         {"name=x", "sweep.start=1", "sweep.accept", "sweep.start=2"},
         ".all x sweep=1 sweep=2"},
        {"one in the other",
         {"name=x", "sweep.start=1", "sweep.more.start=2"},
         ".all x sweep=1[2]"},
        {"back to the outer one",
         {"name=x", "sweep.more.start=2", "sweep.start=1"},
         ".all x sweep=1[2]"},
        {"the inner one cancelled",
         {"name=x", "sweep.start=1", "sweep.more.start=2", "sweep.more.cancel"},
         ".all x sweep=1"},
        {"both cancelled by the outer one",
         {"name=x", "sweep.more.start=2", "sweep.cancel"},
         ".all x"},
    };
    for (const Case& rCase : cases) {
        const TComposition composition = Compose("CTestAllKindsPage", rCase.arguments);
        EXPECT_EQ(composition.command, rCase.pCommand) << rCase.pName;
        EXPECT_EQ(composition.sMisuse, "") << rCase.pName;
        EXPECT_EQ(composition.sRefusal, "") << rCase.pName;
    }
}

TEST(Composer, SaysWhatIsWrongWithTheArguments)
{
    struct Case {
        const char* pName;
        std::vector<std::string> arguments;
        const char* pMisuse;
    };
    const std::vector<Case> cases{
        {"unknown field", {"nam=x"}, R"(there is no field "nam"; did you mean "name"?)"},
        {"the frame's buttons are no fields",
         {"close"},
         R"(there is no field "close"; did you mean "node"?)"},
        {"unknown field of a dialog",
         {"sweep.strat=1"},
         R"(there is no field "sweep.strat"; did you mean "sweep.start"?)"},
        {"a dialog's field alone",
         {"sweep.more.start"},
         R"("sweep.more.start" is a box for text: it takes a text; write sweep.more.start=TEXT)"},
        {"a line end in a dialog's line",
         {"sweep.start=a\nb"},
         R"("sweep.start" is a single line: it takes no CR, LF or NUL)"},
        {"an unknown prefix", {"nam.start=1"}, R"(there is no field "nam"; did you mean "say"?)"},
        {"a prefix in a dialog that is no button",
         {"sweep.start.x=1"},
         R"("sweep.start" is a box for text: it takes a text; write sweep.start=TEXT)"},
        {"an unknown inner prefix",
         {"sweep.mor.start=1"},
         R"(there is no field "sweep.mor"; did you mean "sweep.more"?)"},
        {"unknown entry", {"kind=decad"}, R"("kind" has no entry "decad"; did you mean "decade"?)"},
        {"unknown index", {"kind=#3"}, R"("kind" has no index 3; the last is 2)"},
        {"an index beyond int",
         {"list=#99999999999"},
         R"("list" has no index 99999999999; the last is 1)"},
        {"a row beyond int",
         {"table=#-99999999999"},
         R"("table" has no index -99999999999; the last is 1)"},
        {"a radio button beyond int",
         {"type=#99999999999"},
         R"("type" has no index 99999999999; the last is 2)"},
        {"no index", {"kind=#x"}, R"("kind" has no entry "#x"; did you mean "linear"?)"},
        {"unknown radio button",
         {"type=Curent"},
         R"("type" has no button "Curent"; did you mean "Current"?)"},
        {"unknown radio index", {"type=#3"}, R"("type" has no index 3; the last is 2)"},
        {"unknown row", {"table=#2"}, R"("table" has no index 2; the last is 1)"},
        {"a disabled radio button",
         {"type=Power"},
         R"("Power" of "type" is disabled; the nearest that can be used is "Voltage")"},
        {"a disabled button",
         {"add"},
         R"("add" is disabled; the nearest that can be used is "ac")"},
        {"a disabled check box, as it stands",
         {"off=off"},
         R"("off" is disabled; the nearest that can be used is "node")"},
        {"a hidden edit",
         {"secret=x"},
         R"("secret" is hidden; the nearest that can be used is "sweep")"},
        {"a read-only edit", {"fixed=x"}, R"("fixed" is read-only)"},
        {"a line end in a line",
         {"name=a\nb"},
         R"("name" is a single line: it takes no CR, LF or NUL)"},
        {"an edit alone",
         {"name"},
         R"("name" is a box for text: it takes a text; write name=TEXT)"},
        {"a list alone",
         {"kind"},
         R"("kind" is a list: it takes an entry; write kind=ENTRY or kind=#INDEX)"},
        {"a drop-down box alone",
         {"node"},
         R"("node" is a drop-down box: it takes an entry or a text; )"
         R"(write node=TEXT or node=#INDEX)"},
        {"a check box alone",
         {"ac"},
         R"("ac" is a check box: it is turned on or off; write ac=on or ac=off)"},
        {"a radio group alone",
         {"type"},
         R"("type" is a group of radio buttons: it takes one of them; )"
         R"(write type=LABEL or type=#INDEX)"},
        {"a table by text",
         {"table=r1"},
         R"("table" is a table: it takes the index of a row; write table=#INDEX)"},
        {"a button with a value",
         {"say=x"},
         R"("say" is a button: it is pressed; write say alone)"},
        {"a check box's value", {"ac=yes"}, R"("ac" is turned on or off, not "yes")"},
        {"a static", {"note=x"}, R"("note" only shows a text: it takes nothing)"},
        {"a static alone", {"note"}, R"("note" only shows a text: it takes nothing)"},
        {"a group", {"group=x"}, R"("group" only shows a text: it takes nothing)"},
        {"a prefix that is no button",
         {"name.start=1"},
         R"("name" is a box for text: it takes a text; write name=TEXT)"},
        {"a prefix that opens nothing", {"file.start=1"}, R"("file" opened no dialog)"},
    };
    for (const Case& rCase : cases) {
        const TComposition composition = Compose("Tests/All kinds", rCase.arguments);
        EXPECT_EQ(composition.sMisuse, rCase.pMisuse) << rCase.pName;
        EXPECT_FALSE(composition.command) << rCase.pName;
        EXPECT_TRUE(composition.boxes.empty()) << rCase.pName;
    }
}

TEST(Composer, TellsWhatTheWizardSaid)
{
    struct Case {
        const char* pName;
        std::vector<std::string> arguments;
        std::optional<std::string> command;
        std::vector<std::string> shown;
        const char* pRefusal;
    };
    const std::vector<Case> cases{
        {"a failed check", {}, std::nullopt, {"Missing name."}, ""},
        {"a message on the way", {"say", "name=x"}, ".all x", {"Said."}, ""},
        {"a question is answered no", {"ask", "name=x"}, ".all x note=no", {"?Sure?"}, ""},
        {"in their order", {"ask", "say"}, std::nullopt, {"?Sure?", "Said.", "Missing name."}, ""},
        {"a message instead of a dialog",
         {"say.start=1", "name=x"},
         std::nullopt,
         {"Said."},
         R"("say" opened no dialog)"},
        {"a dialog that refuses to end",
         {"name=x", "sweep.start="},
         std::nullopt,
         {"Missing start."},
         R"(the dialog of "sweep" stayed open)"},
        {"it may be mended",
         {"name=x", "sweep.start=", "sweep.accept", "sweep.start=1"},
         ".all x sweep=1",
         {"Missing start."},
         ""},
    };
    for (const Case& rCase : cases) {
        const TComposition composition = Compose("Tests/All kinds", rCase.arguments);
        EXPECT_EQ(composition.command, rCase.command) << rCase.pName;
        EXPECT_EQ(Shown(composition), rCase.shown) << rCase.pName;
        EXPECT_EQ(composition.sRefusal, rCase.pRefusal) << rCase.pName;
        EXPECT_EQ(composition.sMisuse, "") << rCase.pName;
    }
}

TEST(Composer, ACategoryHasNothingToInsert)
{
    const TComposition composition = Compose("tests", {});
    EXPECT_FALSE(composition.command);
    EXPECT_EQ(composition.sRefusal, "the page on display has no command to insert");
}

TEST(Composer, APageWithoutANodeHasADialogOfItsOwn)
{
    EXPECT_EQ(Compose("CTestLonePage", {"name=x"}).command, ".lone x");
}

TEST(Composer, AnEmptyListHasNoIndex)
{
    EXPECT_EQ(Compose("CTestLonePage", {"empty=#0"}).sMisuse,
              R"("empty" has no index 0; it is empty)");
}

TEST(Composer, AnExceptionOfThePageIsTold)
{
    const TComposition composition = Compose("Tests/All kinds", {"say", "fail"});
    EXPECT_EQ(composition.sFailure, "the page failed");
    EXPECT_EQ(Shown(composition), std::vector<std::string>{"Said."});
    EXPECT_FALSE(composition.command);
    EXPECT_EQ(gFindDesktop(), nullptr);
}
} // namespace
} // namespace quorvawiz::cli
