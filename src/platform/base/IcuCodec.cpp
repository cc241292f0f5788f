#include "platform/base/IcuCodec.h"

#include "platform/base/Ascii.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_err.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace
{

// Longer than any one character in any code page, and than the units it may decode to.
constexpr std::size_t kMostOfCharacter = 32;

UConverter* OpenByName(const std::string& rsName)
{
    UErrorCode error = U_ZERO_ERROR;
    UConverter* pConverter = ucnv_open(rsName.c_str(), &error);
    if (U_FAILURE(error)) {
        return nullptr;
    }
    ucnv_setFallback(pConverter, false);
    ucnv_setToUCallBack(pConverter, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    ucnv_setFromUCallBack(pConverter, UCNV_FROM_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
    if (U_FAILURE(error)) {
        ucnv_close(pConverter);
        return nullptr;
    }
    return pConverter;
}

// The tables of the old PC code pages rotate these three control characters; the platform doesn't.
constexpr bool IsRotatedControl(char chByte)
{
    return chByte == 0x1A || chByte == 0x1C || chByte == 0x7F;
}

bool KeepsAscii(UConverter* pConverter)
{
    for (int nByte = 1; nByte < 0x80; ++nByte) {
        const char chByte = static_cast<char>(nByte);
        std::array<char16_t, kMostOfCharacter> units{};
        UErrorCode error = U_ZERO_ERROR;
        const std::int32_t nUnits = ucnv_toUChars(
            pConverter, units.data(), static_cast<std::int32_t>(units.size()), &chByte, 1, &error);
        if (!IsRotatedControl(chByte) &&
            (U_FAILURE(error) || nUnits != 1 || units[0] != static_cast<char16_t>(nByte))) {
            return false;
        }
    }
    return true;
}

} // namespace

void CIcuCodec::TCloseConverter::operator()(UConverter* pConverter) const noexcept
{
    ucnv_close(pConverter);
}

std::unique_ptr<const CIcuCodec> CIcuCodec::Open(unsigned nCodePage)
{
    const std::string sNumber = std::to_string(nCodePage);
    TConverterPtr pConverter(OpenByName("windows-" + sNumber));
    if (!pConverter) {
        pConverter.reset(OpenByName("cp" + sNumber));
    }
    if (!pConverter || !KeepsAscii(pConverter.get())) {
        return nullptr;
    }
    return std::unique_ptr<const CIcuCodec>(new CIcuCodec(std::move(pConverter)));
}

CIcuCodec::CIcuCodec(TConverterPtr pConverter) noexcept : mpConverter(std::move(pConverter)) {}

CIcuCodec::~CIcuCodec() = default;

bool CIcuCodec::IsSingleByte() const noexcept
{
    return ucnv_getMaxCharSize(mpConverter.get()) == 1;
}

std::u16string CIcuCodec::DecodeAll(std::string_view sBytes) const
{
    std::array<char16_t, kMostOfCharacter> units{};
    UErrorCode error = U_ZERO_ERROR;
    const std::int32_t nUnits =
        ucnv_toUChars(mpConverter.get(), units.data(), static_cast<std::int32_t>(units.size()),
                      sBytes.data(), static_cast<std::int32_t>(sBytes.size()), &error);
    return U_SUCCESS(error) ? std::u16string(units.data(), static_cast<std::size_t>(nUnits))
                            : std::u16string();
}

bool CIcuCodec::DecodeNext(std::string_view& rsRest, std::u16string& rsOut) const
{
    if (gIsAscii(rsRest.substr(0, 1))) {
        rsOut.push_back(static_cast<char16_t>(rsRest.front()));
        rsRest.remove_prefix(1);
        return true;
    }

    const char* pNext = rsRest.data();
    const char* const pEnd =
        rsRest.data() + (rsRest.size() < kMostOfCharacter ? rsRest.size() : kMostOfCharacter);
    UErrorCode error = U_ZERO_ERROR;
    ucnv_resetToUnicode(mpConverter.get());
    ucnv_getNextUChar(mpConverter.get(), &pNext, pEnd, &error);
    if (U_SUCCESS(error)) {
        // Again as a whole: a few characters decode to a letter and a combining mark.
        const auto nBytes = static_cast<std::size_t>(pNext - rsRest.data());
        const std::u16string sUnits = DecodeAll(rsRest.substr(0, nBytes));
        rsRest.remove_prefix(nBytes);
        rsOut += sUnits;
        return !sUnits.empty();
    }

    // The converter may have read on behind the ill-formed part, so it is asked for the part.
    std::array<char, kMostOfCharacter> invalid{};
    auto nInvalid = static_cast<std::int8_t>(invalid.size());
    UErrorCode ignored = U_ZERO_ERROR;
    ucnv_getInvalidChars(mpConverter.get(), invalid.data(), &nInvalid, &ignored);
    const bool bKnown =
        U_SUCCESS(ignored) && nInvalid > 0 && static_cast<std::size_t>(nInvalid) <= rsRest.size();
    rsRest.remove_prefix(bKnown ? static_cast<std::size_t>(nInvalid) : 1);
    return false;
}

bool CIcuCodec::EncodeNext(std::u16string_view& rsRest, std::string& rsOut) const
{
    const std::u16string_view sUnits = rsRest.substr(0, gCountFirstUnits(rsRest));
    rsRest.remove_prefix(sUnits.size());
    if (sUnits[0] < 0x80) {
        rsOut.push_back(static_cast<char>(sUnits[0]));
        return true;
    }

    std::array<char, kMostOfCharacter> bytes{};
    UErrorCode error = U_ZERO_ERROR;
    const std::int32_t nBytes =
        ucnv_fromUChars(mpConverter.get(), bytes.data(), static_cast<std::int32_t>(bytes.size()),
                        sUnits.data(), static_cast<std::int32_t>(sUnits.size()), &error);
    if (U_FAILURE(error)) {
        return false;
    }
    // Some tables go to a look-alike even without fallbacks, and ignorable characters go to
    // nothing: only what comes back the same fits.
    const std::string_view sBytes(bytes.data(), static_cast<std::size_t>(nBytes));
    if (sBytes.empty() || DecodeAll(sBytes) != sUnits) {
        return false;
    }
    rsOut += sBytes;
    return true;
}
