#pragma once

#include "quorvahost/NetlistText.h"

#include <QObject>

class QLabel;
class QStatusBar;

namespace quorvawiz::host
{

class CNetlistEdit;

/// Keeps a status bar up to date: line and column of the caret, the form of the file, whether the
/// netlist is too large to be coloured, and the params file.
class CHostStatus : public QObject
{
    Q_OBJECT

public:
    /// It becomes the bar's child; the editor outlives it.
    CHostStatus(CNetlistEdit& rEdit, QStatusBar& rBar);

    /// Shows what the file has besides its characters.
    void ShowForm(TTextForm form);

    /// Shows the name of the params file that is open.
    void ShowParams(const QString& rsName);

private:
    void ShowPlace();
    void ShowColoured();

    CNetlistEdit& mrEdit;
    QLabel* mpParams;
    QLabel* mpColoured;
    QLabel* mpPlace;
    QLabel* mpForm;
};

} // namespace quorvawiz::host
