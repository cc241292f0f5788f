#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace quorvawiz::ngspice
{

/// A folder for one run of the simulator, which only its user may look into. It is gone with the
/// object, with all that is in it.
class CPrivateFolder
{
public:
    /// Makes it in the system's folder for temporary files.
    /// @throws CImportError if that can't be done
    CPrivateFolder();
    ~CPrivateFolder();
    CPrivateFolder(const CPrivateFolder&) = delete;
    CPrivateFolder& operator=(const CPrivateFolder&) = delete;

    /// The folder.
    [[nodiscard]] const std::filesystem::path& GetPath() const noexcept { return mPath; }

    /// Writes a file.
    /// @param sName its name in the folder
    /// @param sBytes all of it
    /// @throws CImportError if it can't be written
    void Write(std::string_view sName, std::string_view sBytes) const;

    /// The bytes of a file; empty if there is none.
    /// @param sName its name in the folder
    /// @throws CImportError if it is there and can't be read
    [[nodiscard]] std::string Read(std::string_view sName) const;

private:
    std::filesystem::path mPath;
};

} // namespace quorvawiz::ngspice
