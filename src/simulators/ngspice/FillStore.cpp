#include "simulators/ngspice/FillStore.h"

#include "params/CircuitParams.h"
#include "simulators/ngspice/cards/CardTokens.h"
#include "simulators/ngspice/cards/Cards.h"
#include "simulators/ngspice/cards/FlatName.h"
#include "simulators/ngspice/cards/GivenParams.h"
#include "simulators/ngspice/catalogue/KnownModels.h"
#include "simulators/ngspice/listings/ShownDevices.h"
#include "simulators/ngspice/listings/ShownModels.h"

#include <boost/variant/get.hpp>

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

CStringU TextOf(const std::string& rsText)
{
    return {rsText, TTextKind::Utf8IfNeeded};
}

/// The parameters of a class whose default is another one than what is shown where no card gives
/// them.
struct TContradicted {
    std::set<const TParamPlan*> model;
    std::set<const TParamPlan*> devices;
};

void LeaveOutDefaults(const std::set<const TParamPlan*>& rPlans, TParamDefs& rDefs)
{
    for (const TParamPlan* const pPlan : rPlans) {
        const auto def = std::ranges::find(rDefs, pPlan->sName, &TParamDef::msName);
        if (def != rDefs.end()) {
            def->mValue = gNoValue(pPlan->eKind);
        }
    }
}

/// Fills a store, device by device.
class CStoreFiller
{
public:
    CStoreFiller(const CCatalogue& rCatalogue, const TNetlistListings& rListings,
                 TCircuitParams& rStore)
        : mrStore(rStore), mrInstances(rListings.instances), mCards(rListings.sExpand),
          mShown(gReadShownModels(rListings.sShowMod)),
          mModels(rCatalogue, mCards, mShown, mrInstances)
    {
        mrStore.AddSubckt(kTopLevel, 0);
        // In the order of the netlist, as the simulator shows devices in another one.
        for (const std::string_view sName : mCards.GetDeviceNames()) {
            AddSubckt(gSplitDeviceName(sName, mrInstances).instances);
        }
    }

    void AddDevice(const TShownDevice& rShown);

    void LeaveOutContradicted();

    const TFilled& GetFilled() const noexcept { return mFilled; }

private:
    int AddSubckt(const std::vector<std::string>& rInstances);
    TModelHeader AddModel(const TKnownModel& rModel);
    void AddDeviceValues(const TShownDevice& rShown, const TClass& rClass, TDeviceData& rDevice);
    const TGivenParam* FindGiven(const TParamPlan* pPlan) const;
    void CompareDefault(const TParamPlan& rPlan, std::set<const TParamPlan*>& rContradicted) const;
    void AddUnshown(TParamValues& rValues) const;

    TCircuitParams& mrStore;
    const TInstanceNames& mrInstances;
    CCards mCards;
    std::vector<TShownModel> mShown;
    CKnownModels mModels;
    TFilled mFilled;
    std::map<std::string, int> mSubckts;               // by path; the top level isn't among them
    std::map<std::string_view, TModelHeader> mHeaders; // of models in the store, by flat name
    std::map<const TClass*, TContradicted> mContradicted;
    // Used again for each device.
    std::vector<TCardToken> mTokens;
    std::vector<TGivenParam> mGiven;
    std::vector<std::string_view> mTexts;
};

/// Adds a subcircuit with all that it stands in.
int CStoreFiller::AddSubckt(const std::vector<std::string>& rInstances)
{
    int nSubckt = 0;
    std::string sPath;
    for (const std::string& rsInstance : rInstances) {
        sPath += sPath.empty() ? "" : ".";
        sPath += rsInstance;
        const auto [known, bNew] =
            mSubckts.try_emplace(sPath, static_cast<int>(mSubckts.size()) + 1);
        nSubckt = known->second;
        if (bNew) {
            mrStore.AddSubckt(TextOf(sPath), nSubckt);
        }
    }
    return nSubckt;
}

const TGivenParam* CStoreFiller::FindGiven(const TParamPlan* pPlan) const
{
    for (const TGivenParam& rParam : mGiven) {
        if (rParam.pPlan == pPlan) {
            return &rParam;
        }
    }
    return nullptr;
}

/// Compares what is shown of a parameter that isn't given, in mTexts, with its default.
void CStoreFiller::CompareDefault(const TParamPlan& rPlan,
                                  std::set<const TParamPlan*>& rContradicted) const
{
    const bool bOther = !rPlan.shownDefault.empty() &&
                        !std::ranges::equal(rPlan.shownDefault, mTexts) &&
                        gValueOf(rPlan.eKind, mTexts);
    if (bOther) {
        rContradicted.insert(&rPlan);
    }
}

void CStoreFiller::LeaveOutContradicted()
{
    for (const auto& [pClass, rContradicted] : mContradicted) {
        TModelClassDef& rDef = mrStore.mModelClasses.at(pClass->def.mHeader.msName);
        LeaveOutDefaults(rContradicted.model, rDef.mModelParamDefs);
        LeaveOutDefaults(rContradicted.devices, rDef.mDeviceParamDefs);
    }
}

