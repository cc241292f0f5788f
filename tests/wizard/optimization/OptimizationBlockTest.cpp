#include "wizard/optimization/OptimizationBlock.h"

#include <gtest/gtest.h>

// The texts of an optimization, without a window.

namespace
{
TEST(OptimizationBlock, AGoalHasItsMinimumValueAndItsWeightWhereTheyAreGiven)
{
    struct Case {
        TOptimizationGoal goal;
        const char* pItem;
    };
    const Case cases[] = {
        {{"delay", "1n", "1e-12", "1"}, "delay=1n minval=1e-12 weight=1"},
        {{"delay", "1n", "1e-12", ""}, "delay=1n minval=1e-12"},
        {{"delay", "1n", "", "2"}, "delay=1n weight=2"},
        {{"delay", "1n", "", ""}, "delay=1n"},
        {{" a ", " b ", " ", " "}, " a = b  minval=  weight= "},
        {{"", "", "", ""}, "="},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(gGoalItem(rCase.goal), rCase.pItem);
}

TEST(OptimizationBlock, LimitsHaveADeltaAndAGuessWhereTheyAreGiven)
{
    struct Case {
        TParameterLimits limits;
        const char* pItem;
    };
    const Case cases[] = {
        {{"w", "1u", "5u", "0.1u", "2u"}, "w minval=1u maxval=5u delta=0.1u guess=2u"},
        {{"w", "1u", "5u", "", "2u"}, "w minval=1u maxval=5u guess=2u"},
        {{"w", "1u", "5u", "0.1u", ""}, "w minval=1u maxval=5u delta=0.1u"},
        {{"w", "1u", "5u", "", ""}, "w minval=1u maxval=5u"},
        {{" w ", "1 ", "5 ", " ", ""}, " w  minval=1  maxval=5  delta= "},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(gLimitsItem(rCase.limits), rCase.pItem);
}

TEST(OptimizationBlock, AnAnalysisIsKnownByItsEnglishNameToTheLetter)
{
    struct Case {
        const char* pName;
        const char* pKeyword;
    };
    const Case cases[] = {
        {"First AC Analysis", "ac"},
        {"First DC Analysis", "dc"},
        {"First Transient Analysis", "tran"},
        {"First .step Analysis", "step"},
        {"first AC Analysis", "first AC Analysis"},
        {"First AC Analysis ", "First AC Analysis "},
        {"First ac Analysis", "First ac Analysis"},
        {"AC", "AC"},
        {"mysweep", "mysweep"},
        {"", ""},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(gAnalysisKeyword(rCase.pName), rCase.pKeyword) << rCase.pName;
}

/// A model with values for the keys of these indices: the index itself.
CString ModelOf(std::initializer_list<std::size_t> keys)
{
    TAlgorithm algorithm{"m1", {}};
    for (const std::size_t nKey : keys)
        algorithm.mValues.at(nKey) = std::to_string(nKey).c_str();
    return gAlgorithmModel(algorithm);
}

TEST(OptimizationBlock, ALineOfTheModelHoldsFiveKeysAtMost)
{
    struct Case {
        const char* pName;
        std::initializer_list<std::size_t> keys;
        const char* pModel;
    };
    const Case cases[] = {
        {"none", {}, ".model m1 opt"},
        {"one", {7}, ".model m1 opt parmin=7"},
        {"the first five", {0, 1, 2, 3, 4}, ".model m1 opt cendif=0 close=1 cut=2 difsiz=3 grad=4"},
        {"the last five",
         {5, 6, 7, 8, 9},
         ".model m1 opt itropt=5 max=6 parmin=7 relin=8 relout=9"},
        {"six, the sixth alone",
         {0, 2, 4, 6, 8, 9},
         ".model m1 opt cendif=0 cut=2 grad=4 max=6 relin=8\r\n+      relout=9"},
        {"seven",
         {0, 1, 2, 3, 4, 5, 6},
         ".model m1 opt cendif=0 close=1 cut=2 difsiz=3 grad=4\r\n+      itropt=5 max=6"},
        {"eight",
         {0, 1, 2, 3, 4, 5, 6, 7},
         ".model m1 opt cendif=0 close=1 cut=2 difsiz=3 grad=4\r\n"
         "+      itropt=5 max=6 parmin=7"},
        {"nine, without the first",
         {1, 2, 3, 4, 5, 6, 7, 8, 9},
         ".model m1 opt close=1 cut=2 difsiz=3 grad=4 itropt=5\r\n"
         "+      max=6 parmin=7 relin=8 relout=9"},
        {"all ten",
         {0, 1, 2, 3, 4, 5, 6, 7, 8, 9},
         ".model m1 opt cendif=0 close=1 cut=2 difsiz=3 grad=4\r\n"
         "+      itropt=5 max=6 parmin=7 relin=8 relout=9"},
    };
    for (const Case& rCase : cases)
        EXPECT_EQ(ModelOf(rCase.keys), rCase.pModel) << rCase.pName;
}

TEST(OptimizationBlock, EachItemIsACommandOfTheOptimizationAndNoLineEndCloses)
{
    const TOptimization optimization{
        "o1", "mysweep", "\na=1\nb=2", "\nw minval=1 maxval=2", {"m1", {}}};
    EXPECT_EQ(gOptimizationBlock(optimization), ".optimize o1 model=m1 analysisname=mysweep\r\n"
                                                ".paramlimits o1 w minval=1 maxval=2\r\n"
                                                ".optgoal o1 a=1\r\n"
                                                ".optgoal o1 b=2\r\n"
                                                ".model m1 opt");
}
} // namespace
