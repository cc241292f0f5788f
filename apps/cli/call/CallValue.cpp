#include "cli/call/CallValue.h"

#include "cli/Quote.h"
#include "cli/RequestError.h"
#include "foundation/MarkerRule.h"
#include "platform/base/CodePage.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <system_error>

namespace quorvawiz::cli
{
namespace
{
[[noreturn]] void ThrowNo(const std::string& rsWanted)
{
    throw CRequestError("isn't " + rsWanted);
}

std::string ToHex(std::string_view sBytes)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string sHex;
    for (const char chByte : sBytes) {
        const auto nByte = static_cast<unsigned char>(chByte);
        sHex += digits[nByte >> 4U];
        sHex += digits[nByte & 15U];
    }
    return sHex;
}

std::string FromHex(const std::string& rsHex)
{
    std::string sBytes;
    for (std::size_t n = 0; n < rsHex.size(); n += 2) {
        const char* const pFirst = rsHex.data() + n;
        unsigned char nByte = 0;
        const bool bPair = n + 1 < rsHex.size();
        const auto [pEnd, error] = std::from_chars(pFirst, pFirst + (bPair ? 2 : 0), nByte, 16);
        if (error != std::errc() || pEnd != pFirst + 2)
            ThrowNo("a text: \"hex\" takes pairs of hexadecimal digits");
        sBytes += static_cast<char>(nByte);
    }
    return sBytes;
}

/// The bytes of {"hex": ...}; nullopt for a string.
std::optional<std::string> HexOf(const TJson& rValue, const char* pWanted)
{
    if (rValue.is_string())
        return std::nullopt;
    if (!rValue.is_object() || rValue.size() != 1 || !rValue.contains("hex") ||
        !rValue["hex"].is_string())
        ThrowNo(pWanted);
    return FromHex(rValue["hex"].get<std::string>());
}

/// A whole number within bounds.
std::int64_t Whole(const TJson& rValue, std::int64_t nLeast, std::int64_t nMost,
                   const std::string& rsWanted)
{
    const bool bBeyond =
        rValue.is_number_unsigned() &&
        rValue.get<std::uint64_t>() > std::uint64_t{std::numeric_limits<std::int64_t>::max()};
    if (!rValue.is_number_integer() || bBeyond)
        ThrowNo(rsWanted);
    const auto nNumber = rValue.get<std::int64_t>();
    if (nNumber < nLeast || nNumber > nMost)
        ThrowNo(rsWanted);
    return nNumber;
}

std::u16string FromUtf8(const std::string& rsUtf8)
{
    return gMultiByteToWide(rsUtf8, kCodePageUtf8);
}
} // namespace

template <> CStringU gReadArgument<CStringU>(const TJson& rValue)
{
    if (const auto stored = HexOf(rValue, "a text: a string, or {\"hex\": ...}"))
        return {*stored, TTextKind::Plain};
    return {gStoreUnits(FromUtf8(rValue.get<std::string>())), TTextKind::Plain}; // with its zeros
}

template <> TBytes gReadArgument<TBytes>(const TJson& rValue)
{
    if (const auto bytes = HexOf(rValue, "bytes: a string, or {\"hex\": ...}"))
        return {*bytes};
    return {rValue.get<std::string>()};
}

template <> TUnitArgument gReadArgument<TUnitArgument>(const TJson& rValue)
{
    const std::string sWanted = "a unit: a number from 0 to 65535, or a string of one character";
    if (!rValue.is_string())
        return {static_cast<char16_t>(Whole(rValue, 0, 0xFFFF, sWanted))};
    const std::u16string sUnits = FromUtf8(rValue.get<std::string>());
    if (sUnits.size() != 1)
        ThrowNo(sWanted);
    return {sUnits.front()};
}

template <> std::u16string gReadArgument<std::u16string>(const TJson& rValue)
{
    if (rValue.is_string())
        return FromUtf8(rValue.get<std::string>());
    const std::string sWanted = "units: a string, or a list of numbers from 0 to 65535";
    if (!rValue.is_array())
        ThrowNo(sWanted);
    std::u16string sUnits;
    for (const TJson& rUnit : rValue)
        sUnits += static_cast<char16_t>(Whole(rUnit, 0, 0xFFFF, sWanted));
    return sUnits;
}

