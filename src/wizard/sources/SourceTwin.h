#pragma once

/// What tells a current source from a voltage source, whatever its waveform.
struct TSourceTwin {
    char chLetter; ///< of the source's line
    const char* pNameLabel;
    const char* pMissingName;
    const char* pMissingPeak;   ///< of a waveform between two levels
    const char* pQuantity;      ///< title of the group of levels
    const char* pQuantityGroup; ///< its key
    const char* pUnit;
};

inline constexpr TSourceTwin kCurrentSource{
    .chLetter = 'I',
    .pNameLabel = "&Current source name:",
    .pMissingName = "__$$Translatable$$_Missing current source name.",
    .pMissingPeak = "__$$Translatable$$_Missing peak current.",
    .pQuantity = "Current",
    .pQuantityGroup = "current-group",
    .pUnit = "A",
};
inline constexpr TSourceTwin kVoltageSource{
    .chLetter = 'V',
    .pNameLabel = "&Voltage source name:",
    .pMissingName = "__$$Translatable$$_Missing voltage source name.",
    .pMissingPeak = "__$$Translatable$$_Missing peak voltage.",
    .pQuantity = "Voltage",
    .pQuantityGroup = "voltage-group",
    .pUnit = "V",
};
