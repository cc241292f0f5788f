#include "qt/ClippedText.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTreeView>
#include <QWidget>

namespace
{
class CSearch
{
public:
    std::vector<std::string> mFindings;

    void Look(const QWidget& rWidget)
    {
        for (const QObject* pObject : rWidget.children()) {
            const auto* const pChild = qobject_cast<const QWidget*>(pObject);
            if (!pChild || pChild->isWindow() || !pChild->isVisible())
                continue;
            if (pChild->objectName().startsWith(QLatin1String("qt_")))
                continue;
            if (!rWidget.rect().contains(pChild->geometry()))
                Tell(*pChild, "reaches beyond its parent", pChild->geometry().size(),
                     rWidget.size());
            if (!LookAtText(*pChild))
                Look(*pChild);
        }
    }

private:
    void Tell(const QWidget& rWidget, const char* pWhat, QSize has, QSize needs)
    {
        const auto say = [](QSize size) {
            return std::to_string(size.width()) + " x " + std::to_string(size.height());
        };
        mFindings.push_back(std::string(rWidget.metaObject()->className()) + " '" +
                            rWidget.objectName().toStdString() + "' " + pWhat + ": " + say(has) +
                            ", not " + say(needs));
    }

    void Need(const QWidget& rWidget, QSize needs)
    {
        if (rWidget.width() < needs.width() || rWidget.height() < needs.height())
            Tell(rWidget, "is too small", rWidget.size(), needs);
    }

    /// False for a widget that shows no text itself.
    bool LookAtText(const QWidget& rWidget)
    {
        if (const auto* const pLabel = qobject_cast<const QLabel*>(&rWidget))
            LookAtLabel(*pLabel);
        else if (const auto* const pButton = qobject_cast<const QPushButton*>(&rWidget))
            LookAtButton(*pButton);
        else if (const auto* const pRadio = qobject_cast<const QRadioButton*>(&rWidget))
            LookAtMark(*pRadio, QStyle::SE_RadioButtonContents);
        else if (const auto* const pCheck = qobject_cast<const QCheckBox*>(&rWidget))
            LookAtMark(*pCheck, QStyle::SE_CheckBoxContents);
        else if (const auto* const pGroup = qobject_cast<const QGroupBox*>(&rWidget))
            Need(rWidget, {pGroup->minimumSizeHint().width(), 0});
        else if (qobject_cast<const QComboBox*>(&rWidget))
            Need(rWidget, rWidget.sizeHint());
        else if (qobject_cast<const QLineEdit*>(&rWidget))
            Need(rWidget, {0, rWidget.minimumSizeHint().height()});
        else if (const auto* const pTree = qobject_cast<const QTreeView*>(&rWidget))
            LookAtTree(*pTree);
        else
            return qobject_cast<const QAbstractScrollArea*>(&rWidget) != nullptr;
        return true;
    }

    void LookAtLabel(const QLabel& rLabel)
    {
        if (rLabel.text().isEmpty())
            return;
        if (rLabel.wordWrap())
            Need(rLabel, {0, rLabel.heightForWidth(rLabel.width())});
        else
            Need(rLabel, rLabel.sizeHint());
    }

    /// A mark with a text beside it.
    void LookAtMark(const QAbstractButton& rButton, QStyle::SubElement contents)
    {
        QStyleOptionButton option;
        option.initFrom(&rButton);
        const QRect room = rButton.style()->subElementRect(contents, &option, &rButton);
        const QSize text = rButton.fontMetrics().size(Qt::TextShowMnemonic, rButton.text());
        if (room.width() < text.width() || rButton.height() < text.height())
            Tell(rButton, "is too small", room.size(), text);
    }

    /// The least width that a style hints at is a matter of taste; that of the text is not.
    void LookAtButton(const QPushButton& rButton)
    {
        const int nMargin =
            rButton.style()->pixelMetric(QStyle::PM_ButtonMargin, nullptr, &rButton);
        const QSize text = rButton.fontMetrics().size(Qt::TextShowMnemonic, rButton.text());
        Need(rButton, text + QSize(nMargin, nMargin / 2));
    }

    /// A tree that has to be scrolled to the side hides the end of a name.
    void LookAtTree(const QTreeView& rTree)
    {
        if (rTree.horizontalScrollBar()->maximum() > 0)
            Tell(rTree, "has to be scrolled to the side", rTree.viewport()->size(),
                 rTree.viewport()->size() + QSize(rTree.horizontalScrollBar()->maximum(), 0));
    }
};
} // namespace

std::vector<std::string> gFindClippedText(const QWidget& rWindow)
{
    CSearch search;
    search.Look(rWindow);
    return search.mFindings;
}
