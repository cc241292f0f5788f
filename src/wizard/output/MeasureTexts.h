#pragma once

// The lists of the page of measurements, each entry with what it puts into the command.

namespace Measure
{
struct TEntry {
    const char* pEntry;
    const char* pKeyword;
};

inline constexpr TEntry kAnalyses[] = {{"DC", "dc"}, {"AC", "ac"}, {"Transient", "tran"}};

inline constexpr TEntry kCrossingKinds[] = {
    {"crossing", " cross="}, {"rise", " rise="}, {"fall", " fall="}};

/// Which crossing of its kind: the entry itself goes into the command.
inline constexpr const char* kCrossingNumbers[] = {"1", "2", "3", "4",  "5",   "6",
                                                   "7", "8", "9", "10", "last"};

// The list of kinds is filled in when a type is chosen, and translated then.
inline constexpr TEntry kStatisticsKinds[] = {
    {"__$$Translatable$$_x at maximum", "amax "}, {"__$$Translatable$$_x at minimum", "amin "},
    {"__$$Translatable$$_Average", "avg "},       {"__$$Translatable$$_Integral", "integral "},
    {"__$$Translatable$$_Maximum", "max "},       {"__$$Translatable$$_Minimum", "min "},
    {"__$$Translatable$$_Peak-to-peak", "pp "},   {"__$$Translatable$$_RMS", "rms "}};

inline constexpr TEntry kErrorKinds[] = {{"__$$Translatable$$_err", "err "},
                                         {"__$$Translatable$$_err1", "err1 "},
                                         {"__$$Translatable$$_err2", "err2 "},
                                         {"__$$Translatable$$_err3", "err3 "}};
} // namespace Measure
