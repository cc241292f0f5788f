#include "platform/base/CodePage.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/Edit.h"
#include "platform/ui/ListBox.h"
#include "platform/ui/ListCtrl.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TabCtrl.h"
#include "platform/ui/TreeCtrl.h"
#include "qt/Player.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

// Every kind of control in a real window. The player compares window and model after each input.

namespace
{
struct TCase {
    const char* pName;
    std::vector<std::string> inputs; ///< as `gInput`; "press Escape" closes the dialog afterwards
    TLog expected;                   ///< what the controls told the dialog
    void (*pPrepare)(CSampleDialog& rDialog) = [](CSampleDialog&) {};
};

void Disable(CSampleDialog& rDialog, int nId)
{
    rDialog.GetDlgItem(nId)->EnableWindow(false);
}

const TCase kCases[] = {
    {"each letter is a change", {"click name", "type ab"}, {"name:change", "name:change"}},
    {"only the first line is pasted",
     {"click name", "type ad", "press Left", "paste b\nc"},
     {"name:change", "name:change", "name:change"}},
    {"a read-only edit can be reached, but not changed", {"click fixed", "type a"}, {}},
    {"the keyboard leaves an edit that is disabled",
     {"click name", "type a"},
     {"notes:change"},
     [](CSampleDialog& rDialog) { Disable(rDialog, kName); }},
    {"Enter makes a new line where it is wanted",
     {"click notes", "type a", "press Return", "type b"},
     {"notes:change", "notes:change", "notes:change"}},
    {"Enter in another edit presses the default button",
     {"click memo", "type a", "press Return"},
     {"memo:change", "ok:clicked"},
     [](CSampleDialog& rDialog) { rDialog.GetDlgItem(IDOK)->EnableWindow(true); }},
    {"a check box by mouse, blank and mnemonic",
     {"click again", "press Space", "press Alt+A"},
     {"again:clicked", "again:clicked", "again:clicked"}},
    {"a radio button clicked twice tells it twice",
     {"click level#1", "click level#1"},
     {"level#1:clicked", "level#1:clicked"}},
    {"arrows walk round the group",
     {"click level#0", "press Down", "press Right", "press Down", "press Up"},
     {"level#0:clicked", "level#1:clicked", "level#2:clicked", "level#0:clicked",
      "level#2:clicked"}},
    {"arrows pass by a button that is disabled",
     {"click level#0", "press Down"},
     {"level#0:clicked", "level#2:clicked"},
     [](CSampleDialog& rDialog) { Disable(rDialog, kMiddle); }},
    {"a disabled check box stays as it is",
     {"click again"},
     {},
     [](CSampleDialog& rDialog) { Disable(rDialog, kAgain); }},
    {"a choice by the mouse", {"click shape", "pick 2"}, {"shape:sel-change", "shape:sel-end-ok"}},
    {"the same entry is a choice again",
     {"click shape", "pick 2", "click shape", "pick 2"},
     {"shape:sel-change", "shape:sel-end-ok", "shape:sel-change", "shape:sel-end-ok"}},
    {"the mark moved by keys, then a choice",
     {"click shape", "press Down", "press Down", "press Return"},
     {"shape:sel-change", "shape:sel-change", "shape:sel-change", "shape:sel-end-ok"}},
    {"Escape takes the moves of the mark back and leaves the dialog open",
     {"click shape", "pick 0", "click shape", "press Down", "press Down", "press Escape"},
     {"shape:sel-change", "shape:sel-end-ok", "shape:sel-change", "shape:sel-change",
      "shape:sel-change"}},
    {"arrows on a closed list choose",
     {"click shape", "pick 0", "press Down"},
     {"shape:sel-change", "shape:sel-end-ok", "shape:sel-change", "shape:sel-end-ok"}},
    {"typing into a combo box",
     {"click colour", "type re", "type d", "press Backspace"},
     {"colour:edit-change", "colour:edit-change", "colour:edit-change", "colour:edit-change"}},
    {"only the first line is pasted there, too",
     {"click colour", "paste red\nblue"},
     {"colour:edit-change"}},
    {"rows of a list by mouse and keys",
     {"click fruit@1", "press Down", "press Down", "press Home"},
     {"fruit:sel-change", "fruit:sel-change", "fruit:sel-change"}},
    {"a double click on a row", {"double fruit@2"}, {"fruit:sel-change", "fruit:double-clicked"}},
    {"a list walked from no selection", {"click fruit@0"}, {"fruit:sel-change"}},
    {"a key at the end of a list tells nothing",
     {"click fruit@2", "press Down"},
     {"fruit:sel-change"}},
    {"the nodes of a tree by mouse",
     {"click places@B", "branch places@A", "click places@A1", "branch places@A"},
     {"places:sel-change", "places:sel-change", "places:sel-change"}},
    {"the nodes of a tree by keys",
     {"click places@A", "press Right", "press Right", "press Down", "press Right", "press Left",
      "press Left", "press Left", "press End"},
     {"places:sel-change", "places:sel-change", "places:sel-change", "places:sel-change",
      "places:sel-change"}},
    {"the rows of a table",
     {"click cells@1", "press Down", "press Down", "press Up", "press Right", "double cells@0"},
     {"cells:sel-change", "cells:sel-change", "cells:sel-change", "cells:sel-change",
      "cells:double-clicked"}},
    {"tabs by mouse and keys",
     {"click views@1", "press Right", "press Right", "press Left"},
     {"views:sel-change", "views:sel-change", "views:sel-change"}, // none at the end
     [](CSampleDialog& rDialog) {
         rDialog.GetDlgItem(kViews)->MoveWindow({60, 138, 135, 24});
     }},
    {"a button by mouse, keys and mnemonic",
     {"click press", "press Space", "press Return", "press Alt+P"},
     {"press:clicked", "press:clicked", "press:clicked", "press:clicked"}},
    {"the mnemonic of a label leads to its field", {"press Alt+O", "type a"}, {"notes:change"}},
    {"Tab goes from field to field",
     {"click name", "press Tab", "press Tab", "type a", "press Shift+Tab", "type b"},
     {"memo:change", "notes:change"}},
    {"an unknown mnemonic types nothing", {"click name", "press Alt+Z"}, {}},
};

TEST(ControlWindow, InputsReachTheModelAsNotifications)
{
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CTestDesktop desktop;
        CSampleDialog dialog;
        TLog log;
        bool bClosed = false;
        CPlayer player;
        player.Then("prepare", [&] {
            rCase.pPrepare(dialog);
            dialog.TakeLog();
        });
        player.Do(rCase.inputs);
        player.SetMore([&]() -> CPlayer::TTurn {
            if (std::exchange(bClosed, true))
                return {};
            log = dialog.TakeLog();
            return [] { gInput("press Escape"); };
        });
        dialog.React("ok:clicked", [&] { log = dialog.TakeLog(); });
        player.Play([&] { dialog.DoModal(); });
        EXPECT_EQ(log, rCase.expected);
    }
}

