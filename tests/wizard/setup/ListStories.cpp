#include "wizard/setup/ListStories.h"

#include "support/Look.h"
#include "support/Steps.h"

#include <gtest/gtest.h>

using namespace steps;

std::vector<TListCase> gListStories(const TListPage& rPage)
{
    const std::vector<std::string> both{rPage.sNewer, rPage.sOlder};
    const std::vector<std::string> newer{rPage.sNewer};
    const auto two = rPage.withTwoEntries;
    const TStep remove = Click("delete");
    const TStep clear = Click("clear");
    const TStep top = Select("list", 0);
    const TStep second = Select("list", 1);
    const TStep none = Select("list", -1);
    const std::string& rsDelete = rPage.sDeleteQuestion;
    const std::string& rsClear = rPage.sClearQuestion;
    return {
        {"the newest entry stands on top, selected", two(), both, 0, true, {}},
        {"the same again is refused",
         two().Do({Click("add")}),
         both,
         0,
         true,
         {rPage.sAlreadyThere}},
        {"a refusal keeps the selection",
         two().Do({second, Click("add")}),
         both,
         1,
         true,
         {rPage.sAlreadyThere}},
        {"a refusal keeps that there is no selection",
         two().Do({none, Click("add")}),
         both,
         -1,
         true,
         {rPage.sAlreadyThere}},
        {"deleting asks, and no keeps the entry",
         two().Answer({false}).Do({remove}),
         both,
         0,
         true,
         {rsDelete}},
        {"deleting, and no keeps the selection",
         two().Do({second}).Answer({false}).Do({remove}),
         both,
         1,
         true,
         {rsDelete}},
        {"deleting takes the selected entry and selects the one on top",
         two().Do({second}).Answer({true}).Do({remove}),
         newer,
         0,
         true,
         {rsDelete}},
        {"deleting the last entry disables Delete and Clear",
         two().Answer({true, true}).Do({remove, remove}),
         {},
         -1,
         false,
         {rsDelete, rsDelete}},
        {"deleting without a selection does nothing",
         two().Do({none}).Answer({true}).Do({remove}),
         both,
         -1,
         true,
         {}},
        {"clearing asks, and no keeps all",
         two().Answer({false}).Do({clear}),
         both,
         0,
         true,
         {rsClear}},
        {"clearing, and no keeps the selection",
         two().Do({second}).Answer({false}).Do({clear}),
         both,
         1,
         true,
         {rsClear}},
        {"clearing empties the list", two().Answer({true}).Do({clear}), {}, -1, false, {rsClear}},
        {"clearing empties it whichever entry is selected",
         two().Do({second}).Answer({true}).Do({clear}),
         {},
         -1,
         false,
         {rsClear}},
        {"clearing without a selection does nothing, though it is enabled",
         two().Do({none}).Answer({true}).Do({clear}),
         both,
         -1,
         true,
         {}},
        {"selecting an entry again lets it be cleared",
         two().Do({none, top}).Answer({true}).Do({clear}),
         {},
         -1,
         false,
         {rsClear}},
        {"after clearing the same can be added again",
         two().Answer({true}).Do({clear, Click("add")}),
         newer,
         0,
         true,
         {rsClear}},
    };
}

void gExpectAddIsLeftAlone(const TListPage& rPage)
{
    for (const char* const pButton : {"delete", "clear"}) {
        for (const bool bAdd : {true, false}) {
            CScript script = rPage.withTwoEntries();
            if (!bAdd)
                script.Do({Set(rPage.sNeeded, "")});
            gRunWizard(script.Look({look::Enabled("add", bAdd)})
                           .Answer({true})
                           .Do({Click(pButton)})
                           .Look({look::Enabled("add", bAdd)}));
        }
    }
}

void gExpectLists(const std::vector<TListCase>& rCases)
{
    for (const TListCase& rCase : rCases) {
        SCOPED_TRACE(rCase.sName);
        CScript script = rCase.script;
        const auto outcome = gRunWizard(script.Look(
            {look::Entries("list", rCase.entries), look::Selected("list", rCase.nSelected),
             look::Enabled("delete", rCase.bButtons), look::Enabled("clear", rCase.bButtons)}));
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}
