#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <ios>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

/// A folder of its own for a test's files, gone with it. Anybody may look into it.
class CTempFolder
{
public:
    CTempFolder()
    {
        // Six of these letters are what the system fills in.
        std::string sTemplate =
            (std::filesystem::temp_directory_path() / "quorvawiz-").string() + std::string(6, 'X');
        if (::mkdtemp(sTemplate.data()) == nullptr)
            throw std::runtime_error("can't make a folder");
        mPath = sTemplate;
        std::filesystem::permissions(mPath, std::filesystem::perms(0755));
    }
    ~CTempFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(mPath, ignored);
    }
    CTempFolder(const CTempFolder&) = delete;
    CTempFolder& operator=(const CTempFolder&) = delete;

    /// The full name of something in the folder.
    std::string Path(std::string_view sName) const { return (mPath / sName).string(); }

    /// Writes a file. Result: its full name.
    std::string Write(std::string_view sName, std::string_view sBytes) const
    {
        std::ofstream stream(Path(sName), std::ios::binary);
        stream.write(sBytes.data(), static_cast<std::streamsize>(sBytes.size()));
        if (!stream.flush())
            throw std::runtime_error("can't write " + Path(sName));
        return Path(sName);
    }

    /// The bytes of a file.
    std::string Read(std::string_view sName) const
    {
        std::ifstream stream(Path(sName), std::ios::binary);
        if (!stream)
            throw std::runtime_error("can't read " + Path(sName));
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }

private:
    std::filesystem::path mPath;
};
