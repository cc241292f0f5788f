#include "platform/qt/QtText.h"

#include "platform/base/Utf8Text.h"

QString gToQString(const CString& rsText)
{
    return QString::fromStdString(gToUtf8(rsText));
}

std::optional<CString> gFromQString(const QString& rsText)
{
    // A lone surrogate has no place in any code page; Qt would write a question mark for it.
    if (!rsText.isValidUtf16())
        return std::nullopt;
    return gFromUtf8(rsText.toStdString());
}

QString gToWidgetLines(const CString& rsText)
{
    QString sText = gToQString(rsText);
    sText.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    sText.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return sText;
}

std::optional<CString> gFromWidgetLines(QString sText)
{
    sText.replace(QLatin1String("\n"), QLatin1String("\r\n"));
    return gFromQString(sText);
}

QString gWithoutMnemonic(const CString& rsLabel)
{
    const QString sLabel = gToQString(rsLabel);
    QString sPlain;
    for (qsizetype n = 0; n < sLabel.size(); ++n) {
        if (sLabel[n] == QLatin1Char('&') && ++n == sLabel.size())
            break;
        sPlain += sLabel[n];
    }
    return sPlain;
}

QString gWithDoubledAmpersands(const CString& rsText)
{
    return gToQString(rsText).replace(QLatin1String("&"), QLatin1String("&&"));
}
