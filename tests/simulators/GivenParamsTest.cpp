// What cards give, read against small tables of the simulator's.

#include "simulators/ngspice/cards/GivenParams.h"

#include "simulators/TellValue.h"
#include "simulators/ngspice/cards/CardExpression.h"
#include "simulators/ngspice/listings/ParamTables.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

/// The parameters of all devices of these tests: names mean the same everywhere.
/// @param rsCoupling the flags of k: with P it is the principal one
CParamPlans Plans(const std::string& rsCoupling)
{
    return CParamPlans(gReadParamTables("All - all\nInstance Parameters\n"
                                        "1, gain, inout, real, U, -\n"
                                        "2, control, inout, instance, U, -\n"
                                        "3, m, inout, real, -, -\n"
                                        "4, k, inout, real, " +
                                        rsCoupling +
                                        ", -\n"
                                        "5, inductor1, inout, instance, -, -\n"
                                        "6, inductor2, inout, instance, -, -\n"
                                        "7, inductance, inout, real, A, -\n"
                                        "8, length, inout, real, -, -\n"
                                        "9, v, in, parsetree, -, -\n"
                                        "10, i, in, parsetree, -, -\n"
                                        "11, tc1, inout, real, U, -\n"
                                        "12, reciproctc, inout, integer, U, -\n"
                                        "13, on, in, flag, -, -\n"
                                        "14, pos_node, inout, integer, U, -\n"
                                        "15, neg_node, inout, integer, U, -\n"
                                        "16, pos_nodes, inout, stringvec, U, -\n"
                                        "17, neg_nodes, inout, stringvec, U, -\n"
                                        "18, dimension, inout, integer, -, -\n")
                           .front()
                           .instance);
}

/// "gain: 2m; m: 3", as the card has it.
std::string GivenOn(std::string_view sCard, std::string_view sModel)
{
    const CParamPlans plans = Plans(sCard.starts_with('k') ? "AP" : "A");
    std::vector<TCardToken> tokens;
    std::vector<TGivenParam> given;
    gReadCardTokens(sCard, tokens);
    gFindGivenOnDevice(sCard, tokens, sModel, plans, given);
    std::string sAll;
    for (const TGivenParam& rParam : given) {
        sAll += sAll.empty() ? "" : "; ";
        sAll.append(rParam.pPlan->sName.Text()).append(": ").append(rParam.sText);
    }
    return sAll;
}

struct TCase {
    const char* pCard;
    const char* pModel;
    const char* pGiven;
};

TEST(GivenParams, StandInPlaces)
{
    constexpr TCase cases[] = {
        {"e1 k 0 a b 2", "E", "gain: 2"},
        {"e1 k 0 (a,0) -7", "E", "gain: -7"},
        {"e1 k 0 a 0 gain=7", "E", "gain: 7"},
        {"e1 k 0 a 0 nonsense", "E", ""},
        {"g1 l 0 a b 2m m=3", "G", "gain: 2m; m: 3"},
        {"f1 m 0 v1 3", "F", "control: v1; gain: 3"},
        {"f1 m 0 v1 gain=3 m=2", "F", "control: v1; gain: 3; m: 2"},
        {"h1 n 0 v.x1.v1 3", "H", "control: v.x1.v1; gain: 3"},
        {"k1 l2 l3 0.5", "K", "inductor1: l2; inductor2: l3; k: 0.5"},
        {"k1 l2 l3 k=0.5", "K", "inductor1: l2; inductor2: l3; k: 0.5"},
        {"w1 q a v1 wm on", "wm", "control: v1; on: "},
        {"s1 q a a 0 sm", "sm", "pos_node: q; neg_node: a"},
        {"p1 a b 0 c d 0 pm len=3", "pm", "pos_nodes: a; neg_nodes: a; dimension: a; length: 3"},
        {"f1", "F", ""},
    };
    for (const TCase& rCase : cases) {
        EXPECT_EQ(GivenOn(rCase.pCard, rCase.pModel), rCase.pGiven) << rCase.pCard;
    }
}

