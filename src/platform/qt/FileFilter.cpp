#include "platform/qt/FileFilter.h"

#include "platform/qt/QtText.h"

namespace
{
/// "*.b; *.c" as "*.b *.c". The platform's "*.*" also takes names without a point.
QString ToPatterns(const QString& rsPatterns)
{
    QStringList patterns;
    for (const QString& rsPattern : rsPatterns.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString sPattern = rsPattern.trimmed();
        if (!sPattern.isEmpty())
            patterns += sPattern == QLatin1String("*.*") ? QStringLiteral("*") : sPattern;
    }
    return patterns.join(QLatin1Char(' '));
}

/// Qt takes the last part in brackets for the patterns, so the text's own goes.
QString WithoutPatterns(const QString& rsText)
{
    const QString sText = rsText.trimmed();
    const qsizetype nBracket = sText.lastIndexOf(QLatin1Char('('));
    return sText.endsWith(QLatin1Char(')')) && nBracket >= 0 ? sText.left(nBracket).trimmed()
                                                             : sText;
}
} // namespace

QStringList gToNameFilters(const CString& rsFilter)
{
    const QStringList parts = gToQString(rsFilter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype n = 0; n + 1 < parts.size(); n += 2) {
        const QString sPatterns = ToPatterns(parts[n + 1]);
        if (!sPatterns.isEmpty())
            filters += QStringLiteral("%1 (%2)").arg(WithoutPatterns(parts[n]), sPatterns);
    }
    return filters;
}
