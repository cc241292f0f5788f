#include "platform/ui/DataExchange.h"
#include "platform/ui/Edit.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"

#include <gtest/gtest.h>

#include <stdexcept>

// While UpdateData runs, notifications of that window's controls are swallowed.

namespace
{
void Poke(const CLogDialog& rDialog)
{
    rDialog.Get<CEdit>(kName).SetWindowText("poked");
}

TEST(UpdateLockTest, SwallowsTheWindowsNotificationsInBothDirections)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.Exchange([&](CDataExchange*) { Poke(dialog); });
        dialog.UpdateData(true);
        dialog.UpdateData(false);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
        Poke(dialog);
        EXPECT_EQ(dialog.TakeLog(), TLog{"name:change"});
    });
}

TEST(UpdateLockTest, SwallowsTheUsersActionsAndFocusChangesToo)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.LogFocus();
        dialog.Exchange([&](CDataExchange*) {
            EXPECT_EQ(gAct(dialog, "set notes=x"), "");
            EXPECT_EQ(gAct(dialog, "click press"), "");
        });
        dialog.UpdateData(true);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
        EXPECT_EQ(dialog.Get<CEdit>(kNotes).GetWindowText(), "x");
        EXPECT_EQ(gFocusName(), "press");
    });
}

TEST(UpdateLockTest, IsSavedAndRestoredWhenNested)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        int nDepth = 0;
        dialog.Exchange([&](CDataExchange*) {
            if (++nDepth < 3)
                dialog.UpdateData(false);
            // The inner call is over and must not have opened the lock of the outer one.
            Poke(dialog);
        });
        dialog.UpdateData(true);
        EXPECT_EQ(nDepth, 3);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
        Poke(dialog);
        EXPECT_EQ(dialog.TakeLog(), TLog{"name:change"});
    });
}

TEST(UpdateLockTest, BelongsToItsWindow)
{
    CSampleDialog dialog;
    CLogDialog pane(kSampleTemplate);
    gLookInto(dialog, [&] {
        ASSERT_TRUE(pane.CreatePane(dialog));
        dialog.Exchange([&](CDataExchange*) {
            Poke(dialog);
            Poke(pane);
        });
        dialog.UpdateData(true);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
        EXPECT_EQ(pane.TakeLog(), TLog{"name:change"});

        dialog.Exchange({});
        pane.Exchange([&](CDataExchange*) {
            Poke(dialog);
            Poke(pane);
        });
        pane.UpdateData(true);
        EXPECT_EQ(dialog.TakeLog(), TLog{"name:change"});
        EXPECT_EQ(pane.TakeLog(), TLog{});
    });
}

TEST(UpdateLockTest, AnExceptionRestoresIt)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        dialog.Exchange([](CDataExchange*) { throw std::runtime_error("exchange"); });
        EXPECT_THROW(dialog.UpdateData(true), std::runtime_error);
        EXPECT_THROW(dialog.UpdateData(false), std::runtime_error);
        Poke(dialog);
        EXPECT_EQ(dialog.TakeLog(), TLog{"name:change"});
    });
}

TEST(UpdateLockTest, AnExceptionOfTheInnerCallKeepsTheOuterLock)
{
    CSampleDialog dialog;
    gLookInto(dialog, [&] {
        bool bInner = false;
        dialog.Exchange([&](CDataExchange*) {
            if (std::exchange(bInner, true))
                throw std::runtime_error("inner");
            EXPECT_THROW(dialog.UpdateData(false), std::runtime_error);
            Poke(dialog);
        });
        dialog.UpdateData(true);
        EXPECT_EQ(dialog.TakeLog(), TLog{});
    });
}

TEST(UpdateLockTest, ReflectedHandlersAreSwallowedToo)
{
    struct TReflecting : CEdit {
        int mnReflected = 0;
        bool OnReflected(ENotify) override { return ++mnReflected > 0; }
    };
    CSampleDialog dialog;
    TReflecting edit;
    dialog.Exchange([&](CDataExchange* pDX) { DDX_Control(pDX, kName, edit); });
    gLookInto(dialog, [&] {
        edit.mnReflected = 0; // the focus has come by
        dialog.Exchange([&](CDataExchange*) { edit.SetWindowText("x"); });
        dialog.UpdateData(false);
        EXPECT_EQ(edit.mnReflected, 0);
        edit.SetWindowText("y");
        EXPECT_EQ(edit.mnReflected, 1);
    });
}
} // namespace
