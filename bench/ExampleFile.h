#pragma once

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

/// A file of so many devices in the temporary folder, gone with it.
class CExampleFile
{
public:
    explicit CExampleFile(std::int64_t nDevices)
        : msPath((std::filesystem::temp_directory_path() / "quorvawiz-bench.params").string())
    {
        const std::string sCommand = std::string(QUORVAWIZ_CLI_PATH) + " make-example '" + msPath +
                                     "' --devices " + std::to_string(nDevices);
        if (std::system(sCommand.c_str()) != 0) {
            throw std::runtime_error("can't make the file");
        }
    }
    ~CExampleFile()
    {
        std::error_code ignored;
        std::filesystem::remove(msPath, ignored);
    }
    CExampleFile(const CExampleFile&) = delete;
    CExampleFile& operator=(const CExampleFile&) = delete;

    const std::string& Path() const { return msPath; }

private:
    std::string msPath;
};
