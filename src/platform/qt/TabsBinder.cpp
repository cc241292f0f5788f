#include "platform/qt/Binders.h"
#include "platform/qt/FieldName.h"
#include "platform/qt/QtText.h"
#include "platform/qt/StackBelow.h"
#include "platform/qt/WidgetPeer.h"
#include "platform/ui/TabCtrl.h"

#include <QTabBar>
#include <QTabWidget>

namespace
{
/// Tabs with an empty page behind each: what a tab shows are panes in front of the frame.
class CTabsPeer : public TWidgetPeer<CTabCtrl, QTabWidget>
{
public:
    explicit CTabsPeer(CModelEntry& rEntry, CWnd& rWnd, QTabWidget* pWidget)
        : TWidgetPeer(rEntry, rWnd, pWidget, pWidget->tabBar())
    {
        gStackBelowControls(Widget());
        gNameField(rWnd, *Widget().tabBar());
        connect(&Widget(), &QTabWidget::currentChanged, this, [this](int nIndex) {
            if (!IsWriting() && nIndex != Model().GetCurSel())
                Act([this, nIndex] { Model().UserSelect(nIndex); });
        });
    }

protected:
    void PullItems() override
    {
        const auto items = Model().GetItems();
        while (Widget().count() > static_cast<int>(items.size())) {
            QWidget* const pPage = Widget().widget(Widget().count() - 1);
            Widget().removeTab(Widget().count() - 1);
            delete pPage;
        }
        for (int n = 0; n < static_cast<int>(items.size()); ++n) {
            const QString sText = gWithDoubledAmpersands(items[static_cast<std::size_t>(n)]);
            if (n == Widget().count())
                Widget().addTab(new QWidget, sText);
            else if (Widget().tabText(n) != sText)
                Widget().setTabText(n, sText);
        }
    }

    void PullSelection() override
    {
        if (Widget().currentIndex() != Model().GetCurSel())
            Widget().setCurrentIndex(Model().GetCurSel());
    }
};
} // namespace

std::unique_ptr<CQtPeer> gBindTabs(CModelEntry& rEntry, CWnd& rWnd)
{
    return std::make_unique<CTabsPeer>(rEntry, rWnd, new QTabWidget(gParentWidgetOf(rWnd)));
}
