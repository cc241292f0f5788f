#include "quorvahost/CommandSinks.h"

#include "platform/base/SystemError.h"
#include "quorvahost/CommandText.h"
#include "quorvahost/NetlistFile.h"

#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <cerrno>

namespace quorvawiz::host
{
namespace
{
[[noreturn]] void Fail(const QString& rsPath, const QString& rsWhy)
{
    throw CSinkError(QStringLiteral("can't write to \"%1\": %2").arg(rsPath, rsWhy).toStdString());
}

QString SystemWords(int nCode)
{
    return QString::fromStdU16String(gSystemErrorMessageWide(nCode));
}

/// What a file has that decides how a line is added to it.
struct TFileEnd {
    bool bOpenLine = false; ///< the last line has no end
    ELineEnds lineEnds = ELineEnds::Lf;
};

TFileEnd LookAt(const QString& rsPath)
{
    if (!QFileInfo::exists(rsPath))
        return {};
    const auto read = gReadNetlistFile(rsPath);
    if (const auto* pFault = std::get_if<TFileFault>(&read))
        throw CSinkError(pFault->sMessage.toStdString());
    const TNetlistText& rNetlist = std::get<TNetlistFile>(read).netlist;
    const bool bOpenLine = !rNetlist.sText.isEmpty() && !rNetlist.sText.endsWith(QLatin1Char('\n'));
    return {bOpenLine, rNetlist.form.lineEnds};
}
} // namespace

void COutputSink::InsertCommand(CString sCommand)
{
    const QByteArray bytes = (gCommandText(sCommand) + QLatin1Char('\n')).toUtf8();
    const auto nSize = static_cast<std::size_t>(bytes.size());
    errno = 0;
    if (std::fwrite(bytes.constData(), 1, nSize, mpStream) != nSize || std::fflush(mpStream) != 0)
        throw CSinkError("can't write to standard output: " + gSystemErrorMessage(errno));
}

CFileSink::CFileSink(QString sPath) : msPath(std::move(sPath))
{
    const QFileInfo info(msPath);
    LookAt(msPath);
    if (info.exists()) {
        QFile file(msPath);
        if (!file.open(QIODevice::Append))
            Fail(msPath, file.errorString());
    } else if (!QFileInfo(info.absolutePath()).isDir()) {
        Fail(msPath, SystemWords(ENOENT));
    } else if (!QFileInfo(info.absolutePath()).isWritable()) {
        Fail(msPath, SystemWords(EACCES));
    }
}

void CFileSink::InsertCommand(CString sCommand)
{
    const TFileEnd end = LookAt(msPath);
    QString sLines = gCommandText(sCommand) + QLatin1Char('\n');
    if (end.bOpenLine)
        sLines.prepend(QLatin1Char('\n'));
    const QByteArray bytes = gEncodeNetlist(sLines, {end.lineEnds, false}).value_or(QByteArray());

    QFile file(msPath);
    if (!file.open(QIODevice::Append) || file.write(bytes) != bytes.size() || !file.flush())
        Fail(msPath, file.errorString());
}

void CClipboardSink::InsertCommand(CString sCommand)
{
    QGuiApplication::clipboard()->setText(gCommandText(sCommand));
}

} // namespace quorvawiz::host
