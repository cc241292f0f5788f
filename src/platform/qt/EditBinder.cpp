#include "platform/qt/Binders.h"
#include "platform/qt/EditLine.h"
#include "platform/qt/FieldName.h"
#include "platform/qt/QtText.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/Edit.h"

#include <QLineEdit>
#include <limits>

namespace
{
class CEditPeer : public TWidgetPeer<CEdit, QLineEdit>
{
public:
    CEditPeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QLineEdit(gParentWidgetOf(rWnd)))
    {
        Widget().setMaxLength(std::numeric_limits<int>::max());
        Widget().setReadOnly(rWnd.GetControlFlags() & kReadOnly);
        gNameField(rWnd, Widget());
        connect(&Widget(), &QLineEdit::textEdited, this, [this] { OnEdited(); });
    }

protected:
    void PullText() override { gWriteLine(Widget(), gToQString(Model().GetWindowText())); }

private:
    void OnEdited()
    {
        gCutPastedLines(Widget());
        // A text that the code page can't hold is refused like any other.
        const auto text = gFromQString(Widget().text());
        Act([this, &text] {
            if (text)
                Model().UserType(*text);
        });
    }
};
} // namespace

std::unique_ptr<CQtPeer> gBindEdit(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CEditPeer>(rEntry, rWnd);
}
