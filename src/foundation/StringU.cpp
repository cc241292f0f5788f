#include "foundation/StringU.h"

#include "foundation/FromCodePage.h"
#include "foundation/Literal.h"
#include "foundation/MarkerRule.h"
#include "foundation/Utf8Units.h"
#include "platform/base/Ascii.h"
#include "platform/base/CodePage.h"
#include "platform/base/StringIndex.h"

#include <type_traits>
#include <utility>

static_assert(sizeof(CStringU) == sizeof(CStringA));
static_assert(std::is_nothrow_move_constructible_v<CStringU>);

struct CStringU::TStored {
};

namespace
{

void StoreKind(std::string_view sText, TTextKind kind, std::string& rsStored)
{
    switch (kind) {
    case TTextKind::Plain:
        break;
    case TTextKind::CodePageIfNeeded:
        if (gIsAscii(sText)) {
            break;
        }
        [[fallthrough]];
    case TTextKind::CodePage:
        gStoreCodePage(sText, rsStored);
        return;
    case TTextKind::Utf8IfNeeded:
        if (gIsAscii(sText)) {
            break;
        }
        [[fallthrough]];
    case TTextKind::Utf8:
        gStoreUtf8(sText, rsStored);
        return;
    }
    rsStored = sText;
}

} // namespace

CStringU::CStringU(std::string sStored, const TStored& /*rTag*/) noexcept
    : CStringA(std::move(sStored))
{
}

CStringU::CStringU(const char* pText) : CStringU(gViewOf(pText)) {}

CStringU::CStringU(std::string_view sText) : CStringU(sText, TTextKind::CodePageIfNeeded) {}

CStringU::CStringU(const std::string& rsText) : CStringU(std::string_view(rsText)) {}

CStringU::CStringU(const CStringA& rsText) : CStringU(std::string_view(rsText)) {}

CStringU::CStringU(std::string_view sText, TTextKind kind)
{
    StoreKind(sText, kind, Bytes());
}

CStringU::CStringU(const char* pText, TTextKind kind) : CStringU(gViewOf(pText), kind) {}

CStringU::CStringU(const char16_t* pText) : CStringU(gViewOf(pText)) {}

CStringU::CStringU(std::u16string_view sText) : CStringA(gStoreWide(sText)) {}

CStringU::CStringU(const std::u16string& rsText) : CStringU(std::u16string_view(rsText)) {}

CStringU::CStringU(TCharacter character) : CStringU(std::u16string_view(&character.mchUnit, 1)) {}

CStringU CStringU::FromWideBigEndian(std::u16string_view sText)
{
    return {gSwapUnitBytes(sText)};
}

CStringU CStringU::FromWideBigEndian(const char16_t* pText)
{
    return FromWideBigEndian(gViewOf(pText));
}

void CStringU::Assign(std::string_view sText, TTextKind kind)
{
    StoreKind(sText, kind, Bytes());
}

void CStringU::AppendUtf8(std::string_view sBytes)
{
    gOverwriteStored(Bytes(), std::string_view::npos, sBytes);
}

void CStringU::OverwriteUtf8(std::size_t nFirst, std::string_view sBytes)
{
    gOverwriteStored(Bytes(), nFirst, sBytes);
}

void CStringU::ResizeUtf8(std::size_t nSize)
{
    gResizeStored(Bytes(), nSize);
}

CStringA CStringU::ToUtf8() const
{
    return {Text()};
}

CStringA CStringU::ToCodePage(unsigned nCodePage) const
{
    if (!IsUtf8() || gIsAscii(Text())) {
        return {Text()};
    }
    return {gWideToMultiByte(gDecodeUnits(Text()), nCodePage)};
}

CStringA CStringU::ToAnsi() const
{
    return ToCodePage(gGetSystemCodePage());
}

