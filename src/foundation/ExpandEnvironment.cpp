#include "foundation/ExpandEnvironment.h"

#include "foundation/PathText.h"
#include "platform/base/CodePage.h"
#include "platform/base/Environment.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace
{

/// A reference to a variable at the start of a text.
struct TReference {
    std::u16string_view msName;
    std::size_t mnLength; ///< of the whole reference
};

bool IsNameCharacter(char16_t chChar)
{
    return (chChar >= u'a' && chChar <= u'z') || (chChar >= u'A' && chChar <= u'Z') ||
           (chChar >= u'0' && chChar <= u'9') || chChar == u'_';
}

/// A name from a place up to a closing character.
std::optional<TReference> ReadUpTo(std::u16string_view sText, std::size_t nNameAt, char16_t chClose)
{
    const std::size_t nEnd = sText.find(chClose, nNameAt);
    if (nEnd == kNowhere) {
        return std::nullopt;
    }
    return TReference{sText.substr(nNameAt, nEnd - nNameAt), nEnd + 1};
}

/// Finds references from the front to the end of one text.
class CReferenceReader
{
public:
    explicit CReferenceReader(std::u16string_view sText) : msText(sText) {}

    /// The reference that begins at a "$" or "%".
    std::optional<TReference> ReadAt(std::size_t nAt)
    {
        const std::u16string_view sRest = msText.substr(nAt);
        if (sRest.starts_with(u"${")) {
            return ReadClosed(sRest, 2, u'}', mbBraceAhead);
        }
        if (sRest.starts_with(u'$')) {
            const auto end = std::find_if_not(sRest.begin() + 1, sRest.end(), IsNameCharacter);
            const auto nLength = static_cast<std::size_t>(end - sRest.begin());
            return nLength > 1 ? std::optional(TReference{sRest.substr(1, nLength - 1), nLength})
                               : std::nullopt;
        }
        return ReadClosed(sRest, 1, u'%', mbPercentAhead);
    }

private:
    /// One that isn't closed tells of all behind it: they needn't be searched to the end again.
    static std::optional<TReference> ReadClosed(std::u16string_view sRest, std::size_t nNameAt,
                                                char16_t chClose, bool& rbAhead)
    {
        auto reference = rbAhead ? ReadUpTo(sRest, nNameAt, chClose) : std::nullopt;
        rbAhead = reference.has_value();
        return reference;
    }

    std::u16string_view msText;
    bool mbBraceAhead = true;
    bool mbPercentAhead = true;
};

/// The value of a variable. Names and values are UTF-8 in the environment.
std::optional<std::u16string> ValueOf(std::u16string_view sName)
{
    bool bReplaced = false;
    const std::string sBytes = gWideToMultiByte(sName, kCodePageUtf8, '?', &bReplaced);
    const auto value = bReplaced ? std::nullopt : gGetEnvironment(sBytes);
    return value ? std::optional(gMultiByteToWide(*value, kCodePageUtf8)) : std::nullopt;
}

/// Whether a reference may be filled in: it may not if that could go on without end.
bool MayExpand(std::u16string_view sName, TExpandedNames& rNames)
{
    if (rNames.mNames.empty()) {
        return true;
    }
    const bool bGoesOn = std::ranges::find(rNames.mNames, sName) != rNames.mNames.end();
    if (bGoesOn || rNames.mNames.size() >= kMostNestedNames || rNames.mnTestsLeft == 0) {
        return false;
    }
    --rNames.mnTestsLeft;
    return true;
}

/// Looks whether the value of a variable is an absolute path.
bool TestValue(const std::u16string& rsName, std::u16string_view sValue, TExpandedNames& rNames,
               TIsAbsolute pIsAbsolute)
{
    rNames.mNames.push_back(rsName);
    const bool bAbsolute = pIsAbsolute(sValue, rNames);
    rNames.mNames.pop_back();
    return bAbsolute;
}

/// Whether the value of a variable is an absolute path. Only in the path itself the answer is the
/// same each time: inside a value it depends on the variables around it.
bool IsAbsoluteValue(std::u16string_view sName, std::u16string_view sValue, TExpandedNames& rNames,
                     TIsAbsolute pIsAbsolute)
{
    const std::u16string sKey(sName);
    if (!rNames.mNames.empty()) {
        return TestValue(sKey, sValue, rNames, pIsAbsolute);
    }
    const auto known = rNames.mAbsolute.find(sKey);
    if (known != rNames.mAbsolute.end()) {
        return known->second;
    }
    return rNames.mAbsolute[sKey] = TestValue(sKey, sValue, rNames, pIsAbsolute);
}

/// The place of the next character that may begin a reference; the text's length without one.
std::size_t NextReference(std::u16string_view sText, std::size_t nFrom)
{
    const auto found =
        std::find_if(sText.begin() + static_cast<std::ptrdiff_t>(nFrom), sText.end(),
                     [](char16_t chChar) { return chChar == u'$' || chChar == u'%'; });
    return static_cast<std::size_t>(found - sText.begin());
}

} // namespace

std::u16string gExpandEnvironment(std::u16string sPath, TExpandedNames& rNames,
                                  TIsAbsolute pIsAbsolute)
{
    const std::u16string_view sText = sPath;
    std::size_t nAt = NextReference(sText, 0);
    if (nAt + 1 >= sText.size()) {
        return sPath;
    }
    std::u16string sExpanded(sText.substr(0, nAt));
    CReferenceReader reader(sText);
    while (nAt + 1 < sText.size()) {
        const auto reference = reader.ReadAt(nAt);
        const std::size_t nEnd = nAt + (reference ? reference->mnLength : 1);
        const auto value = reference && MayExpand(reference->msName, rNames)
                               ? ValueOf(reference->msName)
                               : std::nullopt;
        if (!value) {
            sExpanded += sText.substr(nAt, nEnd - nAt);
        } else {
            if (IsAbsoluteValue(reference->msName, *value, rNames, pIsAbsolute)) {
                sExpanded.clear();
            }
            sExpanded += *value;
        }
        nAt = NextReference(sText, nEnd);
        sExpanded += sText.substr(nEnd, nAt - nEnd);
    }
    return sExpanded += sText.substr(nAt);
}
