#include "quorvahost/tour/WizardUser.h"

#include <QKeySequence>
#include <QTreeWidget>
#include <QWidget>

namespace quorvawiz::host
{

QWidget& CWizardUser::Control(const QWidget& rWindow, const char* pKey)
{
    for (auto* const pControl : rWindow.findChildren<QWidget*>(QString::fromLatin1(pKey)))
        if (pControl->isVisible() && pControl->focusPolicy() != Qt::NoFocus)
            return *pControl;
    throw CUserError(std::string("no control ") + pKey);
}

void CWizardUser::OpenPage(const QWidget& rWizard, const QString& rsCategory, const QString& rsPage)
{
    TabTo(Control(rWizard, "tree"));
    Press(QKeySequence(Qt::Key_Home));
    WalkDownTo(rWizard, rsCategory);
    Press(QKeySequence(Qt::Key_Plus));
    WalkDownTo(rWizard, rsPage);
}

void CWizardUser::Fill(const QWidget& rWindow, const char* pKey, const QString& rsText)
{
    Click(Control(rWindow, pKey));
    Press(QKeySequence::SelectAll);
    Press(QKeySequence(Qt::Key_Delete));
    Type(rsText);
}

void CWizardUser::InsertTemperature(const QWidget& rWizard, const QString& rsTemperatures)
{
    OpenPage(rWizard, QStringLiteral("Settings"), QStringLiteral("Temperature"));
    Fill(rWizard, "temperature-list", rsTemperatures);
    Press(QKeySequence(Qt::ALT | Qt::Key_I));
}

void CWizardUser::TabTo(const QWidget& rControl)
{
    constexpr int kMostControls = 100;
    for (int i = 0; i < kMostControls; ++i) {
        if (rControl.hasFocus())
            return;
        Press(QKeySequence(Qt::Key_Tab));
    }
    throw CUserError("Tab doesn't lead to " + rControl.objectName().toStdString());
}

void CWizardUser::WalkDownTo(const QWidget& rWizard, const QString& rsNode)
{
    const auto& rTree = dynamic_cast<const QTreeWidget&>(Control(rWizard, "tree"));
    constexpr int kMostRows = 100;
    for (int i = 0; i < kMostRows; ++i) {
        if (rTree.currentItem() && rTree.currentItem()->text(0) == rsNode)
            return;
        Press(QKeySequence(Qt::Key_Down));
    }
    throw CUserError("no node " + rsNode.toStdString());
}

} // namespace quorvawiz::host
