#include "foundation/LineEnds.h"
#include "foundation/MarkerRule.h"
#include "foundation/TextFile.h"
#include "foundation/Utf8Units.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace
{

constexpr std::size_t kFirstLineCapacity = 1024;
constexpr std::size_t kUnit = sizeof(char16_t);

void SetText(CStringU& rsLine, std::string_view sBytes, TTextKind kind)
{
    const bool bUtf8 = kind == TTextKind::Utf8 || kind == TTextKind::Utf8IfNeeded;
    if (bUtf8 && sBytes.starts_with(kUtf8Marker)) {
        rsLine.AppendUtf8(sBytes); // the line is empty; a stray byte of its own is no marker
    } else {
        rsLine.Assign(sBytes, kind);
    }
}

} // namespace

bool TTextFile::ReadLine(CStringU& rsLine)
{
    rsLine.Empty();
    if (!IsOpen()) {
        return false;
    }
    const bool bRead =
        gHasTwoByteUnits(mEncoding) ? ReadLineOfUnits(rsLine) : ReadLineOfBytes(rsLine);
    ++mnLine;
    return bRead;
}

bool TTextFile::ReadLineOfBytes(CStringU& rsLine)
{
    if (mnIndex >= mnValid && !FillIfEmpty()) {
        return false;
    }
    // Nearly every line stands whole in the buffer and is read from there, and nearly every one is
    // plain: the first byte of another kind is its end.
    const std::string_view sBuffered = Buffered();
    std::size_t nEnd = gFindNotPlain(sBuffered);
    TTextKind kind = TTextKind::Plain;
    if (nEnd < sBuffered.size() && !gIsLineEndUnit(sBuffered[nEnd])) {
        kind = mEncoding == EncodingAnsi ? TTextKind::CodePage : TTextKind::Utf8;
        nEnd += gFindLineEnd(sBuffered.substr(nEnd));
    }
    const std::string_view sBehind = sBuffered.substr(nEnd, 2);
    if (sBehind.starts_with('\n') || sBehind == "\r\n") {
        SetText(rsLine, sBuffered.substr(0, nEnd), kind);
        mnIndex += nEnd + (sBehind.front() == '\n' ? 1 : 2);
        return true;
    }
    msLineBuffer.reserve(kFirstLineCapacity);
    msLineBuffer.clear();
    bool bLineEnd = false;
    while (!bLineEnd && FillIfEmpty()) {
        const std::string_view sPart = Buffered();
        const std::size_t nLength = std::min(sPart.find('\n'), sPart.size());
        bLineEnd = nLength < sPart.size();
        msLineBuffer += sPart.substr(0, nLength);
        mnIndex += nLength + (bLineEnd ? 1 : 0);
    }
    SetLine(rsLine, msLineBuffer);
    return true;
}

// Carriage returns go, the first zero ends the line, and the bytes become text.
void TTextFile::SetLine(CStringU& rsLine, std::string_view sBytes) const
{
    const TTextKind kind =
        mEncoding == EncodingAnsi ? TTextKind::CodePageIfNeeded : TTextKind::Utf8IfNeeded;
    sBytes = sBytes.substr(0, sBytes.find('\0'));
    if (sBytes.ends_with('\r')) {
        sBytes.remove_suffix(1);
    }
    if (sBytes.find('\r') == std::string_view::npos) {
        SetText(rsLine, sBytes, kind);
    } else {
        std::string sKept(sBytes);
        std::erase(sKept, '\r');
        SetText(rsLine, sKept, kind);
    }
}

bool TTextFile::ReadLineOfUnits(CStringU& rsLine)
{
    msUnitBuffer.reserve(kFirstLineCapacity);
    msUnitBuffer.clear();
    bool bRead = false;
    bool bLineEnd = false;
    while (!bLineEnd) {
        std::array<char, kUnit> split{};
        if (Buffered().size() >= kUnit) {
            mnIndex += TakeUnits(Buffered(), bLineEnd);
        } else if (TTextFile::Read(split.data(), kUnit) == kUnit) {
            TakeUnits({split.data(), kUnit}, bLineEnd); // may stand across the end of the buffer
        } else {
            break; // an odd last byte is no unit
        }
        bRead = true;
    }
    rsLine = CStringU(std::u16string_view(msUnitBuffer));
    return bRead;
}

// Puts units into the line up to a line feed or the last whole one. Result: how many bytes of them.
std::size_t TTextFile::TakeUnits(std::string_view sBytes, bool& rbLineEnd)
{
    const bool bSwap = gIsBigEndian(mEncoding);
    std::size_t nAt = 0;
    while (!rbLineEnd && nAt + kUnit <= sBytes.size()) {
        const unsigned nFirst = static_cast<unsigned char>(sBytes[nAt]);
        const unsigned nSecond = static_cast<unsigned char>(sBytes[nAt + 1]);
        nAt += kUnit;
        const auto chUnit =
            static_cast<char16_t>(bSwap ? nFirst * 256 + nSecond : nSecond * 256 + nFirst);
        rbLineEnd = chUnit == u'\n';
        if (!rbLineEnd && chUnit != u'\r') {
            msUnitBuffer += chUnit;
        }
    }
    return nAt;
}

CStringU TTextFile::ReadAll()
{
    CStringU sAll;
    CStringU sLine;
    while (ReadLine(sLine)) {
        sAll += sLine;
        sAll += '\n';
    }
    return sAll;
}
