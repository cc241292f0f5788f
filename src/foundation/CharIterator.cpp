#include "foundation/CharIterator.h"

#include "foundation/StringU.h"
#include "foundation/Utf8Units.h"

#include <algorithm>

TCharIterator::TCharIterator(const CStringU& rText, int nIndex) noexcept
    : mpText(&rText),
      mnIndex(static_cast<std::size_t>(std::clamp(nIndex, 0, rText.GetByteLength())))
{
}

char16_t TCharIterator::operator*() const noexcept
{
    const std::string_view sText = mpText->Text();
    if (!mpText->IsUtf8()) {
        return mnIndex < sText.size() ? static_cast<unsigned char>(sText[mnIndex]) : u'\0';
    }
    std::size_t nIndex = mnIndex;
    return gDecodeUnit(sText, nIndex);
}

TCharIterator& TCharIterator::operator++() noexcept
{
    const std::string_view sText = mpText->Text();
    mnIndex =
        mpText->IsUtf8() ? gNextCharacter(sText, mnIndex) : std::min(mnIndex + 1, sText.size());
    return *this;
}

TCharIterator& TCharIterator::operator--() noexcept
{
    const std::string_view sText = mpText->Text();
    mnIndex = std::min(mnIndex, sText.size());
    if (mpText->IsUtf8()) {
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
    return std::min(static_cast<int>(mnIndex), mpText->GetByteLength());
}

bool TCharIterator::IsEnd() const noexcept
{
    return mnIndex >= mpText->Text().size();
}
