#include "quorvahost/NetlistFile.h"

#include "quorvahost/SystemWords.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>

namespace quorvawiz::host
{
namespace
{
QString Say(const char* pEnglish)
{
    return QCoreApplication::translate("NetlistFile", pEnglish);
}

TFileFault CannotOpen(const QString& rsPath, const QString& rsWhy)
{
    return {Say("can't open \"%1\": %2").arg(QDir::toNativeSeparators(rsPath), rsWhy)};
}

TFileFault CannotSave(const QString& rsPath, const QString& rsWhy)
{
    return {Say("can't save \"%1\": %2").arg(QDir::toNativeSeparators(rsPath), rsWhy)};
}
} // namespace

TFileStamp gStampOf(const QString& rsPath)
{
    const QFileInfo info(rsPath);
    if (!info.exists())
        return {};
    return {true, info.size(), info.lastModified()};
}

std::variant<TNetlistFile, TFileFault> gReadNetlistFile(const QString& rsPath)
{
    const QFileInfo info(rsPath);
    if (info.isDir())
        return CannotOpen(rsPath, gSystemWords(EISDIR));
    if (info.exists() && !info.isFile())
        return CannotOpen(rsPath, Say("it isn't a regular file"));
    if (info.size() > kLargestFile)
        return CannotOpen(rsPath, Say("it has more than %1 MB").arg(kLargestFile / 1024 / 1024));

    // Taken before reading: a write in between shows as a difference later.
    const TFileStamp stamp = gStampOf(rsPath);
    QFile file(rsPath);
    if (!file.open(QIODevice::ReadOnly))
        return CannotOpen(rsPath, file.errorString());
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return CannotOpen(rsPath, file.errorString());

    auto decoded = gDecodeNetlist(bytes);
    if (const auto* pFault = std::get_if<TTextFault>(&decoded))
        return CannotOpen(rsPath, pFault->Message());
    return TNetlistFile{std::get<TNetlistText>(std::move(decoded)), stamp};
}

std::optional<TFileFault> gWriteNetlistFile(const QString& rsPath, QStringView sText,
                                            TTextForm form)
{
    const QFileInfo info(rsPath);
    if (info.isDir())
        return CannotSave(rsPath, gSystemWords(EISDIR));
    if (info.exists() && !info.isFile())
        return CannotSave(rsPath, Say("it isn't a regular file"));
    const auto bytes = gEncodeNetlist(sText, form);
    if (!bytes)
        return CannotSave(rsPath, Say("the text holds half of a character"));

    QSaveFile file(rsPath);
    if (!file.open(QIODevice::WriteOnly) || file.write(*bytes) != bytes->size() || !file.commit())
        return CannotSave(rsPath, file.errorString());
    return std::nullopt;
}

} // namespace quorvawiz::host
