#include "qt/CompareWindow.h"

#include "platform/qt/DialogUnits.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtText.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/Edit.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QTabWidget>
#include <QTableView>
#include <QTreeWidget>
#include <sstream>

namespace
{
class CComparison
{
public:
    explicit CComparison(CDialog& rDialog) : mrDialog(rDialog), mpWindow(gWidgetOf(rDialog)) {}

    std::vector<std::string> Run()
    {
        if (!mpWindow) {
            mFindings.emplace_back("the dialog has no window");
            return mFindings;
        }
        Expect("title", mpWindow->windowTitle(), gToQString(mrDialog.GetWindowText()));
        CompareChildren(mrDialog);
        CompareFocus();
        return mFindings;
    }

private:
    template <class TValue>
    void Expect(const char* pWhat, const TValue& rShown, const TValue& rModel)
    {
        if (rShown == rModel)
            return;
        std::ostringstream text;
        text << msWhere << ": " << pWhat << " is " << Print(rShown) << ", not " << Print(rModel);
        mFindings.push_back(text.str());
    }
    static std::string Print(const QString& rsText) { return '"' + rsText.toStdString() + '"'; }
    static std::string Print(int nValue) { return std::to_string(nValue); }
    static std::string Print(bool bValue) { return bValue ? "true" : "false"; }
    static std::string Print(const QRect& rRect)
    {
        std::ostringstream text;
        text << '(' << rRect.x() << ' ' << rRect.y() << ' ' << rRect.width() << ' '
             << rRect.height() << ')';
        return text.str();
    }

    void CompareChildren(const CWnd& rParent)
    {
        for (CWnd* pChild : rParent.GetChildren()) {
            msWhere = std::string(gClassName(rParent)) + '/' + pChild->GetKey();
            QWidget* const pWidget = gWidgetOf(*pChild);
            if (!pWidget) {
                mFindings.push_back(msWhere + ": isn't drawn");
                continue;
            }
            CompareWindow(*pChild, *pWidget);
            if (dynamic_cast<CDialog*>(pChild))
                CompareChildren(*pChild);
            else
                CompareControl(*pChild, *pWidget);
        }
    }

    void CompareWindow(const CWnd& rWnd, const QWidget& rWidget)
    {
        const bool bPlaceholder = rWnd.GetKind() == EControl::Frame && *rWnd.GetKey();
        Expect("shown", !rWidget.isHidden(), !bPlaceholder && rWnd.IsShown());
        Expect("enabled", rWidget.isEnabledTo(rWidget.parentWidget()), rWnd.IsWindowEnabled());
        if (mpWindow->isVisible())
            Expect("visible", rWidget.isVisible(), !bPlaceholder && rWnd.IsWindowVisible());
        const QRect shown(rWidget.mapTo(mpWindow, QPoint()), rWidget.size());
        Expect("place", shown, gToPixels(gDialogUnitsOf(mpWindow->font()), rWnd.GetWindowRect()));
    }

    void CompareControl(const CWnd& rWnd, const QWidget& rWidget)
    {
        Expect("object name", rWidget.objectName(), QString::fromUtf8(rWnd.GetKey()));
        const QString sText = gToQString(rWnd.GetWindowText());
        switch (rWnd.GetKind()) {
        case EControl::Label:
        case EControl::Static:
            Expect("text", dynamic_cast<const QLabel&>(rWidget).text(),
                   gToWidgetLines(rWnd.GetWindowText()));
            break;
        case EControl::Group:
            Expect("title", dynamic_cast<const QGroupBox&>(rWidget).title(), sText);
            break;
        case EControl::Frame:
            break;
        case EControl::Edit:
            Expect("text", dynamic_cast<const QLineEdit&>(rWidget).text(), sText);
            break;
        case EControl::MultilineEdit:
            Expect("text", LinesOf(dynamic_cast<const QPlainTextEdit&>(rWidget)),
                   gToWidgetLines(rWnd.GetWindowText()));
            break;
        case EControl::PushButton:
        case EControl::DefaultButton:
        case EControl::CheckBox:
        case EControl::RadioButton:
            Expect("text", dynamic_cast<const QAbstractButton&>(rWidget).text(), sText);
            Expect("checked", dynamic_cast<const QAbstractButton&>(rWidget).isChecked(),
                   dynamic_cast<const CButton&>(rWnd).GetCheck() != 0);
            break;
        case EControl::DropDownList:
        case EControl::DropDown:
            CompareCombo(dynamic_cast<const CComboBox&>(rWnd),
                         dynamic_cast<const QComboBox&>(rWidget));
            break;
        case EControl::ListBox:
            CompareList(dynamic_cast<const CListBox&>(rWnd),
                        dynamic_cast<const QListView&>(rWidget));
            break;
        case EControl::Tree:
            CompareTree(dynamic_cast<const CTreeCtrl&>(rWnd),
                        dynamic_cast<const QTreeWidget&>(rWidget));
            break;
        case EControl::Table:
            CompareTable(dynamic_cast<const CListCtrl&>(rWnd),
                         dynamic_cast<const QTableView&>(rWidget));
            break;
        case EControl::Tabs:
            CompareTabs(dynamic_cast<const CTabCtrl&>(rWnd),
                        dynamic_cast<const QTabWidget&>(rWidget));
            break;
        }
    }

    /// The widget's own `toPlainText` shows no-break blanks as plain ones.
    static QString LinesOf(const QPlainTextEdit& rEdit)
    {
        QString sText = rEdit.document()->toRawText();
        sText.replace(QChar(QChar::LineSeparator), QLatin1Char('\n'));
        return sText.replace(QChar(QChar::ParagraphSeparator), QLatin1Char('\n'));
    }

