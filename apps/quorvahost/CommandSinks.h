#pragma once

#include "exports/Quorvawiz.h"

#include <QString>
#include <cstdio>
#include <stdexcept>

namespace quorvawiz::host
{

/// A command couldn't be put where the user wants it; the message is for the user.
class CSinkError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Prints each command, with a line feed behind each of its lines, and flushes.
class COutputSink : public QuorvaCommandWizardTarget
{
public:
    /// `pStream` stays the caller's.
    explicit COutputSink(std::FILE* pStream) : mpStream(pStream) {}

    /// @throws CSinkError when the stream doesn't take it
    void InsertCommand(CString sCommand) override;

private:
    std::FILE* mpStream;
};

/// Adds each command to the end of a file, on lines of its own with the file's line ends. A file
/// that isn't there is made by the first command.
class CFileSink : public QuorvaCommandWizardTarget
{
public:
    /// @throws CSinkError when it can be seen already that the file can't be written to, or when it
    ///         isn't a text that the editor would open
    explicit CFileSink(QString sPath);

    /// @throws CSinkError when the file doesn't take it
    void InsertCommand(CString sCommand) override;

private:
    QString msPath;
};

/// Puts each command on the clipboard.
class CClipboardSink : public QuorvaCommandWizardTarget
{
public:
    void InsertCommand(CString sCommand) override;
};

} // namespace quorvawiz::host
