#include "simulators/ngspice/process/ReadWhole.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstddef>

namespace quorvawiz::ngspice
{
namespace
{

/// An open file, closed in the end.
class CHandle
{
public:
    explicit CHandle(const char* pPath) : mnHandle(::open(pPath, O_RDONLY | O_CLOEXEC | O_NONBLOCK))
    {
    }
    ~CHandle()
    {
        if (mnHandle >= 0) {
            ::close(mnHandle);
        }
    }
    CHandle(const CHandle&) = delete;
    CHandle& operator=(const CHandle&) = delete;

    int Get() const noexcept { return mnHandle; }

private:
    int mnHandle;
};

} // namespace

std::optional<std::string> gReadWhole(const std::filesystem::path& rPath, std::uint64_t nMost)
{
    // Without O_NONBLOCK the opening of a pipe would wait for its writer.
    const CHandle file(rPath.c_str());
    struct stat status {
    };
    if (file.Get() < 0 || ::fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode) ||
        static_cast<std::uint64_t>(status.st_size) > nMost) {
        return std::nullopt;
    }
    std::string sBytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t nRead = 0;
    while (nRead < sBytes.size()) {
        const ssize_t nNow = ::read(file.Get(), sBytes.data() + nRead, sBytes.size() - nRead);
        if (nNow < 0 && errno == EINTR) {
            continue;
        }
        if (nNow < 0) {
            return std::nullopt;
        }
        if (nNow == 0) {
            break; // cut meanwhile
        }
        nRead += static_cast<std::size_t>(nNow);
    }
    sBytes.resize(nRead);
    return sBytes;
}

} // namespace quorvawiz::ngspice
