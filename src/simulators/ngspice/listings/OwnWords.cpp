#include "simulators/ngspice/listings/OwnWords.h"

#include "simulators/ngspice/listings/Lines.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <unordered_set>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

constexpr std::size_t kMostLines = 12;
constexpr std::size_t kMostBytes = 200; // of a line

bool IsControl(char c) noexcept
{
    return (c >= 0 && c < ' ') || c == 0x7F;
}

bool Holds(std::string_view sLine, std::string_view sWord)
{
    return gHoldsNoCase(sLine, sWord);
}

bool TellsOfError(std::string_view sLine)
{
    constexpr auto words = std::to_array<std::string_view>(
        {"error", "fatal", "fail", "could not", "cannot", "can't find", "undefined", "abort",
         "singular", "assertion", "netlist line no"});
    return std::ranges::any_of(words,
                               [sLine](std::string_view sWord) { return Holds(sLine, sWord); });
}

/// The steps in which the simulator looks for an operating point say nothing about its failure.
bool TellsOfStep(std::string_view sLine)
{
    constexpr auto beginnings = std::to_array<std::string_view>(
        {"Note:", "Trying gmin", "Warning: Further gmin increment", "Supplies reduced to"});
    return std::ranges::any_of(
        beginnings, [sLine](std::string_view sBeginning) { return sLine.starts_with(sBeginning); });
}

/// Lines but those of steps, each of them once.
std::vector<std::string_view> LinesOf(std::string_view sText)
{
    std::vector<std::string_view> lines;
    std::unordered_set<std::string_view> known;
    while (!sText.empty()) {
        const std::string_view sLine = gTrimmed(gNextLine(sText));
        if (!sLine.empty() && !TellsOfStep(sLine) && known.insert(sLine).second) {
            lines.push_back(sLine);
        }
    }
    return lines;
}

/// The lines that tell of an error, and the lines behind them.
std::vector<std::string_view> ErrorsIn(const std::vector<std::string_view>& rLines)
{
    std::vector<std::string_view> chosen;
    bool bBehind = false;
    for (const std::string_view sLine : rLines) {
        const bool bError = TellsOfError(sLine);
        if (bError || bBehind) {
            chosen.push_back(sLine);
        }
        bBehind = bError;
    }
    return chosen;
}

/// The first lines have the cause, and the last ones what came of it.
void LeaveOutTheMiddle(std::vector<std::string_view>& rLines)
{
    constexpr auto half = static_cast<std::ptrdiff_t>(kMostLines / 2);
    if (rLines.size() > kMostLines) {
        rLines.erase(rLines.begin() + half, rLines.end() - half);
    }
}

} // namespace

std::string gOwnWords(std::string_view sError, std::string_view sOut)
{
    std::vector<std::string_view> lines = LinesOf(sError);
    std::vector<std::string_view> chosen = ErrorsIn(lines);
    if (chosen.empty()) {
        chosen = ErrorsIn(LinesOf(sOut));
    }
    if (chosen.empty()) {
        if (lines.empty()) {
            lines = LinesOf(sOut);
        }
        const std::size_t nLast = std::min<std::size_t>(lines.size(), kMostLines);
        chosen.assign(lines.end() - static_cast<std::ptrdiff_t>(nLast), lines.end());
    }
    LeaveOutTheMiddle(chosen);
    std::string sWords;
    for (const std::string_view sLine : chosen) {
        sWords.append("\n  ").append(sLine.substr(0, kMostBytes));
    }
    // What the simulator repeats of a netlist is no command to a terminal.
    std::ranges::replace_if(
        sWords, [](char c) { return c != '\n' && IsControl(c); }, '?');
    return sWords;
}

} // namespace quorvawiz::ngspice
