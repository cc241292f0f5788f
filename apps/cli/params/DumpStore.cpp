#include "cli/params/DumpStore.h"

#include "cli/JsonLine.h"
#include "cli/params/ParamValueJson.h"
#include "params/CircuitParams.h"

#include <string>

namespace quorvawiz::cli
{
namespace
{
TJson ToJson(const TParamValues& rValues)
{
    TJson list = TJson::array();
    for (const auto& [rsName, rValue] : rValues) {
        TJson entry{{"name", gToResult(rsName)}};
        entry.update(gToResult(rValue));
        list.push_back(std::move(entry));
    }
    return list;
}

TJson ToJson(const TParamDefs& rDefs)
{
    TJson list = TJson::array();
    for (const TParamDef& rDef : rDefs) {
        TJson entry{{"name", gToResult(rDef.msName)}};
        entry.update(gToResult(rDef.mValue));
        entry["is_set"] = rDef.mIsSet;
        entry["units"] = gToResult(rDef.msUnits);
        entry["description"] = gToResult(rDef.msDescription);
        entry["aliases"] = TJson::array();
        for (const CStringU& rsAlias : rDef.mAliases)
            entry["aliases"].push_back(gToResult(rsAlias));
        list.push_back(std::move(entry));
    }
    return list;
}

TJson ToJson(const CStringU& rsKey, const TModelClassDef& rClass)
{
    return {{"key", gToResult(rsKey)},
            {"name", gToResult(rClass.mHeader.msName)},
            {"type", gToResult(rClass.mHeader.msType)},
            {"level", rClass.mHeader.mnLevel},
            {"version", gToResult(rClass.mHeader.mdVersion)},
            {"description", gToResult(rClass.mHeader.msDescription)},
            {"model_params", ToJson(rClass.mModelParamDefs)},
            {"device_params", ToJson(rClass.mDeviceParamDefs)},
            {"state_params", ToJson(rClass.mStateParamDefs)}};
}

TJson ToJson(const TModelHeader& rHeader)
{
    return {{"subcircuit", rHeader.mnSubckt},
            {"name", gToResult(rHeader.msName)},
            {"class", gToResult(rHeader.msClass)},
            {"type", gToResult(rHeader.msType)}};
}

TJson ToJson(const CStringU& rsKey, const TModelData& rModel)
{
    return {{"key", gToResult(rsKey)},
            {"model", ToJson(rModel.mModelHeader)},
            {"has_class", rModel.mpModelClassDef != nullptr},
            {"values", ToJson(rModel.mModelParamValues)}};
}

TJson ToJson(const CStringU& rsKey, const TDeviceData& rDevice)
{
    return {{"key", gToResult(rsKey)},
            {"device",
             {{"subcircuit", rDevice.mDeviceHeader.mnSubckt},
              {"name", gToResult(rDevice.mDeviceHeader.msName)}}},
            {"model", ToJson(rDevice.mModelHeader)},
            {"has_class", rDevice.mpModelClassDef != nullptr},
            {"has_model", rDevice.mpModelData != nullptr},
            {"values", ToJson(rDevice.mDeviceParamValues)},
            {"state", ToJson(rDevice.mStateParamValues)}};
}

TJson ToJson(const TBidirectionalStringToIntMap& rTable)
{
    TJson index = TJson::array();
    for (const auto& [rsName, nId] : rTable.mIndex)
        index.push_back({{"name", gToResult(rsName)}, {"id", nId}});
    TJson table = TJson::array();
    for (const CStringU& rsName : rTable.mTable)
        table.push_back(gToResult(rsName));
    return {{"index", index}, {"table", table}};
}

class CDump
{
public:
    explicit CDump(const std::function<void(std::string_view)>& rWrite) : mrWrite(rWrite) {}

    void Run(const TCircuitParams& rStore)
    {
        msText = "{\"subcircuits\":" + gToLine(ToJson(rStore.mSubcktTable));
        AddList("classes", rStore.mModelClasses);
        AddList("optical_classes", rStore.mOpticalClasses);
        AddDatasets("models", rStore.mCircuitModelDatasets);
        AddDatasets("devices", rStore.mCircuitDeviceDatasets);
        msText += "}\n";
        mrWrite(msText);
    }

private:
    template <class TMap> void AddItems(const TMap& rMap)
    {
        const char* pBefore = "[\n";
        for (const auto& [rsKey, rItem] : rMap) {
            msText += pBefore + gToLine(ToJson(rsKey, rItem));
            pBefore = ",\n";
            constexpr std::size_t enough = 1U << 16U;
            if (msText.size() > enough) {
                mrWrite(msText);
                msText.clear();
            }
        }
        msText += rMap.empty() ? "[]" : "]";
    }

    template <class TMap> void AddList(const std::string& rsName, const TMap& rMap)
    {
        msText += ",\n\"" + rsName + "\":";
        AddItems(rMap);
    }

    template <class TDatasets>
    void AddDatasets(const std::string& rsName, const TDatasets& rDatasets)
    {
        msText += ",\n\"" + rsName + "\":[";
        const char* pBefore = "";
        for (const auto& [nId, rDataset] : rDatasets) {
            msText += pBefore + ("{\"subcircuit\":" + std::to_string(nId)) + ",\"" + rsName + "\":";
            AddItems(rDataset);
            msText += '}';
            pBefore = ",\n";
        }
        msText += ']';
    }

    const std::function<void(std::string_view)>& mrWrite;
    std::string msText;
};
} // namespace

void gDumpStore(const TCircuitParams& rStore,
                const std::function<void(std::string_view sText)>& rWrite)
{
    CDump(rWrite).Run(rStore);
}

} // namespace quorvawiz::cli
