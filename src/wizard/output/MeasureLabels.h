#pragma once

#include "wizard/frame/PageLayout.h"
#include "wizard/output/MeasureFields.h"

#include <algorithm>
#include <array>

// The labels of what the types of measurement show in each other's place: a template holds them,
// and a choice of the type sets them anew, translated.

namespace Measure
{
constexpr unsigned LayerOf(EType type)
{
    return 1U << type;
}

inline constexpr unsigned kDifferenceLayer = LayerOf(kDifference);
inline constexpr unsigned kStatisticsLayer = LayerOf(kStatistics);
inline constexpr unsigned kFindWhenLayer = LayerOf(kFindWhen);
inline constexpr unsigned kExpressionLayer = LayerOf(kExpressionEvaluation);
inline constexpr unsigned kErrorLayer = LayerOf(kErrorFunction);
inline constexpr unsigned kRangeLayers = kStatisticsLayer | kErrorLayer;

struct TLabel {
    unsigned nLayers; ///< the types that set it
    int nField;
    const char* pLiteral;
};

inline constexpr const char* kOutputSignalLabel = "__$$Translatable$$_Output &signal:";
inline constexpr const char* kMeasuredSignalLabel = "__$$Translatable$$_Mea&sured signal:";

inline constexpr TLabel kLabels[] = {
    {kDifferenceLayer, kAtValue, "__$$Translatable$$_&x="},
    {kDifferenceLayer, IdOf(kTrigger, kSignal), "__$$Translatable$$_&signal"},
    {kDifferenceLayer, IdOf(kTrigger, kOther), "__$$Translatable$$_&crosses value"},
    {kDifferenceLayer, IdOf(kTrigger, kCrossingKind), "__$$Translatable$$_&on"},
    {kDifferenceLayer, IdOf(kTrigger, kCrossingNumber), "__$$Translatable$$_n&umber"},
    {kDifferenceLayer, IdOf(kTrigger, kDelay),
     "__$$Translatable$$_&Delay before crossing are counted:"},
    {kDifferenceLayer, IdOf(kTarget, kSignal), "__$$Translatable$$_Wh&en signal"},
    {kDifferenceLayer, IdOf(kTarget, kOther), "__$$Translatable$$_crosses va&lue"},
    {kDifferenceLayer, IdOf(kTarget, kCrossingKind), "__$$Translatable$$_o&n"},
    {kDifferenceLayer, IdOf(kTarget, kCrossingNumber), "__$$Translatable$$_num&ber"},
    {kDifferenceLayer, IdOf(kTarget, kDelay),
     "__$$Translatable$$_Delay be&fore crossing are counted:"},

    {kStatisticsLayer, kKind, "__$$Translatable$$_Type of me&asurement:"},
    {kStatisticsLayer, kOutputSignal, kOutputSignalLabel},
    {kStatisticsLayer, kReportedSignal, "__$$Translatable$$_O&utput signal:"},
    {kErrorLayer, kKind, "__$$Translatable$$_&Error type:"},
    {kErrorLayer, kFirstSignal, "__$$Translatable$$_Measure difference between &signal"},
    {kErrorLayer, kSecondSignal, "__$$Translatable$$_sig&nal"},
    {kRangeLayers, kFrom, "__$$Translatable$$_&From (default is beginning of analysis):"},
    {kRangeLayers, kTo, "__$$Translatable$$_T&o (default is end of analysis):"},

    {kFindWhenLayer, kFindSignal, "__$$Translatable$$_o&f signal"},
    {kFindWhenLayer, kWhenX, "__$$Translatable$$_&equals"},
    {kFindWhenLayer, IdOf(kValueEvent, kOther), "__$$Translatable$$_e&quals value"},
    {kFindWhenLayer, IdOf(kValueEvent, kCrossingKind), "__$$Translatable$$_&on"},
    {kFindWhenLayer, IdOf(kValueEvent, kCrossingNumber), "__$$Translatable$$_num&ber"},
    {kFindWhenLayer, IdOf(kValueEvent, kDelay),
     "__$$Translatable$$_&Delay before crossing are counted:"},
    {kFindWhenLayer, IdOf(kSignalEvent, kOther), "__$$Translatable$$_eq&uals signal"},
    {kFindWhenLayer, IdOf(kSignalEvent, kCrossingKind), "__$$Translatable$$_o&n"},
    {kFindWhenLayer, IdOf(kSignalEvent, kCrossingNumber), "__$$Translatable$$_numbe&r"},
    {kFindWhenLayer, IdOf(kSignalEvent, kDelay),
     "__$$Translatable$$_Dela&y before crossing are counted:"},

    {kExpressionLayer, kExpression,
     "__$$Translatable$$_E&xpression involving measurement result names and global parameter "
     "names:"},
};

/// The label of a field as the template holds it.
constexpr const char* TemplateLabel(int nField)
{
    return Unmarked(std::ranges::find(kLabels, nField, &TLabel::nField)->pLiteral);
}
} // namespace Measure
