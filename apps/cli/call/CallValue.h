#pragma once

#include "cli/FieldJson.h"
#include "foundation/StringU.h"
#include "foundation/TextEncoding.h"
#include "foundation/UnitScale.h"

#include <boost/logic/tribool.hpp>
#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{

/// 8-bit text with a type of its own, as a result and as an argument.
struct TBytes {
    std::string msBytes;
};

/// One 16-bit unit.
struct TUnitArgument {
    char16_t mchUnit = 0;
};

/// The name of an argument's type, as signatures tell it (docs/call.md).
template <class T> inline constexpr std::string_view kArgumentName = {};
template <> inline constexpr std::string_view kArgumentName<CStringU> = "text";
template <> inline constexpr std::string_view kArgumentName<TBytes> = "bytes";
template <> inline constexpr std::string_view kArgumentName<std::u16string> = "units";
template <> inline constexpr std::string_view kArgumentName<TUnitArgument> = "unit";
template <> inline constexpr std::string_view kArgumentName<bool> = "flag";
template <> inline constexpr std::string_view kArgumentName<int> = "integer";
template <> inline constexpr std::string_view kArgumentName<unsigned> = "count";
template <> inline constexpr std::string_view kArgumentName<double> = "number";
template <> inline constexpr std::string_view kArgumentName<boost::tribool> = "tribool";
template <> inline constexpr std::string_view kArgumentName<TeUnitScale> = "scale";
template <> inline constexpr std::string_view kArgumentName<TTextKind> = "kind";
template <> inline constexpr std::string_view kArgumentName<TTextEncoding> = "encoding";
template <> inline constexpr std::string_view kArgumentName<std::vector<CStringU>> = "texts";

/// Reads an argument.
/// @param rValue any JSON value
/// @throws CRequestError where it is no such argument: what it isn't, as in "isn't a text"
template <class T> T gReadArgument(const TJson& rValue);
template <> CStringU gReadArgument<CStringU>(const TJson& rValue);
template <> TBytes gReadArgument<TBytes>(const TJson& rValue);
template <> std::u16string gReadArgument<std::u16string>(const TJson& rValue);
template <> TUnitArgument gReadArgument<TUnitArgument>(const TJson& rValue);
template <> bool gReadArgument<bool>(const TJson& rValue);
template <> int gReadArgument<int>(const TJson& rValue);
template <> unsigned gReadArgument<unsigned>(const TJson& rValue);
template <> double gReadArgument<double>(const TJson& rValue);
template <> boost::tribool gReadArgument<boost::tribool>(const TJson& rValue);
template <> TeUnitScale gReadArgument<TeUnitScale>(const TJson& rValue);
template <> TTextKind gReadArgument<TTextKind>(const TJson& rValue);
template <> TTextEncoding gReadArgument<TTextEncoding>(const TJson& rValue);
template <> std::vector<CStringU> gReadArgument<std::vector<CStringU>>(const TJson& rValue);

/// A text as a result: a string if that says all, otherwise its stored bytes as {"hex": ...}.
TJson gToResult(const CStringU& rText);
/// 8-bit text as a result: a string if it is well-formed UTF-8, otherwise {"hex": ...}.
TJson gToResult(const TBytes& rBytes);
/// As gToResult of TBytes.
TJson gToResult(const std::string& rsBytes);
/// 16-bit text as a result: a list of numbers.
TJson gToResult(const std::u16string& rsUnits);
/// A number; one that JSON has no way to write is the text "inf", "-inf" or "nan".
TJson gToResult(double dNumber);
/// What JSON knows itself.
inline TJson gToResult(bool bFlag)
{
    return bFlag;
}
/// A whole number.
inline TJson gToResult(std::int64_t nNumber)
{
    return nNumber;
}
/// A whole number.
inline TJson gToResult(int nNumber)
{
    return nNumber;
}
/// What is a result already.
inline TJson gToResult(TJson result)
{
    return result;
}

} // namespace quorvawiz::cli
