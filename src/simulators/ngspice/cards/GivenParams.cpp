#include "simulators/ngspice/cards/GivenParams.h"

#include "foundation/NumberFormat.h"
#include "platform/base/Ascii.h"
#include "simulators/ngspice/cards/CardExpression.h"
#include "simulators/ngspice/cards/PlacedParams.h"
#include "simulators/ngspice/listings/Lines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace quorvawiz::ngspice
{
namespace
{

/// The place of the first word that can be a parameter, where a device has as few nodes as its
/// letter allows. One with more of them has a model behind them.
std::size_t PlaceBehindNodes(char cLetter) noexcept
{
    switch (cLetter) {
    case 'a':
        return 1;
    case 'j':
    case 'm':
    case 'p':
    case 'q':
    case 'u':
    case 'w':
    case 'z':
    case 'f':
    case 'h':
        return 4;
    case 'e':
    case 'g':
    case 'o':
    case 's':
    case 't':
    case 'y':
        return 5;
    default:
        return 3;
    }
}

bool IsNumber(std::string_view sText) noexcept
{
    const std::size_t nSign = sText.starts_with('-') || sText.starts_with('+') ? 1 : 0;
    const std::string_view sRest = sText.substr(nSign);
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return !sRest.empty() &&
           (isDigit(sRest[0]) || (sRest[0] == '.' && sRest.size() > 1 && isDigit(sRest[1])));
}

std::string_view WithoutQuotes(std::string_view sText) noexcept
{
    const bool bQuoted = sText.size() > 1 && (sText.front() == '"' || sText.front() == '\'') &&
                         sText.back() == sText.front();
    return bQuoted ? sText.substr(1, sText.size() - 2) : sText;
}

bool IsBare(const TCardToken& rToken) noexcept
{
    return !rToken.bAssigned && !rToken.bValue;
}

/// A bare word gives a flag, and on sources what the following words are values of.
bool IsGivenBare(const TParamPlan& rPlan, bool bSource) noexcept
{
    return rPlan.eKind == EValueKind::Flag || bSource;
}

/// The card's text for the value of the parameter at a place: a word, and all numbers behind it.
std::string_view ValueBehind(std::span<const TCardToken> tokens, std::size_t nAt) noexcept
{
    std::size_t nLast = nAt + 1;
    const bool bThere =
        nLast < tokens.size() &&
        (tokens[nAt].bAssigned ? tokens[nLast].bValue : IsNumber(tokens[nLast].sText));
    if (!bThere) {
        return {};
    }
    while (nLast + 1 < tokens.size() && IsBare(tokens[nLast + 1]) &&
           IsNumber(tokens[nLast + 1].sText)) {
        ++nLast;
    }
    const char* const pBegin = tokens[nAt + 1].sText.data();
    const char* const pEnd = tokens[nLast].sText.data() + tokens[nLast].sText.size();
    return {pBegin, static_cast<std::size_t>(pEnd - pBegin)};
}

void Add(const TParamPlan* pPlan, std::string_view sText, std::vector<TGivenParam>& rGiven)
{
    if (pPlan != nullptr) {
        rGiven.push_back({pPlan, sText});
    }
}

/// "ac MAGNITUDE PHASE" of a source is shown under other names than it is set by.
void AddAc(std::span<const TCardToken> behind, const CParamPlans& rPlans,
           std::vector<TGivenParam>& rGiven)
{
    constexpr std::array<std::string_view, 2> names{"acmag", "acphase"};
    for (std::size_t n = 0; n < names.size() && n < behind.size(); ++n) {
        if (!IsNumber(behind[n].sText)) {
            return;
        }
        Add(rPlans.FindSet(names[n]), behind[n].sText, rGiven);
    }
}

/// The card's text behind a word of it.
std::string_view Behind(std::string_view sCard, std::string_view sWord) noexcept
{
    const auto nEnd = static_cast<std::size_t>(sWord.data() + sWord.size() - sCard.data());
    return sCard.substr(std::min(nEnd, sCard.size()));
}

/// A card, and what is looked for on it.
struct TLook {
    std::string_view sCard;
    std::span<const TCardToken> tokens;
    const CParamPlans& rPlans;
    char cLetter = '\0'; // of the device; 0 for a model

    bool IsSource() const noexcept { return cLetter == 'v' || cLetter == 'i'; }
};

/// Reads the words from a place on.
void AddNamed(const TLook& rLook, std::size_t nFirst, std::vector<TGivenParam>& rGiven)
{
    const char* pExpressionEnd = rLook.sCard.data();
    for (std::size_t n = nFirst; n < rLook.tokens.size(); ++n) {
        const TCardToken& rToken = rLook.tokens[n];
        if (rToken.bValue || rToken.sText.data() < pExpressionEnd) {
            continue;
        }
        const TParamPlan* const pPlan =
            rLook.rPlans.FindSet(gTableName(rLook.cLetter, rToken.sText));
        if (pPlan == nullptr || !(rToken.bAssigned || IsGivenBare(*pPlan, rLook.IsSource()))) {
            continue;
        }
        if (pPlan->eKind == EValueKind::Expression) {
            const std::string_view sExpression =
                gReadCardExpression(Behind(rLook.sCard, rToken.sText), rLook.rPlans);
            Add(pPlan, sExpression, rGiven);
            pExpressionEnd = sExpression.data() + sExpression.size();
            continue;
        }
        Add(pPlan, ValueBehind(rLook.tokens, n), rGiven);
        if (rLook.IsSource() && rToken.sText == "ac") {
            AddAc(rLook.tokens.subspan(n + 1), rLook.rPlans, rGiven);
        }
    }
}

/// Reads what stands in places of its own, see PlacedParams.h.
void AddPlaced(const TLook& rLook, std::vector<TGivenParam>& rGiven)
{
    for (const TPlacedParam& rPlaced : gPlacedParams()) {
        if (rPlaced.cLetter != rLook.cLetter || rPlaced.nPlace >= rLook.tokens.size()) {
            continue;
        }
        const TCardToken& rToken = rLook.tokens[rPlaced.nPlace];
        if (IsBare(rToken) && (!rPlaced.bNumber || IsNumber(rToken.sText))) {
            Add(rLook.rPlans.FindSet(rPlaced.sName), rToken.sText, rGiven);
        }
    }
}

std::string WithSingleBlanks(std::string_view sText)
{
    std::string sWords;
    while (!(sText = gTrimmed(sText)).empty()) {
        sWords += sWords.empty() ? "" : " ";
        sWords += gNextWord(sText);
    }
    return sWords;
}

/// The whole number that a card has for an integer, if it has one.
std::optional<int> WholeOnCard(const TGivenParam& rGiven)
{
    double dNumber = 0;
    const std::string sText(rGiven.sText);
    const bool bWhole = IsNumber(sText) &&
                        gParseEngineering(sText.c_str(), dNumber, nullptr, false).empty() &&
                        std::abs(dNumber) <= kMostInteger && std::trunc(dNumber) == dNumber;
    return bWhole ? std::optional(static_cast<int>(dNumber)) : std::nullopt;
}

} // namespace

void gFindGivenOnDevice(std::string_view sCard, std::span<const TCardToken> tokens,
                        std::string_view sModel, const CParamPlans& rPlans,
                        std::vector<TGivenParam>& rGiven)
{
    rGiven.clear();
    if (tokens.empty()) {
        return;
    }
    const char cLetter = gToLowerAscii(tokens.front().sText.front());
    const TLook look{sCard, tokens, rPlans, cLetter};
    AddPlaced(look, rGiven);
    std::size_t nPlace = std::min(PlaceBehindNodes(cLetter), tokens.size());
    const auto model = std::ranges::find_if(tokens.subspan(nPlace), [&](const TCardToken& rToken) {
        return IsBare(rToken) && !sModel.empty() && rToken.sText == sModel;
    });
    const auto nModel = static_cast<std::size_t>(model - tokens.begin());
    const bool bModel = nModel < tokens.size();
    // A resistor may have its value in front of its model.
    const bool bValueFirst =
        nPlace < tokens.size() && IsBare(tokens[nPlace]) && IsNumber(tokens[nPlace].sText);
    const TParamPlan* const pPrincipal = rPlans.FindPrincipal();
    if (bModel && !(bValueFirst && nModel == nPlace + 1)) {
        nPlace = nModel + 1;
    }
    if (nPlace < tokens.size() && IsBare(tokens[nPlace]) && IsNumber(tokens[nPlace].sText)) {
        Add(pPrincipal != nullptr ? pPrincipal : rPlans.FindSet(bModel ? "area" : ""),
            tokens[nPlace].sText, rGiven);
        ++nPlace;
    }
    AddNamed(look, nPlace, rGiven);
}

void gFindGivenOnModel(std::string_view sCard, std::span<const TCardToken> tokens,
                       const CParamPlans& rPlans, std::vector<TGivenParam>& rGiven)
{
    rGiven.clear();
    AddNamed({sCard, tokens, rPlans}, 2, rGiven);
}

TParamValue gValueOnCard(const TGivenParam& rGiven)
{
    const EValueKind eKind = rGiven.pPlan->eKind;
    if (eKind == EValueKind::Flag) {
        return TParamValue(rGiven.sText != "0");
    }
    if (eKind == EValueKind::Expression) {
        return TParamValue(CStringU(WithSingleBlanks(rGiven.sText), TTextKind::Utf8IfNeeded));
    }
    if (gIsTextKind(eKind)) {
        return TParamValue(CStringU(WithoutQuotes(rGiven.sText), TTextKind::Utf8IfNeeded));
    }
    std::string sNumbers;
    double dFirst = kUninitializedParamValue;
    std::vector<TCardToken> words;
    gReadCardTokens(rGiven.sText, words);
    for (const TCardToken& rWord : words) {
        double dNumber = 0;
        const std::string sWord(rWord.sText);
        if (!gParseEngineering(sWord.c_str(), dNumber, nullptr, false).empty() ||
            !(dNumber == 0 || std::isnormal(dNumber))) {
            return kUninitializedParamValue;
        }
        if (sNumbers.empty()) {
            dFirst = dNumber;
        }
        sNumbers += sNumbers.empty() ? "" : " ";
        sNumbers += sWord;
    }
    if (eKind == EValueKind::Numbers && !sNumbers.empty()) {
        return TParamValue(CStringU(sNumbers));
    }
    if (eKind == EValueKind::Integer && std::abs(dFirst) <= kMostInteger) {
        return TParamValue(static_cast<int>(dFirst));
    }
    return eKind == EValueKind::Real ? dFirst : kUninitializedParamValue;
}

std::optional<TParamValue> gValueOfGiven(const TGivenParam& rGiven,
                                         std::span<const std::string_view> shown)
{
    const EValueKind eKind = rGiven.pPlan->eKind;
    const auto whole = eKind == EValueKind::Integer ? WholeOnCard(rGiven) : std::nullopt;
    return whole ? std::optional(TParamValue(*whole)) : gValueOf(eKind, shown);
}

} // namespace quorvawiz::ngspice
