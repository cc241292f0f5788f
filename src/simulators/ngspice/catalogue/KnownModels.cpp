#include "simulators/ngspice/catalogue/KnownModels.h"

#include "simulators/ngspice/cards/CardTokens.h"

#include <algorithm>

namespace quorvawiz::ngspice
{
namespace
{

/// Names of the netlist are in lower case; those of devices without a card are one capital letter.
bool IsWithoutCard(std::string_view sName) noexcept
{
    return sName.size() == 1 && sName[0] >= 'A' && sName[0] <= 'Z';
}

CStringU TextOf(const std::string& rsText)
{
    return {rsText, TTextKind::Utf8IfNeeded};
}

std::string TypeOnCard(std::string_view sCard)
{
    std::vector<TCardToken> tokens;
    gReadCardTokens(sCard, tokens);
    return tokens.size() > 2 ? std::string(tokens[2].sText) : std::string();
}

} // namespace

const TKnownModel& CKnownModels::Find(std::string_view sName, bool& rbNew)
{
    const auto known = mModels.find(sName);
    rbNew = known == mModels.end();
    return rbNew ? mModels.emplace(sName, Make(sName)).first->second : known->second;
}

TKnownModel CKnownModels::Make(std::string_view sName)
{
    TKnownModel model;
    model.pShown = Take(sName);
    if (model.pShown != nullptr) {
        model.pClass = mrCatalogue.Find(model.pShown->sType);
    }
    if (IsWithoutCard(sName)) {
        if (model.pClass == nullptr) {
            model.pClass = mrCatalogue.FindByLetter(sName[0]);
        }
        if (model.pClass != nullptr) {
            model.header.msType = model.pClass->def.mHeader.msType;
        }
    } else {
        TFlatName name = gSplitModelName(sName, mrInstances);
        model.header.msName = TextOf(name.sName);
        model.instances = std::move(name.instances);
        model.sCard = mrCards.FindModel(sName);
        const std::string sType = TypeOnCard(model.sCard);
        model.header.msType = TextOf(sType);
        if (model.pClass == nullptr) {
            model.pClass = mrCatalogue.FindByModelType(sType);
        }
    }
    if (model.pClass != nullptr) {
        model.header.msClass = model.pClass->def.mHeader.msName;
    }
    return model;
}

const TShownModel* CKnownModels::Take(std::string_view sName)
{
    const auto isIt = [sShown = sName.substr(0, kShownModelName)](const TShownModel& rShown) {
        return rShown.sName == sShown;
    };
    const auto first = mrShown.begin() + static_cast<std::ptrdiff_t>(mnNext);
    const auto found = std::find_if(first, mrShown.end(), isIt);
    if (found == mrShown.end()) {
        return nullptr;
    }
    mnNext = static_cast<std::size_t>(found - mrShown.begin()) + 1;
    return &*found;
}

} // namespace quorvawiz::ngspice
