#pragma once

#include "params/archive/ByteSource.h"

#include <filesystem>
#include <string>

class CStringU;

/// A file that is written whole or not at all. Where the target is a regular file, or nothing yet,
/// the bytes go to a file of another name in its folder, which takes its place at the end; until
/// then the old one stays as it is, whatever happens. A symbolic link is followed first. Any other
/// target is opened, cut and written directly: a device, a pipe, an open file that has no name any
/// more.
class CSavedFile final : public IByteTarget
{
public:
    /// Opens a file for writing.
    /// @param rPath its path, whose bytes go to the system (gToSystemPathOfUtf8)
    /// @throws quorvaapi::FileOpenException if it can't be opened for writing, or the other file
    ///         can't be made
    explicit CSavedFile(const CStringU& rPath);
    /// Removes the other file, if Finish wasn't reached.
    ~CSavedFile() override;

    void Write(const char* pBytes, std::size_t nCount) override;

    /// Puts the file in its place.
    /// @throws boost::archive::archive_exception if that can't be done
    void Finish();

private:
    void Open(const CStringU& rPath, const std::filesystem::path& rTarget, int nFlags);
    void OpenBeside(const CStringU& rPath, unsigned nPermissions);
    void Close();

    std::filesystem::path mTarget;
    std::string msBeside; // the other file; empty where the target is written directly
    int mnHandle = -1;
};
