#include "qt/ClippedText.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QWidget>
#include <iterator>

namespace
{
class CSearch
{
public:
    std::vector<std::string> mFindings;

    /// To be asked once all of the window has been looked at.
    void FindOverlaps()
    {
        for (auto one = mTexts.begin(); one != mTexts.end(); ++one)
            for (auto other = std::next(one); other != mTexts.end(); ++other)
                if ((one->bLabel || other->bLabel) && one->rect.intersects(other->rect))
                    mFindings.push_back(NameOf(*one->pWidget) + " lies over " +
                                        NameOf(*other->pWidget));
    }

    void Look(const QWidget& rWidget)
    {
        for (const QObject* pObject : rWidget.children()) {
            const auto* const pChild = qobject_cast<const QWidget*>(pObject);
            if (!pChild || pChild->isWindow() || !pChild->isVisible())
                continue;
            if (pChild->objectName().startsWith(QLatin1String("qt_scrollarea")) ||
                pChild->objectName().startsWith(QLatin1String("qt_tabwidget")))
                continue;
            if (!rWidget.rect().contains(pChild->geometry()))
                Tell(*pChild, "reaches beyond its parent", pChild->geometry().size(),
                     rWidget.size());
            if (!LookAtText(*pChild))
                Look(*pChild);
        }
    }

private:
    /// Where a text stands, or a field.
    struct TText {
        const QWidget* pWidget;
        QRect rect; ///< in the window
        bool bLabel;
    };

    static std::string NameOf(const QWidget& rWidget)
    {
        return std::string(rWidget.metaObject()->className()) + " '" +
               rWidget.objectName().toStdString() + "'";
    }

    void Keep(const QWidget& rWidget, const QRect& rInWidget, bool bLabel = false)
    {
        const QPoint origin = rWidget.mapTo(rWidget.window(), QPoint());
        mTexts.push_back({&rWidget, rInWidget.translated(origin), bLabel});
    }

    void Tell(const QWidget& rWidget, const char* pWhat, QSize has, QSize needs)
    {
        const auto say = [](QSize size) {
            return std::to_string(size.width()) + " x " + std::to_string(size.height());
        };
        mFindings.push_back(NameOf(rWidget) + " " + pWhat + ": " + say(has) + ", not " +
                            say(needs));
    }

    void Need(const QWidget& rWidget, QSize needs)
    {
        if (rWidget.width() < needs.width() || rWidget.height() < needs.height())
            Tell(rWidget, "is too small", rWidget.size(), needs);
    }

    /// False for a widget that shows no text itself.
    bool LookAtText(const QWidget& rWidget)
    {
        if (qobject_cast<const QAbstractButton*>(&rWidget) ||
            qobject_cast<const QLineEdit*>(&rWidget) || qobject_cast<const QComboBox*>(&rWidget) ||
            qobject_cast<const QAbstractScrollArea*>(&rWidget))
            Keep(rWidget, rWidget.rect());
        if (const auto* const pLabel = qobject_cast<const QLabel*>(&rWidget))
            LookAtLabel(*pLabel);
        else if (const auto* const pButton = qobject_cast<const QPushButton*>(&rWidget))
            LookAtButton(*pButton);
        else if (const auto* const pRadio = qobject_cast<const QRadioButton*>(&rWidget))
            LookAtMark(*pRadio, QStyle::SE_RadioButtonContents);
        else if (const auto* const pCheck = qobject_cast<const QCheckBox*>(&rWidget))
            LookAtMark(*pCheck, QStyle::SE_CheckBoxContents);
        else if (const auto* const pGroup = qobject_cast<const QGroupBox*>(&rWidget))
            LookAtGroup(*pGroup);
        else if (qobject_cast<const QComboBox*>(&rWidget))
            Need(rWidget, rWidget.sizeHint());
        else if (qobject_cast<const QLineEdit*>(&rWidget))
            Need(rWidget, {0, rWidget.minimumSizeHint().height()});
        else if (const auto* const pTabs = qobject_cast<const QTabWidget*>(&rWidget))
            LookAtTabs(*pTabs->tabBar());
        else if (const auto* const pView = qobject_cast<const QAbstractItemView*>(&rWidget))
            LookAtView(*pView);
        else
            return qobject_cast<const QAbstractScrollArea*>(&rWidget) != nullptr;
        return true;
    }

    void LookAtLabel(const QLabel& rLabel)
    {
        if (rLabel.text().isEmpty())
            return;
        const QRect room = rLabel.contentsRect();
        const QSize text =
            rLabel.wordWrap() ? room.size() : rLabel.sizeHint().boundedTo(room.size());
        Keep(rLabel, QStyle::alignedRect(rLabel.layoutDirection(), rLabel.alignment(), text, room),
             true);
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

    void LookAtGroup(const QGroupBox& rGroup)
    {
        Need(rGroup, {rGroup.minimumSizeHint().width(), 0});
        QStyleOptionGroupBox option;
        option.initFrom(&rGroup);
        option.text = rGroup.title();
        option.subControls = QStyle::SC_GroupBoxLabel;
        Keep(rGroup,
             rGroup.style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                            &rGroup),
             true);
        Look(rGroup);
    }

    /// Tabs that don't fit get arrows, which cover the last one of them.
    void LookAtTabs(const QTabBar& rBar)
    {
        for (const auto* const pArrow : rBar.findChildren<QAbstractButton*>())
            if (pArrow->isVisible())
                Tell(rBar, "has arrows", rBar.size(), rBar.sizeHint());
        for (int n = 0; n < rBar.count(); ++n) {
            const QSize text = rBar.fontMetrics().size(Qt::TextShowMnemonic, rBar.tabText(n));
            if (!rBar.rect().contains(rBar.tabRect(n)) || rBar.tabRect(n).width() < text.width())
                Tell(rBar, "cuts a tab", rBar.tabRect(n).size(), text);
        }
    }

    /// What has to be scrolled to the side hides the end of a name. A table's columns are the
    /// user's to draw, its headings have to be read before that.
    void LookAtView(const QAbstractItemView& rView)
    {
        const auto* const pTable = qobject_cast<const QTableView*>(&rView);
        if (pTable)
            LookAtHeadings(*pTable->horizontalHeader());
        else if (rView.horizontalScrollBar()->maximum() > 0)
            Tell(rView, "has to be scrolled to the side", rView.viewport()->size(),
                 rView.viewport()->size() + QSize(rView.horizontalScrollBar()->maximum(), 0));
    }

    void LookAtHeadings(const QHeaderView& rHeader)
    {
        const int nMargin =
            rHeader.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &rHeader);
        for (int n = 0; n < rHeader.count(); ++n) {
            const QString sText = rHeader.model()->headerData(n, Qt::Horizontal).toString();
            const int nNeeds = rHeader.fontMetrics().horizontalAdvance(sText) + 2 * nMargin;
            if (rHeader.sectionSize(n) < nNeeds)
                Tell(rHeader, "cuts a heading", {rHeader.sectionSize(n), rHeader.height()},
                     {nNeeds, rHeader.height()});
        }
    }

    std::vector<TText> mTexts;
};
} // namespace

std::vector<std::string> gFindClippedText(const QWidget& rWindow)
{
    CSearch search;
    search.Look(rWindow);
    search.FindOverlaps();
    return search.mFindings;
}
