#include "platform/qt/Binders.h"
#include "platform/qt/DialogUnits.h"
#include "platform/qt/FieldName.h"
#include "platform/qt/QtText.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/Static.h"

#include <QFontInfo>
#include <QLabel>

namespace
{
constexpr int kTwoLines = 16; // the height from which a text is broken, in dialog units
constexpr double kHeadingScale = 1.35;

class CLabelPeer : public TWidgetPeer<CWnd, QLabel>
{
public:
    CLabelPeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QLabel(gParentWidgetOf(rWnd)))
    {
        Widget().setTextFormat(Qt::PlainText);
        Widget().setWordWrap(IsHigh());
        Widget().setAlignment((IsHeading() ? Qt::AlignHCenter : Qt::AlignLeft) |
                              GetVerticalPlace());
        // Only a label with a buddy draws '&' as a mnemonic; its field takes this part over.
        if (rWnd.GetKind() == EControl::Label)
            Widget().setBuddy(&Widget());
    }

protected:
    void PullText() override
    {
        const QString sText = gToWidgetLines(Model().GetWindowText());
        if (Widget().text() == sText)
            return;
        Widget().setText(sText);
        if (Model().GetKind() == EControl::Label)
            gRenameFieldOf(Model());
    }

    void PullPlace() override
    {
        if (IsHeading()) {
            QFont font = Widget().parentWidget()->font();
            font.setPointSizeF(QFontInfo(font).pointSizeF() * kHeadingScale);
            font.setBold(true);
            Widget().setFont(font);
        }
        CQtPeer::PullPlace();
    }

private:
    /// A high label stands above its field, to which its text keeps close.
    Qt::Alignment GetVerticalPlace() const
    {
        if (!IsHigh())
            return Qt::AlignVCenter;
        return Wnd().GetKind() == EControl::Label ? Qt::AlignBottom : Qt::AlignTop;
    }

    bool IsHigh() const { return Wnd().GetRect().h >= kTwoLines; }
    bool IsHeading() const { return Wnd().GetControlFlags() & kHeading; }
};
} // namespace

std::unique_ptr<CQtPeer> gBindLabel(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CLabelPeer>(rEntry, rWnd);
}
