#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// What path functions ask of an entry on the disk.
struct TFileAttributes {
    bool mbDirectory = false; ///< a folder
    bool mbDevice = false; ///< neither a folder nor a file with bytes: a device, a pipe, a socket
};

/// Why attributes could not be had.
enum class EFileError {
    FileNotFound, ///< the folder is there, the entry isn't
    PathNotFound, ///< the folder isn't there, or the path is too long
    Other,        ///< anything else, such as a missing permission
};

/// The system's calls about files that path functions make. Paths are 16-bit text with either
/// separator, perhaps with the prefix `\\?\`, which lifts the limit of a path's length where there
/// is one. A call that fails leaves the last error (gGetLastError).
class IFileSystem
{
public:
    /// What looks at an entry of a folder: its bare name.
    /// @return false to end the enumeration
    using TVisit = std::function<bool(std::u16string_view sName)>;

    IFileSystem() = default;
    IFileSystem(const IFileSystem&) = delete;
    IFileSystem& operator=(const IFileSystem&) = delete;
    virtual ~IFileSystem() = default;

    /// Looks an entry up in its folder, without asking whether a symbolic link leads anywhere.
    /// @param sPath a path that names an entry: neither a root nor one that ends in a slash
    /// @return its attributes; for a link those of what it leads to, or of a file if it leads
    ///         nowhere; nullopt if there is no such entry
    [[nodiscard]] virtual std::optional<TFileAttributes> FindEntry(std::u16string_view sPath) = 0;

    /// Asks for the attributes of a path, a root and a closing slash included.
    /// @param sPath the path
    /// @param reError receives the reason where there are none
    /// @return as FindEntry, of a link too
    [[nodiscard]] virtual std::optional<TFileAttributes> GetAttributes(std::u16string_view sPath,
                                                                       EFileError& reError) = 0;

    /// Asks the standard library, which follows symbolic links and mount points.
    /// @return the attributes; nullopt if there is nothing
    [[nodiscard]] virtual std::optional<TFileAttributes> GetStatus(std::u16string_view sPath) = 0;

    /// Goes through the entries of a folder, "." and ".." first where it has them.
    /// @return false if the folder can't be opened, or can't be read to its end or to where the
    ///         visitor ended it
    virtual bool Enumerate(std::u16string_view sFolder, const TVisit& rVisit) = 0;

    /// Tells whether the path can be accessed at all.
    [[nodiscard]] virtual bool CanAccess(std::u16string_view sPath) = 0;

    /// Makes one folder in a folder that is there.
    /// @return false if it could not be made
    virtual bool MakeFolder(std::u16string_view sPath) = 0;

    /// The current folder of the process; empty if there is none.
    [[nodiscard]] virtual std::u16string GetCurrentFolder() = 0;

    /// Makes a folder the current one of the process.
    /// @return false if it can't be, and the current one stays
    virtual bool SetCurrentFolder(std::u16string_view sFolder) = 0;

    /// When a file was last written.
    /// @param sName its path in the system's code page
    /// @return seconds since 1970 in UTC; -1 if it can't be told
    [[nodiscard]] virtual std::int64_t GetModificationTime(std::string_view sName) = 0;

    /// As gGetProgramFile.
    [[nodiscard]] virtual std::u16string GetProgramFile() = 0;

    /// As gGetModuleFile.
    [[nodiscard]] virtual std::u16string GetModuleFile(const void* pAddress) = 0;
};

/// The file system that path functions ask: the system's own, unless another was set.
[[nodiscard]] std::shared_ptr<IFileSystem> gGetFileSystem();

/// Puts a file system in the place of the current one, for the whole process; unguarded, so while
/// no other thread uses one.
/// @param pFileSystem the new one; null for the system's own
void gSetFileSystem(std::shared_ptr<IFileSystem> pFileSystem);
