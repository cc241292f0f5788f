#include "params/archive/SavedFile.h"

#include "foundation/StringU.h"
#include "params/FileOpenException.h"
#include "platform/base/SystemError.h"
#include "platform/base/SystemPath.h"

#include <boost/archive/archive_exception.hpp>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <system_error>
#include <utility>

namespace
{

[[noreturn]] void ThrowWriteError()
{
    throw boost::archive::archive_exception(boost::archive::archive_exception::output_stream_error);
}

[[noreturn]] void ThrowOpenError(const CStringU& rPath)
{
    throw quorvaapi::FileOpenException(rPath, gGetLastError());
}

/// Where symbolic links lead, be it to nothing. A loop is left to the system to refuse.
std::filesystem::path Followed(std::filesystem::path target)
{
    constexpr int mostLinks = 40;
    std::error_code error;
    for (int n = 0; n < mostLinks && std::filesystem::is_symlink(target, error); ++n) {
        // An absolute one takes the place of all.
        target = target.parent_path() / std::filesystem::read_symlink(target, error);
    }
    return target;
}

/// What the target is, or nullopt if there is nothing.
std::optional<struct stat> StatusOf(const std::filesystem::path& rTarget)
{
    struct stat status {
    };
    return ::stat(rTarget.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

/// Tells whether the text of the links led to the file itself. Links that the system makes, such as
/// those to a program's open files, lead to what has no name: a pipe, or a file that is deleted.
bool IsSameFile(const struct stat& rFile, const std::optional<struct stat>& rFollowed)
{
    return rFollowed && rFollowed->st_dev == rFile.st_dev && rFollowed->st_ino == rFile.st_ino;
}

/// The permissions that a new file gets.
unsigned NewPermissions()
{
    const mode_t nMask = ::umask(0);
    ::umask(nMask);
    constexpr unsigned all = 0666;
    return all & ~nMask;
}

} // namespace

CSavedFile::CSavedFile(const CStringU& rPath)
{
    const std::filesystem::path target(gToSystemPathOfUtf8(rPath.Text()));
    const auto status = StatusOf(target);
    const bool bNothing = !status && gGetLastError() == ENOENT;
    mTarget = Followed(target);
    if (bNothing && !mTarget.filename().empty()) {
        OpenBeside(rPath, NewPermissions());
    } else if (status && S_ISREG(status->st_mode) && IsSameFile(*status, StatusOf(mTarget))) {
        // What can't be opened for writing isn't replaced either. Nothing is cut yet.
        Open(rPath, target, O_WRONLY);
        ::close(std::exchange(mnHandle, -1));
        constexpr unsigned permissions = 07777;
        OpenBeside(rPath, status->st_mode & permissions);
    } else {
        Open(rPath, target, O_WRONLY | O_TRUNC);
    }
}

void CSavedFile::Open(const CStringU& rPath, const std::filesystem::path& rTarget, int nFlags)
{
    mnHandle = ::open(rTarget.c_str(), nFlags | O_CLOEXEC);
    if (mnHandle < 0) {
        ThrowOpenError(rPath);
    }
}

void CSavedFile::OpenBeside(const CStringU& rPath, unsigned nPermissions)
{
    // Six of these letters are what the system fills in.
    std::string sName = (mTarget.parent_path() / ".quorvawiz-").string() + std::string(6, 'X');
    mnHandle = ::mkostemp(sName.data(), O_CLOEXEC);
    if (mnHandle < 0) {
        ThrowOpenError(rPath);
    }
    msBeside = std::move(sName);
    // Where the system has no permissions to set, the file is as good without.
    static_cast<void>(::fchmod(mnHandle, nPermissions));
}

CSavedFile::~CSavedFile()
{
    if (mnHandle >= 0) {
        ::close(mnHandle);
    }
    if (!msBeside.empty()) {
        ::unlink(msBeside.c_str());
    }
}

void CSavedFile::Write(const char* pBytes, std::size_t nCount)
{
    while (nCount > 0) {
        const ssize_t nWritten = ::write(mnHandle, pBytes, nCount);
        if (nWritten < 0 && errno != EINTR) {
            ThrowWriteError();
        }
        const auto nDone = static_cast<std::size_t>(nWritten > 0 ? nWritten : 0);
        pBytes += nDone;
        nCount -= nDone;
    }
}

void CSavedFile::Close()
{
    if (::close(std::exchange(mnHandle, -1)) != 0) {
        ThrowWriteError();
    }
}

void CSavedFile::Finish()
{
    Close();
    if (!msBeside.empty()) {
        if (std::rename(msBeside.c_str(), mTarget.c_str()) != 0) {
            ThrowWriteError();
        }
        msBeside.clear();
    }
}
