// Number parsing on any bytes, in both forms and styles, and what comes of formatting the result.

#include "foundation/NumberFormat.h"
#include "foundation/StringU.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <tuple>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

namespace
{
void Require(bool bHolds)
{
    if (!bHolds)
        std::abort();
}

/// Formats the number in every scale; what is short enough to be exact must come back.
void FormatAndReadBack(double dNumber, unsigned nDigits)
{
    for (int nScale = 0; nScale <= 4; ++nScale) {
        for (const bool bSignificant : {false, true}) {
            const std::string sText =
                gFormatEngineering(dNumber, nDigits, bSignificant, false, boost::indeterminate,
                                   gNormalizeUnitScale(nScale), boost::indeterminate);
            double dBack = 0;
            const char* pEnd = nullptr;
            const std::string sMessage =
                gParseEngineering(sText.c_str(), dBack, &pEnd, nScale == 0);
            Require(std::isinf(dNumber) || (sMessage.empty() && *pEnd == '\0'));
        }
    }
    std::ignore = gFormatPlain(dNumber);
    std::ignore = gFormatDistinct(dNumber, dNumber / 3, TeUnitScale::Spice);
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const std::string bytes(reinterpret_cast<const char*>(pData), nSize);
    std::u16string units;
    for (const char chByte : bytes)
        units += static_cast<char16_t>(static_cast<unsigned char>(chByte));
    for (const bool bUseSi : {false, true}) {
        double dNarrow = 1;
        double dWide = 2;
        const char* pEnd = nullptr;
        const char16_t* pWideEnd = nullptr;
        const std::string sMessage = gParseEngineering(bytes.c_str(), dNarrow, &pEnd, bUseSi);
        Require(sMessage == gParseEngineering(units.c_str(), dWide, &pWideEnd, bUseSi));
        Require(dNarrow == dWide && pEnd - bytes.c_str() == pWideEnd - units.c_str());
        Require(static_cast<std::size_t>(pEnd - bytes.c_str()) <= nSize);
        FormatAndReadBack(dNarrow, static_cast<unsigned>(nSize % 40));
    }
    std::ignore = gClampDigitsText(bytes);
    std::ignore = gClampPlacesText(bytes);
    return 0;
}
