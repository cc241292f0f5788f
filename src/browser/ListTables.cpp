#include "browser/ListTables.h"

#include "browser/DisplayName.h"

#include <optional>
#include <string>

namespace
{

/// Composes the names of a list. What stands in front of a name is kept as long as the subcircuit
/// stays the same, as it does for many rows.
class CNames
{
public:
    CNames(const TCircuitParams& rStore, const CStringU& rsFilter)
        : mrStore(rStore), msFilter(rsFilter.IsEmpty() ? rsFilter : rsFilter + ".")
    {
    }

    CStringU Compose(int nSubckt, const CStringU& rsName)
    {
        if (nSubckt != mnSubckt) {
            msFront = msFilter + gMakeDisplayName(mrStore, nSubckt, {});
            mnSubckt = nSubckt;
        }
        return msFront.IsEmpty() ? rsName : msFront + rsName;
    }

private:
    const TCircuitParams& mrStore;
    CStringU msFilter;
    CStringU msFront;
    std::optional<int> mnSubckt; // that of msFront
};

} // namespace

TDeviceList gMakeDeviceList(const TCircuitParams& rStore, const CStringU& rsFilter)
{
    constexpr int all = -1; // also the id of a name that isn't known
    const int nSubckt = rsFilter.IsEmpty() ? all : rStore.GetSubcktId(rsFilter);
    return {rStore.GetDeviceList(nSubckt), nSubckt != all ? rsFilter : CStringU()};
}

TParamTableData gMakeDevicesTable(const TCircuitParams& rStore,
                                  const std::vector<TDeviceListEntry>& rDevices,
                                  const CStringU& rsFilter)
{
    TParamTableData table = gMakeEmptyTable(
        {"__$$Translatable$$_Name", "__$$Translatable$$_Model", "__$$Translatable$$_Type"});
    table.mRows.reserve(rDevices.size());
    CNames names(rStore, rsFilter);
    for (const TDeviceListEntry& rEntry : rDevices) {
        gAddTableRow(table, gMakeTableRow(names.Compose(rEntry.mnSubckt, rEntry.msName),
                                          rEntry.msModelName, rEntry.msType));
    }
    return table;
}

TParamTableData gMakeModelsTable(const TCircuitParams& rStore,
                                 const std::vector<TModelListEntry>& rModels)
{
    TParamTableData table =
        gMakeEmptyTable({"__$$Translatable$$_Name", "__$$Translatable$$_Type",
                         "__$$Translatable$$_Level", "__$$Translatable$$_Quorva Name"});
    table.mRows.reserve(rModels.size());
    CNames names(rStore, {});
    for (const TModelListEntry& rEntry : rModels) {
        gAddTableRow(table,
                     gMakeTableRow(names.Compose(rEntry.mnSubckt, rEntry.msName), rEntry.msType,
                                   std::to_string(rEntry.mnLevel), rEntry.msClass));
    }
    return table;
}
