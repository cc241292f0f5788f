#include "foundation/TextEncoding.h"

std::string_view gMarkOf(TTextEncoding encoding) noexcept
{
    switch (encoding) {
    case EncodingAnsi:
    case EncodingUtf8:
    case EncodingUtf16:
    case EncodingUtf16BigEndian:
        break;
    case EncodingUtf8Bom:
        return "\xEF\xBB\xBF";
    case EncodingUtf16Bom:
        return "\xFF\xFE";
    case EncodingUtf16BigEndianBom:
        return "\xFE\xFF";
    }
    return {};
}

TTextEncoding gDetectEncoding(std::string_view sFirst, TTextEncoding whenUnknown) noexcept
{
    for (const TTextEncoding encoding :
         {EncodingUtf8Bom, EncodingUtf16Bom, EncodingUtf16BigEndianBom}) {
        if (sFirst.starts_with(gMarkOf(encoding))) {
            return encoding;
        }
    }
    if (sFirst.size() < 2) {
        return whenUnknown;
    }
    if (sFirst[0] == '\0' && sFirst[1] != '\0') {
        return EncodingUtf16BigEndian;
    }
    const bool bMayBeMark = sFirst[0] == '\xEF' || sFirst[0] == '\xFE' || sFirst[0] == '\xFF';
    return sFirst[0] != '\0' && !bMayBeMark && sFirst[1] == '\0' ? EncodingUtf16 : whenUnknown;
}
