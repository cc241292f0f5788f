// The rows and the CSV text of the browser's lists and of a class's parameters, against copying the
// same texts into a vector of strings.

#include "ExampleFile.h"
#include "Ratio.h"
#include "browser/CsvLine.h"
#include "browser/ListTables.h"
#include "browser/ParamRow.h"
#include "params/CircuitParams.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace
{

void BM_DevicesTable(benchmark::State& rState)
{
    const CExampleFile file(rState.range(0));
    TCircuitParams store;
    store.ReadThis(file.Path(), "");
    const std::vector<TDeviceListEntry> devices = store.GetDeviceList(-1);
    const TParamTableData composed = gMakeDevicesTable(store, devices, "");
    // What was made stays to the end, so that giving it back doesn't count.
    struct TComposed {
        TParamTableData mTable;
        CStringU msText;
    };
    std::vector<TComposed> ours;
    std::vector<std::vector<std::string>> theirs;
    gRunBoth(
        rState,
        [&] {
            TComposed& rComposed = ours.emplace_back();
            rComposed.mTable = gMakeDevicesTable(store, devices, "");
            rComposed.msText = gMakeExportText(rComposed.mTable);
            return rComposed.msText.GetLength();
        },
        [&] {
            std::vector<std::string>& rCopies = theirs.emplace_back();
            for (const TParamTableRow& rRow : composed.mRows) {
                for (const TParamTableCell& rCell : rRow) {
                    rCopies.emplace_back(rCell.msText.Text());
                }
            }
            return rCopies.size();
        });
    rState.counters["ours_ns_per_device"] =
        rState.counters["ours_ns"] / static_cast<double>(rState.range(0));
}

constexpr std::int64_t kMost = QUORVAWIZ_LONG_RUNS ? 10'000'000 : 1'000'000;
BENCHMARK(BM_DevicesTable)
    ->RangeMultiplier(10)
    ->Range(10'000, kMost)
    ->Iterations(3)
    ->Unit(benchmark::kMillisecond);

void BM_ParamRows(benchmark::State& rState)
{
    std::mt19937 random(1);
    std::vector<TParamDef> params;
    for (std::int64_t n = 0; n < rState.range(0); ++n) {
        TParamDef def;
        def.msName = "param" + std::to_string(random() % 100'000);
        def.mValue = 1e-6 / (1.0 + static_cast<double>(random()));
        def.msUnits = "V/sqrt(m)";
        def.msDescription = "Coefficient of the channel length's dependence";
        params.push_back(def);
    }
    gRunBoth(rState, gRepeated([&] { return gMakeParamRows(params).size(); }), gRepeated([&] {
                 std::vector<std::string> copies;
                 for (const TParamDef& rParam : params) {
                     for (const CStringU* const pText :
                          {&rParam.msName, &rParam.msUnits, &rParam.msDescription}) {
                         copies.emplace_back(pText->Text());
                     }
                 }
                 return copies.size();
             }));
    constexpr double repeats = 100;
    rState.counters["ours_us_per_call"] = rState.counters["ours_ns"] / repeats / 1000;
}
BENCHMARK(BM_ParamRows)->Arg(100)->Arg(1000)->Arg(10'000);

} // namespace
