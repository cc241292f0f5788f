#pragma once

#include "quorvahost/tour/User.h"

#include <QKeySequence>
#include <QWidget>

namespace quorvawiz::host
{

/// A user who knows the wizard.
class CWizardUser : public CUser
{
public:
    /// The control of a key that is on the screen.
    /// @throws CUserError if there is none
    static QWidget& Control(const QWidget& rWindow, const char* pKey)
    {
        for (auto* const pControl : rWindow.findChildren<QWidget*>(QString::fromLatin1(pKey)))
            if (pControl->isVisible() && pControl->focusPolicy() != Qt::NoFocus)
                return *pControl;
        throw CUserError(std::string("no control ") + pKey);
    }

    /// Goes to Settings/Temperature by keys.
    void OpenTemperature(QWidget& rWizard)
    {
        Click(Control(rWizard, "tree"));
        Press(QKeySequence(Qt::Key_Home));
        constexpr int kMostRows = 100;
        // Right opens a category, or steps into an open one.
        for (int i = 0; i < kMostRows && !IsThere(rWizard, "temperature-list"); ++i)
            Press(QKeySequence(i % 2 == 0 ? Qt::Key_Right : Qt::Key_Down));
    }

    /// Goes there, fills the field in, in the place of what an earlier run left there, and inserts.
    void InsertTemperature(QWidget& rWizard, const char* pTemperatures)
    {
        OpenTemperature(rWizard);
        Click(Control(rWizard, "temperature-list"));
        Press(QKeySequence::SelectAll);
        Press(QKeySequence(Qt::Key_Delete));
        Type(QString::fromLatin1(pTemperatures));
        Press(QKeySequence(Qt::ALT | Qt::Key_I));
    }

private:
    static bool IsThere(const QWidget& rWindow, const char* pKey)
    {
        const auto* const pControl = rWindow.findChild<QWidget*>(QString::fromLatin1(pKey));
        return pControl && pControl->isVisible();
    }
};

} // namespace quorvawiz::host
