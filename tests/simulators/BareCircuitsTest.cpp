// What the cards of the bare circuits give is no default of a class.

#include "simulators/ngspice/catalogue/BareCircuits.h"

#include "simulators/TellValue.h"
#include "simulators/ngspice/cards/CardTokens.h"
#include "simulators/ngspice/catalogue/Catalogue.h"
#include "simulators/ngspice/listings/Lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

bool IsNode(std::string_view sWord)
{
    return sWord == "0" ||
           (sWord.size() == 2 && sWord[0] == 'n' && sWord[1] >= '0' && sWord[1] <= '9');
}

/// The words of the card of a device whose name ends so, without its name, nodes and model; a value
/// is no node, even a 0.
std::vector<TCardToken> GivenWords(const TBareCircuit& rCircuit, std::string_view sDevice)
{
    std::vector<TCardToken> tokens;
    std::string_view sRest = rCircuit.sCards;
    while (!sRest.empty()) {
        gReadCardTokens(gNextLine(sRest), tokens);
        if (tokens.front().sText.ends_with(sDevice)) {
            tokens.erase(tokens.begin());
            std::erase_if(tokens, [](const TCardToken& rToken) {
                return !rToken.bValue && (IsNode(rToken.sText) || rToken.sText == kBareModel ||
                                          rToken.sText == kTwinModel);
            });
            return tokens;
        }
    }
    return {};
}

TEST(BareCircuits, WhatACardGivesItsTwinGivesInAnotherWay)
{
    std::size_t nGiven = 0;
    for (const TBareCircuit& rCircuit : gBareCircuits()) {
        const auto given = GivenWords(rCircuit, kBareDevice);
        const auto twin = GivenWords(rCircuit, kTwinDevice);
        ASSERT_LE(given.size(), twin.size()) << rCircuit.sClass;
        for (std::size_t n = 0; n < given.size(); ++n) {
            EXPECT_EQ(given[n].bAssigned, twin[n].bAssigned) << rCircuit.sClass;
            EXPECT_EQ(given[n].bAssigned, given[n].sText == twin[n].sText) << rCircuit.sClass;
        }
        nGiven += given.empty() ? 0 : 1;
    }
    EXPECT_EQ(nGiven, 14U);
}

constexpr const char* kSources = "VCVS - a\nInstance Parameters\n"
                                 "1, gain, inout, real, U, -\n"
                                 "2, ic, inout, real, -, -\n"
                                 "ASRC - b\nInstance Parameters\n"
                                 "2, i, in, parsetree, -, -\n"
                                 "12, reciproctc, inout, integer, U, -\n"
                                 "13, m, inout, real, U, -\n"
                                 "Switch - s\nInstance Parameters\n"
                                 "3, pos_node, inout, integer, U, -\n"
                                 "5, any, inout, integer, U, -\n"
                                 "6, other, inout, integer, U, -\n";

struct TCase {
    const char* pClass;
    const char* pShow;
    const char* pDefaults; ///< of the device's parameters, in the order of the table
};

TEST(BareCircuits, ADefaultIsWhatTwinsShowAndNoneGives)
{
    constexpr TCase cases[] = {
        {"VCVS",
         "etwin:\n    model = E\n    gain = 2\n    ic = 0\nedut:\n    model = E\n"
         "    gain = 1\n    ic = 0\n",
         "none; double 0"},
        // As an older file has it, without the twin.
        {"VCVS", "edut:\n    model = E\n    gain = 1\n    ic = 0\n", "none; double 0"},
        // Both show the same, but the twin gives it.
        {"ASRC",
         "btwin:\n    model = B\n    reciproctc = 32\n    m = 1\nbdut:\n    model = B\n"
         "    reciproctc = 32\n    m = 1\n",
         "text ; none; double 1"},
        // What isn't named anywhere and shown in two ways follows from the card.
        {"Switch",
         "sdut:\n    model = dutmodel\n    pos_node = 1\n    any = 2\n    other = 3\n"
         "stwin:\n    model = dutmodel\n    pos_node = 2\n    any = 2\n",
         "none; int 2; none"},
    };
    for (const TCase& rCase : cases) {
        const CCatalogue catalogue({kSources, {{rCase.pClass, rCase.pShow, ""}}});
        std::string sDefaults;
        for (const TParamDef& rDef : catalogue.Find(rCase.pClass)->def.mDeviceParamDefs) {
            sDefaults += sDefaults.empty() ? "" : "; ";
            sDefaults += gTellValue(rDef.mValue);
        }
        EXPECT_EQ(sDefaults, rCase.pDefaults) << rCase.pShow;
    }
}

} // namespace
} // namespace quorvawiz::ngspice
