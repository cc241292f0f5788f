#include "params/archive/FileSource.h"

#include "foundation/StringU.h"
#include "params/FileOpenException.h"
#include "params/archive/ArchiveError.h"
#include "params/archive/LineEnd.h"
#include "platform/base/SystemError.h"
#include "platform/base/SystemPath.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>
#include <string_view>

namespace
{

/// The system's read, again where a signal came in between.
template <class TRead> ssize_t Retry(TRead read)
{
    ssize_t nRead = 0;
    do {
        nRead = read();
    } while (nRead < 0 && errno == EINTR);
    return nRead;
}

constexpr std::size_t kStep = 4096;

/// The bytes of one step from a place on, and one byte more, so that steps overlap.
std::string StepAt(int nHandle, std::uint64_t nAt)
{
    std::string sBytes(kStep + 1, '\0');
    const ssize_t nRead = Retry(
        [&] { return ::pread(nHandle, sBytes.data(), sBytes.size(), static_cast<off_t>(nAt)); });
    sBytes.resize(nRead > 0 ? static_cast<std::size_t>(nRead) : 0);
    return sBytes;
}

} // namespace

CFileSource::CFileSource(const CStringU& rPath)
    : mnHandle(::open(gToSystemPathOfUtf8(rPath.Text()).c_str(), O_RDONLY | O_CLOEXEC))
{
    if (mnHandle < 0) {
        throw quorvaapi::FileOpenException(rPath, gGetLastError());
    }
    struct stat status {
    };
    if (::fstat(mnHandle, &status) == 0) {
        if (S_ISDIR(status.st_mode)) {
            ::close(mnHandle);
            throw quorvaapi::FileOpenException(rPath, EISDIR);
        }
        // Some files of the system tell no size and have bytes all the same.
        if (S_ISREG(status.st_mode) && status.st_size > 0) {
            mnSize = static_cast<std::uint64_t>(status.st_size);
            mbCrLf = FindCrLf();
        }
    }
}

CFileSource::~CFileSource()
{
    ::close(mnHandle);
}

/// Looks for the first and the last line end, by steps from both ends.
bool CFileSource::FindCrLf() const
{
    std::string sFirst;
    for (std::uint64_t nAt = 0; nAt < mnSize && sFirst.find('\n') == std::string::npos;
         nAt += kStep) {
        sFirst = StepAt(mnHandle, nAt);
    }
    if (!gIsTextMode(sFirst, sFirst)) {
        return false;
    }
    std::string sLast;
    std::uint64_t nAt = mnSize;
    while (nAt > 0 && sLast.find('\n', 1) == std::string::npos) {
        nAt -= std::min<std::uint64_t>(nAt, kStep);
        sLast = StepAt(mnHandle, nAt);
    }
    return gIsTextMode(sFirst, sLast);
}

std::size_t CFileSource::Read(char* pRoom, std::size_t nRoom)
{
    const ssize_t nRead = Retry([&] { return ::read(mnHandle, pRoom, nRoom); });
    if (nRead < 0) {
        throw CParamsArchiveError(boost::archive::archive_exception::input_stream_error, mnRead,
                                  "the system can't read the file here");
    }
    mnRead += static_cast<std::uint64_t>(nRead);
    return static_cast<std::size_t>(nRead);
}