/// A sample dialog on the screen, for a look at single things.
void LookInto(const std::function<void(CSampleDialog&, CPlayer&)>& rFill)
{
    CTestDesktop desktop;
    CSampleDialog dialog;
    CPlayer player;
    rFill(dialog, player);
    player.Do({"press Escape"}).Play([&dialog] { dialog.DoModal(); });
}

template <class TWidget> TWidget& WidgetOf(const CSampleDialog& rDialog, int nId)
{
    return dynamic_cast<TWidget&>(*gWidgetOf(*rDialog.GetDlgItem(nId)));
}

TEST(ControlWindow, LineEndsStayUntilTheUserEdits)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rPlayer.Then("write", [&] { rDialog.GetDlgItem(kMemo)->SetWindowText("a\nb\r\nc"); });
        rPlayer.Do({"click memo", "press End"});
        rPlayer.Then("look", [&] {
            EXPECT_EQ(WidgetOf<QPlainTextEdit>(rDialog, kMemo).toPlainText(),
                      QStringLiteral("a\nb\nc"));
            EXPECT_EQ(rDialog.GetDlgItem(kMemo)->GetWindowText(), "a\nb\r\nc");
        });
        rPlayer.Do({"press Ctrl+End", "type d"});
        rPlayer.Then(
            "look", [&] { EXPECT_EQ(rDialog.GetDlgItem(kMemo)->GetWindowText(), "a\r\nb\r\ncd"); });
    });
}

TEST(ControlWindow, APastedTextIsCutAtItsFirstLineEnd)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rPlayer.Do({"click name", "type ad", "press Left", "paste b\r\nc"});
        rPlayer.Then("look", [&] {
            EXPECT_EQ(rDialog.GetDlgItem(kName)->GetWindowText(), "abd");
            EXPECT_EQ(WidgetOf<QLineEdit>(rDialog, kName).cursorPosition(), 2);
        });
    });
}

TEST(ControlWindow, ALetterOutsideOfTheCodePageIsRefused)
{
    gSetSystemCodePage(kCodePageWindows1252);
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rPlayer.Do({"click name", "type a", "type \xE2\x98\x83", "type \xC3\xA9"});
        rPlayer.Do({"click notes", "paste \xE2\x98\x83", "type b"});
        rPlayer.Then("look", [&] {
            EXPECT_EQ(rDialog.GetDlgItem(kName)->GetWindowText(), "a\xE9");
            EXPECT_EQ(rDialog.GetDlgItem(kNotes)->GetWindowText(), "b");
        });
    });
    gSetSystemCodePage(kCodePageUtf8);
}

