#include "foundation/StringU.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <string>

void CStringU::Format(const char* pFormat, ...)
{
    std::va_list arguments;
    va_start(arguments, pFormat);
    std::va_list again;
    va_copy(again, arguments);
    const int nLength = std::vsnprintf(nullptr, 0, pFormat, arguments);
    va_end(arguments);
    std::string sResult(nLength > 0 ? static_cast<std::size_t>(nLength) : 0, '\0');
    std::vsnprintf(sResult.data(), sResult.size() + 1, pFormat, again);
    va_end(again);
    *this = CStringU(sResult, TTextKind::Utf8IfNeeded);
}
