#include "support/examples/ExampleLines.h"

namespace
{
using TArguments = std::vector<std::string>;

TArguments Joined(std::initializer_list<TArguments> parts)
{
    TArguments all;
    for (const TArguments& rPart : parts)
        all.insert(all.end(), rPart.begin(), rPart.end());
    return all;
}

TExampleLine Example(std::initializer_list<TArguments> parts, std::string sLine)
{
    return {"Optimization/Wizard", Joined(parts), std::move(sLine)};
}

const TArguments kSetup{"optimization-name=o1", "analysis-name=First Transient Analysis",
                        "continue"};
const TArguments kGoal{"measurement=delay", "target=1n", "continue"};
const TArguments kLimits{"parameter-name=w", "minimum=1u", "maximum=5u", "continue"};
const TArguments kAlgorithm{"name=m1", "continue"};
const TArguments kNoKeys{"cendif=", "close=", "cut=",    "difsiz=", "grad=",
                         "itropt=", "max=",   "parmin=", "relin=",  "relout="};
} // namespace

const TExampleLines& gOptimizationExamples()
{
    static const TExampleLines sExamples{
        Example({kSetup,
                 {"measurement=delay", "target=1n", "goal-add", "measurement=rise", "target=2n",
                  "weight=", "minimum-value=", "goal-add", "continue"},
                 {"parameter-name=w", "minimum=1u", "maximum=5u", "guess=2u", "parameter-add",
                  "continue"},
                 kAlgorithm},
                ".optimize o1 model=m1 analysisname=tran\n"
                ".paramlimits o1 w minval=1u maxval=5u guess=2u\n"
                ".optgoal o1 delay=1n minval=1e-12 weight=1\n"
                ".optgoal o1 rise=2n\n"
                ".model m1 opt cendif=1e-9 close=0.001 cut=2 difsiz=1e-3 grad=1e-6\n"
                "+      itropt=20 max=600000 parmin=0.1 relin=0.001 relout=0.001"),
        Example({{"optimization-name=o1", "analysis-name=mysweep", "continue", "measurement=delay",
                  "target=1n", "weight=", "minimum-value=", "continue"},
                 kLimits,
                 kNoKeys,
                 kAlgorithm},
                ".optimize o1 model=m1 analysisname=mysweep\n"
                ".paramlimits o1 w minval=1u maxval=5u\n"
                ".optgoal o1 delay=1n\n"
                ".model m1 opt"),
        // The sixth key begins a line.
        Example({kSetup,
                 kGoal,
                 kLimits,
                 kNoKeys,
                 {"cendif=1", "close=2", "cut=3", "difsiz=4", "grad=5", "relout=6"},
                 kAlgorithm},
                ".optimize o1 model=m1 analysisname=tran\n"
                ".paramlimits o1 w minval=1u maxval=5u\n"
                ".optgoal o1 delay=1n minval=1e-12 weight=1\n"
                ".model m1 opt cendif=1 close=2 cut=3 difsiz=4 grad=5\n"
                "+      relout=6"),
        // Meant: a parameter's name that was typed before stands in front of the only goal.
        Example(
            {kSetup, kGoal, {"parameter-name=w", "back", "continue"}, kLimits, kNoKeys, kAlgorithm},
            ".optimize o1 model=m1 analysisname=tran\n"
            ".paramlimits o1 w minval=1u maxval=5u\n"
            ".optgoal o1 wdelay=1n minval=1e-12 weight=1\n"
            ".model m1 opt"),
    };
    return sExamples;
}
