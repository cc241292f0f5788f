#include "platform/qt/Binders.h"
#include "platform/qt/EditLine.h"
#include "platform/qt/FieldName.h"
#include "platform/qt/ItemListModel.h"
#include "platform/qt/QtText.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/ComboBox.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <limits>

namespace
{
class CComboPeer : public TWidgetPeer<CComboBox, QComboBox>
{
public:
    CComboPeer(CModelEntry& rEntry, CWnd& rWnd)
        : TWidgetPeer(rEntry, rWnd, new QComboBox(gParentWidgetOf(rWnd))),
          mpItems(new CItemListModel([this] { return Model().GetItems(); }, &Widget()))
    {
        Widget().setModel(mpItems);
        Widget().setFocusPolicy(Qt::StrongFocus);
        gNameField(rWnd, Widget());
        if (Model().CanType())
            MakeEditable();
        connect(&Widget(), &QComboBox::activated, this, [this](int nIndex) {
            if (!IsWriting())
                Act([this, nIndex] { Model().UserSelect(nIndex); });
        });
        connect(&Widget(), &QComboBox::highlighted, this, [this](int nIndex) { OnMark(nIndex); });
        mpList = Widget().view();
        mpList->installEventFilter(this);
        mpViewport = Widget().view()->viewport();
        mpViewport->installEventFilter(this);
    }

    ~CComboPeer() override
    {
        if (mpItems)
            mpItems->Detach();
    }

    bool eventFilter(QObject* pObject, QEvent* pEvent) override
    {
        if (pObject == GetWidget() && pEvent->type() == QEvent::Wheel && !Widget().hasFocus()) {
            // Whoever scrolls past a list doesn't choose; the window around it may want the wheel.
            pEvent->ignore();
            return true;
        }
        if (mpList && pObject == mpList)
            OnListEvent(*pEvent);
        else if (mpViewport && pObject == mpViewport && pEvent->type() == QEvent::MouseMove)
            mbMarkByKey = false;
        return CQtPeer::eventFilter(pObject, pEvent);
    }

protected:
    void PullItems() override { mpItems->Renew(); }

    void PullSelection() override
    {
        if (Widget().currentIndex() == Model().GetCurSel())
            return;
        const int nCaret = Widget().lineEdit() ? Widget().lineEdit()->cursorPosition() : 0;
        Widget().setCurrentIndex(Model().GetCurSel());
        PullText();
        if (Widget().lineEdit())
            Widget().lineEdit()->setCursorPosition(nCaret);
    }

    void PullText() override
    {
        if (Widget().lineEdit())
            gWriteLine(*Widget().lineEdit(), gToQString(Model().GetWindowText()));
    }

private:
    void MakeEditable()
    {
        Widget().setEditable(true);
        Widget().setInsertPolicy(QComboBox::NoInsert);
        Widget().setCompleter(nullptr);
        Widget().lineEdit()->setMaxLength(std::numeric_limits<int>::max());
        connect(Widget().lineEdit(), &QLineEdit::textEdited, this, [this] { OnTyped(); });
    }

    void OnTyped()
    {
        gCutPastedLines(*Widget().lineEdit());
        const auto text = gFromQString(Widget().lineEdit()->text());
        Act([this, &text] {
            if (text)
                Model().UserType(*text);
        });
    }

    /// The mark of the open list has moved: by a key it is a choice in the making, under the mouse
    /// it is only a light.
    void OnMark(int nIndex)
    {
        if (!IsWriting() && mbMarkByKey && nIndex != Model().GetCurSel())
            Act([this, nIndex] { Model().UserMoveSelection(nIndex); });
    }

    void OnListEvent(const QEvent& rEvent)
    {
        if (rEvent.type() == QEvent::Show) {
            mnChoiceBefore = Model().GetCurSel();
            mbMarkByKey = false;
        } else if (rEvent.type() == QEvent::KeyPress) {
            mbMarkByKey = true;
            if (static_cast<const QKeyEvent&>(rEvent).key() == Qt::Key_Escape)
                TakeBackMoves();
        }
    }

    /// The list is left without a choice.
    void TakeBackMoves()
    {
        if (mnChoiceBefore != Model().GetCurSel() && mnChoiceBefore >= 0)
            Act([this] { Model().UserMoveSelection(mnChoiceBefore); });
    }

    QPointer<CItemListModel> mpItems;
    // As plain objects: the last events come when no more than that is left of them.
    QPointer<QObject> mpList;     ///< that opens; set when it is whole
    QPointer<QObject> mpViewport; ///< of the list
    int mnChoiceBefore = -1;      ///< when the list was opened
    bool mbMarkByKey = false;
};
} // namespace

std::unique_ptr<CQtPeer> gBindCombo(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CComboPeer>(rEntry, rWnd);
}
