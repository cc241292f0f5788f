// What reading takes from the heap, beyond what the store keeps.

#include "params/PeakMemory.h"
#include "params/SampleStore.h"
#include "params/StoreText.h"

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

} // namespace
