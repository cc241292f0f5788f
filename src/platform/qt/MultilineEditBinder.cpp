#include "platform/qt/Binders.h"
#include "platform/qt/FieldName.h"
#include "platform/qt/QtText.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/Edit.h"

#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <algorithm>

namespace
{
/// The widget's text with line feeds. Its own `toPlainText` would turn no-break blanks into plain
/// ones.
QString TextOf(const QPlainTextEdit& rEdit)
{
    QString sText = rEdit.document()->toRawText();
    for (const QChar cLineEnd : {QChar(QChar::ParagraphSeparator), QChar(QChar::LineSeparator)})
        sText.replace(cLineEnd, QLatin1Char('\n'));
    return sText;
}

/// An edit that takes text to the letter.
class CTextEdit : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void insertFromMimeData(const QMimeData* pSource) override
    {
        // The base would render what comes as Markdown, and an empty clipboard is its end.
        if (pSource && pSource->hasText() && !isReadOnly())
            textCursor().insertText(pSource->text());
        ensureCursorVisible();
    }
};

class CMultilineEditPeer : public TWidgetPeer<CEdit, QPlainTextEdit>
{
public:
    CMultilineEditPeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new CTextEdit(gParentWidgetOf(rWnd)))
    {
        Widget().setReadOnly(rWnd.GetControlFlags() & kReadOnly);
        Widget().setTabChangesFocus(true);
        gNameField(rWnd, Widget());
        connect(&Widget(), &QPlainTextEdit::textChanged, this, [this] { OnEdited(); });
    }

protected:
    void PullText() override
    {
        const QString sText = gToWidgetLines(Model().GetWindowText());
        if (TextOf(Widget()) == sText)
            return;
        const int nCaret = Widget().textCursor().position();
        Widget().setPlainText(sText);
        QTextCursor cursor = Widget().textCursor();
        cursor.setPosition(std::min(nCaret, static_cast<int>(sText.size())));
        Widget().setTextCursor(cursor);
    }

private:
    void OnEdited()
    {
        const QString sText = TextOf(Widget());
        // The line ends of a text that nobody has edited stay as they are.
        if (IsWriting() || sText == gToWidgetLines(Model().GetWindowText()))
            return;
        const auto text = gFromWidgetLines(sText);
        Act([this, &text] {
            if (text)
                Model().UserType(*text);
        });
    }
};
} // namespace

std::unique_ptr<CQtPeer> gBindMultilineEdit(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CMultilineEditPeer>(rEntry, rWnd);
}
