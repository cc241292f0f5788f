#pragma once

#include "platform/base/StringA.h"

#include <functional>
#include <string_view>

/// The translation service for texts that the user sees.
namespace xlang
{

/// The prefix that marks a literal as translatable. Literals carry it written out in full, so that
/// a search of the sources finds every text that a translator has to see.
inline constexpr std::string_view kTranslationMarker = "__$$Translatable$$_";

/// The text for the user's language, without the marker.
/// `pLiteral`: a NUL-terminated literal, normally with the marker in front of its English text.
/// Result: what the installed catalogue says of the English text, or that text itself.
CString gTranslate(const char* pLiteral);

/// From the English text to the text of the user's language.
using TCatalogue = std::function<CString(std::string_view sEnglish)>;

/// Installs a catalogue; an empty function takes it away again, as at the start of the process.
void gSetCatalogue(TCatalogue catalogue);

} // namespace xlang