TEST(GivenParams, HaveNamesOfTheReaderOfCards)
{
    constexpr TCase cases[] = {
        {"l1 x 0 l=1u", "L", "inductance: 1u"},
        {"y1 a 0 b 0 ym len=3", "ym", "length: 3"},
        {"y1 a 0 b 0 ym length=3", "ym", "length: 3"},
        {"c1 x 0 l=1u", "C", ""}, // only of an inductor
    };
    for (const TCase& rCase : cases) {
        EXPECT_EQ(GivenOn(rCase.pCard, rCase.pModel), rCase.pGiven) << rCase.pCard;
    }
}

TEST(GivenParams, MayBeExpressions)
{
    constexpr TCase cases[] = {
        {"b1 o 0 v= v(a) *  2.0", "B", "v: v(a) *  2.0"},
        {"b1 o 0 v=(v(a)) tc1=0.1", "B", "v: (v(a)); tc1: 0.1"},
        {"b1 o 0 i= v(f, 0) / (1e3 + v(a)) reciproctc=1 m=2", "B",
         "i: v(f, 0) / (1e3 + v(a)); reciproctc: 1; m: 2"},
        {"b1 o 0 v=2*(v(a))", "B", "v: 2*(v(a))"},
        {"b1 o 0 v=v(m)==1 ? i(v1) : m(2) tc1 = 3", "B", "v: v(m)==1 ? i(v1) : m(2); tc1: 3"},
        {"b1 o 0 i=v(i) >= 2 m=2", "B", "i: v(i) >= 2; m: 2"},
        {"b1 o 0 i=(m=2) m=3", "B", "i: (m=2); m: 3"},
        {"b1 o 0 i=tc1 == 2", "B", "i: tc1 == 2"},
        {"b1 o 0 i={1+2} m=3", "B", "i: {1+2}; m: 3"},
        {"b1 o 0 v=", "B", "v: "},
        {"b1 o 0 v=))) m=3", "B", "v: )))"}, // nothing that the simulator takes
    };
    for (const TCase& rCase : cases) {
        EXPECT_EQ(GivenOn(rCase.pCard, rCase.pModel), rCase.pGiven) << rCase.pCard;
    }
}

struct TValueCase {
    EValueKind eKind;
    const char* pCard;
    const char* pShown;
    const char* pExpected;
};

TEST(GivenParams, HaveTheShownValueButForIntegers)
{
    constexpr TValueCase cases[] = {
        {EValueKind::Real, "2m", "0.006", "double 6m"},
        {EValueKind::Real, "2m", "<<NAN, error = 7>>", "junk"},
        {EValueKind::Integer, "1", "32", "int 1"},
        {EValueKind::Integer, "0", "32", "int 0"},
        {EValueKind::Integer, "1.000000000000000e+00", "32", "int 1"},
        {EValueKind::Integer, "1", "-1334832672", "int 1"},
        {EValueKind::Integer, "2.5", "3", "int 3"},
        {EValueKind::Integer, "99999999", "3", "int 3"},
        {EValueKind::Integer, "", "3", "int 3"},
        {EValueKind::Integer, "n1", "3", "int 3"},
        {EValueKind::Flag, "", "1", "bool true"},
        {EValueKind::Text, "x", "y", "text y"},
    };
    for (const TValueCase& rCase : cases) {
        TParamPlan plan;
        plan.eKind = rCase.eKind;
        const std::string_view shown[] = {rCase.pShown};
        const auto value = gValueOfGiven({&plan, rCase.pCard}, shown);
        EXPECT_EQ(value ? gTellValue(*value) : "junk", rCase.pExpected)
            << rCase.pCard << " " << rCase.pShown;
    }
}

TEST(GivenParams, AnExpressionHasSingleBlanks)
{
    TParamPlan plan;
    plan.eKind = EValueKind::Expression;
    EXPECT_EQ(gTellValue(gValueOnCard({&plan, "v(a) *   2.0\t+ 1"})), "text v(a) * 2.0 + 1");
}

} // namespace
} // namespace quorvawiz::ngspice
