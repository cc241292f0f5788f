#pragma once

#include "quorvahost/CommandText.h"
#include "quorvahost/NetlistText.h"

#include <QString>
#include <cstdio>
#include <stdexcept>

namespace quorvawiz::host
{

/// A command couldn't be put where the user wants it. The message is for the user: UTF-8, without a
/// full stop.
class CSinkError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Prints each command, with a line feed behind each of its lines, and flushes.
class COutputSink : public CTextTarget
{
public:
    /// `pStream` stays the caller's.
    explicit COutputSink(std::FILE* pStream) : mpStream(pStream) {}

protected:
    /// @throws CSinkError when the stream doesn't take it
    void Take(const QString& rsText) override;

private:
    std::FILE* mpStream;
};

/// Adds each command to the end of a file, on lines of its own with the file's line ends. A file
/// that isn't there is made by the first command.
class CFileSink : public CTextTarget
{
public:
    /// Reads the whole of a file that is there, once.
    /// @throws CSinkError when it can be seen already that the file can't be written to, or when it
    ///         isn't a text that the editor would open
    explicit CFileSink(QString sPath);

protected:
    /// @throws CSinkError when the file doesn't take it
    void Take(const QString& rsText) override;

private:
    QString msPath;
    ELineEnds mLineEnds = ELineEnds::Lf; ///< for a file that doesn't end in one
};

/// Puts each command on the clipboard.
class CClipboardSink : public CTextTarget
{
protected:
    void Take(const QString& rsText) override;
};

} // namespace quorvawiz::host
