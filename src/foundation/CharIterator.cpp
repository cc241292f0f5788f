#include "foundation/CharIterator.h"

#include "foundation/MarkerRule.h"
#include "foundation/Utf8Units.h"
#include "platform/base/StringA.h"

#include <algorithm>

namespace
{

int LengthOf(const CStringA& rText) noexcept
{
    return static_cast<int>(gBehindMarker(rText).size());
}

} // namespace

TCharIterator::TCharIterator(const CStringA& rText, int nIndex) noexcept
    : mpText(&rText), mnIndex(static_cast<std::size_t>(std::clamp(nIndex, 0, LengthOf(rText))))
{
}

char16_t TCharIterator::operator*() const noexcept
{
    const std::string_view sText = gBehindMarker(*mpText);
    if (!gIsStoredUtf8(*mpText)) {
        return mnIndex < sText.size() ? static_cast<unsigned char>(sText[mnIndex]) : u'\0';
    }
    std::size_t nIndex = mnIndex;
    return gDecodeUnit(sText, nIndex);
}

TCharIterator& TCharIterator::operator++() noexcept
{
    const std::string_view sText = gBehindMarker(*mpText);
    mnIndex = gIsStoredUtf8(*mpText) ? gNextCharacter(sText, mnIndex)
                                     : std::min(mnIndex + 1, sText.size());
    return *this;
}

TCharIterator& TCharIterator::operator--() noexcept
{
    const std::string_view sText = gBehindMarker(*mpText);
    mnIndex = std::min(mnIndex, sText.size());
    if (gIsStoredUtf8(*mpText)) {
        mnIndex = gPreviousCharacter(sText, mnIndex);
    } else if (mnIndex > 0) {
        --mnIndex;
    }
    return *this;
}

TCharIterator& TCharIterator::operator+=(int nCount) noexcept
{
    for (; nCount > 0 && !IsEnd(); --nCount) {
        ++*this;
    }
    for (; nCount < 0 && mnIndex > 0; ++nCount) {
        --*this;
    }
    return *this;
}

TCharIterator& TCharIterator::operator-=(int nCount) noexcept
{
    for (; nCount > 0 && mnIndex > 0; --nCount) {
        --*this;
    }
    for (; nCount < 0 && !IsEnd(); ++nCount) {
        ++*this;
    }
    return *this;
}

int TCharIterator::GetIndex() const noexcept
{
    return std::min(static_cast<int>(mnIndex), LengthOf(*mpText));
}

bool TCharIterator::IsEnd() const noexcept
{
    return mnIndex >= gBehindMarker(*mpText).size();
}
