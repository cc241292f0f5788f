#pragma once

#include "platform/base/StringA.h"
#include "wizard/frame/PageLayout.h"

class CDataExchange;

// The fields that the page of a source begins with, and what is the same about the lines that they
// begin.

/// The ids of these fields. The page's own begin at `kFirstSourceField`.
enum ESourceHeadId { kSourceName = 1001, kPositiveTerminal, kNegativeTerminal, kFirstSourceField };

/// The source's name and the nodes between which it stands.
struct TSourceHead {
    CString msName;
    CString msPositiveTerminal;
    CString msNegativeTerminal;
};

/// The labels of these fields.
struct TSourceHeadLabels {
    const char* pName;
    const char* pPositiveTerminal = "&Positive terminal:";
    const char* pNegativeTerminal = "&Negative terminal (GND):";
};

/// The fields one below the other; no label needs more than 83 units.
constexpr auto SourceHeadLines(const TColumns& rColumns, const TSourceHeadLabels& rLabels)
{
    return Lines(
        EditLine(rColumns, kSourceName, "name", rLabels.pName),
        EditLine(rColumns, kPositiveTerminal, "positive-terminal", rLabels.pPositiveTerminal),
        EditLine(rColumns, kNegativeTerminal, "negative-terminal", rLabels.pNegativeTerminal));
}

/// Moves the texts of these fields.
void DDX_SourceHead(CDataExchange* pDX, TSourceHead& rHead);

/// Gives an empty field the text that stands for it. Blanks are a text.
void gFillIfEmpty(CString& rsField, const char* pText);

/// The beginning of the source's line: the name and the two terminals, a blank between them.
CString gSourceHeadText(const TSourceHead& rHead);

/// Puts the source's letter in front of the line, unless its name begins with it, small or capital.
/// `chCapital`: A to Z.
void gPrefixSourceLetter(CString& rsLine, const CString& rsName, char chCapital);

// The messages of missing fields that most pages of sources share.
inline constexpr const char* kMissingCurrentSourceName =
    "__$$Translatable$$_Missing current source name.";
inline constexpr const char* kMissingVoltageSourceName =
    "__$$Translatable$$_Missing voltage source name.";
inline constexpr const char* kMissingPositiveTerminal =
    "__$$Translatable$$_Missing positive terminal name.";
