#pragma once

#include <QSyntaxHighlighter>

namespace quorvawiz::host
{

/// Colours a netlist by `gTokenize`.
class CSpiceHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// Colours nothing until `SetDark` or `setDocument`; it becomes the parent's child.
    explicit CSpiceHighlighter(QObject* pParent);

    /// Chooses between the colours for a light and for a dark ground.
    void SetDark(bool bDark);

protected:
    void highlightBlock(const QString& rsText) override;

private:
    bool mbDark = false;
};

} // namespace quorvawiz::host
