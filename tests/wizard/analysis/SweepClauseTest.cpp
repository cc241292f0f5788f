#include "wizard/analysis/SweepClause.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{
using enum ESweepType;

constexpr ESweepParameter kAllParameters[] = {
    ESweepParameter::ModelParameter, ESweepParameter::Parameter, ESweepParameter::ParameterName,
    ESweepParameter::Source, ESweepParameter::Temperature};

/// A sweep with all its texts filled in.
TSweepEntries Full(ESweepType type, ESweepParameter parameter)
{
    return {type, parameter, {"5\r\n6", "S", "T", "N", "I", "w", "nmos"}};
}

std::string Compose(const TSweepEntries& rEntries)
{
    return gComposeSweepClause("sweep ", rEntries).GetString();
}

// --- every type with every kind of parameter, in the order of the lists

struct TFormCase {
    ESweepType type;
    const char* clauses[5];
};

const TFormCase kForms[] = {
    {Linear,
     {"sweep lin modparam w(nmos) S T I", "sweep lin w S T I", "sweep lin param w S T I",
      "sweep lin source w S T I", "sweep lin temp S T I"}},
    {Decade,
     {"sweep dec modparam w(nmos) S T N", "sweep dec w S T N", "sweep dec param w S T N",
      "sweep dec source w S T N", "sweep dec temp S T N"}},
    {Octave,
     {"sweep oct modparam w(nmos) S T N", "sweep oct w S T N", "sweep oct param w S T N",
      "sweep oct source w S T N", "sweep oct temp S T N"}},
    {List,
     {"sweep list modparam w(nmos) 5 6", "sweep list w 5 6", "sweep list param w 5 6",
      "sweep list source w 5 6", "sweep list temp 5 6"}},
    {Poi,
     {"sweep modparam w(nmos) poi T 5 6", "sweep  w poi T 5 6", "sweep param w poi T 5 6",
      "sweep source w poi T 5 6", "sweep temp poi T 5 6"}},
    {Data, {"sweep data=S", "sweep data=S", "sweep data=S", "sweep data=S", "sweep data=S"}},
    {MonteCarlo,
     {"sweep monte=S seed=T", "sweep monte=S seed=T", "sweep monte=S seed=T",
      "sweep monte=S seed=T", "sweep monte=S seed=T"}},
    {Optimization,
     {"sweep optimize=optS results=T model=I", "sweep optimize=optS results=T model=I",
      "sweep optimize=optS results=T model=I", "sweep optimize=optS results=T model=I",
      "sweep optimize=optS results=T model=I"}},
};

TEST(SweepClause, HasAFormForEveryTypeWithEveryParameter)
{
    for (const TFormCase& rCase : kForms)
        for (const ESweepParameter parameter : kAllParameters)
            EXPECT_EQ(Compose(Full(rCase.type, parameter)),
                      rCase.clauses[static_cast<int>(parameter)]);
}

TEST(SweepClause, WithoutAnIncrementALinearSweepHasItsParameterBeforeLin)
{
    const char* const clauses[] = {"sweep modparam w(nmos) lin N S T", "sweep w lin N S T",
                                   "sweep param w lin N S T", "sweep source w lin N S T",
                                   "sweep temp lin N S T"};
    for (const ESweepParameter parameter : kAllParameters) {
        TSweepEntries entries = Full(Linear, parameter);
        entries.fields.msIncrement.Empty();
        EXPECT_EQ(Compose(entries), clauses[static_cast<int>(parameter)]);
    }
}

TEST(SweepClause, OnlyAPlainParameterOfPoiHasABlankOfItsOwnSoThatTwoStandBehindThePrefix)
{
    for (const ESweepParameter parameter : kAllParameters) {
        const bool bTwoBlanks = Compose(Full(Poi, parameter)).find("sweep  ") != std::string::npos;
        EXPECT_EQ(bTwoBlanks, parameter == ESweepParameter::Parameter);
    }
}

TEST(SweepClause, WithIncrementAndNumberOfPointsTheIncrementWins)
{
    EXPECT_EQ(Compose(Full(Linear, ESweepParameter::Source)), "sweep lin source w S T I");
}

TEST(SweepClause, TheSeedIsOptional)
{
    TSweepEntries entries = Full(MonteCarlo, ESweepParameter::Source);
    entries.fields.msStop.Empty();
    EXPECT_EQ(Compose(entries), "sweep monte=S");
}

TEST(SweepClause, ARunNameGetsOptInFrontUnlessItStartsWithThatInSmallLetters)
{
    const std::pair<const char*, const char*> cases[] = {
        {"run1", "optrun1"}, {"opt1", "opt1"},    {"opt", "opt"},       {"option", "option"},
        {"op", "optop"},     {"OPT1", "optOPT1"}, {"myopt", "optmyopt"}};
    for (const auto& [pName, pWritten] : cases) {
        TSweepEntries entries = Full(Optimization, ESweepParameter::Source);
        entries.fields.msStart = pName;
        EXPECT_EQ(Compose(entries),
                  "sweep optimize=" + std::string(pWritten) + " results=T model=I");
    }
}

TEST(SweepClause, NoSweepIsThePrefixAlone)
{
    EXPECT_EQ(Compose(TSweepEntries()), "sweep ");
}

