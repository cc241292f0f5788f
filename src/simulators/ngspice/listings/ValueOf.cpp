#include "simulators/ngspice/listings/ValueOf.h"

#include <charconv>
#include <cmath>
#include <string>
#include <system_error>

namespace quorvawiz::ngspice
{
namespace
{

/// The greatest double, 1.7976931e308, in the six digits of a listing.
constexpr double kGreatestShown = 1.79769e308;

std::optional<TParamValue> FlagOf(std::string_view sText)
{
    if (sText != "0" && sText != "1") {
        return std::nullopt; // the simulator shows flags that it never filled
    }
    return TParamValue(sText == "1");
}

std::optional<TParamValue> IntegerOf(std::string_view sText)
{
    int nNumber = 0;
    const char* const pEnd = sText.data() + sText.size();
    const auto read = std::from_chars(sText.data(), pEnd, nNumber);
    if (read.ec != std::errc() || read.ptr != pEnd || nNumber > kMostInteger ||
        nNumber < -kMostInteger) {
        return std::nullopt;
    }
    return TParamValue(nNumber);
}

std::optional<TParamValue> RealOf(std::string_view sText)
{
    const auto number = gNumberOf(sText);
    return number ? std::optional(TParamValue(*number)) : std::nullopt;
}

std::optional<TParamValue> NumbersOf(std::span<const std::string_view> values)
{
    std::string sAll;
    for (const std::string_view sText : values) {
        if (!gNumberOf(sText)) {
            return std::nullopt;
        }
        sAll += sAll.empty() ? "" : " ";
        sAll += sText;
    }
    return TParamValue(CStringU(sAll));
}

std::optional<TParamValue> TextOf(std::span<const std::string_view> values)
{
    std::string sAll;
    for (const std::string_view sText : values) {
        if (sText.empty() || sText == "-" || sText.starts_with("---------") ||
            sText.starts_with("?????????") || sText.starts_with("<<NAN")) {
            return std::nullopt;
        }
        sAll += sAll.empty() ? "" : " ";
        sAll += sText;
    }
    return TParamValue(CStringU(sAll, TTextKind::Utf8IfNeeded));
}

} // namespace

EValueKind gKindOfType(std::string_view sType) noexcept
{
    if (sType == "flag") {
        return EValueKind::Flag;
    }
    if (sType == "integer") {
        return EValueKind::Integer;
    }
    if (sType == "real") {
        return EValueKind::Real;
    }
    if (sType == "complex" || sType == "realvec" || sType == "intvec" || sType == "vector") {
        return EValueKind::Numbers;
    }
    if (sType == "stringvec") {
        return EValueKind::Texts;
    }
    return sType == "parsetree" ? EValueKind::Expression : EValueKind::Text;
}

std::optional<double> gNumberOf(std::string_view sText) noexcept
{
    double dNumber = 0;
    const char* const pEnd = sText.data() + sText.size();
    const auto read = std::from_chars(sText.data(), pEnd, dNumber);
    // A number out of range leaves result_out_of_range: it is too small, or too big, to be one.
    const bool bIsNumber = read.ec == std::errc() && read.ptr == pEnd;
    if (!bIsNumber || !(dNumber == 0 || std::isnormal(dNumber)) ||
        std::abs(dNumber) >= kGreatestShown) {
        return std::nullopt;
    }
    return dNumber;
}

std::optional<TParamValue> gValueOf(EValueKind eKind, std::span<const std::string_view> values)
{
    if (values.empty()) {
        return std::nullopt;
    }
    switch (eKind) {
    case EValueKind::Flag:
        return FlagOf(values.front());
    case EValueKind::Integer:
        return IntegerOf(values.front());
    case EValueKind::Real:
        return RealOf(values.front());
    case EValueKind::Numbers:
        return NumbersOf(values);
    case EValueKind::Texts:
        return TextOf(values);
    case EValueKind::Text:
    case EValueKind::Expression:
        break;
    }
    return TextOf(values.first(1));
}

TParamValue gNoValue(EValueKind eKind)
{
    return gIsTextKind(eKind) ? TParamValue(CStringU()) : TParamValue(kUninitializedParamValue);
}

} // namespace quorvawiz::ngspice
