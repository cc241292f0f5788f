#include "quorvahost/CommandText.h"

#include "platform/base/Utf8Text.h"

namespace quorvawiz::host
{

QString gCommandText(const CString& rsCommand)
{
    QString sText = QString::fromStdString(gToUtf8(rsCommand));
    sText.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    return sText.replace(QLatin1Char('\r'), QLatin1Char('\n'));
}

void CTextTarget::InsertCommand(CString sCommand)
{
    if (const QString sText = gCommandText(sCommand); !sText.isEmpty())
        Take(sText);
}

} // namespace quorvawiz::host
