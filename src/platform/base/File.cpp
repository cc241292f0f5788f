#include "platform/base/File.h"

#include "platform/base/Exceptions.h"
#include "platform/base/SystemError.h"
#include "platform/base/SystemPath.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>

#include <cerrno>
#include <string>
#include <string_view>

static_assert(sizeof(::off_t) == sizeof(std::int64_t));

namespace
{

constexpr mode_t kNewFile = 0666; // less the process's mask
constexpr unsigned kModeMask = 3;

// Calls again for as long as a signal interrupts.
template <class TCall> auto Retry(const TCall& rCall)
{
    auto result = rCall();
    while (result == -1 && errno == EINTR) {
        result = rCall();
    }
    return result;
}

int SystemFlags(unsigned nOpenFlags) noexcept
{
    int nFlags = O_CLOEXEC;
    switch (nOpenFlags & kModeMask) {
    case CFile::modeRead:
        nFlags |= O_RDONLY;
        break;
    case CFile::modeWrite:
        nFlags |= O_WRONLY;
        break;
    default:
        nFlags |= O_RDWR;
    }
    if ((nOpenFlags & CFile::modeCreate) != 0) {
        nFlags |= O_CREAT;
        nFlags |= (nOpenFlags & CFile::modeNoTruncate) != 0 ? 0 : O_TRUNC;
    }
    return nFlags;
}

// Reading a folder fails only at the first read; here it is no file from the start.
bool IsFolder(int nHandle) noexcept
{
    struct stat status {
    };
    return ::fstat(nHandle, &status) == 0 && S_ISDIR(status.st_mode);
}

// Result: the handle, or -1 and the reason in errno.
int OpenHandle(const std::string& rsSystemName, unsigned nOpenFlags) noexcept
{
    if ((nOpenFlags & kModeMask) == kModeMask) {
        errno = EINVAL; // no way to read or write has this number
        return -1;
    }
    const int nFlags = SystemFlags(nOpenFlags);
    const int nHandle = Retry([&] { return ::open(rsSystemName.c_str(), nFlags, kNewFile); });
    if (nHandle >= 0 && IsFolder(nHandle)) {
        ::close(nHandle);
        errno = EISDIR;
        return -1;
    }
    return nHandle;
}

} // namespace

CFile::CFile(const char* pFileName, unsigned nOpenFlags)
{
    CFileException exception;
    if (!OpenNew(pFileName, nOpenFlags, &exception)) {
        CFileException::ThrowOsError(exception.GetOsError(), exception.GetFileName());
    }
}

CFile::~CFile()
{
    CFile::Abort();
}

std::uint64_t CFile::GetPosition() const
{
    const auto nPosition = ::lseek(mnHandle, 0, SEEK_CUR);
    if (nPosition < 0) {
        ThrowLastError();
    }
    return static_cast<std::uint64_t>(nPosition);
}

CString CFile::GetFileName() const
{
    const std::string_view sName(msFileName);
    return sName.substr(sName.find_last_of("/\\") + 1); // npos plus 1 is 0: all of it
}

CString CFile::GetFileTitle() const
{
    const CString sName = GetFileName();
    const int nPoint = sName.ReverseFind('.');
    return nPoint > 0 ? sName.Left(nPoint) : sName;
}

CString CFile::GetFilePath() const
{
    return msFileName;
}

void CFile::SetFilePath(const char* pFileName)
{
    if (pFileName == nullptr) {
        gThrowInvalidArg("CFile::SetFilePath: no name");
    }
    msFileName = pFileName;
}

bool CFile::Open(const char* pFileName, unsigned nOpenFlags, CFileException* pError)
{
    try {
        Close(); // of a derived class too, which may hold something back
    } catch (const CFileException&) {
        CFile::Abort();
    }
    return OpenNew(pFileName, nOpenFlags, pError);
}

bool CFile::OpenNew(const char* pFileName, unsigned nOpenFlags, CFileException* pError)
{
    const CString sFileName(pFileName);
    const int nHandle = OpenHandle(gToSystemFileName(sFileName), nOpenFlags);
    if (nHandle < 0) {
        const int nError = errno;
        if (pError != nullptr) {
            *pError = CFileException(nError, sFileName);
        }
        gSetLastError(nError);
        return false;
    }
    mnHandle = nHandle;
    mbWritable = (nOpenFlags & kModeMask) != modeRead;
    msFileName = sFileName;
    return true;
}

bool CFile::Open(const char* pFileName, unsigned nOpenFlags, CAtlTransactionManager* pTransaction,
                 CFileException* pError)
{
    if (pTransaction == nullptr) {
        return CFile::Open(pFileName, nOpenFlags, pError);
    }
    if (pError != nullptr) {
        *pError = CFileException(EOPNOTSUPP, pFileName);
    }
    gSetLastError(EOPNOTSUPP);
    return false;
}

