#include "exports/Quorvawiz.h"
#include "platform/base/Exceptions.h"
#include "support/Steps.h"
#include "support/VirtualSlot.h"
#include "support/WizardRun.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{
using namespace steps;

const std::vector<TStep> kInsertTemperature = {Open("Settings/Temperature"),
                                               Set("temperature-list", "0 27 85"), Insert()};

class InvokeSpiceCommandWizard : public testing::Test
{
protected:
    InvokeSpiceCommandWizard() { CRememberedBase::ResetAll(); }
};

TEST_F(InvokeSpiceCommandWizard, AScriptDrivesTheWizardAsAPersonWould)
{
    EXPECT_EQ(gRunWizard(kInsertTemperature).inserted, std::vector<std::string>{".temp 0 27 85"});
}

TEST_F(InvokeSpiceCommandWizard, OneRunInsertsAnyNumberOfCommandsFromAnyPages)
{
    const auto outcome =
        gRunWizard({Open("settings/temperature"), Set("temperature-list", "1"), Insert(),
                    Open("Analysis"), Open("Settings"), Open("Settings/Temperature"),
                    Set("temperature-list", "2"), Insert(), Close()});
    EXPECT_EQ(outcome.inserted, (std::vector<std::string>{".temp 1", ".temp 2"}));
}

TEST_F(InvokeSpiceCommandWizard, TheParentOwnsTheDialogAndIsNotTested)
{
    HeadlessDesktop desktop;
    CWnd parent;
    CScript()
        .Then([&parent](CDialog& rDialog) { EXPECT_EQ(rDialog.GetOwner(), &parent); })
        .Run(desktop, [&parent] { quorvawiz::gInvokeSpiceCommandWizard(&parent, nullptr); });
}

TEST_F(InvokeSpiceCommandWizard, ANullTargetRaisesTheInvalidArgumentExceptionAtTheFirstInsertion)
{
    HeadlessDesktop desktop;
    bool bReached = false;
    CScript script;
    script.Do({kInsertTemperature[0], kInsertTemperature[1]});
    script.Then([&bReached](CDialog& rDialog) {
        bReached = true;
        gRunStep(rDialog, kInsertTemperature[2]);
    });
    EXPECT_THROW(
        script.Run(desktop, [] { quorvawiz::gInvokeSpiceCommandWizard(nullptr, nullptr); }),
        CInvalidArgException);
    EXPECT_TRUE(bReached);
    EXPECT_TRUE(desktop.Thread().mModalRuns.empty());
}

TEST_F(InvokeSpiceCommandWizard, AnExceptionOfTheTargetPassesThroughAndEndsTheRun)
{
    class CThrowingTarget : public quorvawiz::QuorvaCommandWizardTarget
    {
    public:
        void InsertCommand(CString) override { throw std::runtime_error("the host is full"); }
    };
    HeadlessDesktop desktop;
    CThrowingTarget target;
    CScript script;
    script.Do({kInsertTemperature[0], kInsertTemperature[1]});
    script.Then([](CDialog& rDialog) { gRunStep(rDialog, kInsertTemperature[2]); });
    EXPECT_THROW(
        script.Run(desktop, [&target] { quorvawiz::gInvokeSpiceCommandWizard(nullptr, &target); }),
        std::runtime_error);
    EXPECT_TRUE(desktop.Thread().mModalRuns.empty());
    EXPECT_EQ(CWnd::GetFocus(), nullptr);
}

TEST_F(InvokeSpiceCommandWizard, InsertCommandIsTheTargetsFirstVirtualOperation)
{
    EXPECT_EQ(gVirtualSlot(&quorvawiz::QuorvaCommandWizardTarget::InsertCommand), 0U);
}
} // namespace
