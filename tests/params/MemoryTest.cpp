// What reading takes from the heap, beyond what the store keeps.

#include "params/SampleStore.h"
#include "params/StoreText.h"
#include "params/archive/ArchiveError.h"
#include "support/PeakMemory.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <string>

namespace
{

/// A store of so many devices with 12 values each, and a model for every tenth.
void FillBig(TCircuitParams& rStore, int nDevices)
{
    static constexpr std::array kNames{"w",   "l",   "ad", "as", "pd",  "ps",
                                       "vgs", "vds", "id", "gm", "gds", "vth"};
    gFillSample(rStore);
    TModelHeader model;
    for (int n = 0; n < nDevices; ++n) {
        if (n % 10 == 0) {
            model = {1, "nmos_corner_model_" + std::to_string(n), "MOS1", "nmos"};
            rStore.AddModel(gModel(1, model.msName, model.msClass, model.msType));
        }
        TDeviceData device = gDevice(1, "M" + std::to_string(n), model);
        for (const char* const pName : kNames) {
            device.mDeviceParamValues[pName] = 1.0 / (n + 1);
        }
        rStore.AddDevice(device);
    }
}

TEST(ReadMemoryTest, ThePeakIsLittleMoreThanTheLoadedStore)
{
    std::string sFile;
    {
        TCircuitParams store;
        FillBig(store, 30'000);
        sFile = gOursOf(store);
    }
    const CPeakMemory all;
    TCircuitParams store;
    gReadOurs(sFile, store);
    const std::size_t nPeak = all.GetPeak();
    const std::size_t nLoaded = all.GetNow();
    EXPECT_GT(nLoaded, sFile.size() / 2);
    EXPECT_LT(static_cast<double>(nPeak), 1.1 * static_cast<double>(nLoaded));
}

TEST(ReadMemoryTest, ABigFileThatIsDamagedLateNeedsNoMoreThanAWholeOne)
{
    std::string sFile;
    {
        TCircuitParams store;
        FillBig(store, 10'000);
        sFile = gOursOf(store);
    }
    ASSERT_GT(sFile.size(), 3'000'000U);
    std::size_t nWhole = 0;
    {
        const CPeakMemory all;
        TCircuitParams store;
        gReadOurs(sFile, store);
        nWhole = all.GetPeak();
    }
    EXPECT_LT(nWhole, 8 * sFile.size());
    const std::size_t nLate = sFile.rfind(" 3 vth\n");
    ASSERT_NE(nLate, std::string::npos);
    ASSERT_GT(nLate, sFile.size() - 10'000);
    const std::string sFront = sFile.substr(0, nLate);
    for (const char* const pEnd :
         {"", " ", " 3 vt", " x", " 99999999999 vth 2 ", " 18446744073709551615 ",
          " 9999 vth 2 0 12 0 4000000000 4000000000 ", " 3 vth 9 "}) {
        const std::string sDamaged = sFront + pEnd;
        const CPeakMemory peak;
        TCircuitParams store;
        EXPECT_THROW(gReadOurs(sDamaged, store), CParamsArchiveError) << pEnd;
        EXPECT_LE(peak.GetPeak(), nWhole + 10'000) << pEnd;
        EXPECT_GT(store.mCircuitDeviceDatasets.at(1).size(), 9'000U) << pEnd; // it came far
    }
}

} // namespace
