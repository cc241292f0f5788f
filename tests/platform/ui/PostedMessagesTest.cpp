#include "platform/ui/MessagePump.h"
#include "platform/ui/PropertyPage.h"
#include "platform/ui/SampleDialog.h"
#include "platform/ui/TemplateRows.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace
{
constexpr UINT WM_TEST = WM_APP + 5;

/// A window that writes down what comes by, and takes what it is told to take.
class CListening : public CPropertyPage
{
public:
    CListening(const char* pName, TLog& rLog)
        : CPropertyPage(kSampleTemplate), msName(pName), mrLog(rLog)
    {
    }
    bool mbTake = false;
    std::function<void()> mAtTranslate;
    std::function<void()> mAtMessage;

    bool PreTranslateMessage(const TMsg& rMsg) override
    {
        mrLog.push_back(msName + " sees " + std::to_string(rMsg.wParam));
        if (mAtTranslate)
            mAtTranslate();
        return mbTake;
    }
    LRESULT DefWindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        if (nMessage != WM_TEST)
            return CPropertyPage::DefWindowProc(nMessage, wParam, lParam);
        mrLog.push_back(msName + " gets " + std::to_string(wParam) + ' ' + std::to_string(lParam));
        if (mAtMessage)
            mAtMessage();
        return 0;
    }

private:
    std::string msName;
    TLog& mrLog;
};

struct PostedMessagesTest : testing::Test {
    /// Runs the outer window with the pane and the pane's pane in place.
    void In(const std::function<void()>& rLook)
    {
        gLookInto(mTop, [&] {
            ASSERT_TRUE(mPane.CreatePane(mTop));
            ASSERT_TRUE(mpInner->CreatePane(mPane));
            mLog.clear();
            rLook();
        });
    }
    TLog mLog;
    CListening mTop{"top", mLog};
    CListening mPane{"pane", mLog};
    std::unique_ptr<CListening> mpInner = std::make_unique<CListening>("inner", mLog);
};

TEST_F(PostedMessagesTest, WaitUntilTheyArePumped)
{
    In([this] {
        EXPECT_TRUE(mTop.PostMessage(WM_TEST, 1, 2));
        EXPECT_TRUE(mTop.PostMessage(WM_TEST, 3));
        EXPECT_EQ(mLog, TLog{});
        gPumpPostedMessages();
        EXPECT_EQ(mLog, (TLog{"top sees 1", "top gets 1 2", "top sees 3", "top gets 3 0"}));
        gPumpPostedMessages();
        EXPECT_EQ(mLog.size(), 4U);
    });
}

TEST_F(PostedMessagesTest, WalkFromTheChildToTheTop)
{
    In([this] {
        mpInner->PostMessage(WM_TEST, 7);
        gPumpPostedMessages();
        EXPECT_EQ(mLog, (TLog{"inner sees 7", "pane sees 7", "top sees 7", "inner gets 7 0"}));
    });
}

TEST_F(PostedMessagesTest, WhatIsTakenGoesNoFurther)
{
    In([this] {
        mPane.mbTake = true;
        mpInner->PostMessage(WM_TEST, 7);
        mTop.PostMessage(WM_TEST, 8);
        gPumpPostedMessages();
        EXPECT_EQ(mLog, (TLog{"inner sees 7", "pane sees 7", "top sees 8", "top gets 8 0"}));
    });
}

TEST_F(PostedMessagesTest, ASentMessageIsNotTranslated)
{
    In([this] {
        mTop.mbTake = true;
        mpInner->SendMessage(WM_TEST, 7);
        EXPECT_EQ(mLog, TLog{"inner gets 7 0"});
    });
}

TEST_F(PostedMessagesTest, AHandlersOwnPostIsDeliveredInTheSamePump)
{
    In([this] {
        int nLeft = 2;
        mTop.mAtMessage = [&] {
            if (nLeft-- > 0)
                mPane.PostMessage(WM_TEST, 9);
        };
        mTop.PostMessage(WM_TEST, 1);
        mTop.PostMessage(WM_TEST, 2);
        mTop.mbTake = false;
        gPumpPostedMessages();
        EXPECT_EQ(mLog, (TLog{"top sees 1", "top gets 1 0", "top sees 2", "top gets 2 0",
                              "pane sees 9", "top sees 9", "pane gets 9 0", "pane sees 9",
                              "top sees 9", "pane gets 9 0"}));
    });
}

