// Windows over stores that a damaged file has left half filled, in the hands of a random user.

#include "browser/BrowserTest.h"
#include "exports/Quorvawiz.h"
#include "params/TextStore.h"
#include "params/archive/ArchiveError.h"
#include "params/archive/MemorySource.h"
#include "params/archive/MemoryTarget.h"
#include "support/TableLook.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace
{

/// Does something in the innermost window; what the window refuses is refused.
class CRandomUser
{
public:
    explicit CRandomUser(unsigned nSeed) : mRandom(nSeed) {}

    bool Act(CDialog& rDialog)
    {
        static constexpr std::array kButtons{"details", "details",     "quorva-models", "export",
                                             "close",   "recalculate", "reevaluate"};
        switch (Below(5)) {
        case 0:
            gRunStep(rDialog, steps::Select("table", Below(7) - 1));
            break;
        case 1:
            gRunStep(rDialog, steps::Select("tabs", Below(4)));
            break;
        case 2:
            gRunStep(rDialog, steps::DoubleClick("table"));
            break;
        case 3:
            static_cast<void>(rDialog.UserSize(Below(2) == 0 ? SIZE_RESTORED : SIZE_MINIMIZED,
                                               {Below(2000), Below(1000)}));
            break;
        default:
            gRunStep(
                rDialog,
                steps::Click(
                    kButtons[static_cast<std::size_t>(Below(static_cast<int>(kButtons.size())))]));
            break;
        }
        return ++mnActions < 40;
    }

    /// A number from 0 on.
    int Below(int nEnd) { return static_cast<int>(mRandom() % static_cast<unsigned>(nEnd)); }

private:
    std::mt19937 mRandom;
    int mnActions = 0;
};

class DamagedStoreTest : public BrowserTest
{
protected:
    DamagedStoreTest()
    {
        CMemoryTarget target;
        gSaveText(target, mStore);
        msWhole = target.GetBytes();
    }

    /// Reads a file as far as it goes, and shows every window over it.
    /// @return whether it is whole
    bool Show(std::string_view sFile, unsigned nSeed)
    {
        TCircuitParams store;
        CMemorySource source(sFile);
        bool bWhole = true;
        try {
            gLoadText(source, store);
        } catch (const CParamsArchiveError&) {
            bWhole = false;
        }
        const auto as = [&](const auto& rCall) {
            CRandomUser user(nSeed);
            mDesktop.SetNextAction([&user](CDialog& rDialog) { return user.Act(rDialog); });
            rCall();
        };
        using namespace quorvawiz;
        as([&] { gInvokeParamBrowserDevicesDialog(nullptr, store, true); });
        as([&] { gInvokeParamBrowserLibraryModelsDialog(nullptr, store, true); });
        as([&] { gInvokeParamBrowserQuorvaModelsDialog(nullptr, store, "MOS1"); });
        for (const char* const pDevice : {"M2", "r10"}) {
            as([&] { gInvokeDeviceDetailsDialog(nullptr, store, "x1", pDevice); });
        }
        return bWhole;
    }

    std::string msWhole;
};

TEST_F(DamagedStoreTest, AFileThatEndsAnywhere)
{
    EXPECT_TRUE(Show(msWhole, 0));
    for (std::size_t nSize = 0; nSize < msWhole.size(); ++nSize) {
        SCOPED_TRACE(nSize);
        EXPECT_FALSE(Show(msWhole.substr(0, nSize), static_cast<unsigned>(nSize)));
    }
}

TEST_F(DamagedStoreTest, AFileWithAnotherDigitAnywhere)
{
    int nWhole = 0;
    for (std::size_t nAt = 0; nAt < msWhole.size(); ++nAt) {
        if (msWhole[nAt] < '0' || msWhole[nAt] > '9') {
            continue;
        }
        SCOPED_TRACE(nAt);
        std::string sFile = msWhole;
        sFile[nAt] = sFile[nAt] == '9' ? '0' : static_cast<char>(sFile[nAt] + 1);
        nWhole += Show(sFile, static_cast<unsigned>(nAt)) ? 1 : 0;
    }
    EXPECT_GT(nWhole, 100); // other ids, levels and values among them
}

} // namespace
