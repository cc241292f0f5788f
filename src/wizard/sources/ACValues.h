#pragma once

#include "platform/base/StringA.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/sources/SourceTwin.h"

class CDataExchange;

// The part of a source in an AC analysis: its fields and groups, and the end of the line.

/// The ids of these fields.
enum EACValuesId { kACGroup = 1106, kACMagnitude, kACPhase };

/// Magnitude in the source's unit, phase in degrees.
struct TACValues {
    CString msMagnitude;
    CString msPhase;
};

/// Moves the texts of these fields.
void DDX_ACValues(CDataExchange* pDX, TACValues& rAC);

/// Appends " AC " and the values that there are, a blank behind the magnitude. Nothing without one.
void gAppendACWithBlankBehind(CString& rsLine, const TACValues& rAC);
/// Appends " AC" and the values that there are, a blank before each. Nothing without one.
void gAppendACWithBlankBefore(CString& rsLine, const TACValues& rAC);

inline constexpr const char* kACMagnitudeLabel = "&Magnitude (0):";
inline constexpr const char* kACPhaseLabel = "P&hase (0):";
inline constexpr const char* kACPhaseUnit = "deg";

/// The group of these blocks.
template <class... TBlocks> constexpr auto ACBox(const TBlocks&... rBlocks)
{
    return GroupBox(kACGroup, "ac-values-group", "AC values", rBlocks...);
}

/// The field of the magnitude.
constexpr auto ACMagnitudeLine(const TColumns& rColumns, const TSourceTwin& rTwin,
                               const char* pLabel = kACMagnitudeLabel)
{
    return EditLine(rColumns, kACMagnitude, "ac-magnitude", pLabel, rTwin.pUnit);
}

/// The field of the phase.
constexpr auto ACPhaseLine(const TColumns& rColumns)
{
    return EditLine(rColumns, kACPhase, "ac-phase", kACPhaseLabel, kACPhaseUnit);
}

/// The group, one line to each value.
constexpr auto ACLines(const TColumns& rColumns, const TSourceTwin& rTwin)
{
    return ACBox(ACMagnitudeLine(rColumns, rTwin), ACPhaseLine(rColumns));
}

/// The group, both values on one line.
constexpr auto ACLine(const TSourceTwin& rTwin)
{
    constexpr TColumns kMagnitude{.nField = 72, .nUnit = 116};
    constexpr TColumns kPhase{.nField = 164, .nUnit = 212};
    return ACBox(Beside(128, ACMagnitudeLine(kMagnitude, rTwin), ACPhaseLine(kPhase)));
}

/// The narrow group of a page that names no defaults for the values.
constexpr auto ACColumn(const TSourceTwin& rTwin)
{
    constexpr int kUnit = 212;
    return ACBox(WideEdit(kACMagnitude, "ac-magnitude", "&Magnitude:", rTwin.pUnit, kUnit),
                 WideEdit(kACPhase, "ac-phase", "P&hase:", kACPhaseUnit, kUnit));
}
