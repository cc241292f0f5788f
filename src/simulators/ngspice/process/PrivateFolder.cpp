#include "simulators/ngspice/process/PrivateFolder.h"

#include "platform/base/Environment.h"
#include "simulators/ngspice/process/ImportError.h"
#include "simulators/ngspice/process/ReadWhole.h"

#include <stdlib.h>

#include <cerrno>
#include <cstdint>
#include <fstream>
#include <ios>
#include <limits>
#include <system_error>

namespace quorvawiz::ngspice
{

CPrivateFolder::CPrivateFolder()
{
    std::error_code error;
    auto parent = std::filesystem::temp_directory_path(error);
    if (error) {
        // It is what the user says, and isn't there: then the path is left empty.
        parent = gGetEnvironment("TMPDIR").value_or("/tmp");
    }
    // Six of these letters are what the system fills in.
    std::string sTemplate = (parent / "quorvawiz-import-").string() + std::string(6, 'X');
    if (!error && ::mkdtemp(sTemplate.data()) == nullptr) {
        error = {errno, std::generic_category()};
    }
    if (error) {
        throw CImportError("can't make a temporary folder in '" + parent.string() +
                           "': " + error.message());
    }
    mPath = sTemplate;
}

CPrivateFolder::~CPrivateFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(mPath, ignored);
}

void CPrivateFolder::Write(std::string_view sName, std::string_view sBytes) const
{
    const auto path = mPath / sName;
    std::ofstream stream(path, std::ios::binary);
    stream.write(sBytes.data(), static_cast<std::streamsize>(sBytes.size()));
    if (!stream.flush()) {
        throw CImportError("can't write '" + path.string() + "'");
    }
}

std::string CPrivateFolder::Read(std::string_view sName) const
{
    const auto path = mPath / sName;
    std::error_code error;
    if (!std::filesystem::exists(path, error)) {
        return {};
    }
    auto bytes = gReadWhole(path, std::numeric_limits<std::uint64_t>::max());
    if (!bytes) {
        throw CImportError("can't read '" + path.string() + "'");
    }
    return std::move(*bytes);
}

} // namespace quorvawiz::ngspice
