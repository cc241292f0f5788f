#include "quorvahost/SpiceTokens.h"

#include "host/PrintQt.h"

#include <gtest/gtest.h>

#include <vector>

namespace quorvawiz::host
{
namespace
{
char LetterOf(EToken kind)
{
    switch (kind) {
    case EToken::Comment:
        return '*';
    case EToken::Directive:
        return 'D';
    case EToken::Continuation:
        return '+';
    case EToken::Name:
        return 'N';
    case EToken::Parameter:
        return 'P';
    case EToken::Number:
        return '1';
    case EToken::Text:
        return 'T';
    case EToken::Expression:
        return 'E';
    }
    return '?';
}

/// One letter below each character of the line.
QString Underline(const QString& rsLine)
{
    QString sUnder(rsLine.size(), QLatin1Char(' '));
    for (const TToken& rToken : gTokenize(rsLine))
        for (qsizetype i = 0; i < rToken.nLength; ++i)
            sUnder[rToken.nStart + i] = QLatin1Char(LetterOf(rToken.kind));
    return sUnder;
}

struct TLineCase {
    const char* pLine;
    const char* pUnder;
};

TEST(SpiceTokens, EachPartOfALine)
{
    const std::vector<TLineCase> cases{
        {"", ""},
        {"   ", "   "},
        {"* a comment 1k", "**************"},
        {"  * indented", "  **********"},
        {"R1 in out 10k", "NN        111"},
        {"R1 1 2 3 ; 4", "NN 1 1 1 ***"},
        {"R1 a b 1k $ 1%", "NN     11 ****"},
        {"R1 a$b c 1", "NN       1"},
        {"$ a comment", "***********"},
        {"; a comment", "***********"},
        {".tran 1n 10u", "DDDDD 11 111"},
        {".TEMP 0 27 85", "DDDDD 1 11 11"},
        {".5 1", "11 1"},
        {". x", "   "},
        {"+ W=1u L=0.5u", "+ P 11 P 1111"},
        {"+1u", "+11"},
        {"  +L=2u", "  +P 11"},
        {".param vdd = 1.8", "DDDDDD PPP   111"},
        {"M1 d g s b nch w='2*wmin' l=1u", "NN             P EEEEEEEE P 11"},
        {".param x={a+{b}*2} y=1", "DDDDDD P EEEEEEEEE P 1"},
        {".param x={a+b", "DDDDDD P EEEE"},
        {".include \"my models.lib\" 1", "DDDDDDDD TTTTTTTTTTTTTTT 1"},
        {".include \"my models.lib 1", "DDDDDDDD TTTTTTTTTTTTTTTT"},
        {".param a='1 ; 2' ; b", "DDDDDD P EEEEEEE ***"},
        {"V1 in 0 PULSE(0 1.8 1n,2n)", "NN    1       1 111 11 11 "},
        {"Q1 c b e 2N2222", "NN             "},
        {"X1 a b inv", "NN        "},
        {"V1 in 0 AC=1", "NN    1 PP 1"},
        {"1 2 3", "1 1 1"},
        {"\t.end", " DDDD"},
    };
    for (const TLineCase& rCase : cases) {
        const QString sUnder = Underline(QString::fromLatin1(rCase.pLine));
        EXPECT_EQ(sUnder, QString::fromLatin1(rCase.pUnder)) << rCase.pLine;
    }
}

struct TNumberCase {
    const char* pWord;
    bool bNumber;
};

TEST(SpiceTokens, NumbersWithSuffixes)
{
    const std::vector<TNumberCase> cases{
        {"0", true},       {"27", true},    {"-27", true},   {"+5", true},   {"1meg", true},
        {"1MEG", true},    {"10k", true},   {"2.5u", true},  {"1e-9", true}, {"1E+9", true},
        {"1e9", true},     {"1e", true},    {"1.", true},    {".5", true},   {"-.5n", true},
        {"10kohm", true},  {"1e-9s", true}, {"25mil", true}, {"50%", true},  {"3.3V", true},
        {"", false},       {".", false},    {"-", false},    {"k", false},   {"1.2.3", false},
        {"2N2222", false}, {"1-2", false},  {"1e-", false},  {"1k5", false}, {"0x1F", false},
        {"--1", false},    {"1_k", false},  {"\xB5", false}, {"1%%", false}, {"e9", false},
    };
    for (const TNumberCase& rCase : cases) {
        EXPECT_EQ(gIsSpiceNumber(QString::fromLatin1(rCase.pWord)), rCase.bNumber) << rCase.pWord;
    }
}

TEST(SpiceTokens, PartsStandInOrderAndDoNotOverlap)
{
    const QString sAlphabet = QStringLiteral("ab1.+-*$;'\"{}=(), eR\t");
    unsigned nSeed = 1;
    for (int i = 0; i < 20'000; ++i) {
        QString sLine;
        for (int n = 0; n < 12; ++n) {
            nSeed = nSeed * 1664525U + 1013904223U;
            sLine += sAlphabet[static_cast<qsizetype>(nSeed >> 8U) % sAlphabet.size()];
        }
        qsizetype nEnd = 0;
        for (const TToken& rToken : gTokenize(sLine)) {
            ASSERT_GE(rToken.nStart, nEnd) << sLine.toStdString();
            ASSERT_GT(rToken.nLength, 0) << sLine.toStdString();
            nEnd = rToken.nStart + rToken.nLength;
        }
        ASSERT_LE(nEnd, sLine.size()) << sLine.toStdString();
    }
}
} // namespace
} // namespace quorvawiz::host
