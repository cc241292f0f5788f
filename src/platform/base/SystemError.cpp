#include "platform/base/SystemError.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <limits>

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

} // namespace

std::string gSystemErrorMessage(int nCode)
{
    // What the system says of a code that can't exist is how it says "unknown" in any language.
    constexpr int impossibleCode = std::numeric_limits<int>::max();

    const int nLastError = errno;
    std::string sText = RawMessage(nCode);
    if (WithoutNumber(sText, nCode) == WithoutNumber(RawMessage(impossibleCode), impossibleCode)) {
        sText.clear();
    }
    errno = nLastError;
    return sText;
}

int gGetLastError() noexcept
{
    return errno;
}

void gSetLastError(int nCode) noexcept
{
    errno = nCode;
}
