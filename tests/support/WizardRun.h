#pragma once

#include "platform/headless/HeadlessDesktop.h"
#include "platform/headless/Step.h"
#include "wizard/frame/CommandWizardTarget.h"
#include "wizard/frame/TreeDlg.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// A host's target that keeps what it gets.
class CRecordingTarget : public quorvawiz::QuorvaCommandWizardTarget
{
public:
    void InsertCommand(CString sCommand) override { mCommands.emplace_back(sCommand.GetString()); }

    std::vector<std::string> mCommands;
};

/// Lets the user act on a modal dialog: each call of the desktop takes the next action.
/// Actions run with the innermost dialog; a step that isn't done fails the test.
class CScript
{
public:
    using TAction = std::function<void(CDialog& rInnermost)>;

    CScript& Do(std::vector<TStep> steps);
    /// A step that must end in this way and change nothing.
    CScript& Refused(TStep step, EStepEnd end, EUserResult refusal = EUserResult::Done);
    /// Fills in fields, written as for the command line: `key=value` (an entry or a radio button
    /// by its text or as `#index`, a check box `on` or `off`, LF between lines), `button` to press
    /// it, `button.key=value` in the dialog that it opens and that is accepted at the end.
    CScript& Fill(std::vector<std::string> arguments);
    /// Says what the user answers to the questions from here on: true for yes.
    CScript& Answer(std::vector<bool> answers);
    /// Anything else: a look at the dialog, or a call of it.
    CScript& Then(TAction action);
    /// Several looks, one after the other.
    CScript& Look(std::vector<TAction> looks);

    /// Runs the actions while `run` runs modal dialogs on a headless desktop. Fails the test when
    /// actions are left over.
    void Run(HeadlessDesktop& rDesktop, const std::function<void()>& rRun);

private:
    std::vector<TAction> mActions;
};

/// What came of a run of the wizard.
struct TWizardOutcome {
    std::vector<std::string> inserted; ///< what the target got
    std::vector<std::string> messages; ///< texts of all boxes
};

/// Runs the wizard from the tree's start to its end with these actions.
TWizardOutcome gRunWizard(CScript script);
TWizardOutcome gRunWizard(std::vector<TStep> steps);

/// Runs the page of this class, which no node of the wizard's tree leads to, in a dialog of its
/// own.
TWizardOutcome gRunSinglePage(std::string_view sClass, CScript script);

/// Opens a page, fills it in as `CScript::Fill` does, and inserts.
/// `rsPage`: its path in the tree, in English in every language, or its class if it has no node.
TWizardOutcome gCompose(const std::string& rsPage, std::vector<std::string> arguments);

/// The wizard among the open dialogs: the outermost one.
CTreeDlg& gOpenWizard();
