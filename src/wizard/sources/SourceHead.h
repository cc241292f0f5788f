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

/// The fields one below the other; no label needs more than 83 units. `pNameLabel`: the name's.
constexpr auto SourceHeadLines(const TColumns& rColumns, const char* pNameLabel)
{
    return Lines(
        EditLine(rColumns, kSourceName, "name", pNameLabel),
        EditLine(rColumns, kPositiveTerminal, "positive-terminal", "&Positive terminal:"),
        EditLine(rColumns, kNegativeTerminal, "negative-terminal", "&Negative terminal (GND):"));
}

/// Moves the texts of these fields.
void DDX_SourceHead(CDataExchange* pDX, TSourceHead& rHead);

inline constexpr const char* kMissingPositiveTerminal =
    "__$$Translatable$$_Missing positive terminal name.";

/// The node that an empty negative terminal or reference stands for.
inline constexpr const char* kGround = "GND";

/// Gives an empty field the text that stands for it. Blanks are a text.
void gFillIfEmpty(CString& rsField, const char* pText);

/// The beginning of the source's line: the name and the two terminals, a blank between them.
CString gSourceHeadText(const TSourceHead& rHead);

/// Puts the source's letter in front of the line, unless its name begins with it, small or capital.
/// `chCapital`: A to Z.
void gPrefixSourceLetter(CString& rsLine, const CString& rsName, char chCapital);
