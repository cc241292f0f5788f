#pragma once

#include <QWidget>

namespace quorvawiz::host
{

class CNetlistEdit;

/// The margin of an editor, with a number for each line.
class CLineNumbers : public QWidget
{
    Q_OBJECT

public:
    /// It becomes the editor's child.
    explicit CLineNumbers(CNetlistEdit& rEdit);

    /// How wide it has to be for the numbers there are, in pixels.
    int NeededWidth() const;

    QSize sizeHint() const override;

    /// Follows the editor: scrolls by so many pixels, or paints a part anew.
    void Follow(const QRect& rPart, int nScrolled);

protected:
    void paintEvent(QPaintEvent* pEvent) override;
    void mousePressEvent(QMouseEvent* pEvent) override;

private:
    CNetlistEdit& mrEdit;
};

} // namespace quorvawiz::host
