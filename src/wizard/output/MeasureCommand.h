#pragma once

#include "wizard/output/MeasureFields.h"

// The command of a measurement, made of its fields.

namespace Measure
{
/// Appends what is measured, by the type of the measurement.
/// `rFields`: an expression is trimmed. `nKind`: the kind among those of signal statistics or of
/// error functions. `rsCommand`: after a failure as it was before.
/// Result: null, or the message of the first missing field, as `gShownText` takes it.
const char* AppendMeasurement(TFields& rFields, int nKind, CString& rsCommand);

/// Appends the goal, the minimum value and the weight of an optimization, as far as they are given,
/// and whether the result isn't printed.
void AppendOptions(const TFields& rFields, CString& rsCommand);
} // namespace Measure
