#include "platform/base/StringA.h"

#include "platform/base/Ascii.h"
#include "platform/base/CodePageCase.h"
#include "platform/base/Exceptions.h"
#include "platform/base/StringIndex.h"

#include <algorithm>
#include <type_traits>
#include <utility>

static_assert(sizeof(CStringA) == sizeof(std::string));
static_assert(!std::has_virtual_destructor_v<CStringA>);
static_assert(std::is_nothrow_move_constructible_v<CStringA>);

namespace
{

constexpr std::string_view kWhiteSpace(" \t\n\v\f\r");

std::string_view CheckedView(const char* pText, int nLength)
{
    if (nLength < 0 || (pText == nullptr && nLength != 0)) {
        gThrowInvalidArg("CStringA: invalid text or length");
    }
    return {pText, static_cast<std::size_t>(nLength)};
}

int Sign(int nValue)
{
    return (nValue > 0) - (nValue < 0);
}

} // namespace

CStringA::CStringA(const char* pText) : msBytes(gViewOf(pText)) {}

CStringA::CStringA(std::string_view sText) : msBytes(sText) {}

CStringA::CStringA(std::string sText) noexcept : msBytes(std::move(sText)) {}

CStringA::CStringA(const char* pText, int nLength) : msBytes(CheckedView(pText, nLength)) {}

CStringA::CStringA(char chChar, int nRepeat)
    : msBytes(static_cast<std::size_t>(std::max(nRepeat, 0)), chChar)
{
}

char CStringA::GetAt(int nIndex) const
{
    if (nIndex < 0 || nIndex > GetLength()) {
        gThrowInvalidArg("CStringA: index out of range");
    }
    return msBytes[static_cast<std::size_t>(nIndex)];
}

void CStringA::SetAt(int nIndex, char chChar)
{
    if (nIndex < 0 || nIndex >= GetLength()) {
        gThrowInvalidArg("CStringA: index out of range");
    }
    msBytes[static_cast<std::size_t>(nIndex)] = chChar;
}

CStringA& CStringA::operator+=(std::string_view sText)
{
    msBytes += sText;
    return *this;
}

CStringA& CStringA::operator+=(const char* pText)
{
    msBytes += gViewOf(pText);
    return *this;
}

CStringA& CStringA::operator+=(char chChar)
{
    msBytes += chChar;
    return *this;
}

int CStringA::Compare(std::string_view sOther) const noexcept
{
    return Sign(std::string_view(msBytes).compare(sOther));
}

int CStringA::CompareNoCase(std::string_view sOther) const
{
    // The ASCII characters in front decide nearly always. Where one text leaves ASCII, both stand
    // at the beginning of a character, and the rest goes by the code page.
    const std::size_t nCommon = std::min(msBytes.size(), sOther.size());
    for (std::size_t nAt = 0; nAt < nCommon; ++nAt) {
        const auto nLeft = static_cast<unsigned char>(gToLowerAscii(msBytes[nAt]));
        const auto nRight = static_cast<unsigned char>(gToLowerAscii(sOther[nAt]));
        if (nLeft >= 0x80 || nRight >= 0x80) {
            const std::string sLeft = gToLowerInCodePage(std::string_view(msBytes).substr(nAt));
            return Sign(sLeft.compare(gToLowerInCodePage(sOther.substr(nAt))));
        }
        if (nLeft != nRight) {
            return nLeft < nRight ? -1 : 1;
        }
    }
    return (msBytes.size() > nCommon ? 1 : 0) - (sOther.size() > nCommon ? 1 : 0);
}

int CStringA::Find(char chChar, int nStart) const noexcept
{
    return nStart < 0 ? -1 : gIndexOrNone(msBytes.find(chChar, static_cast<std::size_t>(nStart)));
}

int CStringA::Find(std::string_view sText, int nStart) const noexcept
{
    return nStart < 0 ? -1 : gIndexOrNone(msBytes.find(sText, static_cast<std::size_t>(nStart)));
}

int CStringA::ReverseFind(char chChar) const noexcept
{
    return gIndexOrNone(msBytes.rfind(chChar));
}

int CStringA::FindOneOf(std::string_view sSet) const noexcept
{
    return gIndexOrNone(msBytes.find_first_of(sSet));
}

