#pragma once

#include "platform/ui/Translate.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/optimization/AlgorithmKeys.h"
#include "wizard/optimization/OptimizationBlock.h"

#include <array>
#include <stdexcept>
#include <utility>

// The template of the optimization wizard: five steps in one frame, each a layer.

namespace OptimizationSteps
{
enum EWizardStep { kSetup, kGoals, kLimits, kAlgorithm, kInsert };

constexpr unsigned LayerOf(int nStep)
{
    return 1U << nStep;
}

enum EControlId {
    kStepGroup = 1001,
    kOptimizationName,
    kAnalysisName,
    kMeasurement,
    kTarget,
    kMinimumValue,
    kWeight,
    kGoalList,
    kGoalAdd,
    kGoalDelete,
    kGoalClear,
    kParameterName,
    kMinimum,
    kMaximum,
    kDelta,
    kGuess,
    kParameterList,
    kParameterAdd,
    kParameterDelete,
    kParameterClear,
    kAlgorithmType,
    kName,
    kFirstKey, // the keys stand in their order
    kDescriptionGroup = kFirstKey + static_cast<int>(kAlgorithmKeys.size()),
    kDescription,
    kNote,
    kPreview,
    kBack,
    kContinue,
};

/// A text that a control has on one step. The template shows those of the first step, and in
/// hidden controls those that they will have.
struct TStepText {
    EWizardStep step;
    int nControl;
    const char* pText; ///< a translatable literal
};

inline constexpr TStepText kStepTexts[] = {
    {kSetup, kStepGroup, "__$$Translatable$$_Optimization setup"},
    {kSetup, LabelOf(kOptimizationName), "__$$Translatable$$_&Optimization name:"},
    {kSetup, LabelOf(kAnalysisName), "__$$Translatable$$_&Analysis name:"},
    {kSetup, kContinue, "__$$Translatable$$_&Continue >"},

    {kGoals, kStepGroup, "__$$Translatable$$_Set optimization goals"},
    {kGoals, LabelOf(kMeasurement), "__$$Translatable$$_&Measurement:"},
    {kGoals, LabelOf(kTarget), "__$$Translatable$$_&Target value:"},
    {kGoals, LabelOf(kMinimumValue), "__$$Translatable$$_Mi&nimum Value (1e-12):"},
    {kGoals, LabelOf(kWeight), "__$$Translatable$$_&Weight (1):"},
    {kGoals, LabelOf(kGoalList), "__$$Translatable$$_&List of optimization goals:"},
    {kGoals, kBack, "__$$Translatable$$_< &Back"},
    {kGoals, kContinue, "__$$Translatable$$_&Continue >"},

    {kLimits, kStepGroup, "__$$Translatable$$_Set parameter limits"},
    {kLimits, LabelOf(kParameterName), "__$$Translatable$$_&Parameter name:"},
    {kLimits, LabelOf(kMinimum), "__$$Translatable$$_&Minimum value:"},
    {kLimits, LabelOf(kMaximum), "__$$Translatable$$_Ma&ximum value:"},
    {kLimits, LabelOf(kDelta), "__$$Translatable$$_D&elta (Optional):"},
    {kLimits, LabelOf(kGuess), "__$$Translatable$$_&Guess value (Optional):"},
    {kLimits, LabelOf(kParameterList), "__$$Translatable$$_&List of parameters:"},
    {kLimits, kBack, "__$$Translatable$$_< &Back"},
    {kLimits, kContinue, "__$$Translatable$$_&Continue >"},

    {kAlgorithm, kStepGroup, "__$$Translatable$$_Set optimization algorithm"},
    {kAlgorithm, LabelOf(kAlgorithmType), "__$$Translatable$$_&Algorithm type:"},
    {kAlgorithm, LabelOf(kName), "__$$Translatable$$_&Name:"},
    {kAlgorithm, LabelOf(kFirstKey + 0), kAlgorithmKeys[0].pLabel},
    {kAlgorithm, LabelOf(kFirstKey + 1), kAlgorithmKeys[1].pLabel},
    {kAlgorithm, LabelOf(kFirstKey + 2), kAlgorithmKeys[2].pLabel},
    {kAlgorithm, LabelOf(kFirstKey + 3), kAlgorithmKeys[3].pLabel},
    {kAlgorithm, LabelOf(kFirstKey + 4), kAlgorithmKeys[4].pLabel},
    {kAlgorithm, LabelOf(kFirstKey + 5), kAlgorithmKeys[5].pLabel},
    {kAlgorithm, LabelOf(kFirstKey + 6), kAlgorithmKeys[6].pLabel},
    {kAlgorithm, LabelOf(kFirstKey + 7), kAlgorithmKeys[7].pLabel},
    {kAlgorithm, LabelOf(kFirstKey + 8), kAlgorithmKeys[8].pLabel},
    {kAlgorithm, LabelOf(kFirstKey + 9), kAlgorithmKeys[9].pLabel},
    {kAlgorithm, kDescriptionGroup, "__$$Translatable$$_Description:"},
    {kAlgorithm, kBack, "__$$Translatable$$_< &Back"},
    // Meant: the blank in front, on this step alone.
    {kAlgorithm, kContinue, "__$$Translatable$$_ &Continue >"},

    {kInsert, kStepGroup, "__$$Translatable$$_Insert command"},
    {kInsert, kBack, "__$$Translatable$$_< &Back"},
};

/// The text that a control has on the first step that gives it one, as a template holds it.
constexpr const char* TextOf(int nControl)
{
    for (const TStepText& rText : kStepTexts)
        if (rText.nControl == nControl)
            return rText.pText + xlang::kTranslationMarker.size();
    throw std::logic_error("no step gives the control a text");
}

/// A block as one step alone shows it.
template <std::size_t N> constexpr TBlock<N> OnStep(EWizardStep step, TBlock<N> block)
{
    return OnLayers(LayerOf(step), step == kSetup ? block : WithFlags(kHidden, block));
}

inline constexpr TColumns kColumns{.nField = 112};
inline constexpr const char* kAlgorithmTypes[] = {"Levenberg-Marquardt (Level 1)"};

template <int Id> constexpr auto Edit(const char* pKey, const TColumns& rColumns = kColumns)
{
    return EditLine(rColumns, Id, pKey, TextOf(LabelOf(Id)));
}

/// The fields of five keys, one below the other.
template <std::size_t First> constexpr auto KeyColumn(const TColumns& rColumns)
{
    return [&rColumns]<std::size_t... N>(std::index_sequence<N...>)
    {
        return Tight(Edit<kFirstKey + static_cast<int>(First + N)>(kAlgorithmKeys[First + N].pKey,
                                                                   rColumns)...);
    }
    (std::make_index_sequence<kAlgorithmKeys.size() / 2>());
}

constexpr auto SetupLines()
{
    return Lines(Space(0), Edit<kOptimizationName>("optimization-name"),
                 DropDownLine(kColumns, kAnalysisName, "analysis-name",
                              TextOf(LabelOf(kAnalysisName)), {}, EControl::DropDown));
}

constexpr auto GoalLines()
{
    return Lines(Space(0), Edit<kMeasurement>("measurement"), Edit<kTarget>("target"),
                 Edit<kMinimumValue>("minimum-value"), Edit<kWeight>("weight"),
                 LabelledListLines(kGoalList, "goal-list", TextOf(LabelOf(kGoalList)), 85,
                                   {kGoalAdd, "&Add"}, {kGoalDelete, "&Delete"},
                                   {kGoalClear, "&Clear"},
                                   {"goal-add", "goal-delete", "goal-clear"}));
}

constexpr auto LimitsLines()
{
    return Lines(Space(0), Edit<kParameterName>("parameter-name"), Edit<kMinimum>("minimum"),
                 Edit<kMaximum>("maximum"), Edit<kDelta>("delta"), Edit<kGuess>("guess"),
                 LabelledListLines(kParameterList, "parameter-list",
                                   TextOf(LabelOf(kParameterList)), 68, {kParameterAdd, "&Add"},
                                   {kParameterDelete, "&Delete"}, {kParameterClear, "&Clear"},
                                   {"parameter-add", "parameter-delete", "parameter-clear"}));
}

constexpr auto AlgorithmLines()
{
    constexpr int kDescriptionHeight = 43; // five lines, in larger letters too
    constexpr TColumns kLeft{.nField = 80};
    constexpr TColumns kRight{.nField = 180};
    return Tight(Space(2),
                 DropDownLine(kLeft, kAlgorithmType, "algorithm-type",
                              TextOf(LabelOf(kAlgorithmType)), kAlgorithmTypes),
                 Edit<kName>("name", kLeft), Beside(140, KeyColumn<0>(kLeft), KeyColumn<5>(kRight)),
                 GroupBox(kDescriptionGroup, "description-group", TextOf(kDescriptionGroup),
                          At(Row(kDescription, "description", EControl::Static, "",
                                 {PageLayout::kLeft, 0, PageLayout::kWidth, kDescriptionHeight},
                                 kUnlabelled))));
}

constexpr auto InsertLines()
{
    return Lines(Space(0),
                 NoteLine(kNote, "note",
                          "Optimization Wizard is now complete.  Press the Insert Command button "
                          "to add the following optimization commands.",
                          2),
                 At(Row(kPreview, "preview", EControl::MultilineEdit, "",
                        {PageLayout::kLeft, 0, PageLayout::kWidth, 142}, kReadOnly | kUnlabelled)));
}

constexpr TControlRow StepButton(int nId, const char* pKey, const char* pLabel, int nLeft)
{
    return Row(nId, pKey, EControl::PushButton, pLabel, {nLeft, 0, 50, 14});
}

/// The buttons that walk the steps.
constexpr auto StepButtons()
{
    constexpr int kLeft = PageLayout::kRight - 50;
    constexpr unsigned kAfterFirst =
        LayerOf(kGoals) | LayerOf(kLimits) | LayerOf(kAlgorithm) | LayerOf(kInsert);
    constexpr unsigned kBeforeLast =
        LayerOf(kSetup) | LayerOf(kGoals) | LayerOf(kLimits) | LayerOf(kAlgorithm);
    return SameTop(
        OnLayers(kAfterFirst,
                 WithFlags(kHidden, At(StepButton(kBack, "back", TextOf(kBack), kLeft - 56)))),
        OnLayers(kBeforeLast, At(StepButton(kContinue, "continue", TextOf(kContinue), kLeft))));
}

inline constexpr auto kRows =
    PageRows(GroupBox(kStepGroup, "step-group", TextOf(kStepGroup),
                      SameTop(OnStep(kSetup, SetupLines()), OnStep(kGoals, GoalLines()),
                              OnStep(kLimits, LimitsLines()), OnStep(kAlgorithm, AlgorithmLines()),
                              OnStep(kInsert, InsertLines()))),
             StepButtons());

/// Meant: "&Clear" and "&Cendif:" share their letter with "&Continue >".
inline constexpr DialogTemplate kTemplate{"Wizard", kPageSize, kRows, "c"};
} // namespace OptimizationSteps
