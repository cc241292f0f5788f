#include "cli/call/CallTable.h"
#include "foundation/NumberFormat.h"

#include <optional>
#include <string>

namespace quorvawiz::cli
{
namespace
{
using TCode = std::optional<int>;

int CodeOf(const TCode& rCode)
{
    return rCode.value_or(TFormatOption::None);
}

std::string FormatOptions(double dValue, unsigned nDigits, TCode code1, TCode code2, TCode code3,
                          TCode code4, TCode code5)
{
    return gFormatEngineeringOptions(dValue, nDigits, CodeOf(code1), CodeOf(code2), CodeOf(code3),
                                     CodeOf(code4), CodeOf(code5));
}

TJson Parsed(const std::string& rsMessage, double dValue, std::ptrdiff_t nUsed)
{
    return {{"message", rsMessage}, {"value", gToResult(dValue)}, {"used", nUsed}};
}

TJson ParseNarrow(const TBytes& rText, bool bUseSi)
{
    double dValue = 0;
    const char* pEnd = nullptr;
    const char* const pText = rText.msBytes.c_str();
    const std::string sMessage = gParseEngineering(pText, dValue, &pEnd, bUseSi);
    return Parsed(sMessage, dValue, pEnd - pText);
}

TJson ParseWide(const std::u16string& rsText, bool bUseSi)
{
    double dValue = 0;
    const char16_t* pEnd = nullptr;
    const std::string sMessage = gParseEngineering(rsText.c_str(), dValue, &pEnd, bUseSi);
    return Parsed(sMessage, dValue, pEnd - rsText.c_str());
}

TJson ParseText(const CStringU& rText, boost::tribool bUseSi)
{
    double dValue = 0;
    const CStringU message = gParseEngineeringText(rText, dValue, bUseSi);
    return {{"message", gToResult(message)}, {"value", gToResult(dValue)}};
}
} // namespace

std::vector<TCallFunction> gNumberCalls()
{
    return {
        gCallable("gFormatEngineering", gFormatEngineering),
        gCallable("gFormatEngineeringOptions", FormatOptions),
        gCallable("gFormatDistinct", gFormatDistinct),
        gCallable("gFormatPlain", gFormatPlain),
        gCallable("gFormatFull", gFormatFull),
        gCallable("gParseEngineering", ParseNarrow),
        gCallable("gParseEngineering.wide", ParseWide),
        gCallable("gParseEngineeringText", ParseText),
        gCallable("gClampDigits", [](int nDigits) { return gClampDigits(nDigits); }),
        gCallable("gClampDigitsText",
                  [](const TBytes& rText) { return gClampDigitsText(rText.msBytes); }),
        gCallable("gClampPlaces", [](int nPlaces) { return gClampPlaces(nPlaces); }),
        gCallable("gClampPlacesText",
                  [](const TBytes& rText) { return gClampPlacesText(rText.msBytes); }),
        gCallable("gNormalizeUnitScale",
                  [](int nScale) { return static_cast<int>(gNormalizeUnitScale(nScale)); }),
        gCallable("gGetUnitScaleKey",
                  [](TeUnitScale eScale) { return std::string(gGetUnitScaleKey(eScale)); }),
        gCallable("gGetUnitScaleDisplayText",
                  [](TeUnitScale eScale) { return std::string(gGetUnitScaleDisplayText(eScale)); }),
        gCallable("gUnitScaleToOption",
                  [](TeUnitScale eScale) { return gUnitScaleToOption(eScale); }),
    };
}

} // namespace quorvawiz::cli
