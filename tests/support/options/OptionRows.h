#pragma once

#include <span>
#include <string>
#include <vector>

// The options of the simulator as a user's manual tells them, to compare the program with.

namespace optionRows
{
struct TOption {
    int nIndex;
    const char* pEntry;
    const char* pKey;
    const char* pControl; ///< "edit", "on/off" or "list"
    const char* pChosen;  ///< the entry that is selected with the option; empty for an edit
    const char* pLabel;   ///< the value's
    const char* pUnit;
};

/// All, in order.
std::span<const TOption> gOptions();

struct TList {
    const char* pKey;
    std::vector<std::string> entries;
    std::vector<std::string> tokens;
};

/// The options that have entries of their own.
const std::vector<TList>& gLists();

/// What can be chosen for an option: those of its list, or off and on; nothing for an edit.
TList gChoicesOf(const TOption& rOption);

struct TExplanation {
    const char* pKey;
    const char* pText;
};

/// The explanations of all options, in order.
std::span<const TExplanation> gExplanations();
} // namespace optionRows
