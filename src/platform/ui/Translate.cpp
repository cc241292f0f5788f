#include "platform/ui/Translate.h"

#include <utility>

namespace xlang
{
namespace
{
TCatalogue sCatalogue;
}

CString gTranslate(const char* pLiteral)
{
    std::string_view sText = pLiteral ? pLiteral : "";
    if (sText.starts_with(kTranslationMarker))
        sText.remove_prefix(kTranslationMarker.size());
    return sCatalogue ? sCatalogue(sText) : CString(sText);
}

void gSetCatalogue(TCatalogue catalogue)
{
    sCatalogue = std::move(catalogue);
}

} // namespace xlang
