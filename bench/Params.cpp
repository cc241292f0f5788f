// Params files of an example circuit, read and written against the archive library's own archives
// on the same file, and lookups of devices.

#include "ExampleFile.h"
#include "Ratio.h"
#include "params/CircuitParams.h"
#include "params/Serialize.h"
#include "params/TextStore.h"
#include "params/archive/FileSource.h"
#include "params/archive/SavedFile.h"

#include <boost/archive/text_iarchive.hpp>
#include <boost/archive/text_oarchive.hpp>
#include <boost/smart_ptr/make_shared.hpp>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <ios>
#include <random>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace
{

/// A store, which the benchmark's turn gives back after the clock has stopped.
using TStores = std::vector<boost::shared_ptr<TCircuitParams>>;

void BM_Read(benchmark::State& rState)
{
    const CExampleFile file(rState.range(0));
    TStores stores;
    gRunBoth(
        rState,
        [&] {
            stores.clear();
            stores.push_back(boost::make_shared<TCircuitParams>());
            CFileSource source(CStringU(file.Path()));
            return gLoadText(source, *stores.back());
        },
        [&] {
            stores.clear();
            stores.push_back(boost::make_shared<TCircuitParams>());
            std::ifstream stream(file.Path());
            boost::archive::text_iarchive archive(stream);
            archive >> *stores.back();
            return stores.back()->mCircuitDeviceDatasets.size();
        });
    rState.counters["ours_ns_per_device"] =
        rState.counters["ours_ns"] / static_cast<double>(rState.range(0));
}

void BM_Write(benchmark::State& rState)
{
    const CExampleFile file(rState.range(0));
    TCircuitParams store;
    store.ReadThis(file.Path(), "");
    const std::string sOut = file.Path() + ".out";
    const TCircuitParams& rStore = store;
    gRunBoth(
        rState,
        [&] {
            rStore.WriteThis(sOut, "");
            return std::filesystem::file_size(sOut);
        },
        [&] {
            {
                std::ofstream stream(sOut);
                boost::archive::text_oarchive archive(stream);
                archive << rStore;
            }
            return std::filesystem::file_size(sOut);
        });
    rState.counters["ours_ns_per_device"] =
        rState.counters["ours_ns"] / static_cast<double>(rState.range(0));
    std::filesystem::remove(sOut);
}

constexpr std::int64_t kUsual = 300'000;
constexpr std::int64_t kMost = QUORVAWIZ_LONG_RUNS ? 3'000'000 : kUsual;

BENCHMARK(BM_Read)
    ->RangeMultiplier(10)
    ->Range(3000, kMost)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Write)
    ->RangeMultiplier(10)
    ->Range(3000, kMost)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

void BM_DeviceNoCase(benchmark::State& rState)
{
    const CExampleFile file(rState.range(0));
    TCircuitParams store;
    store.ReadThis(file.Path(), "");
    std::vector<std::pair<CStringU, CStringU>> names;
    std::vector<std::pair<CStringU, CStringU>> lowered;
    for (const TDeviceListEntry& rEntry : store.GetDeviceList(-1)) {
        names.emplace_back(store.GetSubcktName(rEntry.mnSubckt), rEntry.msName);
    }
    std::shuffle(names.begin(), names.end(), std::mt19937(1));
    names.resize(std::min<std::size_t>(names.size(), 10'000));
    lowered.reserve(names.size());
    for (auto [sSubckt, sName] : names) {
        // Some capital letters don't lead back to the small one, so both are lowered.
        lowered.emplace_back(sSubckt.MakeLower(), sName.MakeLower());
    }
    benchmark::DoNotOptimize(store.GetDeviceDataNoCase("TOP", "x")); // makes the index
    const auto findAll = [&store](const auto& rNames, auto find) {
        std::size_t nFound = 0;
        for (const auto& [rsSubckt, rsName] : rNames) {
            nFound += find(store, rsSubckt, rsName) != nullptr ? 1 : 0;
        }
        if (nFound != rNames.size()) {
            throw std::runtime_error("a device isn't found");
        }
        return nFound;
    };
    gRunBoth(
        rState,
        [&] {
            return findAll(lowered,
                           [](const auto& rStore, const auto& rsSubckt, const auto& rsName) {
                               return rStore.GetDeviceDataNoCase(rsSubckt, rsName);
                           });
        },
        [&] {
            return findAll(names, [](const auto& rStore, const auto& rsSubckt, const auto& rsName) {
                return rStore.GetDeviceData(rsSubckt, rsName);
            });
        });
}
BENCHMARK(BM_DeviceNoCase)->Arg(3000)->Arg(kUsual)->Unit(benchmark::kMillisecond);

} // namespace