std::u16string CStringU::ToWide() const
{
    if (IsUtf8()) {
        return gDecodeUnits(Text());
    }
    std::u16string sWide;
    sWide.reserve(Text().size());
    gAppendWidened(Text(), sWide);
    return sWide;
}

std::u16string CStringU::ToWideBigEndian() const
{
    return gSwapUnitBytes(ToWide());
}

int CStringU::GetCharCount() const noexcept
{
    const std::string_view sText = Text();
    if (!IsUtf8()) {
        return GetByteLength();
    }
    int nCount = 0;
    for (std::size_t nAt = 0; nAt < sText.size(); nAt += gSequenceLength(sText[nAt])) {
        ++nCount;
    }
    return nCount;
}

CStringU CStringU::Piece(std::size_t nFirst, std::size_t nCount) const
{
    const std::string_view sPiece = Text().substr(nFirst, nCount);
    return {IsUtf8() ? gStoreMarked(sPiece) : std::string(sPiece), TStored()};
}

CStringU CStringU::Left(int nCount) const
{
    return Piece(0, gClampIndex(nCount, Text().size()));
}

CStringU CStringU::Right(int nCount) const
{
    const std::size_t nClamped = gClampIndex(nCount, Text().size());
    return Piece(Text().size() - nClamped, nClamped);
}

CStringU CStringU::Mid(int nFirst) const
{
    return Piece(gClampIndex(nFirst, Text().size()), std::string_view::npos);
}

CStringU CStringU::Mid(int nFirst, int nCount) const
{
    const std::size_t nAt = gClampIndex(nFirst, Text().size());
    return Piece(nAt, gClampIndex(nCount, Text().size() - nAt));
}

CStringU& CStringU::operator+=(const CStringU& rsText)
{
    gAppendStored(Bytes(), rsText.Stored());
    return *this;
}

CStringU& CStringU::operator+=(const char* pText)
{
    const std::string_view sText = gViewOf(pText);
    if (!gIsAscii(sText)) {
        return *this += CStringU(sText);
    }
    Bytes() += sText;
    return *this;
}

CStringU& CStringU::operator+=(char16_t chChar)
{
    if (chChar != 0 && chChar < 0x80) {
        Bytes() += static_cast<char>(chChar);
        return *this;
    }
    return *this += CStringU(chChar);
}

CStringU& CStringU::operator+=(char chChar)
{
    return *this += CStringU(std::string_view(&chChar, 1)); // of one byte, so without a block
}

CStringU CStringU::Joined(std::string_view sLeft, std::string_view sRight)
{
    CStringU sJoined;
    sJoined.Bytes().reserve(sLeft.size() + sRight.size() + 1); // a marker may come to the front
    sJoined.Bytes() = sLeft;
    gAppendStored(sJoined.Bytes(), sRight);
    return sJoined;
}

CStringU operator+(const CStringU& rsLeft, const CStringU& rsRight)
{
    return CStringU::Joined(rsLeft.Stored(), rsRight.Stored());
}

CStringU operator+(CStringU&& rsLeft, const CStringU& rsRight)
{
    return std::move(rsLeft += rsRight);
}

CStringU operator+(const CStringU& rsLeft, const char* pRight)
{
    const CLiteral right(pRight);
    return CStringU::Joined(rsLeft.Stored(), right.Stored());
}

CStringU operator+(CStringU&& rsLeft, const char* pRight)
{
    return std::move(rsLeft += pRight);
}

CStringU operator+(const char* pLeft, const CStringU& rsRight)
{
    const CLiteral left(pLeft);
    return CStringU::Joined(left.Stored(), rsRight.Stored());
}

bool operator==(const CStringU& rsLeft, const char* pRight)
{
    return rsLeft.Stored() == CLiteral(pRight).Stored();
}

std::strong_ordering operator<=>(const CStringU& rsLeft, const char* pRight)
{
    return gCompareStored(rsLeft.Stored(), CLiteral(pRight).Stored());
}
