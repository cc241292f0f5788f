#pragma once

#include "platform/base/FileException.h"
#include "platform/base/StringA.h"

#include <cstdint>
#include <memory>

class CAtlTransactionManager;

/// The platform's file of bytes, unbuffered: each operation is a system call. An operation that
/// fails throws a CFileException, unless it says otherwise; one that a signal interrupted is tried
/// again. Positions and lengths are in bytes. Names are in the system's code page, with either
/// separator (gToSystemFileName).
class CFile
{
public:
    /// How a file is opened; one of the first three, and any of the others. (The number 3 is none
    /// of the three, and refused.)
    enum OpenFlags : unsigned {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        // What others may do meanwhile. This system has no such locks, so they have no effect.
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,  ///< no effect: no program that is started inherits the file
        modeCreate = 0x1000,     ///< makes the file, or empties the one that there is
        modeNoTruncate = 0x2000, ///< with modeCreate: keeps what there is
        typeText = 0x4000,       ///< for derived classes
        typeBinary = 0x8000,     ///< for derived classes
    };

    /// Where an offset of Seek counts from.
    enum SeekPosition : unsigned { begin = 0, current = 1, end = 2 };

    /// A closed file.
    CFile() = default;
    /// Opens a file.
    /// @param pFileName its name, zero-terminated
    /// @param nOpenFlags of OpenFlags
    CFile(const char* pFileName, unsigned nOpenFlags);
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    /// Closes the file, without a throw.
    virtual ~CFile();

    /// Where the next read or write goes.
    [[nodiscard]] virtual std::uint64_t GetPosition() const;
    /// The last part of the name.
    [[nodiscard]] virtual CString GetFileName() const;
    /// The last part of the name without its extension.
    [[nodiscard]] virtual CString GetFileTitle() const;
    /// The name as it was given.
    [[nodiscard]] virtual CString GetFilePath() const;
    /// Sets the name, without a look at the disk.
    /// @throws CInvalidArgException for null
    virtual void SetFilePath(const char* pFileName);

    /// Opens a file, and closes the one before by Close, whose errors are lost. A folder is
    /// refused.
    /// @param pFileName its name, zero-terminated
    /// @param nOpenFlags of OpenFlags
    /// @param pError if not null: filled on failure
    /// @return false on failure; nothing is thrown
    virtual bool Open(const char* pFileName, unsigned nOpenFlags, CFileException* pError = nullptr);
    /// Opens a file as a part of a transaction, which this system doesn't have.
    /// @param pTransaction null, and then it is as the other form; anything else is refused
    virtual bool Open(const char* pFileName, unsigned nOpenFlags,
                      CAtlTransactionManager* pTransaction, CFileException* pError);
    /// A second file on the same open file: they share the position.
    [[nodiscard]] virtual std::unique_ptr<CFile> Duplicate() const;

    /// Moves the position, perhaps past the end.
    /// @param nOffset in bytes
    /// @param nFrom of SeekPosition
    /// @return the new position
    virtual std::uint64_t Seek(std::int64_t nOffset, unsigned nFrom);
    /// Cuts the file or lengthens it with zeros; the position stays.
    virtual void SetLength(std::uint64_t nNewLength);
    /// The length.
    [[nodiscard]] virtual std::uint64_t GetLength() const;

    /// Reads at the position and moves it.
    /// @param pBuffer room for nCount bytes
    /// @return how many bytes were read; less than nCount only at the end, and in front of a place
    ///         that can't be read, at which the next call throws
    virtual unsigned Read(void* pBuffer, unsigned nCount);
    /// Writes all bytes at the position and moves it.
    virtual void Write(const void* pBuffer, unsigned nCount);

    /// Keeps others from a part of the file; refused where another holds a part of it.
    virtual void LockRange(std::uint64_t nPosition, std::uint64_t nCount);
    /// Ends a lock.
    virtual void UnlockRange(std::uint64_t nPosition, std::uint64_t nCount);

    /// Closes the file, whatever happens. Nothing is thrown.
    virtual void Abort();
    /// Has the system write the file to the disk.
    virtual void Flush();
    /// Closes the file; without effect if it is closed.
    virtual void Close();
    /// Direct access to a buffer, which files don't have.
    /// @return 0: not supported
    virtual unsigned GetBufferPtr(unsigned nCommand, unsigned nCount = 0,
                                  void** ppBufferStart = nullptr, void** ppBufferEnd = nullptr);

    /// Tells whether a file is open.
    [[nodiscard]] bool HasHandle() const noexcept { return mnHandle >= 0; }

    /// Tells whether the open file can be sought in, as a pipe or a terminal can't.
    [[nodiscard]] bool HasPositions() const noexcept;

    /// Deletes a file.
    /// @param pFileName its name, zero-terminated
    static void Remove(const char* pFileName);

private:
    [[noreturn]] void ThrowLastError() const;
    bool OpenNew(const char* pFileName, unsigned nOpenFlags, CFileException* pError);
    void Lock(short nType, std::uint64_t nPosition, std::uint64_t nCount) const;

    int mnHandle = -1;
    bool mbWritable = false;
    CString msFileName;
};
