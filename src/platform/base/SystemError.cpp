#include "platform/base/SystemError.h"

#include "platform/base/CodePage.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <cuchar>
#include <cwchar>
#include <limits>
#include <string_view>

namespace
{

// strerror_r comes in two forms: one returns the text, the other a status and fills the buffer.
[[maybe_unused]] const char* TextOf(const char* pText, const char* /*pBuffer*/)
{
    return pText;
}

[[maybe_unused]] const char* TextOf(int /*nStatus*/, const char* pBuffer)
{
    return pBuffer;
}

std::string RawMessage(int nCode)
{
    std::array<char, 1024> buffer{};
    const char* pText = TextOf(::strerror_r(nCode, buffer.data(), buffer.size()), buffer.data());
    return pText != nullptr ? std::string(pText) : std::string();
}

std::string WithoutNumber(std::string sText, int nCode)
{
    const std::string sNumber = std::to_string(nCode);
    const std::size_t nAt = sText.rfind(sNumber);
    if (nAt != std::string::npos) {
        sText.erase(nAt, sNumber.size());
    }
    return sText;
}

/// Text in the character set of the current locale, which need not be the system's code page.
std::u16string FromLocale(std::string_view sText)
{
    constexpr auto ofCharacterBefore = static_cast<std::size_t>(-3);
    std::u16string sUnits;
    std::mbstate_t state{};
    while (!sText.empty() || std::mbsinit(&state) == 0) {
        char16_t chUnit = 0;
        std::size_t nUsed = std::mbrtoc16(&chUnit, sText.data(), sText.size(), &state);
        if (nUsed == ofCharacterBefore) {
            nUsed = 0;
        } else if (nUsed > sText.size()) {
            chUnit = u'\uFFFD';
            nUsed = 1;
            state = {};
        }
        sUnits += chUnit;
        sText.remove_prefix(nUsed);
    }
    return sUnits;
}

} // namespace

std::u16string gSystemErrorMessageWide(int nCode)
{
    // What the system says of a code that can't exist is how it says "unknown" in any language.
    constexpr int impossibleCode = std::numeric_limits<int>::max();

    const int nLastError = errno;
    std::string sText = RawMessage(nCode);
    if (WithoutNumber(sText, nCode) == WithoutNumber(RawMessage(impossibleCode), impossibleCode)) {
        sText.clear();
    }
    std::u16string sUnits = FromLocale(sText);
    errno = nLastError;
    return sUnits;
}

std::string gSystemErrorMessage(int nCode)
{
    return gWideToMultiByte(gSystemErrorMessageWide(nCode), gGetSystemCodePage());
}

int gGetLastError() noexcept
{
    return errno;
}

void gSetLastError(int nCode) noexcept
{
    errno = nCode;
}
