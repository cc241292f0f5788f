#pragma once

#include "cli/PageList.h"
#include "platform/headless/HeadlessDesktop.h"

namespace quorvawiz::cli
{

/// Runs the wizard, or for a page without a node a dialog of its own, with one page on display.
/// Then `act` makes the user's actions, as the desktop asks for them. Exceptions of the wizard and
/// of `act` pass through.
/// @param rDesktop the current desktop; `act` becomes its next action
/// @param rWizard holds the page
/// @param rPage a page that is built
/// @param rTarget receives the commands
/// @param act makes one action; false ends the run
void gRunOnPage(HeadlessDesktop& rDesktop, const TWizard& rWizard, const TPage& rPage,
                QuorvaCommandWizardTarget& rTarget, HeadlessDesktop::TNextAction act);

/// Selects a page's node in the wizard's tree, as a user does. `rWizardDialog`: the wizard's own
/// dialog. Nothing happens for a page without a node.
void gSelectPage(CDialog& rWizardDialog, const TPage& rPage);

} // namespace quorvawiz::cli
