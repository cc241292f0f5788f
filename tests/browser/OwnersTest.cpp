#include "browser/BrowseDevice.h"
#include "browser/BrowserTest.h"
#include "browser/ParameterBrowserCircuitModelDatasetsDlg.h"
#include "browser/ParameterBrowserDevicesDlg.h"
#include "browser/ParameterBrowserQuorvaModelsDlg.h"

#include <gtest/gtest.h>

// Each window of the browser belongs to the one that opened it.

namespace
{

using namespace steps;

CScript::TAction OwnedBy(const CWnd& rOwner)
{
    return [&rOwner](CDialog& rDialog) { EXPECT_EQ(rDialog.GetOwner(), &rOwner); };
}

class OwnersTest : public BrowserTest
{
};

TEST_F(OwnersTest, DetailsOfADevice)
{
    TParameterBrowserDevicesDlg dialog(nullptr, mStore, "", true);
    Play(dialog, CScript().Do({Click("details")}).Then(OwnedBy(dialog)));
}

TEST_F(OwnersTest, DetailsOfAModelAndItsClass)
{
    TParameterBrowserCircuitModelDatasetsDlg dialog(nullptr, mStore, true);
    Play(dialog, CScript()
                     .Do({Click("details")})
                     .Then(OwnedBy(dialog))
                     .Do({Click("close"), Click("quorva-models")})
                     .Then(OwnedBy(dialog)));
}

TEST_F(OwnersTest, DetailsOfAClass)
{
    TParameterBrowserQuorvaModelsDlg dialog(nullptr, mStore, "");
    Play(dialog, CScript().Do({Click("details")}).Then(OwnedBy(dialog)));
}

TEST_F(OwnersTest, ADeviceThatAHostAsksForAndTheListInItsPlace)
{
    CWnd parent;
    for (const char* const pName : {"m1", "absent"}) {
        CScript().Then(OwnedBy(parent)).Run(mDesktop, [&] {
            gBrowseDevice(&parent, mStore, mStore.GetSubcktName(0), pName);
        });
    }
}

} // namespace
