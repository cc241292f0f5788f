#pragma once

#include "platform/base/StringA.h"
#include "platform/ui/DialogTemplate.h"

#include <array>
#include <span>

// The pages that print results: their controls, and as data all that differs between them.

namespace Plot
{
enum EControlId {
    kResultsGroup = 1001,
    kPlotType,
    kFirstName,
    kSecondName,
    kTerminal,
    kPowerNote,
    kExpression,
    kExpressionNote,
    kFormat,
    kOptionalGroup,
    kItemName,
    kItemUnit,
    kList,
    kAdd,
    kDelete,
    kClear,
};

// What the plot types show in each other's place.
inline constexpr unsigned kFirstLayer = 1;
inline constexpr unsigned kSecondLayer = 2;
inline constexpr unsigned kTerminalLayer = 4;
inline constexpr unsigned kPowerLayer = 8;
inline constexpr unsigned kFormatLayer = 16;
inline constexpr unsigned kExpressionLayer = 32;

/// A field that Add needs.
struct TNeed {
    int nField = 0;                 ///< kFirstName, kSecondName or kExpression; 0: none
    const char* pMissing = nullptr; ///< the message of a single item without it; null: not tested
};

/// What a plot type shows, needs and writes.
struct TPlotType {
    const char* pEntry;
    unsigned nLayers = 0;
    const char* pFirstLabel = "";  ///< as `gShownText` takes it; empty where there is none
    const char* pSecondLabel = ""; ///< of the second name and of the terminal
    std::array<TNeed, 2> needs{};  ///< in the order of the tests
    /// The item behind its name: %1 and %2 are the names, %o the second one behind a comma unless
    /// it is empty, %t the terminal's letter, %f the format text, %x the expression.
    const char* pBody = "";
    std::span<const char* const> formatTexts = {}; ///< by index; empty: the format isn't looked at
    /// What the format list is filled with when the type is chosen, as `gShownText` takes it;
    /// empty: it stays as it is.
    std::span<const char* const> formatEntries = {};
};

enum class ETrim { None, Left, Right, Both };

/// At which ends the optional fields are trimmed.
struct TOptionalTrims {
    ETrim name;
    ETrim unit;
};

/// What differs between the pages.
struct TPlotPage {
    const char* pKeyword;
    std::span<const TPlotType> types;
    bool bFormats;        ///< has a format list
    bool bOpensRefreshed; ///< shows its remembered plot type when it opens, else the first one
    TOptionalTrims add;
    TOptionalTrims build;
};

/// The fields of a page; what it remembers.
struct TPlotFields {
    int mnPlotType = 0;
    CString msFirstName;
    CString msSecondName;
    int mnTerminal = 0;
    CString msExpression;
    int mnFormat = 0;
    CString msItemName;
    CString msItemUnit;
};

// Texts that several pages share.
inline constexpr const char* kNodeLabel = "__$$Translatable$$_&Node name:";
inline constexpr const char* kReferenceLabel = "__$$Translatable$$_&Reference node (GND):";
inline constexpr const char* kDeviceLabel = "__$$Translatable$$_De&vice name:";
inline constexpr const char* kTerminalNumberLabel = "__$$Translatable$$_&Terminal number:";
inline constexpr const char* kTerminalNodeLabel = "__$$Translatable$$_&Terminal node name:";

inline constexpr const char* kMissingNode = "__$$Translatable$$_Missing node name.";
inline constexpr const char* kMissingTerminalNode =
    "__$$Translatable$$_Missing terminal node name.";
inline constexpr const char* kMissingExpression = "__$$Translatable$$_Missing plot expression.";

// Of complex values.
inline constexpr const char* kComplexTexts[] = {"m", "p", "r", "i", "db"};
inline constexpr const char* kComplexEntries[] = {"Magnitude", "Phase", "Real part",
                                                  "Imaginary part", "Decibels"};
} // namespace Plot