TEST(ControlWindow, NoBreakBlanksLive)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rPlayer.Then("write", [&] { rDialog.GetDlgItem(kMemo)->SetWindowText("1\xC2\xA0V"); });
        rPlayer.Do({"click memo", "press End", "type !"});
        rPlayer.Then("look", [&] {
            EXPECT_EQ(rDialog.GetDlgItem(kMemo)->GetWindowText(), "1\xC2\xA0V!");
            rDialog.GetDlgItem(kMemo)->SetWindowText("");
        });
    });
}

TEST(ControlWindow, WhatHandlersWriteShowsAtOnce)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rDialog.React("name:change", [&] {
            rDialog.Get<CListBox>(kFruit).AddString("plum");
            rDialog.Get<CListBox>(kFruit).SetCurSel(3);
            rDialog.Get<CComboBox>(kColour).SelectText("violet");
            rDialog.Get<CButton>(kAgain).SetCheck(1);
            rDialog.GetDlgItem(kPress)->SetWindowText("P&ull");
            rDialog.GetDlgItem(kMemo)->EnableWindow(false);
            rDialog.GetDlgItem(kFixed)->ShowWindow(SW_HIDE);
            rDialog.GetDlgItem(kRemark)->MoveWindow({5, 170, 40, 9});
            auto& rTree = rDialog.Get<CTreeCtrl>(kPlaces);
            rTree.DeleteAllItems();
            rTree.SelectItem(rTree.InsertItem("X1", rTree.InsertItem("X")));
            auto& rTable = rDialog.Get<CListCtrl>(kCells);
            rTable.SetItemText(1, 1, "2");
            rTable.InsertItem(0, "w");
            rTable.SetColumnWidth(0, 30);
            rTable.SelectRow(2);
            rDialog.Get<CTabCtrl>(kViews).AddItem("Salt & pepper");
            rDialog.Get<CTabCtrl>(kViews).SetCurSel(2);
            rDialog.CheckRadioButton(kLow, kHigh, kHigh);
        });
        rPlayer.Do({"click name", "type a", "type b"});
        rPlayer.Then("look", [&] {
            EXPECT_EQ(WidgetOf<QTableView>(rDialog, kCells).columnWidth(0), 30);
            EXPECT_EQ(WidgetOf<QTableView>(rDialog, kCells).columnWidth(1), 70);
        });
    });
}

TEST(ControlWindow, AHandlerThatDeletesListsUnderTheMouse)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rDialog.React("places:sel-change",
                      [&] { rDialog.Get<CTreeCtrl>(kPlaces).DeleteAllItems(); });
        rDialog.React("fruit:sel-change", [&] { rDialog.Get<CListBox>(kFruit).ResetContent(); });
        rDialog.React("cells:sel-change", [&] { rDialog.Get<CListCtrl>(kCells).DeleteAllItems(); });
        rDialog.React("shape:sel-change", [&] { rDialog.Get<CComboBox>(kShape).ResetContent(); });
        rPlayer.Do({"click places@B", "click fruit@1", "click cells@2", "click shape", "pick 1"});
    });
}

TEST(ControlWindow, AHandlerMaySelectAnotherEntry)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rDialog.React("places:sel-change", [&] {
            auto& rTree = rDialog.Get<CTreeCtrl>(kPlaces);
            rTree.SelectItem(rTree.GetRootItem());
        });
        rDialog.React("fruit:sel-change", [&] { rDialog.Get<CListBox>(kFruit).SetCurSel(0); });
        rDialog.React("shape:sel-change", [&] { rDialog.Get<CComboBox>(kShape).SetCurSel(-1); });
        rDialog.React("again:clicked", [&] { rDialog.Get<CButton>(kAgain).SetCheck(0); });
        rDialog.React("views:sel-change", [&] { rDialog.Get<CTabCtrl>(kViews).SetCurSel(0); });
        rPlayer.Do({"click places@C", "press Down", "click fruit@2", "press Down", "click shape",
                    "pick 1", "click again", "click views@1"});
    });
}

TEST(ControlWindow, AWindowThatEndsInItsOwnSlotIsNoHarm)
{
    for (const char* pInput : {"click press", "click again", "click level#1", "click fruit@1",
                               "click places@B", "click cells@1", "click views@1", "type a"}) {
        SCOPED_TRACE(pInput);
        LookInto([pInput](CSampleDialog& rDialog, CPlayer& rPlayer) {
            rPlayer.Do({"click name"});
            for (const int nId : {kPress, kAgain, kMiddle, kFruit, kPlaces, kCells, kViews, kName})
                for (const char* pCode : {":clicked", ":sel-change", ":change"})
                    rPlayer.Then("set", [&rDialog, nId, pCode] {
                        CWnd* const pWnd = rDialog.GetDlgItem(nId);
                        rDialog.React(gControlPlace(*pWnd) + pCode,
                                      [pWnd] { pWnd->DestroyWindow(); });
                    });
            rPlayer.Do({pInput});
        });
    }
}

