#pragma once

#include "platform/base/StringA.h"

#include <concepts>
#include <initializer_list>

class CWnd;

/// Takes the white space away at the left end of each field.
template <std::same_as<CString>... TFields> void gTrimLeft(TFields&... rsFields)
{
    (rsFields.TrimLeft(), ...);
}

/// Takes the white space away at both ends of each field.
template <std::same_as<CString>... TFields> void gTrim(TFields&... rsFields)
{
    gTrimLeft(rsFields...);
    (rsFields.TrimRight(), ...);
}

/// Appends `pBefore` and the field, unless the field is empty.
void gAppendIfAny(CString& rsCommand, const char* pBefore, const CString& rsField);

/// True when the name begins with this letter, small or capital. `chCapital`: A to Z.
bool gBeginsWithLetter(const CString& rsName, char chCapital);

/// The text of a multi-line field as it stands in a one-line command: each CR LF inside becomes a
/// blank, and one at the end vanishes. Blanks at the ends stay, unless the page has trimmed them.
CString gJoinLines(const CString& rsText);

/// A text from a page's table as the user sees it: translated if it carries the translation marker,
/// else in English in every language.
CString gShownText(const char* pLiteral);

/// Reports a failed check: a box owned by the page with the caption "SPICE".
/// Result: false, so that a check can return it.
// By value: the page's message string may change while the box is open.
bool gReportMessage(CWnd& rOwner, CString sMessage); // NOLINT(performance-unnecessary-value-param)

/// The same with a literal as `gShownText` takes it. `rsMessage`: the page's message string, which
/// holds the last message that the page has shown, takes the text first. Result: false.
bool gReportFailure(CWnd& rPage, CString& rsMessage, const char* pLiteral);

/// The same for a page without a message string.
bool gReportFailure(CWnd& rPage, const char* pLiteral);

/// A field that must have a text, and the literal of its message, as `gShownText` takes it.
struct TRequiredField {
    const CString& rsField;
    const char* pMissing;
};

/// Reports the first of these fields that is empty, as `gReportFailure` does.
/// Result: whether all have a text.
bool gAreFilled(CWnd& rPage, CString& rsMessage, std::initializer_list<TRequiredField> required);
