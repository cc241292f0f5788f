#pragma once

#include <QByteArray>
#include <QString>
#include <ostream>

// So that a failed expectation says what the texts were. Found by their arguments' namespace, which
// is the global one.

inline void PrintTo(const QString& rsText, std::ostream* pStream)
{
    *pStream << '"' << rsText.toStdString() << '"';
}

inline void PrintTo(const QByteArray& rBytes, std::ostream* pStream)
{
    *pStream << '"' << rBytes.toPercentEncoding(" \n.,:()").toStdString() << '"';
}
