#include "platform/base/PosixFileSystem.h"

#include "platform/base/CodePage.h"
#include "platform/base/SystemPath.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace
{

std::optional<TFileAttributes> AttributesOf(const std::string& rsPath)
{
    struct stat status {
    };
    if (::stat(rsPath.c_str(), &status) != 0) {
        return std::nullopt;
    }
    const bool bDirectory = S_ISDIR(status.st_mode);
    return TFileAttributes{bDirectory, !bDirectory && !S_ISREG(status.st_mode)};
}

/// Why a path of which stat has just failed is not there.
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

} // namespace

std::optional<TFileAttributes> CPosixFileSystem::FindEntry(std::u16string_view sPath)
{
    return AttributesOf(gToSystemPath(sPath));
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
    DIR* const pFolder = ::opendir(gToSystemPath(sFolder).c_str());
    if (pFolder == nullptr) {
        return false;
    }
    // The order on the disk is any; the two that every folder has come first.
    bool bGoOn = rVisit(u".") && rVisit(u"..");
    while (bGoOn) {
        const dirent* const pEntry = ::readdir(pFolder);
        if (pEntry == nullptr) {
            break;
        }
        const std::string_view sName = pEntry->d_name;
        if (sName != "." && sName != "..") {
            bGoOn = rVisit(gMultiByteToWide(sName, kCodePageUtf8));
        }
    }
    ::closedir(pFolder);
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

std::int64_t CPosixFileSystem::GetModificationTime(std::string_view sName)
{
    struct stat status {
    };
    return ::stat(gToSystemFileName(sName).c_str(), &status) == 0 ? status.st_mtime : -1;
}
