#pragma once

#include "support/WizardRun.h"

#include <functional>
#include <string>
#include <vector>

// What a page with a list of entries and the buttons Add, Delete and Clear does with it, told once
// for all such pages.

struct TListPage {
    std::function<CScript()> withTwoEntries; ///< opens the page and adds the older, then the newer
    std::string sOlder;
    std::string sNewer;
    std::string sAlreadyThere;
    std::string sDeleteQuestion;
    std::string sClearQuestion;
    std::string sNeeded; ///< a field that Add needs a text in
};

/// What a script leaves of the list.
struct TListCase {
    std::string sName;
    CScript script;
    std::vector<std::string> entries; ///< the newest first
    int nSelected;
    bool bButtons; ///< Delete and Clear are enabled
    std::vector<std::string> messages;
};

/// The stories that every such page has.
std::vector<TListCase> gListStories(const TListPage& rPage);

/// Expects that Delete and Clear leave the button Add as it is, enabled or not.
void gExpectAddIsLeftAlone(const TListPage& rPage);

/// Runs the scripts and expects what they leave.
void gExpectLists(const std::vector<TListCase>& rCases);
