// The table of the simulator's options, cell by cell, and the commands that come of it.

#include "wizard/setup/SimulationOption.h"

#include "support/TranslationScope.h"
#include "support/options/OptionRows.h"
#include "wizard/setup/SimulationOptionTable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace
{
TEST(SimulationOption, TheTableHoldsTheseOptions)
{
    const auto rows = optionRows::gOptions();
    ASSERT_EQ(rows.size(), 102U);
    ASSERT_EQ(kSimulationOptions.size(), rows.size());
    for (std::size_t n = 0; n < rows.size(); ++n) {
        SCOPED_TRACE(rows[n].pEntry);
        const TSimulationOption& rOption = kSimulationOptions[n];
        EXPECT_EQ(rows[n].nIndex, static_cast<int>(n));
        EXPECT_STREQ(rOption.pEntry, rows[n].pEntry);
        EXPECT_STREQ(rOption.pKey, rows[n].pKey);
        EXPECT_STREQ(gOptionKindName(rOption.control.kind), rows[n].pControl);
        EXPECT_EQ(gOptionValueLabel(rOption), rows[n].pLabel);
        EXPECT_STREQ(rOption.pUnit, rows[n].pUnit);
        EXPECT_EQ(gOptionTakesText(rows[n].nIndex), std::string(rows[n].pControl) == "edit");
    }
}

TEST(SimulationOption, TheirChoicesAreThese)
{
    for (const optionRows::TOption& rRow : optionRows::gOptions()) {
        SCOPED_TRACE(rRow.pEntry);
        const auto index = static_cast<std::size_t>(rRow.nIndex);
        const TOptionControl& rControl = kSimulationOptions[index].control;
        const optionRows::TList expected = optionRows::gChoicesOf(rRow);
        ASSERT_EQ(rControl.choices.size(), expected.entries.size());
        for (std::size_t n = 0; n < rControl.choices.size(); ++n) {
            EXPECT_EQ(rControl.choices[n].pEntry, "__$$Translatable$$_" + expected.entries[n]);
            EXPECT_EQ(rControl.choices[n].pToken, expected.tokens[n]);
        }
        if (!rControl.choices.empty()) {
            EXPECT_EQ(expected.entries.at(static_cast<std::size_t>(rControl.nDefault)),
                      rRow.pChosen);
        }
    }
}

TEST(SimulationOption, TheirExplanationsAreThese)
{
    const auto rows = optionRows::gExplanations();
    ASSERT_EQ(kSimulationOptions.size(), rows.size());
    for (std::size_t n = 0; n < rows.size(); ++n) {
        EXPECT_STREQ(kSimulationOptions[n].pKey, rows[n].pKey);
        EXPECT_STREQ(kSimulationOptions[n].pExplanation, rows[n].pText);
    }
}

TEST(SimulationOption, TheKindsAreDividedLikeThis)
{
    const auto count = [](EOptionKind kind) {
        return std::ranges::count_if(kSimulationOptions, [kind](const auto& rOption) {
            return rOption.control.kind == kind;
        });
    };
    EXPECT_EQ(count(EOptionKind::Edit), 67);
    EXPECT_EQ(count(EOptionKind::OnOff), 28);
    EXPECT_EQ(count(EOptionKind::List), 7);
}

struct TCase {
    const char* pName;
    int nOption;
    int nChoice;
    const char* pText;
    const char* pCommand;
};

const TCase kCases[] = {
    {"an edit goes by its text", 0, 1, "1", ".options absdv=1"},
    {"an edit without a text", 0, -1, "", ".options absdv="},
    {"off", 4, 0, "9", ".options acct=0"},
    {"on", 4, 1, "9", ".options acct=1"},
    {"neither is on", 4, -1, "", ".options acct=1"},
    {"a position behind on is on", 4, 2, "", ".options acct=1"},
    {"a list goes by its token", 16, 3, "9", ".options dchomotopy=multirate"},
    {"no position of the list has no token", 16, -1, "9", ".options dchomotopy="},
    {"a position behind the list has no token", 16, 6, "9", ".options dchomotopy="},
    {"no option", -1, 0, "9", "Internal Error! Unrecognized option selection!"},
    {"behind the options", 102, 0, "9", "Internal Error! Unrecognized option selection!"},
};

TEST(SimulationOption, TheCommandGoesByTheKindAndIsNotTranslated)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        EXPECT_EQ(gOptionCommand(rCase.nOption, rCase.nChoice, rCase.pText), rCase.pCommand)
            << rCase.pName;
    }
}

TEST(SimulationOption, WhatIsNoOptionNeedsATextToo)
{
    EXPECT_TRUE(gOptionTakesText(-1));
    EXPECT_TRUE(gOptionTakesText(102));
}
} // namespace