TEST(ControlWindow, NamesForThoseWhoListen)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rPlayer.Then("look", [&] {
            EXPECT_EQ(WidgetOf<QLineEdit>(rDialog, kName).accessibleName(),
                      QStringLiteral("Name:"));
            EXPECT_EQ(WidgetOf<QListView>(rDialog, kFruit).accessibleName(),
                      QStringLiteral("fruit"));
            EXPECT_EQ(WidgetOf<QLabel>(rDialog, LabelOf(kName)).buddy(),
                      gWidgetOf(*rDialog.GetDlgItem(kName)));
            rDialog.GetDlgItem(LabelOf(kName))->SetWindowText("Re&mark:");
            EXPECT_EQ(WidgetOf<QLineEdit>(rDialog, kName).accessibleName(),
                      QStringLiteral("Remark:"));
        });
    });
}

TEST(ControlWindow, TheDefaultButtonLooksIt)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rPlayer.Then("look", [&] {
            EXPECT_TRUE(WidgetOf<QPushButton>(rDialog, IDOK).isDefault());
            EXPECT_FALSE(WidgetOf<QPushButton>(rDialog, IDCANCEL).isDefault());
            EXPECT_FALSE(WidgetOf<QPushButton>(rDialog, IDCANCEL).autoDefault());
        });
    });
}

TEST(ControlWindow, AnEmptyClipboardPastesNothing)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rPlayer.Do({"click notes", "type a"});
        rPlayer.Then("empty the clipboard", [] {
            QGuiApplication::clipboard()->clear(QClipboard::Clipboard);
            if (QGuiApplication::clipboard()->supportsSelection())
                QGuiApplication::clipboard()->clear(QClipboard::Selection);
        });
        for (const char* pField : {"click name", "click notes"})
            rPlayer.Do({pField, "press Ctrl+V"});
        rPlayer.Then("click the middle button", [&] {
            QWidget& rNotes = *gWidgetOf(*rDialog.GetDlgItem(kNotes));
            QTest::mouseClick(rNotes.window()->windowHandle(), Qt::MiddleButton, Qt::NoModifier,
                              rNotes.mapTo(rNotes.window(), rNotes.rect().center()));
        });
        rPlayer.Then("look", [&] { EXPECT_EQ(rDialog.GetDlgItem(kNotes)->GetWindowText(), "a"); });
    });
}

TEST(ControlWindow, ATextIsPastedToTheLetter)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        rPlayer.Do({"click notes"});
        rPlayer.Then("fill the clipboard", [] {
            auto* const pData = new QMimeData;
            pData->setData(QStringLiteral("text/markdown"), "# *a*");
            pData->setText(QStringLiteral("# *a*\nb"));
            QGuiApplication::clipboard()->setMimeData(pData);
        });
        rPlayer.Do({"press Ctrl+V"});
        rPlayer.Then("look",
                     [&] { EXPECT_EQ(rDialog.GetDlgItem(kNotes)->GetWindowText(), "# *a*\r\nb"); });
    });
}

/// Turns the wheel over a widget, one step down.
void TurnWheel(QWidget& rWidget)
{
    const QPoint place = rWidget.rect().center();
    QWheelEvent event(place, rWidget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&rWidget, &event);
}

TEST(ControlWindow, TheWheelTurnsAListOnlyWithTheKeyboardOnIt)
{
    LookInto([](CSampleDialog& rDialog, CPlayer& rPlayer) {
        for (const int nId : {kShape, kColour}) {
            const auto turn = [&rDialog, nId] { TurnWheel(WidgetOf<QComboBox>(rDialog, nId)); };
            rPlayer.Do({"click name"});
            rPlayer.Then("select", [&rDialog, nId] { rDialog.Get<CComboBox>(nId).SetCurSel(0); });
            rPlayer.Then("turn", turn);
            rPlayer.Then("look", [&rDialog, nId] {
                EXPECT_EQ(rDialog.Get<CComboBox>(nId).GetCurSel(), 0);
                EXPECT_EQ(CWnd::GetFocus(), rDialog.GetDlgItem(kName));
                gWidgetOf(*rDialog.GetDlgItem(nId))->setFocus();
            });
            rPlayer.Then("turn", turn);
            rPlayer.Then(
                "look", [&rDialog, nId] { EXPECT_EQ(rDialog.Get<CComboBox>(nId).GetCurSel(), 1); });
        }
    });
}
} // namespace