TEST_F(PostedMessagesTest, AWindowThatEndsDropsWhatWaitsForIt)
{
    In([this] {
        mpInner->PostMessage(WM_TEST, 1);
        mTop.PostMessage(WM_TEST, 2);
        mpInner->PostMessage(WM_TEST, 3);
        mpInner->DestroyWindow();
        gPumpPostedMessages();
        EXPECT_EQ(mLog, (TLog{"top sees 2", "top gets 2 0"}));
        EXPECT_FALSE(mpInner->PostMessage(WM_TEST, 4));
    });
}

TEST_F(PostedMessagesTest, AnObjectThatEndsDropsThemToo)
{
    In([this] {
        mpInner->PostMessage(WM_TEST, 1);
        mpInner.reset();
        gPumpPostedMessages();
        EXPECT_EQ(mLog, TLog{});
    });
}

TEST_F(PostedMessagesTest, AWindowMayEndWhileItsMessageIsLookedAt)
{
    struct TCase {
        const char* pName;
        std::function<void(PostedMessagesTest&)> prepare;
        TLog expected;
    };
    const TCase kCases[] = {
        {"the window ends itself",
         [](PostedMessagesTest& r) {
             r.mpInner->mAtTranslate = [&r] { r.mpInner->DestroyWindow(); };
         },
         {"inner sees 7"}},
        {"its pane ends it",
         [](PostedMessagesTest& r) { r.mPane.mAtTranslate = [&r] { r.mpInner->DestroyWindow(); }; },
         {"inner sees 7", "pane sees 7"}},
        {"the object is gone",
         [](PostedMessagesTest& r) { r.mPane.mAtTranslate = [&r] { r.mpInner.reset(); }; },
         {"inner sees 7", "pane sees 7"}},
        {"the pane goes with it",
         [](PostedMessagesTest& r) { r.mPane.mAtTranslate = [&r] { r.mPane.DestroyWindow(); }; },
         {"inner sees 7", "pane sees 7"}},
        {"an earlier message ends it",
         [](PostedMessagesTest& r) {
             r.mTop.PostMessage(WM_TEST, 1);
             r.mTop.mAtMessage = [&r] { r.mpInner.reset(); };
         },
         {"top sees 1", "top gets 1 0"}},
    };
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        mpInner = std::make_unique<CListening>("inner", mLog);
        mTop.mAtMessage = mTop.mAtTranslate = mPane.mAtTranslate = {};
        In([&] {
            rCase.prepare(*this);
            mpInner->PostMessage(WM_TEST, 7);
            gPumpPostedMessages();
            EXPECT_EQ(mLog, rCase.expected);
        });
    }
}

TEST_F(PostedMessagesTest, AnExceptionLosesOnlyItsOwnMessage)
{
    In([this] {
        mTop.mAtMessage = [this] {
            mTop.mAtMessage = {};
            throw std::runtime_error("handler");
        };
        mTop.PostMessage(WM_TEST, 1);
        mTop.PostMessage(WM_TEST, 2);
        EXPECT_THROW(gPumpPostedMessages(), std::runtime_error);
        gPumpPostedMessages();
        EXPECT_EQ(mLog, (TLog{"top sees 1", "top gets 1 0", "top sees 2", "top gets 2 0"}));
    });
}

TEST_F(PostedMessagesTest, ADialogGetsThemBeforeTheUsersNextTurn)
{
    HeadlessDesktop desktop;
    gRunTurns(desktop, mTop,
              {[this](CDialog&) {
                   mTop.PostMessage(WM_TEST, 1);
                   EXPECT_EQ(mLog, TLog{});
               },
               [this](CDialog&) {
                   EXPECT_EQ(mLog, (TLog{"top sees 1", "top gets 1 0"}));
               }});
}

TEST(PostedAtInitTest, ArriveBeforeTheUsersFirstTurn)
{
    HeadlessDesktop desktop;
    TLog log;
    CListening pane("pane", log);
    CSampleDialog dialog;
    dialog.AtInit([&] {
        pane.CreatePane(dialog);
        pane.PostMessage(WM_TEST, 3);
        return true;
    });
    gRunTurns(desktop, dialog, {[&](CDialog&) {
                  EXPECT_EQ(log, (TLog{"pane sees 3", "pane gets 3 0"}));
              }});
}
} // namespace
