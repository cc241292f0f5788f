#include "qt/Inputs.h"

#include "platform/qt/QtDesktop.h"
#include "platform/ui/Button.h"
#include "platform/ui/Dialog.h"
#include "platform/ui/FieldView.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeySequence>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>

namespace
{
QString ToQt(std::string_view sText)
{
    return QString::fromUtf8(sText.data(), static_cast<qsizetype>(sText.size()));
}

/// Who gets the keys: as in real life, an open list before the window behind it.
QWidget* KeyReceiver()
{
    QWidget* const pWindow = QApplication::activePopupWidget() ? QApplication::activePopupWidget()
                                                               : QApplication::activeWindow();
    return pWindow && pWindow->focusWidget() ? pWindow->focusWidget() : pWindow;
}

void Press(std::string_view sKey)
{
    const auto keys = QKeySequence::fromString(ToQt(sKey));
    ASSERT_EQ(keys.count(), 1) << sKey;
    QWidget* const pReceiver = KeyReceiver();
    ASSERT_TRUE(pReceiver) << "no window takes the key " << sKey;
    QTest::keyClick(pReceiver, keys[0].key(), keys[0].keyboardModifiers());
}

void Type(std::string_view sText)
{
    for (const QChar cLetter : ToQt(sText)) {
        QWidget* const pReceiver = KeyReceiver();
        // A blank may have pressed the button that closes the last window.
        if (!pReceiver)
            return;
        if (cLetter.unicode() < 0x80)
            QTest::keyClick(pReceiver, cLetter.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, pReceiver, Qt::Key_unknown, QString(cLetter),
                                Qt::NoModifier);
    }
}

struct TSpot {
    QWidget* pWidget = nullptr;
    QRect rect;
};

/// Where an entry of a widget stands; made visible if need be.
TSpot SpotOf(QWidget& rWidget, std::string_view sEntry)
{
    if (auto* const pTree = qobject_cast<QTreeWidget*>(&rWidget)) {
        const auto found = pTree->findItems(ToQt(sEntry), Qt::MatchExactly | Qt::MatchRecursive);
        if (found.isEmpty() || pTree->visualItemRect(found.front()).isEmpty())
            return {};
        pTree->scrollToItem(found.front());
        return {pTree->viewport(), pTree->visualItemRect(found.front())};
    }
    const int nEntry = ToQt(sEntry).toInt();
    if (auto* const pView = qobject_cast<QAbstractItemView*>(&rWidget)) {
        const QModelIndex index = pView->model()->index(nEntry, 0);
        pView->scrollTo(index);
        return {pView->viewport(), pView->visualRect(index)};
    }
    if (const auto* const pTabs = qobject_cast<QTabWidget*>(&rWidget))
        return {pTabs->tabBar(), pTabs->tabBar()->tabRect(nEntry)};
    return {};
}

/// Into the middle, but for what reacts on its mark only: a check box's label may be short.
QPoint MiddleOf(const QWidget& rWidget)
{
    const bool bMark = rWidget.inherits("QCheckBox") || rWidget.inherits("QRadioButton");
    const int nFromLeft = 8; // in pixels
    return {bMark ? nFromLeft : rWidget.width() / 2, rWidget.height() / 2};
}

void Click(std::string_view sTarget, bool bDouble)
{
    const auto nAt = sTarget.find('@');
    QWidget* const pWidget = gFrontWidget(sTarget.substr(0, nAt));
    ASSERT_TRUE(pWidget);
    if (nAt == std::string_view::npos) {
        gClickAt(*pWidget, MiddleOf(*pWidget), bDouble);
        return;
    }
    const TSpot spot = SpotOf(*pWidget, sTarget.substr(nAt + 1));
    ASSERT_TRUE(spot.pWidget && !spot.rect.isEmpty()) << sTarget << " isn't to be seen";
    gClickAt(*spot.pWidget, spot.rect.center(), bDouble);
}

void ClickBranch(std::string_view sTarget)
{
    const auto nAt = sTarget.find('@');
    auto* const pTree = dynamic_cast<QTreeWidget*>(gFrontWidget(sTarget.substr(0, nAt)));
    ASSERT_TRUE(pTree) << sTarget;
    const TSpot spot = SpotOf(*pTree, sTarget.substr(nAt + 1));
    ASSERT_TRUE(spot.pWidget) << sTarget << " isn't to be seen";
    gClickAt(*spot.pWidget, {spot.rect.left() - pTree->indentation() / 2, spot.rect.center().y()});
}

void Pick(std::string_view sEntry)
{
    QWidget* const pPopup = QApplication::activePopupWidget();
    ASSERT_TRUE(pPopup) << "no list is open";
    auto* const pList = pPopup->findChild<QAbstractItemView*>();
    ASSERT_TRUE(pList);
    const TSpot spot = SpotOf(*pList, sEntry);
    // The list takes a click for its own opening one until the mouse has moved.
    QTest::mouseMove(pPopup->windowHandle(),
                     spot.pWidget->mapTo(pPopup, spot.rect.center() - QPoint(3, 0)));
    QTest::mouseMove(pPopup->windowHandle(), spot.pWidget->mapTo(pPopup, spot.rect.center()));
    gClickAt(*spot.pWidget, spot.rect.center());
}
} // namespace

void gInput(std::string_view sInput)
{
    const auto nBlank = sInput.find(' ');
    const std::string_view sVerb = sInput.substr(0, nBlank);
    const std::string_view sRest = nBlank == sInput.npos ? "" : sInput.substr(nBlank + 1);
    if (sVerb == "press") {
        Press(sRest);
    } else if (sVerb == "type") {
        Type(sRest);
    } else if (sVerb == "paste") {
        QGuiApplication::clipboard()->setText(ToQt(sRest));
        Press("Ctrl+V");
    } else if (sVerb == "click") {
        Click(sRest, false);
    } else if (sVerb == "double") {
        Click(sRest, true);
    } else if (sVerb == "branch") {
        ClickBranch(sRest);
    } else if (sVerb == "pick") {
        Pick(sRest);
    } else if (sVerb == "close") {
        gWidgetOf(gFrontDialog())->close();
    } else {
        ADD_FAILURE() << "no such input: " << sInput;
    }
}

void gClickAt(QWidget& rWidget, const QPoint& rPosition, bool bDouble, Qt::MouseButton button)
{
    const QPoint position = rWidget.mapTo(rWidget.window(), rPosition);
    // A menu goes with the first click.
    const QPointer<QWindow> pWindow = rWidget.window()->windowHandle();
    // Two clicks at one place would be a double one; as a user does it, time goes by between them.
    constexpr int nApart = 1000; // in milliseconds, of the events' own clock
    QTest::mouseClick(pWindow, button, Qt::NoModifier, position);
    if (bDouble && pWindow)
        QTest::mouseDClick(pWindow, button, Qt::NoModifier, position);
    QTest::lastMouseTimestamp += nApart;
}

CDialog& gFrontDialog()
{
    return *gInnermostDialog();
}

QWidget* gFrontWidget(std::string_view sKey)
{
    const auto nMark = sKey.find('#');
    const TFieldView field = gFindField(gFrontDialog(), sKey.substr(0, nMark));
    const CWnd* pControl = field.pControl;
    if (pControl && nMark != std::string_view::npos)
        pControl = field.radios.at(static_cast<std::size_t>(sKey[nMark + 1] - '0'));
    if (!pControl) {
        ADD_FAILURE() << "there is no control " << sKey;
        return nullptr;
    }
    return gWidgetOf(*pControl);
}
