#pragma once

#include "platform/base/StringA.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/sources/SourceHead.h"

class CDataExchange;

// What the pages of all waveforms share, for a current and for a voltage.

/// What tells a current source from a voltage source, whatever its waveform.
struct TSourceTwin {
    char chLetter; ///< of the source's line
    const char* pNameLabel;
    const char* pQuantity;      ///< title of the group of levels
    const char* pQuantityGroup; ///< its key
    const char* pUnit;
};

inline constexpr TSourceTwin kCurrentSource{'I', "&Current source name:", "Current",
                                            "current-group", "A"};
inline constexpr TSourceTwin kVoltageSource{'V', "&Voltage source name:", "Voltage",
                                            "voltage-group", "V"};

/// A source's part in an AC analysis: magnitude in the source's unit, phase in degrees.
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

/// The ids of what the pages share, far from those of their own fields.
enum EWaveformSourceId {
    kWholeGroup = 1101,
    kNameGroup,
    kDCGroup,
    kDCValue,
    kDCNote,
    kACGroup,
    kACMagnitude,
    kACPhase,
};

/// Where the group of the DC value begins on a page with a group box around it all, and without.
inline constexpr int kDCInFrame = 167;
inline constexpr int kDCWithoutFrame = 174;

/// The group of the head fields, and beside it, from `nDC` on, the one of the DC value.
/// `nNoteLines`: the lines that its note needs there.
constexpr auto NameBesideDC(int nDC, const TSourceTwin& rTwin, int nNoteLines = 4)
{
    constexpr TColumns kHead{.nField = 107};
    return Beside(
        nDC, GroupBox(kNameGroup, "name-group", "Name", SourceHeadLines(kHead, {rTwin.pNameLabel})),
        GroupBox(kDCGroup, "dc-value-group", "&DC value",
                 Tight(BareEdit(kDCValue, "dc-value"),
                       NoteLine(kDCNote, "note",
                                "(default is the time=0 value of the transient waveform)",
                                nNoteLines))));
}

/// The group of the AC values, one line to each.
constexpr auto ACLines(const TColumns& rColumns, const TSourceTwin& rTwin)
{
    return GroupBox(
        kACGroup, "ac-values-group", "AC values",
        EditLine(rColumns, kACMagnitude, "ac-magnitude", "&Magnitude (0):", rTwin.pUnit),
        EditLine(rColumns, kACPhase, "ac-phase", "P&hase (0):", "deg"));
}

/// The group of the AC values, both on one line.
constexpr auto ACLine(const TSourceTwin& rTwin)
{
    constexpr TColumns kMagnitude{.nField = 72, .nUnit = 116};
    constexpr TColumns kPhase{.nField = 164, .nUnit = 212};
    return GroupBox(
        kACGroup, "ac-values-group", "AC values",
        Beside(128,
               EditLine(kMagnitude, kACMagnitude, "ac-magnitude", "&Magnitude (0):", rTwin.pUnit),
               EditLine(kPhase, kACPhase, "ac-phase", "P&hase (0):", "deg")));
}

/// The narrow group of the AC values of a page that names no defaults for them.
constexpr auto ACColumn(const TSourceTwin& rTwin)
{
    constexpr int kUnit = 212;
    return GroupBox(kACGroup, "ac-values-group", "AC values",
                    WideEdit(kACMagnitude, "ac-magnitude", "&Magnitude:", rTwin.pUnit, kUnit),
                    WideEdit(kACPhase, "ac-phase", "P&hase:", "deg", kUnit));
}

/// The group of two levels, the fields "initial" and "peak", and beside it the AC values.
/// `pInitialLabel`: the label of the first.
constexpr auto LevelsBesideAC(const TSourceTwin& rTwin, int nInitial, const char* pInitialLabel,
                              int nPeak, int nGroup)
{
    constexpr TColumns kLevels{.nField = 57, .nUnit = 95};
    constexpr TColumns kAC{.nField = 172, .nUnit = 212};
    return Beside(114,
                  GroupBox(nGroup, rTwin.pQuantityGroup, rTwin.pQuantity,
                           EditLine(kLevels, nInitial, "initial", pInitialLabel, rTwin.pUnit),
                           EditLine(kLevels, nPeak, "peak", "P&eak:", rTwin.pUnit)),
                  ACLines(kAC, rTwin));
}