CStringA CStringA::Left(int nCount) const
{
    return {std::string_view(msBytes).substr(0, gClampIndex(nCount, msBytes.size()))};
}

CStringA CStringA::Right(int nCount) const
{
    return {std::string_view(msBytes).substr(msBytes.size() - gClampIndex(nCount, msBytes.size()))};
}

CStringA CStringA::Mid(int nFirst) const
{
    return {std::string_view(msBytes).substr(gClampIndex(nFirst, msBytes.size()))};
}

CStringA CStringA::Mid(int nFirst, int nCount) const
{
    const std::string_view sTail =
        std::string_view(msBytes).substr(gClampIndex(nFirst, msBytes.size()));
    return {sTail.substr(0, gClampIndex(nCount, sTail.size()))};
}

CStringA& CStringA::TrimLeft()
{
    return TrimLeft(kWhiteSpace);
}

CStringA& CStringA::TrimRight()
{
    return TrimRight(kWhiteSpace);
}

CStringA& CStringA::Trim()
{
    return Trim(kWhiteSpace);
}

CStringA& CStringA::TrimLeft(std::string_view sSet)
{
    msBytes.erase(0, msBytes.find_first_not_of(sSet)); // npos: all of it
    return *this;
}

CStringA& CStringA::TrimRight(std::string_view sSet)
{
    msBytes.erase(msBytes.find_last_not_of(sSet) + 1); // npos plus 1 is 0: all of it
    return *this;
}

CStringA& CStringA::Trim(std::string_view sSet)
{
    const std::size_t nEnd = msBytes.find_last_not_of(sSet) + 1;
    const std::size_t nFirst = std::min(msBytes.find_first_not_of(sSet), nEnd);
    // Both ends are known before the first change, as the set may be a part of this text.
    msBytes.erase(nEnd);
    msBytes.erase(0, nFirst);
    return *this;
}

int CStringA::Replace(char chOld, char chNew) noexcept
{
    if (chOld == chNew) {
        return 0;
    }
    int nCount = 0;
    for (char& rchChar : msBytes) {
        if (rchChar == chOld) {
            rchChar = chNew;
            ++nCount;
        }
    }
    return nCount;
}

int CStringA::Replace(std::string_view sOld, std::string_view sNew)
{
    if (sOld.empty()) {
        return 0;
    }
    int nCount = 0;
    std::string sResult;
    std::size_t nDone = 0;
    for (std::size_t nAt = msBytes.find(sOld); nAt != std::string::npos;
         nAt = msBytes.find(sOld, nDone)) {
        sResult.append(msBytes, nDone, nAt - nDone);
        sResult += sNew;
        nDone = nAt + sOld.size();
        ++nCount;
    }
    if (nCount > 0) {
        sResult.append(msBytes, nDone);
        msBytes = std::move(sResult);
    }
    return nCount;
}

int CStringA::Remove(char chChar) noexcept
{
    return static_cast<int>(std::erase(msBytes, chChar));
}

int CStringA::Insert(int nIndex, char chChar)
{
    msBytes.insert(gClampIndex(nIndex, msBytes.size()), 1, chChar);
    return GetLength();
}

int CStringA::Insert(int nIndex, std::string_view sText)
{
    msBytes.insert(gClampIndex(nIndex, msBytes.size()), sText);
    return GetLength();
}

int CStringA::Delete(int nIndex, int nCount)
{
    const std::size_t nFirst = gClampIndex(nIndex, msBytes.size());
    msBytes.erase(nFirst, gClampIndex(nCount, msBytes.size() - nFirst));
    return GetLength();
}

CStringA& CStringA::MakeLower()
{
    if (gIsAscii(msBytes)) {
        for (char& rChar : msBytes) {
            rChar = gToLowerAscii(rChar);
        }
    } else {
        msBytes = gToLowerInCodePage(msBytes);
    }
    return *this;
}

CStringA& CStringA::MakeUpper()
{
    if (gIsAscii(msBytes)) {
        for (char& rChar : msBytes) {
            rChar = gToUpperAscii(rChar);
        }
    } else {
        msBytes = gToUpperInCodePage(msBytes);
    }
    return *this;
}
