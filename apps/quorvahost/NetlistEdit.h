#pragma once

#include <QPlainTextEdit>
#include <optional>

namespace quorvawiz::host
{

class CLineNumbers;
class CSpiceHighlighter;

/// Up to how many characters a netlist is coloured. Colouring a text of this size takes part of a
/// second, and it is done at once.
inline constexpr int kLargestColoured = 4'000'000;

/// The editor of one netlist: plain text, line numbers, the caret's line, SPICE colours.
class CNetlistEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit CNetlistEdit(QWidget* pParent = nullptr);

    /// Puts another text in the place of all there is, unmodified and without anything to undo.
    /// @param rsText lines joined by LF
    void LoadText(const QString& rsText);

    /// All of the text, lines joined by LF; every other character as it was loaded or typed.
    QString Text() const;

    /// Puts a command on lines of its own at the caret, as one step to undo, and the caret behind
    /// it (`gPlaceOfCommand` says where).
    /// @param rsCommand lines joined by LF
    void InsertCommand(const QString& rsCommand);

    /// False for a text too large for it.
    bool IsColoured() const { return mbColoured; }

    /// Makes the text larger or smaller by one step, or as large as it was at first (0).
    void Zoom(int nDirection);

signals:
    /// The text has become too large to be coloured, or small enough.
    void ColouredChanged(bool bColoured);

protected:
    void resizeEvent(QResizeEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void wheelEvent(QWheelEvent* pEvent) override;
    void insertFromMimeData(const QMimeData* pSource) override;
    // Files that are dropped are the window's.
    void dragEnterEvent(QDragEnterEvent* pEvent) override;
    void dragMoveEvent(QDragMoveEvent* pEvent) override;
    void dropEvent(QDropEvent* pEvent) override;

private:
    friend class CLineNumbers;

    void ApplyLook();
    void ApplyFont();
    void ShowCurrentLine();
    void UpdateColoured();
    void UpdateMargin();
    void PlaceLineNumbers();

    CLineNumbers* mpLineNumbers;
    CSpiceHighlighter* mpHighlighter;
    bool mbColoured = false;
    int mnZoom = 0;
};

} // namespace quorvawiz::host