template <> bool gReadArgument<bool>(const TJson& rValue)
{
    if (!rValue.is_boolean())
        ThrowNo("true or false");
    return rValue.get<bool>();
}

template <> int gReadArgument<int>(const TJson& rValue)
{
    return static_cast<int>(Whole(rValue, std::numeric_limits<int>::min(),
                                  std::numeric_limits<int>::max(), "a whole number of 32 bits"));
}

template <> unsigned gReadArgument<unsigned>(const TJson& rValue)
{
    return static_cast<unsigned>(Whole(rValue, 0, std::numeric_limits<unsigned>::max(),
                                       "a whole number from 0 to 4294967295"));
}

template <> double gReadArgument<double>(const TJson& rValue)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    if (rValue.is_number())
        return rValue.get<double>();
    if (rValue == "inf")
        return infinity;
    if (rValue == "-inf")
        return -infinity;
    if (rValue == "nan")
        return std::numeric_limits<double>::quiet_NaN();
    ThrowNo("a number, \"inf\", \"-inf\" or \"nan\"");
}

template <> boost::tribool gReadArgument<boost::tribool>(const TJson& rValue)
{
    if (rValue.is_boolean())
        return rValue.get<bool>();
    if (rValue.is_null())
        return boost::indeterminate;
    const auto nValue = Whole(rValue, 0, 2, "true, false or null, or 1, 0 or 2");
    return nValue == 2 ? boost::tribool(boost::indeterminate) : boost::tribool(nValue == 1);
}

template <> TeUnitScale gReadArgument<TeUnitScale>(const TJson& rValue)
{
    const std::string sWanted = "a scale: a whole number, or one of the keys si, spice, hspice, "
                                "scientific, engineering and undefined";
    if (!rValue.is_string())
        return static_cast<TeUnitScale>(Whole(rValue, std::numeric_limits<int>::min(),
                                              std::numeric_limits<int>::max(), sWanted));
    const auto scale = gFindUnitScale(rValue.get<std::string>());
    if (!scale)
        ThrowNo(sWanted);
    return *scale;
}

template <> TTextKind gReadArgument<TTextKind>(const TJson& rValue)
{
    return static_cast<TTextKind>(Whole(rValue, 0, 4, "a kind from 0 to 4"));
}

template <> TTextEncoding gReadArgument<TTextEncoding>(const TJson& rValue)
{
    return static_cast<TTextEncoding>(Whole(rValue, 0, 6, "an encoding from 0 to 6"));
}

template <> std::vector<CStringU> gReadArgument<std::vector<CStringU>>(const TJson& rValue)
{
    if (!rValue.is_array())
        ThrowNo("a list of texts");
    std::vector<CStringU> texts;
    for (const TJson& rText : rValue)
        texts.push_back(gReadArgument<CStringU>(rText));
    return texts;
}

TJson gToResult(const CStringU& rText)
{
    const std::u16string sWide = rText.ToWide();
    bool bReplaced = false;
    const std::string sUtf8 = gWideToMultiByte(sWide, kCodePageUtf8, '?', &bReplaced);
    const bool bSaysAll = !bReplaced && CStringU(sWide).Stored() == rText.Stored();
    return bSaysAll ? TJson(sUtf8) : TJson{{"hex", ToHex(rText.Stored())}};
}

TJson gToResult(const TBytes& rBytes)
{
    return gIsUtf8(rBytes.msBytes) ? TJson(rBytes.msBytes) : TJson{{"hex", ToHex(rBytes.msBytes)}};
}

TJson gToResult(const std::string& rsBytes)
{
    return gToResult(TBytes{rsBytes});
}

TJson gToResult(const std::u16string& rsUnits)
{
    TJson units = TJson::array();
    for (const char16_t chUnit : rsUnits)
        units.push_back(static_cast<unsigned>(chUnit));
    return units;
}

TJson gToResult(double dNumber)
{
    if (std::isnan(dNumber))
        return "nan";
    if (std::isinf(dNumber))
        return dNumber < 0 ? "-inf" : "inf";
    return dNumber;
}

} // namespace quorvawiz::cli
