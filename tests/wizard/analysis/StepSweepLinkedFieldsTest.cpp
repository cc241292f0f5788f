// The increment and the number of points of a linear sweep exclude each other.

#include "wizard/analysis/SweepDialogRun.h"

namespace
{
using namespace steps;

class StepSweepLinkedFields : public CSweepDialogTest
{
};

/// A field is enabled or not, and holds a text.
struct TState {
    bool bEnabled;
    const char* pText;
};

struct TCase {
    const char* pName;
    std::vector<TStep> steps;
    TState increment;
    TState numberOfPoints;
};

const TStep kLinear = Select("sweep-type", "Linear");
const TStep kDecade = Select("sweep-type", "Decade");
const TStep kOptimization = Select("sweep-type", "Optimization");
const TStep kAccept = Click("accept");

const TCase kCases[] = {
    {"nothing typed", {}, {true, ""}, {true, ""}},
    {"an increment", {Set("increment", "1")}, {true, "1"}, {false, ""}},
    {"an increment taken back",
     {Set("increment", "1"), Set("increment", "")},
     {true, ""},
     {true, ""}},
    {"a number of points", {Set("number-of-points", "3")}, {false, ""}, {true, "3"}},
    {"a number of points taken back",
     {Set("number-of-points", "3"), Set("number-of-points", "")},
     {true, ""},
     {true, ""}},
    {"a blank is a text here", {Set("increment", " ")}, {true, " "}, {false, ""}},

    // A change of type enables both; what they hold then decides again.
    {"an increment that comes back",
     {Set("increment", "1"), kDecade, kLinear},
     {true, "1"},
     {false, ""}},
    {"a number of points that comes back",
     {Set("number-of-points", "3"), kDecade, kLinear},
     {false, ""},
     {true, "3"}},
    {"after an increment a number of points of another type is emptied",
     {Set("increment", "1"), kDecade, Set("number-of-points", "5"), kLinear},
     {true, "1"},
     {false, ""}},
    {"after a number of points a third edit of another type is emptied",
     {Set("number-of-points", "3"), kOptimization, Set("increment", "om"), kLinear},
     {false, ""},
     {true, "3"}},
    {"a number of points of another type isn't seen before it is pulled",
     {kDecade, Set("number-of-points", "5"), kLinear},
     {true, ""},
     {true, "5"}},
    {"an increment beside a number of points of another type closes both",
     {kDecade, Set("number-of-points", "5"), kLinear, Set("increment", "1")},
     {false, "1"},
     {false, "5"}},
    {"a number of points typed beside a third edit of another type closes both",
     {kOptimization, Set("increment", "1"), kLinear, Set("number-of-points", "5")},
     {false, "1"},
     {false, "5"}},
    {"a third edit emptied under another type frees both",
     {Set("increment", "1"), kOptimization, Set("increment", ""), kLinear},
     {true, ""},
     {true, ""}},

    // Before either was typed, the fields that a failed "Accept" pulled decide.
    {"a number of points that was pulled closes the increment and keeps its text",
     {kDecade, Set("number-of-points", "5"), kAccept, kOptimization, Set("increment", "om"),
      kLinear},
     {false, "om"},
     {true, "5"}},
    {"a third edit that was pulled closes the number of points",
     {kOptimization, Set("increment", "om"), kAccept, kLinear},
     {true, "om"},
     {false, ""}},
    {"of two that were pulled the number of points governs",
     {kOptimization, Set("increment", "om"), kDecade, Set("number-of-points", "5"), kAccept,
      kLinear},
     {false, "om"},
     {true, "5"}},
};

TEST_F(StepSweepLinkedFields, WhatOneHoldsClosesTheOther)
{
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        Renew();
        Open(CScript()
                 .Do(rCase.steps)
                 .Look({look::Enabled("increment", rCase.increment.bEnabled),
                        look::Text("increment", rCase.increment.pText),
                        look::Enabled("number-of-points", rCase.numberOfPoints.bEnabled),
                        look::Text("number-of-points", rCase.numberOfPoints.pText)})
                 .Do({Click("cancel")}));
    }
}

TEST_F(StepSweepLinkedFields, WithBothFilledTheClauseByIncrementWins)
{
    Open(CScript().Do({kDecade, Set("number-of-points", "5"), kLinear, Set("increment", "1"),
                       Set("parameter-name", "r1"), Set("start", "1"), Set("stop", "9"), kAccept}));
    EXPECT_EQ(mpDialog->GetResult(), "sweep lin param r1 1 9 1");
}

TEST_F(StepSweepLinkedFields, TheNumberOfPointsTypedLastEmptiesTheIncrementAtTheNextOpening)
{
    Open(CScript().Do({kDecade, Set("number-of-points", "5"), kLinear, Set("increment", "1"),
                       Set("parameter-name", "r1"), Set("start", "1"), Set("stop", "9"), kAccept}));
    // The handler of the increment looks at the number of points last.
    Open(CScript()
             .Look({look::Enabled("increment", false), look::Text("increment", ""),
                    look::Enabled("number-of-points"), look::Text("number-of-points", "5")})
             .Do({kAccept}));
    EXPECT_EQ(mpDialog->GetResult(), "sweep param r1 lin 5 1 9");
}

TEST_F(StepSweepLinkedFields, AnAcceptedIncrementComesBackWithTheNumberOfPointsDisabled)
{
    Open(CScript().Do({Set("increment", "1"), Set("parameter-name", "r1"), Set("start", "1"),
                       Set("stop", "9"), kAccept}));
    for (int n = 0; n < 2; ++n)
        Open(CScript()
                 .Look({look::Enabled("increment"), look::Text("increment", "1"),
                        look::Enabled("number-of-points", false)})
                 .Do({Click("cancel")}));
}

TEST_F(StepSweepLinkedFields, AnAcceptedNumberOfPointsComesBackWithTheIncrementDisabled)
{
    Open(CScript().Do({Set("number-of-points", "3"), Set("parameter-name", "r1"), Set("start", "1"),
                       Set("stop", "9"), kAccept}));
    for (int n = 0; n < 2; ++n)
        Open(CScript()
                 .Look({look::Enabled("increment", false), look::Enabled("number-of-points"),
                        look::Text("number-of-points", "3")})
                 .Do({Click("cancel")}));
}

TEST_F(StepSweepLinkedFields, AResetEnablesBothButDoesNotForgetWhichOneGoverned)
{
    const std::vector<TStep> pulledNumberBesideThirdEdit{
        kDecade,       Set("number-of-points", "5"), kAccept,
        kOptimization, Set("increment", "om"),       kLinear};

    Open(CScript().Do({Set("number-of-points", "3"), Click("cancel")}));
    Open(CScript()
             .Look({look::Enabled("increment"), look::Enabled("number-of-points")})
             .Do(pulledNumberBesideThirdEdit)
             .Look({look::Text("increment", "")}) // with nothing typed before it would hold "om"
             .Do({Click("cancel")}));
}

TEST_F(StepSweepLinkedFields, TheFocusLeavesAnEditThatClosesItself)
{
    Open(CScript()
             .Do({kDecade, Set("number-of-points", "5"), kLinear, Set("increment", "1")})
             .Look({look::Focused("accept")})
             .Do({Click("cancel")}));
}
} // namespace
