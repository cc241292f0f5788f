#pragma once

#include "exports/Quorvawiz.h"
#include "platform/base/StringA.h"

#include <QString>

namespace quorvawiz::host
{

/// A command as the wizard hands it over, as text: its lines joined by LF, no line end at its
/// close.
QString gCommandText(const CString& rsCommand);

/// Takes the wizard's commands as texts. An empty command is none: nothing is taken.
class CTextTarget : public QuorvaCommandWizardTarget
{
public:
    void InsertCommand(CString sCommand) final;

protected:
    /// Takes a command, as `gCommandText`; never an empty one.
    virtual void Take(const QString& rsText) = 0;
};

} // namespace quorvawiz::host
