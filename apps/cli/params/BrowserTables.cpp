#include "cli/params/BrowserTables.h"

#include "browser/ClassParamRows.h"
#include "browser/DisplayName.h"
#include "browser/ListTables.h"
#include "browser/ModelClassRow.h"
#include "browser/ParamRow.h"
#include "browser/WindowTitles.h"
#include "cli/Failure.h"
#include "cli/Quote.h"
#include "cli/Suggest.h"
#include "params/CircuitParams.h"
#include "platform/ui/Translate.h"

#include <algorithm>
#include <iterator>

namespace quorvawiz::cli
{
namespace
{
constexpr int kTopLevel = 0;

CStringU NameOf(const std::string& rsName)
{
    return {rsName, TTextKind::Utf8IfNeeded};
}

/// The keys of maps, for suggestions.
template <class... TMaps> std::vector<std::string> KeysOf(const TMaps&... rMaps)
{
    std::vector<std::string> names;
    names.reserve((rMaps.size() + ...));
    const auto add = [&names](const auto& rMap) {
        for (const auto& [rsName, rValue] : rMap)
            names.emplace_back(rsName.Text());
    };
    (add(rMaps), ...);
    return names;
}

/// Says that there is no such name, and which is the nearest.
/// @param sWhat what it would be the name of, as in "device"
/// @param sWhere behind the name, as in " in "top""
[[noreturn]] void ThrowUnknown(const std::string& sWhat, const std::string& sName,
                               const std::string& sWhere, std::vector<std::string> known)
{
    std::erase(known, sName); // a damaged file may know a name that leads nowhere
    throw CUsageError("there is no " + sWhat + ' ' + gQuoted(sName) + sWhere +
                      gDidYouMean(sName, known));
}

int FindSubckt(const TCircuitParams& rStore, const std::string& rsName)
{
    const int nId = rStore.GetSubcktId(NameOf(rsName));
    if (nId != -1)
        return nId;
    if (!rsName.empty())
        ThrowUnknown("subcircuit", rsName, {}, KeysOf(rStore.mSubcktTable.mIndex));
    return kTopLevel;
}

/// Says that a subcircuit has no such device or model.
/// @param rDatasets all, by the ids of the subcircuits
template <class TDatasets>
[[noreturn]] void ThrowNotIn(const TDatasets& rDatasets, int nSubckt, const std::string& sWhat,
                             const TParamsOptions& rOptions)
{
    const std::string& rsSubckt = rOptions.arguments[0];
    const auto found = rDatasets.find(nSubckt);
    ThrowUnknown(sWhat, rOptions.arguments[1],
                 rsSubckt.empty() ? " on the top level" : " in " + gQuoted(rsSubckt),
                 found == rDatasets.end() ? std::vector<std::string>() : KeysOf(found->second));
}

TBrowserWindow MakeList(CStringU sTitle, TParamTableData table)
{
    TBrowserWindow window{std::move(sTitle), {}, false};
    window.mTables.push_back({{}, std::move(table)});
    return window;
}

void AddTab(TBrowserWindow& rWindow, const char* pLabel, const std::vector<TParamRow>& rRows)
{
    rWindow.mTables.push_back({xlang::gTranslate(pLabel), gMakeParamTable(rRows)});
}
} // namespace

TBrowserWindow gComposeDevices(const TCircuitParams& rStore, const TParamsOptions& rOptions)
{
    const std::string sFilter = rOptions.subckt.value_or("");
    if (!sFilter.empty())
        FindSubckt(rStore, sFilter);
    const TDeviceList devices = gMakeDeviceList(rStore, NameOf(sFilter));
    return MakeList(gMakeDevicesTitle(devices.msFilter),
                    gMakeDevicesTable(rStore, devices.mEntries, devices.msFilter));
}

TBrowserWindow gComposeModels(const TCircuitParams& rStore, const TParamsOptions&)
{
    return MakeList(gMakeModelsTitle(), gMakeModelsTable(rStore, rStore.GetModelList()));
}

TBrowserWindow gComposeClasses(const TCircuitParams& rStore, const TParamsOptions&)
{
    return MakeList(gMakeClassesTitle(), gMakeClassesTable(gMakeModelClassRows(rStore)));
}

TBrowserWindow gComposeDevice(const TCircuitParams& rStore, const TParamsOptions& rOptions)
{
    const int nSubckt = FindSubckt(rStore, rOptions.arguments[0]);
    const CStringU sName = NameOf(rOptions.arguments[1]);
    const TDeviceData* const pDevice = rStore.GetDeviceData(nSubckt, sName);
    if (!pDevice)
        ThrowNotIn(rStore.mCircuitDeviceDatasets, nSubckt, "device", rOptions);
    const CStringU sAsked = gMakeAskedName(NameOf(rOptions.arguments[0]), sName);
    TBrowserWindow window{gMakeDeviceDetailsTitle(gMakeDeviceTitle(sAsked, *pDevice)), {}, true};
    if (pDevice->mpModelData)
        AddTab(window, "__$$Translatable$$_Model", gMakeParamRows(pDevice->GetModelParams()));
    AddTab(window, "__$$Translatable$$_Device", gMakeParamRows(pDevice->GetDeviceParams()));
    return window;
}

TBrowserWindow gComposeModel(const TCircuitParams& rStore, const TParamsOptions& rOptions)
{
    const int nSubckt = FindSubckt(rStore, rOptions.arguments[0]);
    const CStringU sName = NameOf(rOptions.arguments[1]);
    const TModelData* const pModel = rStore.GetModelData(nSubckt, sName);
    if (!pModel)
        ThrowNotIn(rStore.mCircuitModelDatasets, nSubckt, "model", rOptions);
    TBrowserWindow window{
        gMakeModelDetailsTitle(gMakeDisplayName(rStore, nSubckt, sName)), {}, true};
    window.mTables.push_back({{}, gMakeParamTable(gMakeParamRows(pModel->GetParams()))});
    return window;
}

TBrowserWindow gComposeClass(const TCircuitParams& rStore, const TParamsOptions& rOptions)
{
    const CStringU sName = NameOf(rOptions.arguments[0]);
    if (!gFindAnyClass(rStore, sName))
        ThrowUnknown("class", rOptions.arguments[0], {},
                     KeysOf(rStore.mModelClasses, rStore.mOpticalClasses));
    const TClassParamRows rows = gMakeClassParamRows(rStore, sName);
    TBrowserWindow window{gMakeClassDetailsTitle(sName), {}, true};
    AddTab(window, "__$$Translatable$$_Model", rows.mModelRows);
    AddTab(window, "__$$Translatable$$_Device", rows.mDeviceRows);
    AddTab(window, "__$$Translatable$$_State", rows.mStateRows);
    return window;
}

void gKeepTab(TBrowserWindow& rWindow, const std::string& sLabel)
{
    auto& rTables = rWindow.mTables;
    const auto found = std::ranges::find_if(rTables, [&](const TBrowserTable& rTable) {
        return CompareNoCase(rTable.msLabel, NameOf(sLabel)) == 0;
    });
    if (found == rTables.end()) {
        std::vector<std::string> labels;
        labels.reserve(rTables.size());
        for (const TBrowserTable& rTable : rTables)
            labels.emplace_back(rTable.msLabel.Text());
        ThrowUnknown("tab", sLabel, {}, labels);
    }
    TBrowserTable table = std::move(*found);
    rTables.clear();
    rTables.push_back(std::move(table));
}

} // namespace quorvawiz::cli
