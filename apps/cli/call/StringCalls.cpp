#include "cli/call/CallTable.h"
#include "foundation/CharClass.h"
#include "foundation/StringU.h"
#include "foundation/Utf8Units.h"

#include <optional>
#include <string>

namespace quorvawiz::cli
{
namespace
{
TBytes BytesOf(const CStringA& rText)
{
    return {std::string(std::string_view(rText))};
}

std::vector<TCallFunction> Constructions()
{
    return {
        gCallable(
            "CStringU.FromBytes",
            [](const TBytes& rBytes, TTextKind kind) { return CStringU(rBytes.msBytes, kind); }),
        gCallable("CStringU.FromWide",
                  [](const std::u16string& rsUnits) { return CStringU(rsUnits); }),
        gCallable(
            "CStringU.FromWideBigEndian",
            [](const std::u16string& rsUnits) { return CStringU::FromWideBigEndian(rsUnits); }),
        gCallable("CStringU.FromChar", [](TUnit unit) { return CStringU(unit.mchUnit); }),
    };
}

std::vector<TCallFunction> Conversions()
{
    return {
        gCallable("CStringU.Stored",
                  [](const CStringU& rText) { return TBytes{std::string(rText.Stored())}; }),
        gCallable("CStringU.ToUtf8", [](const CStringU& rText) { return BytesOf(rText.ToUtf8()); }),
        gCallable("CStringU.ToCodePage",
                  [](const CStringU& rText, unsigned nCodePage) {
                      return BytesOf(rText.ToCodePage(nCodePage));
                  }),
        gCallable("CStringU.ToAnsi", [](const CStringU& rText) { return BytesOf(rText.ToAnsi()); }),
        gCallable("CStringU.ToWide", [](const CStringU& rText) { return rText.ToWide(); }),
        gCallable("CStringU.ToWideBigEndian",
                  [](const CStringU& rText) { return rText.ToWideBigEndian(); }),
        gCallable("CStringU.IsUtf8", [](const CStringU& rText) { return rText.IsUtf8(); }),
        gCallable("CStringU.GetByteLength",
                  [](const CStringU& rText) { return rText.GetByteLength(); }),
        gCallable("CStringU.GetCharCount",
                  [](const CStringU& rText) { return rText.GetCharCount(); }),
        gCallable("CStringU.Characters",
                  [](const CStringU& rText) {
                      std::u16string sUnits;
                      for (TCharIterator it = rText.begin(); !it.IsEnd(); ++it)
                          sUnits += *it;
                      return sUnits;
                  }),
    };
}

std::vector<TCallFunction> Pieces()
{
    return {
        gCallable("CStringU.Left",
                  [](const CStringU& rText, int nCount) { return rText.Left(nCount); }),
        gCallable("CStringU.Right",
                  [](const CStringU& rText, int nCount) { return rText.Right(nCount); }),
        gCallable("CStringU.Mid",
                  [](const CStringU& rText, int nFirst, std::optional<int> count) {
                      return count ? rText.Mid(nFirst, *count) : rText.Mid(nFirst);
                  }),
        gCallable("CStringU.operator+",
                  [](const CStringU& rLeft, const CStringU& rRight) { return rLeft + rRight; }),
        gCallable("CStringU.operator+=",
                  [](CStringU sLeft, const CStringU& rRight) { return sLeft += rRight; }),
    };
}

std::vector<TCallFunction> Comparisons()
{
    return {
        gCallable("CStringU.operator==",
                  [](const CStringU& rLeft, const CStringU& rRight) { return rLeft == rRight; }),
        gCallable("CStringU.operator<",
                  [](const CStringU& rLeft, const CStringU& rRight) { return rLeft < rRight; }),
        gCallable("CompareNoCase",
                  [](const CStringU& rLeft, const CStringU& rRight) {
                      return CompareNoCase(rLeft, rRight);
                  }),
        gCallable("CStringU.CompareNoCase",
                  [](const CStringU& rLeft, const CStringU& rRight) {
                      return rLeft.CompareNoCase(rRight);
                  }),
        gCallable("TStringLessNoCase",
                  [](const CStringU& rLeft, const CStringU& rRight) {
                      return TStringLessNoCase()(rLeft, rRight);
                  }),
        gCallable(
            "CStringU.StartsWith",
            [](const CStringU& rText, const CStringU& rStart) { return rText.StartsWith(rStart); }),
        gCallable("CStringU.EndsWith",
                  [](const CStringU& rText, const CStringU& rEnd) { return rText.EndsWith(rEnd); }),
    };
}

std::vector<TCallFunction> Searches()
{
    return {
        gCallable("CStringU.Find", [](const CStringU& rText,
                                      const CStringU& rWanted) { return rText.Find(rWanted); }),
        gCallable("CStringU.ReverseFind",
                  [](const CStringU& rText, const CStringU& rWanted) {
                      return rText.ReverseFind(rWanted);
                  }),
        gCallable("CStringU.FindCharacter",
                  [](const CStringU& rText, TUnit wanted) {
                      return rText.Find(wanted.mchUnit).GetIndex();
                  }),
        gCallable("CStringU.FindNoCase",
                  [](const CStringU& rText, TUnit wanted) {
                      return rText.FindNoCase(wanted.mchUnit).GetIndex();
                  }),
        gCallable("CStringU.FindOneOf",
                  [](const CStringU& rText, const CStringU& rSet) {
                      return rText.FindOneOf(rSet).GetIndex();
                  }),
        gCallable("CStringU.FindLastOf",
                  [](const CStringU& rText, const CStringU& rSet) {
                      return rText.FindLastOf(rSet).GetIndex();
                  }),
    };
}

TJson Changed(const CStringU& rText, int nCount)
{
    return {{"text", gToResult(rText)}, {"count", nCount}};
}

std::vector<TCallFunction> Changes()
{
    return {
        gCallable("CStringU.MakeLower", [](CStringU sText) { return sText.MakeLower(); }),
        gCallable("CStringU.MakeUpper", [](CStringU sText) { return sText.MakeUpper(); }),
        gCallable("CStringU.Replace",
                  [](CStringU sText, TUnit oldUnit, TUnit newUnit) {
                      const int nCount = sText.Replace(oldUnit.mchUnit, newUnit.mchUnit);
                      return Changed(sText, nCount);
                  }),
        gCallable("CStringU.ReplaceNoCase",
                  [](CStringU sText, TUnit oldUnit, TUnit newUnit) {
                      const int nCount = sText.ReplaceNoCase(oldUnit.mchUnit, newUnit.mchUnit);
                      return Changed(sText, nCount);
                  }),
        gCallable("CStringU.TrimLeft", [](CStringU sText) { return sText.TrimLeft(); }),
        gCallable("CStringU.TrimRight", [](CStringU sText) { return sText.TrimRight(); }),
        gCallable("CStringU.Trim", [](CStringU sText) { return sText.Trim(); }),
        gCallable("CStringU.StripQuotes", [](CStringU sText) { return sText.StripQuotes(); }),
        gCallable("CStringU.AddQuotes", [](CStringU sText) { return sText.AddQuotes(); }),
    };
}

TJson DecodeUnit(const TBytes& rBytes, unsigned nIndex)
{
    std::size_t nNext = nIndex;
    const char16_t chUnit = gDecodeUnit(rBytes.msBytes, nNext);
    return {{"unit", static_cast<unsigned>(chUnit)}, {"index", nNext}};
}

std::vector<TCallFunction> Characters()
{
    return {
        gCallable("gDecodeUnit", DecodeUnit),
        gCallable("gIsWhiteSpace", [](TUnit unit) { return gIsWhiteSpace(unit.mchUnit); }),
        gCallable("gIsQuote", [](TUnit unit) { return gIsQuote(unit.mchUnit); }),
    };
}
} // namespace

std::vector<TCallFunction> gStringCalls()
{
    std::vector<TCallFunction> calls;
    for (auto* const pPart :
         {Constructions, Conversions, Pieces, Comparisons, Searches, Changes, Characters}) {
        for (TCallFunction& rFunction : pPart())
            calls.push_back(std::move(rFunction));
    }
    return calls;
}

} // namespace quorvawiz::cli
