#include "platform/base/PosixFileSystem.h"

#include "platform/base/CodePage.h"
#include "platform/base/ProgramFile.h"
#include "platform/base/SystemPath.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>

namespace
{

/// The attributes of an entry. A link is there wherever it leads, but has its target's attributes.
std::optional<TFileAttributes> AttributesOf(const std::string& rsPath)
{
    struct stat status {
    };
    if (::lstat(rsPath.c_str(), &status) != 0) {
        return std::nullopt;
    }
    if (S_ISLNK(status.st_mode) && ::stat(rsPath.c_str(), &status) != 0) {
        return TFileAttributes{};
    }
    const bool bDirectory = S_ISDIR(status.st_mode);
    return TFileAttributes{bDirectory, !bDirectory && !S_ISREG(status.st_mode)};
}

/// Why a path of which lstat has just failed is not there.
EFileError ErrorOf(const std::string& rsPath)
{
    const int nError = errno;
    EFileError eError = EFileError::Other;
    if (nError == ENOTDIR || nError == ENAMETOOLONG) {
        eError = EFileError::PathNotFound;
    } else if (nError == ENOENT) {
        const std::filesystem::path folder = std::filesystem::path(rsPath).parent_path();
        const bool bFolder = folder.empty() || ::access(folder.c_str(), F_OK) == 0;
        eError = bFolder ? EFileError::FileNotFound : EFileError::PathNotFound;
    }
    errno = nError;
    return eError;
}

/// Closes a folder and keeps the last error, which may be that of reading it.
struct TCloseFolder {
    void operator()(DIR* pFolder) const
    {
        const int nError = errno;
        ::closedir(pFolder);
        errno = nError;
    }
};

} // namespace

std::optional<TFileAttributes> CPosixFileSystem::FindEntry(std::u16string_view sPath)
{
    const std::string sSystemPath = gToSystemPath(sPath);
    if (sSystemPath.ends_with('/')) {
        errno = ENOENT;
        return std::nullopt;
    }
    return AttributesOf(sSystemPath);
}

std::optional<TFileAttributes> CPosixFileSystem::GetAttributes(std::u16string_view sPath,
                                                               EFileError& reError)
{
    const std::string sSystemPath = gToSystemPath(sPath);
    const auto attributes = AttributesOf(sSystemPath);
    if (!attributes) {
        reError = ErrorOf(sSystemPath);
    }
    return attributes;
}

std::optional<TFileAttributes> CPosixFileSystem::GetStatus(std::u16string_view sPath)
{
    std::error_code error;
    const std::filesystem::file_status status =
        std::filesystem::status(gToSystemPath(sPath), error);
    if (!std::filesystem::exists(status)) {
        return std::nullopt;
    }
    const bool bDirectory = std::filesystem::is_directory(status);
    return TFileAttributes{bDirectory, !bDirectory && !std::filesystem::is_regular_file(status)};
}

bool CPosixFileSystem::Enumerate(std::u16string_view sFolder, const TVisit& rVisit)
{
    const std::unique_ptr<DIR, TCloseFolder> pFolder(::opendir(gToSystemPath(sFolder).c_str()));
    if (!pFolder) {
        return false;
    }
    // The order on the disk is any; the two that every folder has come first.
    bool bGoOn = rVisit(u".") && rVisit(u"..");
    while (bGoOn) {
        errno = 0; // the only way to tell the end from an error
        const dirent* const pEntry = ::readdir(pFolder.get());
        if (pEntry == nullptr) {
            return errno == 0;
        }
        const std::string_view sName = pEntry->d_name;
        if (sName != "." && sName != "..") {
            bGoOn = rVisit(gMultiByteToWide(sName, kCodePageUtf8));
        }
    }
    return true;
}

bool CPosixFileSystem::CanAccess(std::u16string_view sPath)
{
    return ::access(gToSystemPath(sPath).c_str(), F_OK) == 0;
}

bool CPosixFileSystem::MakeFolder(std::u16string_view sPath)
{
    constexpr mode_t everyone = 0777; // less the mask of the process
    return ::mkdir(gToSystemPath(sPath).c_str(), everyone) == 0;
}

std::u16string CPosixFileSystem::GetCurrentFolder()
{
    std::error_code error;
    return gMultiByteToWide(std::filesystem::current_path(error).native(), kCodePageUtf8);
}

bool CPosixFileSystem::SetCurrentFolder(std::u16string_view sFolder)
{
    return ::chdir(gToSystemPath(sFolder).c_str()) == 0;
}

std::int64_t CPosixFileSystem::GetModificationTime(std::string_view sName)
{
    struct stat status {
    };
    return ::stat(gToSystemFileName(sName).c_str(), &status) == 0 ? status.st_mtime : -1;
}

std::u16string CPosixFileSystem::GetProgramFile()
{
    return gGetProgramFile();
}

std::u16string CPosixFileSystem::GetModuleFile(const void* pAddress)
{
    return gGetModuleFile(pAddress);
}
