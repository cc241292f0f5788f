#pragma once

#include "platform/base/StringA.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/sources/ACValues.h"
#include "wizard/sources/SourceHead.h"
#include "wizard/sources/SourceTwin.h"

// What the pages of all waveforms share, for a current and for a voltage.

/// The ids of what the pages share, far from those of their own fields.
enum EWaveformSourceId { kWholeGroup = 1101, kNameGroup, kDCGroup, kDCValue, kDCNote };

inline constexpr const char* kMissingPeakAmplitude = "__$$Translatable$$_Missing peak amplitude.";

/// The beginning of the line of a source whose DC value is optional: name, terminals, and the DC
/// value where there is one.
CString gHeadWithDC(const TSourceHead& rHead, const CString& rsDC);

/// The group of the optional DC value. `nNoteLines`: the lines that its note needs there.
constexpr auto DCBox(int nNoteLines)
{
    return GroupBox(
        kDCGroup, "dc-value-group", "&DC value",
        Tight(BareEdit(kDCValue, "dc-value"),
              NoteLine(kDCNote, "note", "(default is the time=0 value of the transient waveform)",
                       nNoteLines)));
}

/// Where the group of the DC value begins on a page with a group box around it all, and without.
inline constexpr int kDCInFrame = 167;
inline constexpr int kDCWithoutFrame = 174;

/// The group of the head fields, and beside it, from `nDC` on, the one of the DC value.
constexpr auto NameBesideDC(int nDC, const TSourceTwin& rTwin, int nNoteLines = 4)
{
    constexpr TColumns kHead{.nField = 107};
    return Beside(
        nDC, GroupBox(kNameGroup, "name-group", "Name", SourceHeadLines(kHead, rTwin.pNameLabel)),
        DCBox(nNoteLines));
}

/// The ids of a group of two levels.
struct TLevelIds {
    int nGroup;
    int nInitial;
    int nPeak;
};

/// The group of two levels, the fields "initial" and "peak", and beside it the AC values.
/// `pInitialLabel`: the label of the first.
constexpr auto LevelsBesideAC(const TSourceTwin& rTwin, const TLevelIds& rIds,
                              const char* pInitialLabel)
{
    constexpr TColumns kLevels{.nField = 57, .nUnit = 95};
    constexpr TColumns kAC{.nField = 172, .nUnit = 212};
    return Beside(114,
                  GroupBox(rIds.nGroup, rTwin.pQuantityGroup, rTwin.pQuantity,
                           EditLine(kLevels, rIds.nInitial, "initial", pInitialLabel, rTwin.pUnit),
                           EditLine(kLevels, rIds.nPeak, "peak", "P&eak:", rTwin.pUnit)),
                  ACLines(kAC, rTwin));
}
