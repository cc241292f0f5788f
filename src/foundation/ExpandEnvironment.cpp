#include "foundation/ExpandEnvironment.h"

#include "foundation/PathRules.h"
#include "foundation/PathText.h"
#include "platform/base/CodePage.h"
#include "platform/base/Environment.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace
{

constexpr int kMostNestedTests = 10'000;
constexpr std::size_t kMostNestedNames = 100; // each needs some stack

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
        rNames.mnTestsLeft = kMostNestedTests;
        return true;
    }
    if (rNames.mNames.size() >= kMostNestedNames || rNames.mnTestsLeft == 0) {
        return false;
    }
    --rNames.mnTestsLeft;
    return std::ranges::find(rNames.mNames, sName) == rNames.mNames.end();
}

/// Whether the value of a variable is an absolute path.
bool IsAbsoluteValue(std::u16string_view sName, std::u16string_view sValue, TExpandedNames& rNames)
{
    rNames.mNames.emplace_back(sName);
    const bool bAbsolute = gIsAbsoluteText(sValue, rNames);
    rNames.mNames.pop_back();
    return bAbsolute;
}

} // namespace

bool gMayHaveReferences(std::u16string_view sPath) noexcept
{
    return std::ranges::any_of(sPath,
                               [](char16_t chChar) { return chChar == u'$' || chChar == u'%'; });
}

std::u16string gExpandEnvironment(std::u16string_view sPath, TExpandedNames& rNames)
{
    std::u16string sExpanded;
    CReferenceReader reader(sPath);
    std::size_t nAt = 0;
    while (nAt + 1 < sPath.size()) {
        const std::size_t nPlain = std::min(sPath.find_first_of(u"$%", nAt), sPath.size());
        sExpanded += sPath.substr(nAt, nPlain - nAt);
        nAt = nPlain;
        if (nAt + 1 >= sPath.size()) {
            break;
        }
        const auto reference = reader.ReadAt(nAt);
        const std::size_t nLength = reference ? reference->mnLength : 1;
        const auto value = reference && MayExpand(reference->msName, rNames)
                               ? ValueOf(reference->msName)
                               : std::nullopt;
        if (!value) {
            sExpanded += sPath.substr(nAt, nLength);
        } else {
            if (IsAbsoluteValue(reference->msName, *value, rNames)) {
                sExpanded.clear();
            }
            sExpanded += *value;
        }
        nAt += nLength;
    }
    return sExpanded += sPath.substr(std::min(nAt, sPath.size()));
}
