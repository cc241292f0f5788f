#include "params/StoreText.h"

#include "params/Serialize.h"
#include "params/TextStore.h"
#include "params/archive/MemorySource.h"
#include "params/archive/MemoryTarget.h"

#include <boost/archive/text_iarchive.hpp>
#include <boost/archive/text_oarchive.hpp>
#include <boost/variant/apply_visitor.hpp>

#include <bit>
#include <cstdint>
#include <locale>
#include <map>
#include <sstream>
#include <stdexcept>

std::string gOursOf(const TCircuitParams& rStore)
{
    CMemoryTarget target;
    gSaveText(target, rStore);
    return target.GetBytes();
}

std::string gStockOf(const TCircuitParams& rStore)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << "22 serialization::archive 17 ";
    {
        boost::archive::text_oarchive archive(stream, boost::archive::no_header);
        archive << rStore;
    }
    return stream.str();
}

void gReadOurs(std::string_view sBytes, TCircuitParams& rStore)
{
    CMemorySource source(sBytes);
    gLoadText(source, rStore);
}

void gReadStock(const std::string& rsBytes, TCircuitParams& rStore)
{
    std::istringstream stream(rsBytes);
    stream.imbue(std::locale::classic());
    boost::archive::text_iarchive archive(stream);
    archive >> rStore;
}

namespace
{

class CDescriber
{
public:
    explicit CDescriber(const TCircuitParams& rStore);

    std::string Take() { return std::move(msText); }

private:
    void Add(const CStringU& rs) { msText += '"' + std::string(rs.Stored()) + "\" "; }
    void Add(int n) { msText += std::to_string(n) + ' '; }
    void Add(bool b) { msText += b ? "true " : "false "; }
    void Add(double d) { msText += 'd' + std::to_string(std::bit_cast<std::uint64_t>(d)) + ' '; }
    void Add(const TParamValue& r)
    {
        boost::apply_visitor([this](const auto& rHeld) { Add(rHeld); }, r);
    }
    void Add(const TParamValues& r)
    {
        for (const auto& [rsName, rValue] : r) {
            Add(rsName);
            Add(rValue);
        }
        msText += '\n';
    }
    void Add(const TParamDefs& r)
    {
        for (const TParamDef& rDef : r) {
            Add(rDef.msName);
            Add(rDef.mIsSet);
            Add(rDef.msUnits);
            Add(rDef.msDescription);
            Add(rDef.mValue);
            for (const CStringU& rsAlias : rDef.mAliases) {
                Add(rsAlias);
            }
            msText += '\n';
        }
    }
    void Add(const std::map<CStringU, TModelClassDef>& r)
    {
        for (const auto& [rsName, rClass] : r) {
            mPlaces[&rClass] = "class " + std::to_string(mPlaces.size());
            Add(rsName);
            Add(rClass.mHeader.msName);
            Add(rClass.mHeader.msType);
            Add(rClass.mHeader.mnLevel);
            Add(rClass.mHeader.mdVersion);
            Add(rClass.mHeader.msDescription);
            Add(rClass.mModelParamDefs);
            Add(rClass.mDeviceParamDefs);
            Add(rClass.mStateParamDefs);
        }
        msText += "--\n";
    }
    void Add(const TModelHeader& r)
    {
        Add(r.mnSubckt);
        Add(r.msName);
        Add(r.msClass);
        Add(r.msType);
    }
    void AddPlace(const void* p) { msText += p == nullptr ? "null " : mPlaces.at(p) + ' '; }

    std::map<const void*, std::string> mPlaces;
    std::string msText;
};

CDescriber::CDescriber(const TCircuitParams& rStore)
{
    for (const auto& [rsName, nId] : rStore.mSubcktTable.mIndex) {
        Add(rsName);
        Add(nId);
    }
    for (const CStringU& rsName : rStore.mSubcktTable.mTable) {
        Add(rsName);
    }
    msText += '\n';
    Add(rStore.mModelClasses);
    Add(rStore.mOpticalClasses);
    for (const auto& [nId, rModels] : rStore.mCircuitModelDatasets) {
        Add(nId);
        for (const auto& [rsName, rModel] : rModels) {
            mPlaces[&rModel] = "model " + std::to_string(mPlaces.size());
            Add(rsName);
            Add(rModel.mModelHeader);
            AddPlace(rModel.mpModelClassDef);
            Add(rModel.mModelParamValues);
        }
    }
    for (const auto& [nId, rDevices] : rStore.mCircuitDeviceDatasets) {
        Add(nId);
        for (const auto& [rsName, rDevice] : rDevices) {
            Add(rsName);
            Add(rDevice.mDeviceHeader.mnSubckt);
            Add(rDevice.mDeviceHeader.msName);
            Add(rDevice.mModelHeader);
            AddPlace(rDevice.mpModelClassDef);
            AddPlace(rDevice.mpModelData);
            Add(rDevice.mDeviceParamValues);
            Add(rDevice.mStateParamValues);
        }
    }
}

} // namespace

std::string gDescribe(const TCircuitParams& rStore)
{
    return CDescriber(rStore).Take();
}
