#include "quorvahost/SpiceTokens.h"

#include <QChar>
#include <QLatin1StringView>

namespace quorvawiz::host
{
namespace
{
bool IsDigit(QChar ch)
{
    return ch >= QLatin1Char('0') && ch <= QLatin1Char('9');
}

bool IsLetter(QChar ch)
{
    const QChar lower = ch.toLower();
    return lower >= QLatin1Char('a') && lower <= QLatin1Char('z');
}

bool EndsWord(QChar ch)
{
    return ch.isSpace() || QLatin1StringView("=(),;'\"{}").contains(ch);
}

/// Walks along one line.
class CLineReader
{
public:
    explicit CLineReader(QStringView sLine) : msLine(sLine) {}

    std::vector<TToken> Read()
    {
        SkipBlanks();
        if (!AtEnd())
            ReadStart();
        while (SkipBlanks(), !AtEnd())
            ReadNext();
        return std::move(mTokens);
    }

private:
    bool AtEnd() const { return mnAt >= msLine.size(); }
    QChar Here() const { return msLine[mnAt]; }

    void SkipBlanks()
    {
        while (!AtEnd() && Here().isSpace())
            ++mnAt;
    }

    void Add(EToken kind, qsizetype nEnd)
    {
        mTokens.push_back({mnAt, nEnd - mnAt, kind});
        mnAt = nEnd;
    }

    qsizetype EndOfWord() const
    {
        qsizetype nEnd = mnAt;
        while (nEnd < msLine.size() && !EndsWord(msLine[nEnd]))
            ++nEnd;
        return nEnd;
    }

    qsizetype EndOfQuoted(QChar quote) const
    {
        const qsizetype nClose = msLine.indexOf(quote, mnAt + 1);
        return nClose < 0 ? msLine.size() : nClose + 1;
    }

    qsizetype EndOfBraces() const
    {
        int nDepth = 0;
        for (qsizetype i = mnAt; i < msLine.size(); ++i) {
            if (msLine[i] == QLatin1Char('{'))
                ++nDepth;
            else if (msLine[i] == QLatin1Char('}') && --nDepth == 0)
                return i + 1;
        }
        return msLine.size();
    }

    bool IsParameter(qsizetype nEndOfWord) const
    {
        return msLine.sliced(nEndOfWord).trimmed().startsWith(QLatin1Char('='));
    }

    bool StartsComment() const
    {
        const bool bDollar = Here() == QLatin1Char('$');
        return Here() == QLatin1Char(';') || (bDollar && (mnAt == 0 || msLine[mnAt - 1].isSpace()));
    }

    void ReadStart()
    {
        const bool bPoint = Here() == QLatin1Char('.');
        if (Here() == QLatin1Char('*'))
            Add(EToken::Comment, msLine.size());
        else if (Here() == QLatin1Char('+'))
            Add(EToken::Continuation, mnAt + 1);
        else if (bPoint && mnAt + 1 < msLine.size() && IsLetter(msLine[mnAt + 1]))
            Add(EToken::Directive, EndOfWord());
        else if (IsLetter(Here()))
            Add(EToken::Name, EndOfWord());
    }

    void ReadNext()
    {
        if (StartsComment())
            return Add(EToken::Comment, msLine.size());
        if (Here() == QLatin1Char('"'))
            return Add(EToken::Text, EndOfQuoted(Here()));
        if (Here() == QLatin1Char('\''))
            return Add(EToken::Expression, EndOfQuoted(Here()));
        if (Here() == QLatin1Char('{'))
            return Add(EToken::Expression, EndOfBraces());
        const qsizetype nEnd = EndOfWord();
        if (nEnd == mnAt)
            ++mnAt; // punctuation
        else if (IsParameter(nEnd))
            Add(EToken::Parameter, nEnd);
        else if (gIsSpiceNumber(msLine.sliced(mnAt, nEnd - mnAt)))
            Add(EToken::Number, nEnd);
        else
            mnAt = nEnd;
    }

    QStringView msLine;
    qsizetype mnAt = 0;
    std::vector<TToken> mTokens;
};

/// Takes leading characters of a kind from a word and tells how many there were.
template <class TIs> qsizetype Take(QStringView& rsWord, TIs is)
{
    qsizetype nCount = 0;
    while (nCount < rsWord.size() && is(rsWord[nCount]))
        ++nCount;
    rsWord = rsWord.sliced(nCount);
    return nCount;
}

bool IsSign(QChar ch)
{
    return ch == QLatin1Char('+') || ch == QLatin1Char('-');
}

/// An exponent, if all of one is there: the "e" of "1e" is a letter like any other.
void TakeExponent(QStringView& rsWord)
{
    QStringView sRest = rsWord;
    if (sRest.isEmpty() || sRest.front().toLower() != QLatin1Char('e'))
        return;
    sRest = sRest.sliced(1);
    if (!sRest.isEmpty() && IsSign(sRest.front()))
        sRest = sRest.sliced(1);
    if (Take(sRest, IsDigit) > 0)
        rsWord = sRest;
}
} // namespace

std::vector<TToken> gTokenize(QStringView sLine)
{
    return CLineReader(sLine).Read();
}

bool gIsSpiceNumber(QStringView sWord)
{
    if (!sWord.isEmpty() && IsSign(sWord.front()))
        sWord = sWord.sliced(1);
    qsizetype nDigits = Take(sWord, IsDigit);
    if (sWord.startsWith(QLatin1Char('.'))) {
        sWord = sWord.sliced(1);
        nDigits += Take(sWord, IsDigit);
    }
    if (nDigits == 0)
        return false;
    TakeExponent(sWord);
    Take(sWord, IsLetter);
    return sWord.isEmpty() || sWord == QLatin1Char('%');
}

} // namespace quorvawiz::host
