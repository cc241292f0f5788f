#include "cli/call/CallTable.h"
#include "foundation/CharClass.h"
#include "foundation/StringU.h"
#include "foundation/Utf8Units.h"

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>

namespace quorvawiz::cli
{
namespace
{
constexpr std::size_t kMostFormatted = 4;

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
        gCallable("CStringU.FromChar", [](TUnitArgument unit) { return CStringU(unit.mchUnit); }),
    };
}

/// printf with texts only: a format that asked for anything else would read what isn't there.
CStringU Format(const TBytes& rFormat, const std::vector<CStringU>& rTexts)
{
    std::size_t nWanted = 0;
    for (std::size_t nAt = 0; (nAt = rFormat.msBytes.find('%', nAt)) != std::string::npos;
         nAt += 2) {
        const std::string sPlace = rFormat.msBytes.substr(nAt, 2);
        if (sPlace != "%s" && sPlace != "%%")
            throw std::invalid_argument("a format has no other places than %s and %%");
        nWanted += sPlace == "%s" ? 1 : 0;
    }
    if (nWanted != rTexts.size() || nWanted > kMostFormatted)
        throw std::invalid_argument("a format has as many %s as there are texts, at most 4");
    std::vector<CStringU> texts = rTexts;
    texts.resize(kMostFormatted);
    CStringU sResult;
    sResult.Format(rFormat.msBytes.c_str(), texts[0].Data(), texts[1].Data(), texts[2].Data(),
                   texts[3].Data());
    return sResult;
}

std::vector<TCallFunction> Bytes()
{
    return {
        gCallable("CStringU.Assign",
                  [](CStringU sText, const TBytes& rBytes, TTextKind kind) {
                      sText.Assign(rBytes.msBytes, kind);
                      return sText;
                  }),
        gCallable("CStringU.AppendUtf8",
                  [](CStringU sText, const TBytes& rBytes) {
                      sText.AppendUtf8(rBytes.msBytes);
                      return sText;
                  }),
        gCallable("CStringU.OverwriteUtf8",
                  [](CStringU sText, unsigned nFirst, const TBytes& rBytes) {
                      sText.OverwriteUtf8(nFirst, rBytes.msBytes);
                      return sText;
                  }),
        gCallable("CStringU.ResizeUtf8",
                  [](CStringU sText, unsigned nSize) {
                      sText.ResizeUtf8(nSize);
                      return sText;
                  }),
        gCallable("CStringU.Format", Format),
    };
}

TJson Place(const TCharIterator& rPlace)
{
    return {{"index", rPlace.GetIndex()}, {"unit", static_cast<unsigned>(*rPlace)}};
}

std::vector<TCallFunction> Moves()
{
    return {
        gCallable("CStringU.Characters",
                  [](const CStringU& rText) {
                      std::u16string sUnits;
                      for (TCharIterator it = rText.begin(); !it.IsEnd(); ++it)
                          sUnits += *it;
                      return sUnits;
                  }),
        gCallable("CStringU.CharactersBack",
                  [](const CStringU& rText) {
                      std::u16string sUnits;
                      for (TCharIterator it = rText.end(); it != rText.begin();)
                          sUnits += *--it;
                      return sUnits;
                  }),
        gCallable("CStringU.Next",
                  [](const CStringU& rText, int nIndex) {
                      return Place(++TCharIterator(rText, nIndex));
                  }),
        gCallable("CStringU.Previous",
                  [](const CStringU& rText, int nIndex) {
                      return Place(--TCharIterator(rText, nIndex));
                  }),
        gCallable("CStringU.Move",
                  [](const CStringU& rText, int nIndex, int nCount) {
                      return Place(TCharIterator(rText, nIndex) + nCount);
                  }),
        gCallable("CStringU.MoveBack",
                  [](const CStringU& rText, int nIndex, int nCount) {
                      return Place(TCharIterator(rText, nIndex) - nCount);
                  }),
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
        gCallable("CStringU.operator+=.unit",
                  [](CStringU sLeft, TUnitArgument right) { return sLeft += right.mchUnit; }),
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
                  [](const CStringU& rText, TUnitArgument wanted) {
                      return rText.Find(wanted.mchUnit).GetIndex();
                  }),
        gCallable("CStringU.FindNoCase",
                  [](const CStringU& rText, TUnitArgument wanted) {
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
                  [](CStringU sText, TUnitArgument oldUnit, TUnitArgument newUnit) {
                      const int nCount = sText.Replace(oldUnit.mchUnit, newUnit.mchUnit);
                      return Changed(sText, nCount);
                  }),
        gCallable("CStringU.ReplaceNoCase",
                  [](CStringU sText, TUnitArgument oldUnit, TUnitArgument newUnit) {
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
        gCallable("gIsWhiteSpace", [](TUnitArgument unit) { return gIsWhiteSpace(unit.mchUnit); }),
        gCallable("gIsQuote", [](TUnitArgument unit) { return gIsQuote(unit.mchUnit); }),
    };
}
} // namespace

std::vector<TCallFunction> gStringCalls()
{
    std::vector<TCallFunction> calls;
    for (auto* const pPart : {Constructions, Bytes, Conversions, Pieces, Moves, Comparisons,
                              Searches, Changes, Characters}) {
        for (TCallFunction& rFunction : pPart())
            calls.push_back(std::move(rFunction));
    }
    return calls;
}

} // namespace quorvawiz::cli
