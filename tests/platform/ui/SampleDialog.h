#pragma once

#include "platform/ui/LogDialog.h"
#include "platform/ui/TemplateRows.h"

#include <string>
#include <vector>

/// The controls of the sample dialog.
enum ESampleId {
    kName = 100,
    kNotes,
    kMemo,
    kFixed,
    kAgain,
    kLow,
    kMiddle,
    kHigh,
    kShape,
    kColour,
    kFruit,
    kPlaces,
    kCells,
    kViews,
    kPress,
    kFrameAround,
    kRemark,
};

/// A template with a control of every kind.
extern const DialogTemplate kSampleTemplate;

/// A dialog with a control of every kind. Tree, table and tabs are filled at its start: the tree
/// with A (A1, A2 (A21)), B and C (C1); the table with two columns and rows x, y, z; the tabs with
/// One, Two, Three.
class CSampleDialog : public CLogDialog
{
public:
    CSampleDialog() : CLogDialog(kSampleTemplate) {}
    bool OnInitDialog() override;
};

/// A row of a table of stories: what is done to a fresh sample dialog, and what it writes down.
struct TStory {
    const char* pName;
    std::vector<std::string> actions; ///< as `gAct`
    TLog expected;                    ///< notifications, and "! reason" for an action not done
};

/// Lets the user act in the dialog. Result: what it wrote down, with "! reason" for an action that
/// wasn't done.
TLog gTellStory(CLogDialog& rDialog, const std::vector<std::string>& rActions);

/// Plays a story in a fresh sample dialog and compares. `rPrepare` changes the dialog beforehand.
void gCheckStory(
    const TStory& rStory,
    const std::function<void(CSampleDialog&)>& rPrepare = [](CSampleDialog&) {});
