// What composing the list of devices takes from the heap, beyond what the dialog keeps.

#include "browser/CsvLine.h"
#include "browser/ListTables.h"
#include "browser/ParameterBrowserDevicesDlg.h"
#include "params/SampleStore.h"
#include "support/PeakMemory.h"
#include "support/Steps.h"
#include "support/WizardRun.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace
{

TEST(TableMemoryTest, ThePeakIsLittleMoreThanEntriesRowsAndText)
{
    TCircuitParams store;
    for (int nSubckt = 0; nSubckt < 10; ++nSubckt) {
        store.AddSubckt("X" + std::to_string(nSubckt), nSubckt);
        for (int n = 0; n < 2100; ++n) { // a little above a power of two in all
            const std::string sName = "M" + std::to_string(n);
            store.AddDevice(gDevice(nSubckt, n % 2 == 0 ? sName : sName + "_of_a_longer_name",
                                    {0, n % 3 == 0 ? "a,b" : "n1", "MOS1", "nmos"}));
        }
    }
    std::size_t nComposed = 0;
    for (const char* const pFilter : {"X3", ""}) {
        const CPeakMemory all;
        const TDeviceList devices = gMakeDeviceList(store, pFilter);
        const TParamTableData table = gMakeDevicesTable(store, devices.mEntries, devices.msFilter);
        const CStringU sText = gMakeExportText(table);
        EXPECT_GT(all.GetNow(), static_cast<std::size_t>(sText.GetLength())) << pFilter;
        EXPECT_LT(static_cast<double>(all.GetPeak()), 1.01 * static_cast<double>(all.GetNow()))
            << pFilter;
        nComposed = all.GetNow();
    }
    HeadlessDesktop desktop;
    const CPeakMemory all;
    TParameterBrowserDevicesDlg dialog(nullptr, store, "", true);
    CScript().Do({steps::Click("close")}).Run(desktop, [&dialog] { dialog.DoModal(); });
    EXPECT_LT(static_cast<double>(all.GetPeak()), 1.05 * static_cast<double>(nComposed));
}

} // namespace
