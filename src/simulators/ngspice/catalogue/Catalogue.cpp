#include "simulators/ngspice/catalogue/Catalogue.h"

#include "platform/base/Ascii.h"
#include "simulators/ngspice/cards/CardTokens.h"
#include "simulators/ngspice/cards/GivenParams.h"
#include "simulators/ngspice/catalogue/BareCircuits.h"
#include "simulators/ngspice/listings/Lines.h"
#include "simulators/ngspice/listings/ShownDevices.h"
#include "simulators/ngspice/listings/ShownModels.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <utility>

namespace quorvawiz::ngspice
{
namespace
{

CStringU TextOf(const std::string& rsText)
{
    return {rsText, TTextKind::Utf8IfNeeded};
}

TClass MakeClass(const TParamTable& rTable)
{
    TClass made{{}, CParamPlans(rTable.model), CParamPlans(rTable.instance)};
    TModelClassDef& rDef = made.def;
    rDef.mHeader.msName = TextOf(rTable.sType);
    rDef.mHeader.msDescription = TextOf(rTable.sDescription);
    if (const TBareCircuit* const pBare = gFindBareCircuit(rTable.sType)) {
        rDef.mHeader.msType = CStringU(pBare->sType);
        rDef.mHeader.mnLevel = pBare->nLevel;
    }
    constexpr EDirection in = EDirection::In;
    constexpr EDirection inOut = EDirection::InOut;
    constexpr EDirection out = EDirection::Out;
    rDef.mModelParamDefs = made.model.MakeDefs({in, inOut, out});
    rDef.mDeviceParamDefs = made.devices.MakeDefs({in, inOut});
    rDef.mStateParamDefs = made.devices.MakeDefs({out});
    return made;
}

/// The parameters that the cards of a bare circuit give, by name.
struct TBareGiven {
    std::set<CStringU> model;
    std::set<CStringU> device;
};

void AddNames(const std::vector<TGivenParam>& rGiven, std::set<CStringU>& rNames)
{
    for (const TGivenParam& rParam : rGiven) {
        rNames.insert(rParam.pPlan->sName);
    }
}

TBareGiven GivenIn(const TBareCircuit& rCircuit, const TClass& rClass)
{
    TBareGiven names;
    std::string_view sRest = rCircuit.sCards;
    std::vector<TCardToken> tokens;
    std::vector<TGivenParam> given;
    while (!sRest.empty()) {
        const std::string_view sCard = gNextLine(sRest);
        gReadCardTokens(sCard, tokens);
        const std::string_view sName = tokens.front().sText;
        if (sName == ".model") {
            gFindGivenOnModel(sCard, tokens, rClass.model, given);
            AddNames(given, names.model);
        } else if (sName.ends_with(kBareDevice) || sName.ends_with(kTwinDevice)) {
            for (const std::string_view sModel : {kBareModel, kTwinModel}) {
                gFindGivenOnDevice(sCard, tokens, sModel, rClass.devices, given);
                AddNames(given, names.device);
            }
        }
    }
    return names;
}

/// Tells whether a listing has a parameter with other values, or not at all.
bool Differs(const TShownValues& rTwin, std::string_view sName,
             const std::vector<std::string_view>& rTexts)
{
    std::vector<std::string_view> texts;
    for (const TShownValue& rValue : rTwin) {
        if (rValue.sName == sName) {
            texts.push_back(rValue.sValue);
        }
    }
    return texts != rTexts;
}

/// Puts what a bare circuit shows into the definitions.
/// @param pTwin what the twin shows; null without one
void SetDefaults(const TShownValues& rValues, const TShownValues* pTwin, CParamPlans& rPlans,
                 const std::set<CStringU>& rGiven, TParamDefs& rDefs)
{
    std::map<CStringU, TParamDef*> defs;
    for (TParamDef& rDef : rDefs) {
        defs.emplace(rDef.msName, &rDef);
    }
    std::vector<std::string_view> texts;
    for (std::size_t nAt = 0; nAt < rValues.size();) {
        const std::string_view sName = rValues[nAt].sName;
        gTakeLines(rValues, nAt, texts);
        const TParamPlan* const pPlan = rPlans.FindShown(sName);
        if (pPlan == nullptr || pPlan->eDirection == EDirection::Out ||
            rGiven.contains(pPlan->sName) || (pTwin != nullptr && Differs(*pTwin, sName, texts))) {
            continue;
        }
        const auto def = defs.find(pPlan->sName);
        const auto value = gValueOf(pPlan->eKind, texts);
        if (def != defs.end() && value) {
            def->second->mValue = *value;
            rPlans.SetShownDefault(pPlan->sName, texts);
        }
    }
}

/// The model's version, from the parameter of that name: "4.8.0" is 4.8.
double VersionIn(const TShownValues& rValues)
{
    const auto version = std::ranges::find(rValues, "version", &TShownValue::sName);
    if (version == rValues.end()) {
        return 0;
    }
    std::string_view sNumber = version->sValue;
    const std::size_t nPoint = sNumber.find('.');
    if (nPoint != std::string_view::npos) {
        sNumber = sNumber.substr(0, sNumber.find('.', nPoint + 1));
    }
    return gNumberOf(sNumber).value_or(0);
}

void SetDefaults(const TBareListing& rListing, const TBareCircuit& rCircuit, TClass& rClass)
{
    const TBareGiven given = GivenIn(rCircuit, rClass);
    TShownDevice bare;
    TShownDevice twin;
    CShownDevices devices(rListing.sShow);
    for (TShownDevice device; devices.Next(device);) {
        if (device.sName.ends_with(kBareDevice)) {
            bare = device;
        } else if (device.sName.ends_with(kTwinDevice)) {
            twin = device;
        }
    }
    SetDefaults(bare.values, twin.sName.empty() ? nullptr : &twin.values, rClass.devices,
                given.device, rClass.def.mDeviceParamDefs);
    for (const TShownModel& rModel : gReadShownModels(rListing.sShowMod)) {
        // A simulator of another version may choose another class for the same card.
        const bool bOfClass = rModel.sType == rCircuit.sClass;
        if (bOfClass && (rModel.sName == kBareModel || rCircuit.nLevel == 0)) {
            SetDefaults(rModel.values, nullptr, rClass.model, given.model,
                        rClass.def.mModelParamDefs);
            rClass.def.mHeader.mdVersion = VersionIn(rModel.values);
        }
    }
}

bool IsSameName(std::string_view sLeft, std::string_view sRight)
{
    return std::ranges::equal(sLeft, sRight, {}, gToLowerAscii, gToLowerAscii);
}

} // namespace

CCatalogue::CCatalogue(const TCatalogueListings& rListings)
{
    for (const TParamTable& rTable : gReadParamTables(rListings.sTables)) {
        mClasses.try_emplace(rTable.sType, MakeClass(rTable));
    }
    for (const TBareListing& rBare : rListings.bares) {
        const auto found = mClasses.find(rBare.sClass);
        const TBareCircuit* const pCircuit = gFindBareCircuit(rBare.sClass);
        if (found != mClasses.end() && pCircuit != nullptr) {
            SetDefaults(rBare, *pCircuit, found->second);
        }
    }
}

const TClass* CCatalogue::Find(std::string_view sName) const
{
    const auto found = mClasses.find(sName);
    return found != mClasses.end() ? &found->second : nullptr;
}

const TClass* CCatalogue::FindByLetter(char cLetter) const
{
    for (const TBareCircuit& rCircuit : gBareCircuits()) {
        if (rCircuit.nLevel == 0 && rCircuit.sType[0] == gToLowerAscii(cLetter)) {
            return Find(rCircuit.sClass);
        }
    }
    return nullptr;
}

const TClass* CCatalogue::FindByModelType(std::string_view sType) const
{
    const auto found = std::ranges::find_if(
        mClasses, [sType](const auto& rEntry) { return IsSameName(rEntry.first, sType); });
    return found != mClasses.end() ? &found->second : nullptr;
}

} // namespace quorvawiz::ngspice
