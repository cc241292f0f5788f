#pragma once

#include "quorvahost/FindText.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace quorvawiz::host
{

class CNetlistEdit;

/// The bar below the editor that finds text in it.
class CFindBar : public QWidget
{
    Q_OBJECT

public:
    /// It becomes the parent's child, hidden; the editor outlives it.
    CFindBar(CNetlistEdit& rEdit, QWidget* pParent);

    /// Shows the bar, with what is selected in the editor to look for, if that is part of a line.
    void Open();

    /// Hides the bar; the editor gets the keyboard.
    void Close();

    /// Selects the next place in the editor, or the one before. Without a text to look for, opens.
    void FindAgain(EDirection direction);

protected:
    void keyPressEvent(QKeyEvent* pEvent) override;

private:
    void FindAsTyped();
    void Show(const TFound& rFound);

    CNetlistEdit& mrEdit;
    QLineEdit* mpText;
    QCheckBox* mpMatchCase;
    QLabel* mpResult;
};

} // namespace quorvawiz::host
