#pragma once

#include "quorvahost/tour/User.h"

#include <QString>

class QWidget;

namespace quorvawiz::host
{

/// A user who knows the wizard: its tree, its pages and its sweep dialog, by the keys of their
/// controls.
class CWizardUser : public CUser
{
public:
    /// The control of a key that is on the screen, and not its label, which has the same key.
    /// @throws CUserError if there is none
    static QWidget& Control(const QWidget& rWindow, const char* pKey);

    /// Goes to a page through the tree, by keys alone: with Tab into the tree, with arrows in it.
    /// @throws CUserError if the tree has no such page, or Tab doesn't lead to it
    void OpenPage(const QWidget& rWizard, const QString& rsCategory, const QString& rsPage);

    /// Clicks into a field and types, in the place of what is there.
    void Fill(const QWidget& rWindow, const char* pKey, const QString& rsText);

    /// Goes to Settings/Temperature, fills it in and inserts.
    void InsertTemperature(const QWidget& rWizard, const QString& rsTemperatures);

private:
    void TabTo(const QWidget& rControl);
    void WalkDownTo(const QWidget& rWizard, const QString& rsNode);
};

} // namespace quorvawiz::host