std::unique_ptr<CFile> CFile::Duplicate() const
{
    auto pFile = std::make_unique<CFile>();
    pFile->mnHandle = ::fcntl(mnHandle, F_DUPFD_CLOEXEC, 0);
    if (pFile->mnHandle < 0) {
        ThrowLastError();
    }
    pFile->mbWritable = mbWritable;
    pFile->msFileName = msFileName;
    return pFile;
}

std::uint64_t CFile::Seek(std::int64_t nOffset, unsigned nFrom)
{
    static_assert(begin == SEEK_SET && current == SEEK_CUR && end == SEEK_END);
    const auto nPosition = ::lseek(mnHandle, nOffset, static_cast<int>(nFrom));
    if (nPosition < 0) {
        ThrowLastError();
    }
    return static_cast<std::uint64_t>(nPosition);
}

void CFile::SetLength(std::uint64_t nNewLength)
{
    if (Retry([&] { return ::ftruncate(mnHandle, static_cast<::off_t>(nNewLength)); }) != 0) {
        ThrowLastError();
    }
}

std::uint64_t CFile::GetLength() const
{
    struct stat status {
    };
    if (::fstat(mnHandle, &status) != 0) {
        ThrowLastError();
    }
    return static_cast<std::uint64_t>(status.st_size);
}

unsigned CFile::Read(void* pBuffer, unsigned nCount)
{
    unsigned nDone = 0;
    while (nDone < nCount) {
        const auto nRead = Retry(
            [&] { return ::read(mnHandle, static_cast<char*>(pBuffer) + nDone, nCount - nDone); });
        if (nRead < 0 && nDone == 0) {
            ThrowLastError();
        }
        if (nRead <= 0) {
            break;
        }
        nDone += static_cast<unsigned>(nRead);
    }
    return nDone;
}

void CFile::Write(const void* pBuffer, unsigned nCount)
{
    unsigned nDone = 0;
    while (nDone < nCount) {
        const auto nWritten = Retry([&] {
            return ::write(mnHandle, static_cast<const char*>(pBuffer) + nDone, nCount - nDone);
        });
        if (nWritten < 0) {
            ThrowLastError();
        }
        nDone += static_cast<unsigned>(nWritten);
    }
}

bool CFile::HasPositions() const noexcept
{
    return ::lseek(mnHandle, 0, SEEK_CUR) >= 0 || errno != ESPIPE;
}

void CFile::Lock(short nType, std::uint64_t nPosition, std::uint64_t nCount) const
{
    // Such a lock belongs to the open file, as the platform's do, and not to the process.
    struct flock lock {
    };
    lock.l_type = nType;
    lock.l_whence = SEEK_SET;
    lock.l_start = static_cast<::off_t>(nPosition);
    lock.l_len = static_cast<::off_t>(nCount);
    if (::fcntl(mnHandle, F_OFD_SETLK, &lock) != 0) {
        ThrowLastError();
    }
}

void CFile::LockRange(std::uint64_t nPosition, std::uint64_t nCount)
{
    Lock(mbWritable ? F_WRLCK : F_RDLCK, nPosition, nCount);
}

void CFile::UnlockRange(std::uint64_t nPosition, std::uint64_t nCount)
{
    Lock(F_UNLCK, nPosition, nCount);
}

void CFile::Abort()
{
    if (mnHandle >= 0) {
        const int nLastError = errno;
        ::close(mnHandle);
        errno = nLastError;
        mnHandle = -1;
    }
}

void CFile::Flush()
{
    // What has no disk below it, such as a device, can't be written to one.
    if (mnHandle >= 0 && Retry([&] { return ::fsync(mnHandle); }) != 0 && errno != EINVAL) {
        ThrowLastError();
    }
}

void CFile::Close()
{
    if (mnHandle < 0) {
        return;
    }
    // The handle is gone even where the call fails, so it isn't tried again.
    const int nResult = ::close(mnHandle);
    mnHandle = -1;
    if (nResult != 0 && errno != EINTR) {
        ThrowLastError();
    }
}

unsigned CFile::GetBufferPtr(unsigned /*nCommand*/, unsigned /*nCount*/, void** /*ppBufferStart*/,
                             void** /*ppBufferEnd*/)
{
    return 0;
}

void CFile::Remove(const char* pFileName)
{
    const CString sFileName(pFileName);
    if (::unlink(gToSystemFileName(sFileName).c_str()) != 0) {
        CFileException::ThrowOsError(errno, sFileName);
    }
}

void CFile::ThrowLastError() const
{
    CFileException::ThrowOsError(errno, msFileName);
}