    void CompareEntries(int nShown, const std::function<QString(int)>& getShown,
                        std::span<const CString> items)
    {
        Expect("number of entries", nShown, static_cast<int>(items.size()));
        for (int n = 0; n < std::min(nShown, static_cast<int>(items.size())); ++n)
            Expect("entry", getShown(n), gToQString(items[static_cast<std::size_t>(n)]));
    }

    void CompareCombo(const CComboBox& rCombo, const QComboBox& rWidget)
    {
        CompareEntries(
            rWidget.count(), [&](int n) { return rWidget.itemText(n); }, rCombo.GetItems());
        Expect("selection", rWidget.currentIndex(), rCombo.GetCurSel());
        Expect("text", rWidget.currentText(), gToQString(rCombo.GetWindowText()));
        Expect("typing", rWidget.isEditable(), rCombo.CanType());
    }

    static int SelectedRow(const QAbstractItemView& rView)
    {
        const auto rows = rView.selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.front().row();
    }

    void CompareSelectedRow(const QAbstractItemView& rView, int nSelected)
    {
        Expect("selected row", SelectedRow(rView), nSelected);
        Expect("current row", rView.currentIndex().isValid() ? rView.currentIndex().row() : -1,
               nSelected);
    }

    void CompareList(const CListBox& rList, const QListView& rWidget)
    {
        const auto getShown = [&](int n) { return rWidget.model()->index(n, 0).data().toString(); };
        CompareEntries(rWidget.model()->rowCount(), getShown, rList.GetItems());
        CompareSelectedRow(rWidget, rList.GetCurSel());
    }

    void CompareNodes(const CTreeCtrl& rTree, HTREEITEM hFirst, const QTreeWidgetItem& rParent)
    {
        int nAt = 0;
        for (HTREEITEM hNode = hFirst; hNode; hNode = rTree.GetNextSiblingItem(hNode), ++nAt) {
            const QTreeWidgetItem* const pItem = rParent.child(nAt);
            if (!pItem)
                break;
            Expect("node", pItem->text(0), gToQString(rTree.GetItemText(hNode)));
            Expect("open node", pItem->isExpanded(), rTree.IsExpanded(hNode));
            Expect("selected node", pItem->isSelected(), rTree.GetSelectedItem() == hNode);
            Expect("current node", pItem->treeWidget()->currentItem() == pItem,
                   rTree.GetSelectedItem() == hNode);
            CompareNodes(rTree, rTree.GetChildItem(hNode), *pItem);
        }
        Expect("number of nodes", rParent.childCount(), nAt);
    }

    void CompareTree(const CTreeCtrl& rTree, const QTreeWidget& rWidget)
    {
        CompareNodes(rTree, rTree.GetRootItem(), *rWidget.invisibleRootItem());
    }

    void CompareTable(const CListCtrl& rTable, const QTableView& rWidget)
    {
        const QAbstractItemModel& rCells = *rWidget.model();
        Expect("number of rows", rCells.rowCount(), rTable.GetItemCount());
        Expect("number of columns", rCells.columnCount(), rTable.GetColumnCount());
        for (int c = 0; c < rTable.GetColumnCount(); ++c) {
            const TListColumn& rColumn = rTable.GetColumns()[static_cast<std::size_t>(c)];
            Expect("heading", rCells.headerData(c, Qt::Horizontal).toString(),
                   gToQString(rColumn.sHeading));
            for (int r = 0; r < rTable.GetItemCount(); ++r)
                Expect("cell", rCells.index(r, c).data().toString(),
                       gToQString(rTable.GetItemText(r, c)));
        }
        CompareSelectedRow(rWidget, rTable.GetSelectedRow());
    }

    void CompareTabs(const CTabCtrl& rTabs, const QTabWidget& rWidget)
    {
        const auto getShown = [&](int n) {
            return rWidget.tabText(n).replace(QLatin1String("&&"), QLatin1String("&"));
        };
        CompareEntries(rWidget.count(), getShown, rTabs.GetItems());
        Expect("tab", rWidget.currentIndex(), rTabs.GetCurSel());
    }

    void CompareFocus()
    {
        // A list that is open has the keyboard for its control.
        const CWnd* const pFocus = CWnd::GetFocus();
        if (QApplication::activePopupWidget() || !pFocus || !pFocus->IsInside(mrDialog) ||
            !mpWindow->isActiveWindow())
            return;
        const QWidget* const pShown = QApplication::focusWidget();
        const QWidget* const pModel = gWidgetOf(*pFocus);
        const bool bThere =
            pShown && pModel &&
            (pShown == pModel || (pModel != mpWindow && pModel->isAncestorOf(pShown)));
        if (!bThere)
            mFindings.push_back(std::string("the focus is on ") +
                                (pShown ? pShown->objectName().toStdString() : "nothing") +
                                ", not on " + pFocus->GetKey());
    }

    CDialog& mrDialog;
    QWidget* mpWindow;
    std::string msWhere = "window";
    std::vector<std::string> mFindings;
};
} // namespace

std::vector<std::string> gCompareWindowWithModel(CDialog& rDialog)
{
    return CComparison(rDialog).Run();
}

std::vector<std::string> gCompareWindowsWithModels()
{
    std::vector<std::string> findings;
    for (const TModalRun* pRun : gDesktop().Thread().mModalRuns)
        for (std::string& rsFinding :
             gCompareWindowWithModel(dynamic_cast<CDialog&>(*pRun->pWindow)))
            findings.push_back(std::move(rsFinding));
    return findings;
}
