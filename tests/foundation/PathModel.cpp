#include "foundation/PathModel.h"

#include "platform/base/IsWine.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace
{

constexpr std::size_t kNone = std::u16string::npos;

bool IsSlash(const std::u16string& rsText, std::size_t nAt)
{
    return nAt < rsText.size() && (rsText[nAt] == u'/' || rsText[nAt] == u'\\');
}

/// Where the next slash stands, from a place on.
std::size_t NextSlash(const std::u16string& rsText, std::size_t nFrom)
{
    return nFrom > rsText.size() ? kNone : rsText.find_first_of(u"/\\", nFrom);
}

/// Where the slash behind server and share stands.
std::size_t BehindShare(const std::u16string& rsText)
{
    const std::size_t nServer = NextSlash(rsText, 2);
    return nServer == kNone ? kNone : NextSlash(rsText, nServer + 1);
}

bool HasColon(const std::u16string& rsText)
{
    return rsText.size() > 1 && rsText[1] == u':';
}

bool HasTwoSlashes(const std::u16string& rsText)
{
    return IsSlash(rsText, 0) && IsSlash(rsText, 1);
}

std::u16string With(std::u16string sText, char16_t chOld, char16_t chNew)
{
    std::ranges::replace(sText, chOld, chNew);
    return sText;
}

/// Takes out a component and the ".." behind it, again and again.
void Undo(std::vector<std::u16string>& rParts, bool bRooted)
{
    for (bool bChanged = true; bChanged;) {
        bChanged = false;
        for (std::size_t n = 0; n < rParts.size() && !bChanged; ++n) {
            const auto at = rParts.begin() + static_cast<long>(n);
            if (*at != u"..") {
                continue;
            }
            if (n > 0 && *(at - 1) != u"..") {
                rParts.erase(at - 1, at + 1);
                bChanged = true;
            } else if (n == 0 && bRooted) {
                rParts.erase(at);
                bChanged = true;
            }
        }
    }
}

/// The clean form with "/" only.
std::u16string Clean(const std::u16string& rsPath)
{
    const std::u16string sPath = With(rsPath, u'\\', u'/');
    std::size_t nRoot = 0;
    if (HasTwoSlashes(sPath)) {
        nRoot = BehindShare(sPath) == kNone ? 0 : BehindShare(sPath);
    } else if (HasColon(sPath)) {
        nRoot = 2;
    }
    const bool bRooted = IsSlash(sPath, nRoot);
    std::vector<std::u16string> parts{u""};
    for (const char16_t chChar : sPath.substr(nRoot)) {
        if (chChar == u'/') {
            parts.emplace_back();
        } else {
            parts.back() += chChar;
        }
    }
    std::erase(parts, u"");
    std::erase(parts, u".");
    Undo(parts, bRooted);
    std::u16string sClean = sPath.substr(0, nRoot) + (bRooted ? u"/" : u"");
    for (std::size_t n = 0; n < parts.size(); ++n) {
        sClean += (n == 0 ? u"" : u"/") + parts[n];
    }
    return sClean;
}

char16_t Upper(char16_t chChar)
{
    const std::u16string letters = u"abcdefghijklmnopqrstuvwxyz";
    const std::size_t nAt = letters.find(chChar);
    return nAt == kNone ? chChar : u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"[nAt];
}

/// A reference at a place: its name and its end, which is kNone without one.
std::pair<std::u16string, std::size_t> ReferenceAt(const std::u16string& rsText, std::size_t nAt)
{
    static const std::u16string letters =
        u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_";
    if (rsText.substr(nAt, 2) == u"${") {
        const std::size_t nEnd = rsText.find(u'}', nAt);
        return nEnd == kNone ? std::pair(std::u16string(), kNone)
                             : std::pair(rsText.substr(nAt + 2, nEnd - nAt - 2), nEnd + 1);
    }
    if (rsText[nAt] == u'$') {
        const std::size_t nEnd =
            std::min(rsText.find_first_not_of(letters, nAt + 1), rsText.size());
        return nEnd == nAt + 1 ? std::pair(std::u16string(), kNone)
                               : std::pair(rsText.substr(nAt + 1, nEnd - nAt - 1), nEnd);
    }
    if (rsText[nAt] == u'%') {
        const std::size_t nEnd = rsText.find(u'%', nAt + 1);
        return nEnd == kNone ? std::pair(std::u16string(), kNone)
                             : std::pair(rsText.substr(nAt + 1, nEnd - nAt - 1), nEnd + 1);
    }
    return {{}, kNone};
}

} // namespace

std::u16string CPathModel::Expand(std::u16string sText, const TNames& rNames) const
{
    std::size_t nAt = 0;
    while (nAt + 1 < sText.size()) {
        const auto [sName, nEnd] = ReferenceAt(sText, nAt);
        if (nEnd == kNone) {
            ++nAt;
            continue;
        }
        const auto found = mVariables.find(sName);
        const std::u16string sListed = u"," + sName + u",";
        if (found == mVariables.end() || rNames.find(sListed) != kNone) {
            nAt = nEnd;
            continue;
        }
        const std::u16string& rsValue = found->second;
        const std::size_t nFrom = IsAbsolute(rsValue, rNames + sListed) ? 0 : nAt;
        sText = sText.substr(0, nFrom) + rsValue + sText.substr(nEnd);
        nAt = nFrom + rsValue.size();
    }
    return sText;
}

std::u16string CPathModel::Canonical(const std::u16string& rsPath, const TNames& rNames) const
{
    std::u16string sText = Expand(With(Clean(rsPath), u'/', u'\\'), rNames);
    const bool bStays = (HasColon(sText) && IsSlash(sText, 2)) || HasTwoSlashes(sText);
    return gIsWine() && !bStays ? With(sText, u'\\', u'/') : sText;
}

