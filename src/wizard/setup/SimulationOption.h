#pragma once

#include "platform/base/StringA.h"

#include <span>

/// How the user gives an option its value.
enum class EOptionKind {
    Edit,  ///< types it
    OnOff, ///< chooses "Off" or "On"
    List,  ///< chooses one of the option's own entries
};

/// The name of a kind: "edit", "on/off" or "list".
const char* gOptionKindName(EOptionKind kind);

/// A value that can be chosen.
struct TOptionChoice {
    const char* pEntry; ///< as the user sees it, with the translation marker
    const char* pToken; ///< as the command has it
};

/// What the user gives an option its value with.
struct TOptionControl {
    EOptionKind kind = EOptionKind::Edit;
    std::span<const TOptionChoice> choices = {}; ///< none for an edit
    int nDefault = 0; ///< the choice that is selected whenever the option is
};

/// An option of the simulator.
struct TSimulationOption {
    const char* pEntry; ///< its name as the user sees it
    const char* pKey;   ///< its name as the command has it
    TOptionControl control;
    const char* pDefault;     ///< the simulator's own value, as the user is told; null: he isn't
    const char* pUnit;        ///< of a value that is typed; may be empty
    const char* pExplanation; ///< its bytes above 0x7F are Windows-1252
    const char* pAfterDefault = "):"; ///< how the label of the value ends
};

/// The label of the option's value: "&Value (default is 0.5):". Never translated.
CString gOptionValueLabel(const TSimulationOption& rOption);

/// The command that sets an option.
/// `nOption`: an index into `kSimulationOptions`. `nChoice`: the choice that is selected, -1 for
/// none; an edit has none. `rsText`: what is typed, trimmed; may be empty.
/// Result: the command; for an index that isn't one an English text that says so.
CString gOptionCommand(int nOption, int nChoice, const CString& rsText);

/// True for an option whose value is typed, and for an index that is no option's.
bool gOptionTakesText(int nOption);
