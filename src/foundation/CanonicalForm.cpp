#include "foundation/CanonicalForm.h"

#include "foundation/ExpandEnvironment.h"
#include "foundation/PathText.h"
#include "platform/base/IsWine.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

namespace
{

/// The components of a path behind its root, resolved.
class CComponents
{
public:
    explicit CComponents(bool bRooted) : mbRooted(bRooted)
    {
        constexpr std::size_t usual = 16;
        mList.reserve(usual);
    }

    void Add(std::u16string_view sComponent)
    {
        if (sComponent.empty() || sComponent == u".") {
            return;
        }
        if (sComponent != u"..") {
            mList.push_back(sComponent);
            ++mnDepth;
        } else if (mnDepth > 0) {
            mList.pop_back();
            --mnDepth;
        } else if (!mbRooted) {
            mList.push_back(sComponent);
        }
    }

    const std::vector<std::u16string_view>& List() const { return mList; }

private:
    bool mbRooted;
    int mnDepth = 0; ///< how many of the last components can be undone
    std::vector<std::u16string_view> mList;
};

std::u16string Clean(std::u16string_view sPath)
{
    const std::size_t nHead = gHeadLength(sPath);
    const std::size_t nRoot = nHead != kNowhere ? nHead : 0; // kept: a bare share is a rooted path
    std::u16string_view sRest = sPath.substr(nRoot);
    const bool bRooted = sRest.starts_with(u'/');
    CComponents components(bRooted);
    while (!sRest.empty()) {
        const std::size_t nEnd = std::min(sRest.find(u'/'), sRest.size());
        components.Add(sRest.substr(0, nEnd));
        sRest.remove_prefix(std::min(nEnd + 1, sRest.size()));
    }
    std::u16string sClean;
    sClean.reserve(sPath.size());
    sClean += sPath.substr(0, nRoot);
    sClean.append(bRooted ? 1 : 0, u'/');
    std::u16string_view sSeparator;
    for (const std::u16string_view sComponent : components.List()) {
        sClean += sSeparator;
        sClean += sComponent;
        sSeparator = u"/";
    }
    return sClean;
}

/// Whether a path keeps its backslashes on the Unix side, too.
bool IsOfTheOtherSide(std::u16string_view sPath)
{
    return (gHasDrive(sPath) && gHasSlashAt(sPath, 2)) || gHasTwoSlashes(sPath);
}

} // namespace

std::u16string gCanonicalForm(std::u16string sPath, TExpandedNames& rNames)
{
    std::ranges::replace(sPath, u'\\', u'/');
    std::u16string sText = Clean(sPath);
    std::ranges::replace(sText, u'/', u'\\');
    sText = gExpandEnvironment(std::move(sText), rNames, gIsAbsoluteText);
    if (gIsWine() && !IsOfTheOtherSide(sText)) {
        std::ranges::replace(sText, u'\\', u'/');
    }
    return sText;
}

std::u16string gCanonicalForm(std::u16string sPath)
{
    TExpandedNames names;
    return gCanonicalForm(std::move(sPath), names);
}

bool gIsAbsoluteText(std::u16string_view sPath, TExpandedNames& rNames)
{
    const std::u16string sCanonical = gCanonicalForm(std::u16string(sPath), rNames);
    if (gHasSlashAt(sCanonical, 0)) {
        // One that begins with "/" is absolute under every system.
        return !sPath.starts_with(u'\\') || gHasSlashAt(sCanonical, 1);
    }
    return gHasDrive(sCanonical) && gHasSlashAt(sCanonical, 2);
}

bool gIsAbsoluteText(std::u16string_view sPath)
{
    TExpandedNames names;
    return gIsAbsoluteText(sPath, names);
}
