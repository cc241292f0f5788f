#pragma once

#include "wizard/output/MeasureLabels.h"
#include "wizard/output/MeasureTexts.h"
#include "wizard/output/TableColumn.h"

// The template of the page of measurements.

namespace Measure
{
inline constexpr const char* kTypeEntries[] = {"Difference", "Signal statistics", "Find-when",
                                               "Expression evaluation", "Error function"};
inline constexpr auto kAnalysisEntries = EntriesOf(kAnalyses);
inline constexpr auto kCrossingEntries = EntriesOf(kCrossingKinds);

/// The keys of an event's fields, in their order.
using TEventKeys = std::array<const char*, 5>;

inline constexpr TEventKeys kTriggerKeys{"trigger-signal", "trigger-value", "trigger-crossing-kind",
                                         "trigger-crossing-number", "trigger-delay"};
inline constexpr TEventKeys kTargetKeys{"target-signal", "target-value", "target-crossing-kind",
                                        "target-crossing-number", "target-delay"};
inline constexpr TEventKeys kValueKeys{"when-signal", "when-value", "value-row-crossing-kind",
                                       "value-row-crossing-number", "value-row-delay"};
inline constexpr TEventKeys kSignalKeys{"signal-row-first-signal", "signal-row-second-signal",
                                        "signal-row-crossing-kind", "signal-row-crossing-number",
                                        "signal-row-delay"};

// --- fields at places of their own in a line

constexpr TControlRow EditAt(int nId, const char* pKey, int nX, int nWidth)
{
    return Row(nId, pKey, EControl::Edit, "", {nX, 0, nWidth, kEditHeight});
}

constexpr TControlRow ListAt(int nId, const char* pKey, int nX, int nWidth,
                             std::span<const char* const> entries)
{
    return Row(nId, pKey, EControl::DropDownList, "", {nX, 0, nWidth, kEditHeight}, kNoFlags, 0,
               entries);
}

/// A field with its label in front, which begins at `nLabel`.
constexpr TBlock<2> Labelled(int nLabel, const char* pLabel, const TControlRow& rField)
{
    const TRect label{nLabel, 2, rField.rect.x - 2 - nLabel, kLabelHeight};
    return SameTop(At(LabelFor(rField, pLabel, label)), At(rField));
}

constexpr TBlock<2> Labelled(int nLabel, const TControlRow& rField)
{
    return Labelled(nLabel, TemplateLabel(rField.nId), rField);
}

/// A radio button. `nDown`: its distance from the top of its group.
constexpr TBlock<1> RadioAt(int nId, const char* pKey, const char* pLabel, int nX, int nWidth,
                            int nDown, unsigned nFlags = kNoFlags)
{
    return At(Row(nId, pKey, EControl::RadioButton, pLabel,
                  {nX, nDown, nWidth, PageLayout::kChoiceHeight}, nFlags));
}

// --- what all types show

constexpr auto Header()
{
    return Tight(SameTop(Labelled(7, "Anal&ysis type:",
                                  ListAt(kAnalysis, "analysis-type", 56, 48, kAnalysisEntries)),
                         Labelled(110, "&Measurement result name:",
                                  EditAt(kResultName, "result-name", 201, 41))),
                 SameTop(Labelled(7, "Measurement &type:",
                                  ListAt(kType, "measurement-type", 73, 89, kTypeEntries)),
                         At(Row(kSuppress, "suppress-printing", EControl::CheckBox,
                                "Su&ppress printing", {168, 0, 74, PageLayout::kChoiceHeight}))));
}

constexpr auto OptimizationBox()
{
    return GroupBox(kOptimizationGroup, "optimization-group", "Optimization",
                    SameTop(LabelledAt(EditAt(kGoal, "goal", 14, 64), "&Goal (0):"),
                            LabelledAt(EditAt(kMinimumValue, "minimum-value", 82, 86),
                                       "Minimum &value (1.0e-12):"),
                            LabelledAt(EditAt(kWeight, "weight", 172, 63), "&Weight (1):")));
}

// --- Difference: trigger and target beside each other

/// A delay with its long label in three lines.
constexpr TBlock<2> DelayLine(const TColumns& rColumns, int nId, const char* pKey)
{
    TBlock<2> line = EditLine(rColumns, nId, pKey, TemplateLabel(nId));
    TRect& rLabel = line.rows[0].row.rect;
    rLabel.y = 0;
    rLabel.h = 3 * kLabelHeight;
    line.rows[1].row.rect.y = rLabel.h - kEditHeight;
    line.nHeight = rLabel.h;
    return line;
}

/// The fields of an event behind its signal.
constexpr auto EventLines(const TColumns& rColumns, int nEvent, const TEventKeys& rKeys)
{
    const auto id = [nEvent](EEventField field) { return IdOf(nEvent, field); };
    return Tight(EditLine(rColumns, id(kOther), rKeys[kOther], TemplateLabel(id(kOther))),
                 DropDownLine(rColumns, id(kCrossingKind), rKeys[kCrossingKind],
                              TemplateLabel(id(kCrossingKind)), kCrossingEntries),
                 DropDownLine(rColumns, id(kCrossingNumber), rKeys[kCrossingNumber],
                              TemplateLabel(id(kCrossingNumber)), kCrossingNumbers),
                 DelayLine(rColumns, id(kDelay), rKeys[kDelay]));
}

inline constexpr int kTargetX = 127;

constexpr auto TriggerBox()
{
    constexpr TColumns kFields{.nField = 70};
    constexpr int kWidth = 44; // up to the edge of the box
    constexpr int kLabelX = 48;
    return GroupBox(
        kTriggerGroup, "trigger-group", "Trigger",
        SameTop(RadioAt(kAt, "trigger-mode", "&At", 14, 33, 0, kFirstOfGroup),
                RadioAt(kWhen, "trigger-mode", "W&hen", 14, 34, 15),
                Tight(Labelled(kLabelX, EditAt(kAtValue, "at-value", kFields.nField, kWidth)),
                      Labelled(kLabelX, EditAt(IdOf(kTrigger, kSignal), kTriggerKeys[kSignal],
                                               kFields.nField, kWidth)),
                      EventLines(kFields, kTrigger, kTriggerKeys))));
}

constexpr auto TargetBox()
{
    constexpr TColumns kFields{.nField = 190};
    return GroupBox(kTargetGroup, "target-group", "Target",
                    Tight(EditLine(kFields, IdOf(kTarget, kSignal), kTargetKeys[kSignal],
                                   TemplateLabel(IdOf(kTarget, kSignal))),
                          EventLines(kFields, kTarget, kTargetKeys)));
}

// --- Signal statistics and Error function

constexpr auto RangeLines()
{
    constexpr TColumns kFields{.nField = 150};
    constexpr TColumns kJoined{.nField = 150, .nUnit = 227};
    const auto edit = [](const TColumns& rColumns, int nId, const char* pKey) {
        return EditLine(rColumns, nId, pKey, TemplateLabel(nId));
    };
    const TBlock<2> second = Labelled(
        124, EditAt(kSecondSignal, "second-signal", kJoined.nField, 227 - 4 - kJoined.nField));
    return Lines(
        OnLayers(kRangeLayers, DropDownLine(kFields, kKind, "kind", TemplateLabel(kKind), {})),
        SameTop(
            OnLayers(kStatisticsLayer, Lines(edit(kFields, kOutputSignal, "output-signal"),
                                             edit(kFields, kReportedSignal, "reported-signal"))),
            OnLayers(kErrorLayer, Lines(EditLine(kJoined, kFirstSignal, "first-signal",
                                                 TemplateLabel(kFirstSignal), "and"),
                                        second))),
        OnLayers(kRangeLayers, GroupBox(kOptionalGroup, "optional-group", "Optional",
                                        edit(kFields, kFrom, "from"), edit(kFields, kTo, "to"))));
}

// --- Find-when

constexpr int kEqualsX = 100; // where the labels begin that say what equals what
constexpr int kOtherX = 146;

constexpr auto FindBox()
{
    return GroupBox(
        kFindGroup, "find-group", "Find",
        SameTop(RadioAt(kFindX, "find-choice", "&x-value", 14, 40, 0, kFirstOfGroup),
                RadioAt(kFindValue, "find-choice", "V&alue", 62, 36, 0),
                Labelled(kEqualsX, EditAt(kFindSignal, "find-signal", kOtherX, 235 - kOtherX))));
}

/// The fields of an event in two lines; its radio button is the label of its signal.
constexpr auto EventRow(int nEvent, const TEventKeys& rKeys)
{
    const auto id = [nEvent](EEventField field) { return IdOf(nEvent, field); };
    TControlRow signal = EditAt(id(kSignal), rKeys[kSignal], 52, 44);
    signal.nFlags = kUnlabelled;
    auto row = Tight(SameTop(At(signal),
                             Labelled(kEqualsX, EditAt(id(kOther), rKeys[kOther], kOtherX, 33)),
                             Labelled(181, ListAt(id(kCrossingKind), rKeys[kCrossingKind], 192, 43,
                                                  kCrossingEntries))),
                     SameTop(Labelled(23, ListAt(id(kCrossingNumber), rKeys[kCrossingNumber], 52,
                                                 29, kCrossingNumbers)),
                             Labelled(86, EditAt(id(kDelay), rKeys[kDelay], 203, 32))));
    row.nGap = PageLayout::kLineGap; // rows stand further apart than their lines
    return row;
}

constexpr auto WhenBox()
{
    const auto xRow = Labelled(kEqualsX, EditAt(kWhenX, "when-x-value", kOtherX, 33));
    const auto valueRow = EventRow(kValueEvent, kValueKeys);
    const auto signalRow = EventRow(kSignalEvent, kSignalKeys);
    const int nValueRow = xRow.nHeight + PageLayout::kLineGap;
    const int nSignalRow = nValueRow + valueRow.nHeight + PageLayout::kLineGap;
    return GroupBox(kWhenGroup, "when-group", "When",
                    SameTop(RadioAt(kXRow, "when-row", "x-val&ue", 14, 40, 0, kFirstOfGroup),
                            RadioAt(kValueRow, "when-row", "&Signal", 14, 37, nValueRow),
                            RadioAt(kSignalRow, "when-row", "Signa&l", 14, 37, nSignalRow),
                            Lines(xRow, valueRow, signalRow)));
}

// --- Expression evaluation

constexpr TBlock<2> ExpressionLine()
{
    TBlock<2> line = WideEdit(kExpression, "expression", TemplateLabel(kExpression), 2);
    line.rows[0].row.rect.w = 190; // so that its second line has more than a word
    return line;
}

inline constexpr auto kRows =
    PageRows(Tight(Header(), OptimizationBox(),
                   SameTop(OnLayers(kDifferenceLayer, Beside(kTargetX, TriggerBox(), TargetBox())),
                           RangeLines(), OnLayers(kFindWhenLayer, Tight(FindBox(), WhenBox())),
                           OnLayers(kExpressionLayer, ExpressionLine()))));

// Meant: the letters of the signal row and of the header are given.
inline constexpr DialogTemplate kTemplate{"Measure", kPageSize, kRows, "uy"};
} // namespace Measure
