#pragma once

#include "platform/base/StringA.h"

namespace quorvawiz
{

/// Receives the commands that the user inserts. The host implements it and owns it.
class QuorvaCommandWizardTarget
{
public:
    /// Takes one command: ASCII text, lines inside it joined by CR LF, no line end at its close.
    /// Called once per accepted press of "&Insert Command", on the GUI thread, while the wizard's
    /// modal loop runs. It stands first among the virtual operations, before the destructor.
    virtual void InsertCommand(CString sCommand) = 0;

    virtual ~QuorvaCommandWizardTarget() = default;
};

} // namespace quorvawiz
