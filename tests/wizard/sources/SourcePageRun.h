#pragma once

#include "support/PageTest.h"
#include "support/WizardRun.h"

#include <string>
#include <string_view>
#include <vector>

// The tables of the tests of the source pages, and what runs them. Texts that pass the translation
// stand in brackets.

using TFieldValues = std::vector<std::string>; ///< `key=value`

/// Fields that a page is filled in with, and what comes of it.
struct TSourceCase {
    const char* pName;
    TFieldValues fields;
    std::string sLine;         ///< what is inserted; empty when nothing is
    std::string sMessage = {}; ///< what the page says when it refuses
};

/// Runs the cases on the page of this path, each in a fresh process. `rCommon`: fields that are
/// filled in before those of a case, which may change them.
void gExpectLines(const std::string& rsPage, const TFieldValues& rCommon,
                  const std::vector<TSourceCase>& rCases);

/// Runs the cases on the page of this kind of current source and of voltage source. A line stands
/// here without the source's letter in front of it, "@" in a message for "current" or "voltage".
void gExpectLinesOfBoth(const std::string& rsKind, const TFieldValues& rCommon,
                        const std::vector<TSourceCase>& rCases);

/// Each of the two pages of this kind puts its letter in front of the line, unless the name begins
/// with it, small or capital. `rsRest`: the line behind the name.
void gExpectOneLetter(const std::string& rsKind, const TFieldValues& rCommon,
                      const std::string& rsRest);

/// On each of the two pages of this kind a first run builds with `rInserted` and then fails with
/// `rRefused`; the next run must show `rShown`, and none of it on the other page.
void gExpectRemembered(const std::string& rsKind, const TFieldValues& rInserted,
                       const TFieldValues& rRefused, const TFieldValues& rShown);

/// After another page has inserted its line, the page refuses these fields and leaves this text in
/// the run's command string.
void gExpectLeft(const std::string& rsPage, const TFieldValues& rFields, const std::string& rsLeft);

/// The same, and the line of the other page stays.
void gExpectKept(const std::string& rsPage, const TFieldValues& rFields);

/// The two for both pages of this kind. `rsLeft`: without the source's letter in front.
void gExpectLeftByBoth(const std::string& rsKind, const TFieldValues& rFields,
                       const std::string& rsLeft);
void gExpectKeptByBoth(const std::string& rsKind, const TFieldValues& rFields);

/// What the template of this class shows, a line for each, behind an empty one: in its order, two
/// blanks further right for each group box around it, a group's title or a note in quotes, a field
/// as `key: label [unit]`, one of several lines with ` (lines)` behind it, a check box as
/// `key: label`, a button of a radio group as `key, first: label`, the following with `next`.
std::string gShownBy(std::string_view sClass);
