#pragma once

#include "platform/ui/Translate.h"

/// While it lives, every text that passes the translation stands in brackets, so that a test sees
/// which texts do.
class CBracketTranslation
{
public:
    CBracketTranslation()
    {
        xlang::gSetCatalogue(
            [](std::string_view sEnglish) { return "[" + CString(sEnglish) + "]"; });
    }
    ~CBracketTranslation() { xlang::gSetCatalogue({}); }
    CBracketTranslation(const CBracketTranslation&) = delete;
    CBracketTranslation& operator=(const CBracketTranslation&) = delete;
};