/// What a card gives and no listing shows has the card's own value.
void CStoreFiller::AddUnshown(TParamValues& rValues) const
{
    for (const TGivenParam& rParam : mGiven) {
        if (!rValues.contains(rParam.pPlan->sName)) {
            rValues.emplace(rParam.pPlan->sName, gValueOnCard(rParam));
        }
    }
}

TModelHeader CStoreFiller::AddModel(const TKnownModel& rModel)
{
    TModelData model;
    model.mModelHeader = rModel.header;
    model.mModelHeader.mnSubckt = AddSubckt(rModel.instances);
    if (rModel.pClass != nullptr) {
        const CParamPlans& rPlans = rModel.pClass->model;
        gReadCardTokens(rModel.sCard, mTokens);
        gFindGivenOnModel(rModel.sCard, mTokens, rPlans, mGiven);
        const TShownValues none;
        const TShownValues& rShown = rModel.pShown != nullptr ? rModel.pShown->values : none;
        for (std::size_t nAt = 0; nAt < rShown.size();) {
            const TParamPlan* const pPlan = rPlans.FindShown(rShown[nAt].sName);
            gTakeLines(rShown, nAt, mTexts);
            const TGivenParam* const pGiven = FindGiven(pPlan);
            if (pGiven == nullptr) {
                if (pPlan != nullptr) {
                    CompareDefault(*pPlan, mContradicted[rModel.pClass].model);
                }
                continue;
            }
            if (const auto value = gValueOfGiven(*pGiven, mTexts)) {
                model.mModelParamValues.insert_or_assign(pPlan->sName, *value);
            }
        }
        AddUnshown(model.mModelParamValues);
        // In models the file keeps NaN as it is, and it wouldn't come back as uninitialised.
        std::erase_if(model.mModelParamValues, [](const auto& rEntry) {
            const double* const pNumber = boost::get<double>(&rEntry.second);
            return pNumber != nullptr && gIsUninitialized(*pNumber);
        });
    }
    mrStore.AddModel(model);
    ++mFilled.nModels;
    return model.mModelHeader;
}

void CStoreFiller::AddDeviceValues(const TShownDevice& rShown, const TClass& rClass,
                                   TDeviceData& rDevice)
{
    const CParamPlans& rPlans = rClass.devices;
    TContradicted& rContradicted = mContradicted[&rClass];
    const std::string_view sCard = mCards.FindDevice(rShown.sName);
    gReadCardTokens(sCard, mTokens);
    gFindGivenOnDevice(sCard, mTokens, rShown.sModel, rPlans, mGiven);
    for (std::size_t nAt = 0; nAt < rShown.values.size();) {
        const TParamPlan* const pPlan = rPlans.FindShown(rShown.values[nAt].sName);
        gTakeLines(rShown.values, nAt, mTexts);
        if (pPlan == nullptr) {
            continue;
        }
        const bool bState = pPlan->eDirection == EDirection::Out;
        const TGivenParam* const pGiven = bState ? nullptr : FindGiven(pPlan);
        if (!bState && pGiven == nullptr) {
            CompareDefault(*pPlan, rContradicted.devices);
            continue;
        }
        if (auto value = bState ? gValueOf(pPlan->eKind, mTexts) : gValueOfGiven(*pGiven, mTexts)) {
            (bState ? rDevice.mStateParamValues : rDevice.mDeviceParamValues)
                .insert_or_assign(pPlan->sName, std::move(*value));
        }
    }
    AddUnshown(rDevice.mDeviceParamValues);
}

void CStoreFiller::AddDevice(const TShownDevice& rShown)
{
    bool bNew = false;
    const TKnownModel& rModel = mModels.Find(rShown.sModel, bNew);
    if (bNew) {
        const bool bHasCard = !rModel.header.msName.IsEmpty();
        mHeaders[rShown.sModel] = bHasCard ? AddModel(rModel) : rModel.header;
    }
    TDeviceData device;
    const TFlatName name = gSplitDeviceName(rShown.sName, mrInstances);
    device.mDeviceHeader = {AddSubckt(name.instances), TextOf(name.sName)};
    device.mModelHeader = mHeaders[rShown.sModel];
    if (rModel.pClass != nullptr) {
        AddDeviceValues(rShown, *rModel.pClass, device);
    } else {
        ++mFilled.nWithoutClass;
    }
    mrStore.AddDevice(device);
    ++mFilled.nDevices;
}

} // namespace

TFilled gFillStore(const CCatalogue& rCatalogue, const TNetlistListings& rListings,
                   const std::string& rsOrigin, TCircuitParams& rStore)
{
    for (const auto& [rsName, rClass] : rCatalogue.GetAll()) {
        TModelClassDef def = rClass.def;
        def.mHeader.msDescription += TextOf(" (" + rsOrigin + ")");
        rStore.AddModelClass(def);
    }
    CStoreFiller filler(rCatalogue, rListings, rStore);
    CShownDevices devices(rListings.sShow);
    for (TShownDevice device; devices.Next(device);) {
        filler.AddDevice(device);
    }
    filler.LeaveOutContradicted();
    return filler.GetFilled();
}

} // namespace quorvawiz::ngspice
