#pragma once

#include "platform/base/StringA.h"
#include "wizard/frame/PageLayout.h"

class CDataExchange;

/// A pattern of bits as the pages of digital sources hold it. Times are in seconds; nothing is
/// looked into.
struct TBitPattern {
    CString msRounding; ///< smooths the corners
    CString msBitStream;
    CString msOnValue;
    CString msOffValue;
    CString msPulseWidth;
    CString msLowTime;
    CString msHighTime;
    CString msDelay;
    CString msRiseTime;
    CString msFallTime;
};

/// Moves the fields between a page and `rPattern`; the controls are those of the blocks below.
void DDX_BitPattern(CDataExchange* pDX, TBitPattern& rPattern);

/// Appends the waveform: `pKeyword` with its blanks, the stream in braces, and the parameters that
/// have a text, in parentheses. The rounding, which stands last in a line, isn't among them.
void gAppendBitPattern(CString& rsLine, const char* pKeyword, const TBitPattern& rPattern);

inline constexpr const char* kMissingBitStream = "__$$Translatable$$_Missing bit stream.";

/// The controls of a pattern: three group boxes in two columns.
namespace BitPattern
{
enum EControlId {
    kRounding = 1201,
    kBitStream,
    kOnValue,
    kOffValue,
    kPulseWidth,
    kLowTime,
    kHighTime,
    kDelay,
    kRiseTime,
    kFallTime,
    kCornerGroup,
    kWaveformGroup,
    kPulseGroup,
};

/// What differs between the pages.
struct TTexts {
    const char* pWaveform; ///< title of the group box
    const char* pOnValue;
    const char* pHighTime;
    const char* pDelay;
};

/// Where the right one of the two columns begins.
inline constexpr int kRightColumn = 122;

/// The box for the left column that smooths the corners.
constexpr auto CornerBox()
{
    constexpr TColumns kColumns{.nField = 62, .nUnit = 96};
    return GroupBox(kCornerGroup, "corner-smoothing-group", "Corner smoothing",
                    EditLine(kColumns, kRounding, "rounding", "&Rounding (0):", "sec"));
}

/// The box for the left column with the stream and its values, in this unit.
constexpr auto WaveformBox(const TTexts& rTexts, const char* pUnit)
{
    constexpr TColumns kColumns{.nField = 72, .nUnit = 103};
    return GroupBox(kWaveformGroup, "waveform-group", rTexts.pWaveform,
                    Tight(WideEdit(kBitStream, "bit-stream", "&Bit stream:"),
                          EditLine(kColumns, kOnValue, "on-value", rTexts.pOnValue, pUnit),
                          EditLine(kColumns, kOffValue, "off-value", "O&FF value (0):", pUnit)));
}

/// The box for the right column with the times.
constexpr auto PulseBox(const TTexts& rTexts)
{
    constexpr TColumns kColumns{.nField = 192, .nUnit = 223};
    return GroupBox(
        kPulseGroup, "pulse-group", "Pulse",
        Tight(EditLine(kColumns, kPulseWidth, "pulse-width", "P&ulse width (10n):", "sec"),
              EditLine(kColumns, kLowTime, "low-time", "&Low time (10n):", "sec"),
              EditLine(kColumns, kHighTime, "high-time", rTexts.pHighTime, "sec"),
              EditLine(kColumns, kDelay, "delay", rTexts.pDelay, "sec"),
              EditLine(kColumns, kRiseTime, "rise-time", "Ri&se time (1n):", "sec"),
              EditLine(kColumns, kFallTime, "fall-time", "F&all time (1n):", "sec")));
}
} // namespace BitPattern
