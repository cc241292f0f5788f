#include "wizard/output/MeasureCommand.h"

#include "wizard/frame/PageText.h"
#include "wizard/output/MeasureTexts.h"

#include <cstddef>

namespace Measure
{
namespace
{
constexpr const char* kMissingFirstSignal = "__$$Translatable$$_Missing output signal #1.";
constexpr const char* kMissingSecondSignal = "__$$Translatable$$_Missing output signal #2.";
constexpr const char* kMissingAtValue = "__$$Translatable$$_Missing at-value.";

template <class TTable> const auto& At(const TTable& rTable, int nIndex)
{
    return rTable[static_cast<std::size_t>(nIndex)];
}

void AppendCrossing(const TEvent& rEvent, CString& rsPart)
{
    gAppendIfAny(rsPart, " td=", rEvent.msDelay);
    rsPart += At(kCrossingKinds, rEvent.mnKind).pKeyword;
    rsPart += At(kCrossingNumbers, rEvent.mnNumber);
}

void AppendRange(const TFields& rFields, CString& rsPart)
{
    gAppendIfAny(rsPart, " from=", rFields.msFrom);
    gAppendIfAny(rsPart, " to=", rFields.msTo);
}

const char* AppendTrigger(const TFields& rFields, CString& rsPart)
{
    if (rFields.mnTriggerMode == kAt) {
        if (rFields.msAtValue.IsEmpty())
            return kMissingAtValue;
        rsPart += "trig at=" + rFields.msAtValue;
        return nullptr;
    }
    const TEvent& rTrigger = rFields.mTrigger;
    if (rTrigger.msSignal.IsEmpty())
        return "__$$Translatable$$_Missing trigger output signal.";
    if (rTrigger.msOther.IsEmpty())
        return "__$$Translatable$$_Missing trigger value.";
    rsPart += "trig " + rTrigger.msSignal + " val=" + rTrigger.msOther;
    AppendCrossing(rTrigger, rsPart);
    return nullptr;
}

const char* AppendDifference(const TFields& rFields, CString& rsPart)
{
    if (const char* const pMissing = AppendTrigger(rFields, rsPart))
        return pMissing;
    const TEvent& rTarget = rFields.mTarget;
    if (rTarget.msSignal.IsEmpty())
        return "__$$Translatable$$_Missing target output signal.";
    if (rTarget.msOther.IsEmpty())
        return "__$$Translatable$$_Missing target value.";
    rsPart += " targ " + rTarget.msSignal + " val=" + rTarget.msOther;
    AppendCrossing(rTarget, rsPart);
    return nullptr;
}

const char* AppendStatistics(const TFields& rFields, int nKind, CString& rsPart)
{
    if (rFields.msOutputSignal.IsEmpty())
        return "__$$Translatable$$_Missing output signal.";
    rsPart += At(kStatisticsKinds, nKind).pKeyword + rFields.msOutputSignal;
    AppendRange(rFields, rsPart);
    if (nKind == kMaximum || nKind == kMinimum)
        gAppendIfAny(rsPart, " output=", rFields.msReportedSignal);
    return nullptr;
}

const char* AppendFoundAtX(const TFields& rFields, CString& rsPart)
{
    if (rFields.msFindSignal.IsEmpty())
        return kMissingFirstSignal;
    if (rFields.msWhenX.IsEmpty())
        return kMissingAtValue;
    rsPart += "find " + rFields.msFindSignal + " at=" + rFields.msWhenX;
    return nullptr;
}

/// A signal that equals a value or another signal. `pMissingOther`: the message without it.
const char* AppendFoundWhen(const TFields& rFields, const TEvent& rEvent, const char* pMissingOther,
                            CString& rsPart)
{
    if (rFields.mnFindChoice == kFindValue) {
        if (rFields.msFindSignal.IsEmpty())
            return "__$$Translatable$$_Missing output signal #1"; // Meant: no full stop
        rsPart += "find " + rFields.msFindSignal + " ";
    }
    if (rEvent.msSignal.IsEmpty())
        return kMissingSecondSignal;
    if (rEvent.msOther.IsEmpty())
        return pMissingOther;
    rsPart += "when " + rEvent.msSignal + "=" + rEvent.msOther;
    AppendCrossing(rEvent, rsPart);
    return nullptr;
}

const char* AppendFindWhen(const TFields& rFields, CString& rsPart)
{
    if (rFields.mnWhenRow == kXRow)
        return AppendFoundAtX(rFields, rsPart);
    if (rFields.mnWhenRow == kValueRow)
        return AppendFoundWhen(rFields, rFields.mValueEvent,
                               "__$$Translatable$$_Missing value of output signal.", rsPart);
    return AppendFoundWhen(rFields, rFields.mSignalEvent,
                           "__$$Translatable$$_Missing output signal #3.", rsPart);
}

const char* AppendExpression(TFields& rFields, CString& rsPart)
{
    gTrim(rFields.msExpression);
    if (rFields.msExpression.IsEmpty())
        return "__$$Translatable$$_Missing expression.";
    rsPart += "param='" + rFields.msExpression + "'";
    return nullptr;
}

const char* AppendError(const TFields& rFields, int nKind, CString& rsPart)
{
    if (rFields.msFirstSignal.IsEmpty())
        return kMissingFirstSignal;
    if (rFields.msSecondSignal.IsEmpty())
        return kMissingSecondSignal;
    rsPart +=
        At(kErrorKinds, nKind).pKeyword + rFields.msFirstSignal + " " + rFields.msSecondSignal;
    AppendRange(rFields, rsPart);
    return nullptr;
}

const char* AppendByType(TFields& rFields, int nKind, CString& rsPart)
{
    switch (static_cast<EType>(rFields.mnType)) {
    case kDifference:
        return AppendDifference(rFields, rsPart);
    case kStatistics:
        return AppendStatistics(rFields, nKind, rsPart);
    case kFindWhen:
        return AppendFindWhen(rFields, rsPart);
    case kExpressionEvaluation:
        return AppendExpression(rFields, rsPart);
    case kErrorFunction:
        return AppendError(rFields, nKind, rsPart);
    }
    return nullptr;
}
} // namespace

const char* AppendMeasurement(TFields& rFields, int nKind, CString& rsCommand)
{
    CString sPart;
    const char* const pMissing = AppendByType(rFields, nKind, sPart);
    if (!pMissing)
        rsCommand += " " + sPart;
    return pMissing;
}

void AppendOptions(const TFields& rFields, CString& rsCommand)
{
    gAppendIfAny(rsCommand, " goal=", rFields.msGoal);
    gAppendIfAny(rsCommand, " minval=", rFields.msMinimumValue);
    gAppendIfAny(rsCommand, " weight=", rFields.msWeight);
    if (rFields.mnSuppress != 0)
        rsCommand += " off";
}
} // namespace Measure
