#include "quorvahost/NetlistText.h"

#include <QCoreApplication>
#include <QStringDecoder>
#include <QStringEncoder>
#include <algorithm>

namespace quorvawiz::host
{
namespace
{
constexpr QByteArrayView kBom("\xEF\xBB\xBF");
// U+2029, U+FDD0, U+FDD1: QTextDocument ends a block at each of them.
constexpr QByteArrayView kBlockEnds[] = {"\xE2\x80\xA9", "\xEF\xB7\x90", "\xEF\xB7\x91"};

QString Say(const char* pEnglish)
{
    return QCoreApplication::translate("NetlistText", pEnglish);
}

unsigned char At(QByteArrayView bytes, qsizetype nIndex)
{
    return nIndex < bytes.size() ? static_cast<unsigned char>(bytes[nIndex]) : 0;
}

bool IsBetween(unsigned char nByte, unsigned char nLow, unsigned char nHigh)
{
    return nByte >= nLow && nByte <= nHigh;
}

/// How many bytes the sequence at an index has; 0 if it is ill-formed.
qsizetype SequenceLength(QByteArrayView bytes, qsizetype nIndex)
{
    const unsigned char nFirst = At(bytes, nIndex);
    const unsigned char nSecond = At(bytes, nIndex + 1);
    const auto isTail = [&](qsizetype nOffset) {
        return IsBetween(At(bytes, nIndex + nOffset), 0x80, 0xBF);
    };
    if (nFirst < 0x80)
        return 1;
    if (IsBetween(nFirst, 0xC2, 0xDF))
        return isTail(1) ? 2 : 0;
    if (IsBetween(nFirst, 0xE0, 0xEF)) {
        const bool bSecond = IsBetween(nSecond, nFirst == 0xE0 ? 0xA0 : 0x80,
                                       nFirst == 0xED ? 0x9F : 0xBF); // overlong, surrogates
        return bSecond && isTail(2) ? 3 : 0;
    }
    if (IsBetween(nFirst, 0xF0, 0xF4)) {
        const bool bSecond = IsBetween(nSecond, nFirst == 0xF0 ? 0x90 : 0x80,
                                       nFirst == 0xF4 ? 0x8F : 0xBF); // overlong, over U+10FFFF
        return bSecond && isTail(2) && isTail(3) ? 4 : 0;
    }
    return 0;
}

TTextFault FaultAt(QByteArrayView bytes, qsizetype nIndex, QString sWhat)
{
    const auto begin = bytes.begin();
    const auto place = begin + nIndex;
    const auto nLines = std::count(begin, place, '\n');
    const qsizetype nLineStart = nLines == 0 ? 0 : bytes.first(nIndex).lastIndexOf('\n') + 1;
    return {nLines + 1, nIndex - nLineStart + 1, std::move(sWhat)};
}

QString HexOf(char chByte)
{
    return QStringLiteral("0x%1").arg(static_cast<unsigned char>(chByte), 2, 16, QLatin1Char('0'));
}

/// The start of the first line that is too long, line ends not counted; -1 if there is none.
qsizetype FindLongLine(QByteArrayView bytes)
{
    for (qsizetype nStart = 0; bytes.size() - nStart > kLongestLine;) {
        const qsizetype nEnd = bytes.indexOf('\n', nStart);
        const qsizetype nStop = nEnd < 0 ? bytes.size() : nEnd;
        if (nStop - nStart > kLongestLine + (At(bytes, nStop - 1) == '\r' ? 1 : 0))
            return nStart;
        nStart = nStop + 1;
    }
    return -1;
}

std::optional<TTextFault> FindFault(QByteArrayView bytes)
{
    if (const qsizetype nAt = gFindInvalidUtf8(bytes); nAt >= 0)
        return FaultAt(bytes, nAt, Say("the byte %1 isn't valid UTF-8").arg(HexOf(bytes[nAt])));
    if (const qsizetype nAt = bytes.indexOf('\0'); nAt >= 0)
        return FaultAt(bytes, nAt, Say("a NUL: this isn't a text file"));
    if (const qsizetype nAt = FindLongLine(bytes); nAt >= 0)
        return FaultAt(bytes, nAt, Say("a line of more than %1 bytes").arg(kLongestLine));
    for (const QByteArrayView blockEnd : kBlockEnds)
        if (const qsizetype nAt = bytes.indexOf(blockEnd); nAt >= 0)
            return FaultAt(bytes, nAt, Say("a character that an editor can't keep"));
    return std::nullopt;
}

/// Finds the kind of the line ends. The first end decides, every other one must be like it.
std::variant<ELineEnds, TTextFault> FindLineEnds(QByteArrayView bytes)
{
    std::optional<ELineEnds> first;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (bytes[i] != '\r' && bytes[i] != '\n')
            continue;
        const bool bCr = bytes[i] == '\r';
        if (bCr && At(bytes, i + 1) != '\n')
            return FaultAt(bytes, i, Say("a CR without LF"));
        const ELineEnds here = bCr ? ELineEnds::CrLf : ELineEnds::Lf;
        if (first && *first != here)
            return FaultAt(bytes, i,
                           Say("mixed line ends: this line ends in %1, those before in %2")
                               .arg(gLineEndsName(here), gLineEndsName(*first)));
        first = here;
        if (bCr)
            ++i;
    }
    return first.value_or(ELineEnds::Lf);
}
} // namespace

QString TTextFault::Message() const
{
    return Say("line %1, byte %2: %3").arg(nLine).arg(nByte).arg(sWhat);
}

qsizetype gFindInvalidUtf8(QByteArrayView bytes)
{
    for (qsizetype i = 0; i < bytes.size();) {
        const qsizetype nLength = SequenceLength(bytes, i);
        if (nLength == 0)
            return i;
        i += nLength;
    }
    return -1;
}

std::variant<TNetlistText, TTextFault> gDecodeNetlist(const QByteArray& rBytes)
{
    if (auto fault = FindFault(rBytes))
        return std::move(*fault);
    const auto lineEnds = FindLineEnds(rBytes);
    if (const auto* pFault = std::get_if<TTextFault>(&lineEnds))
        return *pFault;

    TNetlistText text;
    text.form.lineEnds = std::get<ELineEnds>(lineEnds);
    text.form.bBom = rBytes.startsWith(kBom);
    const QByteArrayView body = QByteArrayView(rBytes).sliced(text.form.bBom ? kBom.size() : 0);
    // The flag: a second mark is a character of the text.
    QStringDecoder decode(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    text.sText = decode(body);
    if (text.form.lineEnds == ELineEnds::CrLf)
        text.sText.remove(QLatin1Char('\r'));
    return text;
}

std::optional<QByteArray> gEncodeNetlist(QStringView sText, TTextForm form)
{
    QStringEncoder encode(QStringEncoder::Utf8);
    QByteArray bytes = encode(sText);
    if (encode.hasError() || !sText.isValidUtf16())
        return std::nullopt;
    if (form.lineEnds == ELineEnds::CrLf)
        bytes.replace('\n', "\r\n");
    if (form.bBom)
        bytes.prepend(kBom);
    return bytes;
}

QString gLineEndsName(ELineEnds lineEnds)
{
    switch (lineEnds) {
    case ELineEnds::Lf:
        return QStringLiteral("LF");
    case ELineEnds::CrLf:
        return QStringLiteral("CR LF");
    }
    return {};
}

} // namespace quorvawiz::host