// --- random sweeps against the rule as it is told

std::string Parameter(int nForm, int nParameter, const std::string& rsName,
                      const std::string& rsModel)
{
    const std::string forms[3][5] = {
        {"modparam " + rsName + "(" + rsModel + ")", rsName, "param " + rsName, "source " + rsName,
         "temp"},
        {" modparam " + rsName + "(" + rsModel + ")", " " + rsName, " param " + rsName,
         " source " + rsName, " temp"},
        {"modparam " + rsName + "(" + rsModel + ")", " " + rsName, "param " + rsName,
         "source " + rsName, "temp"},
    };
    return forms[nForm - 1][nParameter];
}

/// The message, or the clause behind a '!' that stands for no message.
std::string ByTheBook(const std::string& P, int nType, int nParameter, const std::string& S,
                      const std::string& T, const std::string& N, const std::string& I,
                      const std::string& L, const std::string& rsName, const std::string& rsModel)
{
    if (nType <= 4) {
        if (nParameter == 0 && rsName.empty())
            return "Missing parameter name.";
        if (nParameter == 0 && rsModel.empty())
            return "Missing model name.";
        if ((nParameter == 1 || nParameter == 2) && rsName.empty())
            return "Missing parameter name.";
        if (nParameter == 3 && rsName.empty())
            return "Missing source name.";
    }
    const auto A = [&](int nForm) { return Parameter(nForm, nParameter, rsName, rsModel); };
    if (nType <= 2 && S.empty())
        return "Missing start value.";
    if (nType <= 2 && T.empty())
        return "Missing stop value.";
    if (nType == 0 && I.empty() && N.empty())
        return "Missing increment or total number of points.";
    if (nType == 0 && !I.empty())
        return "!" + P + "lin " + A(1) + " " + S + " " + T + " " + I;
    if (nType == 0)
        return "!" + P + A(1) + " lin " + N + " " + S + " " + T;
    if (nType == 1 && N.empty())
        return "Missing number of points per decade.";
    if (nType == 1)
        return "!" + P + "dec" + A(2) + " " + S + " " + T + " " + N;
    if (nType == 2 && N.empty())
        return "Missing number of points per octave.";
    if (nType == 2)
        return "!" + P + "oct" + A(2) + " " + S + " " + T + " " + N;
    if (nType == 3)
        return L.empty() ? "Missing values." : "!" + P + "list" + A(2) + " " + L;
    if (nType == 4 && (T.empty() || L.empty()))
        return L.empty() ? "Missing values." : "Missing total number of points.";
    if (nType == 4)
        return "!" + P + A(3) + " poi " + T + " " + L;
    if (nType == 5)
        return S.empty() ? "Missing dataname." : "!" + P + "data=" + S;
    if (nType == 6 && S.empty())
        return "Missing number of runs to be performed.";
    if (nType == 6)
        return "!" + P + "monte=" + S + (T.empty() ? "" : " seed=" + T);
    if (S.empty())
        return "Missing parameter names to be optimized.";
    if (T.empty())
        return "Missing measurement results.";
    if (I.empty())
        return "Missing model name.";
    return "!" + P + "optimize=" + (S.substr(0, 3) == "opt" ? "" : "opt") + S + " results=" + T +
           " model=" + I;
}

std::string Outcome(const CString& rsPrefix, const TSweepEntries& rEntries)
{
    const char* pMissing =
        gVariesParameter(rEntries.type) ? gMissingSweepParameter(rEntries) : nullptr;
    if (!pMissing)
        pMissing = gMissingSweepValue(rEntries);
    if (!pMissing)
        return "!" + std::string(gComposeSweepClause(rsPrefix, rEntries).GetString());
    constexpr std::string_view sMarker = "__$$Translatable$$_";
    EXPECT_TRUE(std::string_view(pMissing).starts_with(sMarker));
    return pMissing + sMarker.size();
}

TEST(SweepClause, ARandomSweepIsCheckedAndComposedByTheBook)
{
    std::mt19937 random(20261121);
    const auto below = [&random](int n) {
        return std::uniform_int_distribution<int>(0, n - 1)(random);
    };
    const auto text = [&below] {
        static const char* const kTexts[] = {"", "", "1", "vdd", "opt1", "run", "a b "};
        return std::string(kTexts[below(std::size(kTexts))]);
    };
    constexpr int kRounds = QUORVAWIZ_LONG_RUNS ? 5'000'000 : 50'000;
    for (int n = 0; n < kRounds && !HasFailure(); ++n) {
        const int nType = below(8);
        const int nParameter = below(5);
        const std::string L = text();
        const std::string S = text();
        const std::string T = text();
        const std::string N = text();
        const std::string I = text();
        const std::string sName = text();
        const std::string sModel = text();
        const std::string P = below(2) == 0 ? "sweep " : "";
        const TSweepEntries entries{static_cast<ESweepType>(nType),
                                    static_cast<ESweepParameter>(nParameter),
                                    {L, S, T, N, I, sName, sModel}};
        EXPECT_EQ(Outcome(P, entries),
                  ByTheBook(P, nType, nParameter, S, T, N, I, L, sName, sModel));
    }
}
} // namespace
