#include "quorvahost/CommandSinks.h"

#include "quorvahost/NetlistFile.h"
#include "quorvahost/SystemWords.h"

#include <sys/stat.h>

#include <QClipboard>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <algorithm>
#include <cerrno>

namespace quorvawiz::host
{
namespace
{
[[noreturn]] void Fail(const QString& rsPath, const QString& rsWhy)
{
    throw CSinkError(QStringLiteral("can't write to \"%1\": %2").arg(rsPath, rsWhy).toStdString());
}

/// Fails for a folder in which no file can be made.
void CheckFolder(const QString& rsFolder, const QString& rsPath)
{
    struct stat status {
    };
    // With the dot at its end the system's words are those of a path that leads through a file.
    if (::stat((rsFolder + QStringLiteral("/.")).toLocal8Bit().constData(), &status) != 0)
        Fail(rsPath, gSystemWords(errno));
    if (!QFileInfo(rsFolder).isWritable())
        Fail(rsPath, gSystemWords(EACCES));
}

/// As many of a file's last bytes as tell how to go on behind them.
QByteArray EndOf(const QString& rsPath)
{
    constexpr qint64 kEnough = 3; // a byte order mark, or CR LF
    QFile file(rsPath);
    if (!file.exists())
        return {};
    if (QFileInfo(rsPath).isDir())
        Fail(rsPath, gSystemWords(EISDIR));
    if (!file.open(QIODevice::ReadOnly) || !file.seek(std::max<qint64>(file.size() - kEnough, 0)))
        Fail(rsPath, file.errorString());
    return file.read(kEnough);
}

/// A file of no more than a byte order mark has no line that would have to be ended.
bool HasOpenLine(const QByteArray& rsEnd)
{
    return !rsEnd.isEmpty() && !rsEnd.endsWith('\n') && rsEnd != "\xEF\xBB\xBF";
}
} // namespace

void COutputSink::Take(const QString& rsText)
{
    const QByteArray bytes = (rsText + QLatin1Char('\n')).toUtf8();
    const auto nSize = static_cast<std::size_t>(bytes.size());
    errno = 0;
    if (std::fwrite(bytes.constData(), 1, nSize, mpStream) != nSize || std::fflush(mpStream) != 0)
        throw CSinkError("can't write to standard output: " + gSystemWords(errno).toStdString());
}

CFileSink::CFileSink(QString sPath) : msPath(std::move(sPath))
{
    const QFileInfo info(msPath);
    if (!info.exists()) {
        CheckFolder(info.absolutePath(), msPath);
        return;
    }
    if (info.isDir())
        Fail(msPath, gSystemWords(EISDIR));
    const auto read = gReadNetlistFile(msPath);
    if (const auto* pFault = std::get_if<TFileFault>(&read))
        throw CSinkError(pFault->sMessage.toStdString());
    mLineEnds = std::get<TNetlistFile>(read).netlist.form.lineEnds;
    QFile file(msPath);
    if (!file.open(QIODevice::Append))
        Fail(msPath, file.errorString());
}

void CFileSink::Take(const QString& rsText)
{
    const QByteArray end = EndOf(msPath);
    const bool bOpenLine = HasOpenLine(end);
    if (end.endsWith('\n'))
        mLineEnds = end.endsWith("\r\n") ? ELineEnds::CrLf : ELineEnds::Lf;
    const QString sLines = (bOpenLine ? QStringLiteral("\n") : QString()) + rsText + '\n';
    const QByteArray bytes = gEncodeNetlist(sLines, {mLineEnds, false}).value_or(QByteArray());

    QFile file(msPath);
    if (!file.open(QIODevice::Append) || file.write(bytes) != bytes.size() || !file.flush())
        Fail(msPath, file.errorString());
}

void CClipboardSink::Take(const QString& rsText)
{
    QGuiApplication::clipboard()->setText(rsText);
}

} // namespace quorvawiz::host
