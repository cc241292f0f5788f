#include "cli/params/StoreLinks.h"

#include "cli/Quote.h"
#include "params/CircuitParams.h"

namespace quorvawiz::cli
{
namespace
{
std::string Quoted(const CStringU& rsText)
{
    return gQuoted(rsText.Text());
}

class CLinkCheck
{
public:
    explicit CLinkCheck(const TCircuitParams& rStore) : mrStore(rStore) {}

    std::vector<std::string> Run()
    {
        CheckTable();
        for (const auto& [nId, rModels] : mrStore.mCircuitModelDatasets) {
            CheckSubckt(nId, !rModels.empty(), "models");
            for (const auto& [rsName, rModel] : rModels)
                CheckClass("model", nId, rsName, rModel.mModelHeader.msClass);
        }
        for (const auto& [nId, rDevices] : mrStore.mCircuitDeviceDatasets) {
            CheckSubckt(nId, !rDevices.empty(), "devices");
            for (const auto& [rsName, rDevice] : rDevices) {
                CheckClass("device", nId, rsName, rDevice.mModelHeader.msClass);
                CheckModel(nId, rsName, rDevice.mModelHeader);
            }
        }
        return mLines;
    }

private:
    void CheckTable()
    {
        for (const auto& [rsName, nId] : mrStore.mSubcktTable.mIndex)
            if (mrStore.GetSubcktName(nId) != rsName)
                mLines.push_back("subcircuit " + Quoted(rsName) + ": its id " +
                                 std::to_string(nId) + " isn't its own in the table");
    }

    /// An id below 1 is the top level and needs no name.
    void CheckSubckt(int nId, bool bUsed, const char* pWhat)
    {
        if (nId > 0 && bUsed && mrStore.GetSubcktName(nId).IsEmpty())
            mLines.push_back("subcircuit " + std::to_string(nId) + " has " + pWhat +
                             " and no name");
    }

    void CheckClass(const char* pWhat, int nId, const CStringU& rsName, const CStringU& rsClass)
    {
        if (!rsClass.IsEmpty() && mrStore.GetModelClass(rsClass) == nullptr)
            mLines.push_back(std::string(pWhat) + ' ' + Quoted(rsName) + " in subcircuit " +
                             std::to_string(nId) + ": there is no class " + Quoted(rsClass));
    }

    void CheckModel(int nId, const CStringU& rsName, const TModelHeader& rModel)
    {
        if (!rModel.msName.IsEmpty() &&
            mrStore.GetModelData(rModel.mnSubckt, rModel.msName) == nullptr)
            mLines.push_back("device " + Quoted(rsName) + " in subcircuit " + std::to_string(nId) +
                             ": there is no model " + Quoted(rModel.msName) + " in subcircuit " +
                             std::to_string(rModel.mnSubckt));
    }

    const TCircuitParams& mrStore;
    std::vector<std::string> mLines;
};
} // namespace

std::vector<std::string> gFindDanglingLinks(const TCircuitParams& rStore)
{
    return CLinkCheck(rStore).Run();
}

} // namespace quorvawiz::cli
