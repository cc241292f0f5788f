#pragma once

#include "platform/base/StringA.h"

// What the page of measurements asks for.

namespace Measure
{
enum EType { kDifference, kStatistics, kFindWhen, kExpressionEvaluation, kErrorFunction };

/// The kinds of signal statistics that can report another signal, among all of them.
enum EStatisticsKind { kMaximum = 4, kMinimum = 5 };

enum EControlId {
    kAnalysis = 1001,
    kResultName,
    kType,
    kSuppress,
    kOptimizationGroup,
    kGoal,
    kMinimumValue,
    kWeight,
    kTriggerGroup,
    kAt, ///< the radio buttons of the trigger
    kWhen,
    kAtValue,
    kTrigger, ///< the ids of an event's fields follow it: see IdOf
    kTargetGroup = kTrigger + 5,
    kTarget,
    kKind = kTarget + 5,
    kOutputSignal,
    kReportedSignal,
    kFirstSignal,
    kSecondSignal,
    kOptionalGroup,
    kFrom,
    kTo,
    kFindGroup,
    kFindX, ///< the radio buttons of what is found
    kFindValue,
    kFindSignal,
    kWhenGroup,
    kXRow, ///< the radio buttons of the rows
    kValueRow,
    kSignalRow,
    kWhenX,
    kValueEvent,
    kSignalEvent = kValueEvent + 5,
    kExpression = kSignalEvent + 5,
};

/// The fields of an event.
enum EEventField { kSignal, kOther, kCrossingKind, kCrossingNumber, kDelay };

/// The id of a field of the event `nEvent`.
constexpr int IdOf(int nEvent, EEventField field)
{
    return nEvent + field;
}

/// A signal that crosses a value or another signal.
struct TEvent {
    CString msSignal;
    CString msOther; ///< the value, or the other signal
    int mnKind = 0;
    int mnNumber = 0; ///< which crossing of its kind; an index
    CString msDelay;
};

/// The fields of the page; what it remembers, all of it whichever type is chosen.
struct TFields {
    int mnAnalysis = 0;
    CString msResultName;
    int mnType = kDifference;
    int mnSuppress = 0;

    CString msGoal;
    CString msMinimumValue;
    CString msWeight;

    int mnTriggerMode = kAt;
    CString msAtValue;
    TEvent mTrigger;
    TEvent mTarget;

    CString msOutputSignal;
    CString msReportedSignal;
    CString msFrom;
    CString msTo;
    CString msFirstSignal;
    CString msSecondSignal;

    int mnFindChoice = kFindValue;
    CString msFindSignal;
    int mnWhenRow = kXRow;
    CString msWhenX;
    TEvent mValueEvent;
    TEvent mSignalEvent;

    CString msExpression;
};
} // namespace Measure