bool CPathModel::IsAbsolute(const std::u16string& rsPath, const TNames& rNames) const
{
    const std::u16string sCanonical = Canonical(rsPath, rNames);
    if (IsSlash(sCanonical, 0) && rsPath[0] != u'\\') {
        return true;
    }
    if (sCanonical.empty()) {
        return false;
    }
    if (IsSlash(sCanonical, 0)) {
        return IsSlash(sCanonical, 1);
    }
    return HasColon(sCanonical) && IsSlash(sCanonical, 2);
}

std::u16string CPathModel::Join(const std::u16string& rsPath,
                                const std::u16string& rsRelative) const
{
    if (IsAbsolute(rsRelative) || rsPath.empty()) {
        return Canonical(rsRelative);
    }
    std::u16string sCopy = rsPath;
    if (!rsRelative.empty() && !IsSlash(rsRelative, 0)) {
        if (!IsSlash(sCopy, sCopy.size() - 1) && sCopy.back() != u':') {
            sCopy += u'\\';
        }
    } else if (!rsRelative.empty()) {
        if (HasTwoSlashes(sCopy)) {
            sCopy = BehindShare(sCopy) == kNone ? sCopy : sCopy.substr(0, BehindShare(sCopy));
        } else if (HasColon(sCopy)) {
            sCopy = sCopy.substr(0, 2);
        } else if (IsSlash(sCopy, sCopy.size() - 1)) {
            sCopy.pop_back();
        }
    }
    return Canonical(sCopy + rsRelative);
}

std::u16string CPathModel::Resolve(const std::u16string& rsBase, const std::u16string& rsPath) const
{
    return IsAbsolute(rsPath) ? Canonical(rsPath) : Join(rsBase, rsPath);
}

std::u16string CPathModel::Relative(const std::u16string& rsFolder,
                                    const std::u16string& rsFile) const
{
    const auto finish = [](const std::u16string& rsResult) {
        return gIsWine() ? With(rsResult, u'\\', u'/') : rsResult;
    };
    if (rsFolder.empty() || !IsAbsolute(rsFile)) {
        return finish(rsFile);
    }
    std::size_t nAt = 0;
    long nLast = -1;
    int nSlashes = 0;
    while (nAt < rsFolder.size() && nAt < rsFile.size() &&
           Upper(rsFolder[nAt]) == Upper(rsFile[nAt])) {
        if (IsSlash(rsFile, nAt)) {
            nLast = static_cast<long>(nAt);
            ++nSlashes;
        }
        ++nAt;
    }
    const bool bClosed = IsSlash(rsFolder, rsFolder.size() - 1);
    if (nAt == rsFolder.size() && bClosed) {
        return finish(rsFile.substr(nAt));
    }
    if (nAt == rsFolder.size() && IsSlash(rsFile, nAt)) {
        return finish(rsFile.substr(nAt + 1));
    }
    const bool bDrive = nLast >= 2 && HasColon(rsFolder);
    const bool bUnix = nLast >= 2 && gIsWine() && IsUnixStyle(rsFolder);
    const bool bShare = nLast >= 5 && nSlashes >= 4 && HasTwoSlashes(rsFolder);
    if (!bDrive && !bUnix && !bShare) {
        return finish(rsFile);
    }
    const auto nBehind = static_cast<std::size_t>(nLast) + 1;
    std::u16string sResult = rsFile.substr(nBehind);
    for (std::size_t n = nBehind; n <= rsFolder.size(); ++n) {
        if (IsSlash(rsFolder, n) || (n == rsFolder.size() && !bClosed)) {
            sResult = (gIsWine() ? u"../" : u"..\\") + sResult;
        }
    }
    return finish(sResult);
}

bool CPathModel::IsUnixStyle(const std::u16string& rsPath)
{
    if (rsPath.substr(0, 1) == u"/" || rsPath.substr(0, 3) == u"../" ||
        rsPath.substr(0, 2) == u"./") {
        return true;
    }
    if (rsPath.size() < 3 || rsPath.front() != rsPath.back()) {
        return false;
    }
    const bool bQuoted = rsPath.front() == u'"' || rsPath.front() == u'\'';
    return bQuoted && IsUnixStyle(rsPath.substr(1, rsPath.size() - 2));
}

std::u16string CPathModel::Abbreviate(const std::u16string& rsPath, std::size_t nWidth,
                                      bool bKeepName)
{
    if (rsPath.size() <= nWidth) {
        return rsPath;
    }
    std::u16string sHead;
    if (HasTwoSlashes(rsPath)) {
        sHead = BehindShare(rsPath) == kNone ? u"" : rsPath.substr(0, BehindShare(rsPath));
    } else if (HasColon(rsPath)) {
        sHead = rsPath.substr(0, 2);
    }
    const std::u16string sSeparator = IsUnixStyle(rsPath) ? u"/" : u"\\";
    const std::size_t nEnd = rsPath.find_last_of(u"/\\:");
    const std::u16string sName = nEnd == kNone ? rsPath : rsPath.substr(nEnd + 1);
    const std::u16string sLeast = sHead + sSeparator + u"..." + sSeparator + sName;
    if (sLeast.size() > nWidth) {
        return bKeepName ? sName : u"";
    }
    for (std::size_t n = 0; n < rsPath.size() - sName.size(); ++n) {
        const std::u16string sCandidate = sHead + sSeparator + u"..." + rsPath.substr(n);
        if (IsSlash(rsPath, n) && sCandidate.size() <= nWidth) {
            return sCandidate;
        }
    }
    return sLeast;
}
