#pragma once

/// Tells whether the program runs on the Unix side, where paths have one root, "/" separates and
/// letters of different case are different.
/// @return false until gSetIsWine says otherwise: plain path rules
[[nodiscard]] bool gIsWine() noexcept;

/// Selects the path rules for the whole process. The applications call it once when they start on
/// POSIX; the library itself never does.
/// @param bIsWine true for the rules of the Unix side, false for the plain ones
void gSetIsWine(bool bIsWine) noexcept;
