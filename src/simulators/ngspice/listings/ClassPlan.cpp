#include "simulators/ngspice/listings/ClassPlan.h"

#include <algorithm>
#include <map>

namespace quorvawiz::ngspice
{
namespace
{

CStringU TextOf(const std::string& rsText)
{
    return {rsText, TTextKind::Utf8IfNeeded};
}

bool Has(const TParamRow& rRow, char cFlag)
{
    return rRow.sFlags.find(cFlag) != std::string::npos;
}

} // namespace

CParamPlans::CParamPlans(const std::vector<TParamRow>& rRows)
{
    std::map<int, std::size_t> byId;
    std::vector<bool> named; // by a row without the flag R
    for (const TParamRow& rRow : rRows) {
        const auto [place, bNew] = byId.try_emplace(rRow.nId, mPlans.size());
        const std::size_t nPlan = place->second;
        const bool bRedundant = Has(rRow, 'R');
        if (bNew) {
            mPlans.push_back(
                {TextOf(rRow.sName), gKindOfType(rRow.sType), rRow.eDirection, false, {}});
            mDescriptions.push_back(rRow.sDescription);
            mAliases.emplace_back();
            named.push_back(!bRedundant);
        } else if (bRedundant || named[nPlan]) {
            if (mPlans[nPlan].sName != TextOf(rRow.sName)) {
                mAliases[nPlan].insert(TextOf(rRow.sName));
            }
        } else {
            mAliases[nPlan].insert(mPlans[nPlan].sName);
            mPlans[nPlan].sName = TextOf(rRow.sName);
            named[nPlan] = true;
        }
        if (mDescriptions[nPlan].empty()) {
            mDescriptions[nPlan] = rRow.sDescription;
        }
        mPlans[nPlan].bPrincipal = mPlans[nPlan].bPrincipal || Has(rRow, 'P');
        AddName(rRow, nPlan);
    }
}

void CParamPlans::AddName(const TParamRow& rRow, std::size_t nPlan)
{
    // Names may occur again for another id: the first one is what the simulator finds.
    if (rRow.eDirection != EDirection::In) {
        mShown.try_emplace(rRow.sName, nPlan);
    }
    if (rRow.eDirection != EDirection::Out) {
        mSet.try_emplace(rRow.sName, nPlan);
    }
}

const TParamPlan* CParamPlans::FindShown(std::string_view sName) const
{
    const auto found = mShown.find(sName);
    return found != mShown.end() ? &mPlans[found->second] : nullptr;
}

const TParamPlan* CParamPlans::FindSet(std::string_view sName) const
{
    const auto found = mSet.find(sName);
    return found != mSet.end() ? &mPlans[found->second] : nullptr;
}

const TParamPlan* CParamPlans::FindPrincipal() const noexcept
{
    const auto found = std::ranges::find(mPlans, true, &TParamPlan::bPrincipal);
    return found != mPlans.end() ? &*found : nullptr;
}

void CParamPlans::SetShownDefault(const CStringU& rsName,
                                  const std::vector<std::string_view>& rTexts)
{
    std::ranges::find(mPlans, rsName, &TParamPlan::sName)
        ->shownDefault.assign(rTexts.begin(), rTexts.end());
}

TParamDefs CParamPlans::MakeDefs(std::initializer_list<EDirection> directions) const
{
    TParamDefs defs;
    for (std::size_t n = 0; n < mPlans.size(); ++n) {
        if (std::ranges::find(directions, mPlans[n].eDirection) != directions.end()) {
            defs.push_back({gNoValue(mPlans[n].eKind),
                            mPlans[n].sName,
                            false,
                            {},
                            TextOf(mDescriptions[n]),
                            mAliases[n]});
        }
    }
    return defs;
}

void gTakeLines(const TShownValues& rValues, std::size_t& rnAt,
                std::vector<std::string_view>& rTexts)
{
    rTexts.clear();
    const std::string_view sName = rValues[rnAt].sName;
    for (; rnAt < rValues.size() && rValues[rnAt].sName == sName; ++rnAt) {
        rTexts.push_back(rValues[rnAt].sValue);
    }
}

} // namespace quorvawiz::ngspice
