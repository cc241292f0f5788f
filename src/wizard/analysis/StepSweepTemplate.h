#pragma once

#include "platform/ui/TemplateRows.h"
#include "wizard/analysis/SweepClause.h"

#include <cstddef>

// What the dialog "Sweep" shows: its controls, and the labels that change with the two choices.

namespace StepSweepTemplate
{
enum EControlId {
    kType = 1001,
    kParameter,
    kParameterName,
    kModelName,
    kStart,
    kStop,
    kListOfValues,
    kIncrement,
    kNumberOfPoints,
    kAccept,
    kCancel,
};

inline constexpr const char* kTypes[] = {"Linear", "Decade", "Octave",      "List",
                                         "Poi",    "Data",   "Monte Carlo", "Optimization"};
inline constexpr const char* kParameters[] = {"Model parameter", "Parameter", "Parameter name",
                                              "Source", "Temperature"};

/// The layer of what a type shows; 0 without a type.
constexpr unsigned LayerOf(ESweepType type)
{
    return type == ESweepType::NotUsed ? 0 : 1U << static_cast<unsigned>(type);
}

inline constexpr unsigned kLinear = LayerOf(ESweepType::Linear);
inline constexpr unsigned kRange =
    kLinear | LayerOf(ESweepType::Decade) | LayerOf(ESweepType::Octave);
inline constexpr unsigned kPoi = LayerOf(ESweepType::Poi);
inline constexpr unsigned kListing = LayerOf(ESweepType::List) | kPoi;
inline constexpr unsigned kData = LayerOf(ESweepType::Data);
inline constexpr unsigned kOptimization = LayerOf(ESweepType::Optimization);
inline constexpr unsigned kRuns = LayerOf(ESweepType::MonteCarlo) | kOptimization;

// Two columns of fields with their labels above them.
inline constexpr int kLeft = 7;
inline constexpr int kRight = 185;
inline constexpr int kWidth = 170;

/// An edit of one line in a column.
constexpr TControlRow Edit(int nId, const char* pKey, int nX, int nTop, unsigned nLayers = 0)
{
    return Row(nId, pKey, EControl::Edit, "", {nX, nTop, kWidth, kEditHeight}, kNoFlags, nLayers);
}

inline constexpr auto kRows = JoinRows(
    LabelAbove(Row(kType, "sweep-type", EControl::DropDownList, "",
                   {kLeft, 18, kWidth, kEditHeight}, kNoFlags, 0, kTypes),
               "&Sweep type:"),
    LabelAbove(Row(kParameter, "parameter-type", EControl::DropDownList, "",
                   {kRight, 18, kWidth, kEditHeight}, kNoFlags, kRange | kListing, kParameters),
               "&Parameter type:"),
    LabelAbove(Edit(kParameterName, "parameter-name", kLeft, 49), "Para&meter name:"),
    LabelAbove(Edit(kModelName, "model-name", kRight, 49), "Mo&del name:"),
    LabelAbove(Edit(kStart, "start", kLeft, 80, kRange | kData | kRuns), "Sta&rt:"),
    LabelAbove(Edit(kStop, "stop", kRight, 80, kRange | kPoi | kRuns), "S&top:"),
    LabelAbove(Row(kListOfValues, "list-of-values", EControl::MultilineEdit, "",
                   {kLeft, 111, kRight - kLeft + kWidth, 44}, kWantReturn, kListing),
               "&List of values:"),
    LabelAbove(Edit(kIncrement, "increment", kLeft, 111, kLinear | kOptimization), "In&crement:"),
    LabelAbove(Edit(kNumberOfPoints, "number-of-points", kRight, 111, kRange),
               "T&otal number of points for sweep:"),
    Row(kAccept, "accept", EControl::PushButton, "&Accept", {252, 163, 50, 14}),
    Row(kCancel, "cancel", EControl::PushButton, "Cancel", {305, 163, 50, 14}));
// Meant: no button is the default one, so that Enter ends the dialog without a new result.
inline constexpr DialogTemplate kTemplate{"Sweep", {362, 184}, kRows};

/// The labels of a type; empty where the field isn't shown.
struct TTypeLabels {
    const char* pStart;
    const char* pStop;
    const char* pIncrement;
    const char* pNumberOfPoints;
    const char* pListOfValues;
};

inline constexpr TTypeLabels kTypeLabels[] = {
    {"__$$Translatable$$_Sta&rt:", "__$$Translatable$$_S&top:", "__$$Translatable$$_In&crement:",
     "__$$Translatable$$_T&otal number of points for sweep:", ""},
    {"__$$Translatable$$_Sta&rt:", "__$$Translatable$$_S&top:", "",
     "__$$Translatable$$_&Number of points per decade:", ""},
    // Meant: this one start isn't translated.
    {"Sta&rt:", "__$$Translatable$$_S&top:", "",
     "__$$Translatable$$_&Number of points per octave:", ""},
    {"", "", "", "", "__$$Translatable$$_&List of values:"},
    {"", "__$$Translatable$$_T&otal number of points for sweep:", "", "",
     "__$$Translatable$$_&List of values:"},
    {"__$$Translatable$$_&Data name:", "", "", "", ""},
    {"__$$Translatable$$_&Number of Monte Carlo analysis runs:",
     "__$$Translatable$$_S&eed (optional):", "", "", ""},
    {"__$$Translatable$$_&Optimization run name for selecting parameters:",
     "__$$Translatable$$_&Circuit measurement results:",
     "__$$Translatable$$_O&ptimization algorithm model name:", "", ""},
};

inline constexpr const char* kParameterLabels[] = {
    "__$$Translatable$$_Para&meter name:", "__$$Translatable$$_Para&meter:",
    "__$$Translatable$$_Para&meter name:", "__$$Translatable$$_So&urce name:", ""};

inline constexpr TTypeLabels kNoLabels{"", "", "", "", ""};

/// The labels of a type; none without one.
constexpr const TTypeLabels& TypeLabels(ESweepType type)
{
    return type == ESweepType::NotUsed ? kNoLabels : kTypeLabels[static_cast<std::size_t>(type)];
}

/// The label of the parameter's name.
constexpr const char* ParameterLabel(ESweepParameter parameter)
{
    return kParameterLabels[static_cast<std::size_t>(parameter)];
}
} // namespace StepSweepTemplate
