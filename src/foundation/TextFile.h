#pragma once

#include "foundation/NonCopyable.h"
#include "foundation/StringU.h"
#include "foundation/TextEncoding.h"
#include "platform/base/File.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

// The form of Open with a CStringU is a further operation and hides those of the platform on
// purpose.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Woverloaded-virtual"

/// A text file: a file or a text in memory, read and written by lines and by stream operators, in
/// one of seven encodings, with the mark of the encoding handled and one large buffer in between.
///
/// Positions and lengths are in bytes and leave out the mark, so 0 is the first byte behind it. The
/// text operations throw nothing: the first error since the last Open is kept as a text. What is
/// written is in the file, or in the text in memory, after Flush, Close or the destructor.
///
/// What can't be sought in, such as a pipe, is either read or written, from its beginning to its
/// end; what a Seek passes over is read and forgotten. To be read it is opened as soon as its first
/// bytes are there.
///
/// The forms of Open that CFile has are reached through a CFile alone. They open the bytes of a
/// file: the open flags with CFile::typeBinary in them, the encoding, the name in messages and the
/// error text stay those from before, also for a SetLength, which may detect an encoding by them.
class TTextFile : public CFile, private TNonCopyable
{
public:
    /// How the constructor for writing opens: made or emptied, and nobody else reads it.
    static constexpr unsigned kExportFlags = modeCreate | modeWrite | shareDenyRead;

    /// A closed file.
    TTextFile() = default;
    /// Opens a file for reading or writing and detects its encoding, EncodingAnsi if unknown. On
    /// failure the object is closed and GetLastErrorText says why.
    /// @param rsFileName the name
    /// @param nOpenFlags of CFile::OpenFlags
    TTextFile(const CStringU& rsFileName, unsigned nOpenFlags);
    /// Makes or empties a file and opens it for writing in the system's code page: kExportFlags.
    explicit TTextFile(const CStringU& rsFileName);
    /// A text in memory, which starts as a copy of a text and is gone with the object. An empty one
    /// gets the encoding's mark.
    /// @param encoding of the bytes
    /// @param rsText the text to start with
    /// @param rsName stands in messages
    TTextFile(TTextEncoding encoding, const CStringU& rsText, const CStringU& rsName);
    /// A text of the caller's, read and written where it is. An empty one gets the encoding's mark.
    /// @param encoding of the bytes
    /// @param pText the text, which must live as long as the object and not be changed meanwhile
    /// @param rsName stands in messages
    TTextFile(TTextEncoding encoding, CStringU* pText, const CStringU& rsName);
    /// Writes out what is buffered and closes, without a throw.
    ~TTextFile() override;

    /// Where the next read or write goes.
    /// @throws CFileException if closed
    [[nodiscard]] std::uint64_t GetPosition() const override;
    /// Sets the name that messages and Remove use.
    /// @throws CInvalidArgException for null
    void SetFilePath(const char* pFileName) override;
    /// Moves the position, perhaps past the end.
    /// @throws CFileException for a place in front of the text, for one that is left behind where
    ///         the file can only be read on, if closed, and if the system refuses
    std::uint64_t Seek(std::int64_t nOffset, unsigned nFrom) override;
    /// Has all that is written on the disk, and then cuts the file or lengthens it with zeros. A
    /// file cut to 0 gets its mark again. Does nothing if what is buffered can't be written.
    /// @param nNewLength without the mark, as GetLength gives it
    /// @throws CFileException if the system refuses, and in memory for more than 2 GB
    void SetLength(std::uint64_t nNewLength) override;
    /// The length, with what is still buffered; of what can't be sought in, how far it was read or
    /// written.
    [[nodiscard]] std::uint64_t GetLength() const override;
    /// Reads bytes through the buffer.
    /// @return how many; less than nCount at the end, where the system refuses, and if closed
    unsigned Read(void* pBuffer, unsigned nCount) override;
    /// Writes bytes through the buffer, as they are. An error while the buffer is written out is
    /// kept as a text.
    /// @throws CFileException if what doesn't fit into the buffer can't be written, and if closed
    void Write(const void* pBuffer, unsigned nCount) override;
    /// Locks a part of the file; in memory nothing.
    void LockRange(std::uint64_t nPosition, std::uint64_t nCount) override;
    /// Ends a lock; in memory nothing.
    void UnlockRange(std::uint64_t nPosition, std::uint64_t nCount) override;
    /// Writes out the buffer and has the system write the file to the disk.
    /// @throws CFileException if the latter fails
    void Flush() override;
    /// Writes out the buffer and closes the file. A text in memory stays as it is.
    void Close() override;

    /// Opens a file and detects its encoding, EncodingAnsi if unknown. With CFile::modeCreate its
    /// folder is made where there is none.
    /// @param rsFileName the name, whose characters must be of the system's code page
    /// @param nOpenFlags of CFile::OpenFlags
    /// @param pError if not null: filled where the file can't be opened, and the message has its
    ///               text then
    /// @return false on failure, and the file is closed; GetLastErrorText says why
    virtual bool Open(const CStringU& rsFileName, unsigned nOpenFlags, CFileException* pError);
    /// Opens a file in an encoding. One opened only for reading still has its encoding detected,
    /// and has the one given where nothing tells of another; an empty one gets the encoding's mark;
    /// any other is taken for what the caller says. An encoding with a mark is taken at its word:
    /// of a file that has none as many bytes count as the mark, and aren't read.
    bool Open(const CStringU& rsFileName, TTextEncoding encoding, unsigned nOpenFlags,
              CFileException* pError);
    /// Closes a file on the disk and deletes it.
    /// @return false for a text in memory, for a file without a name, and if it can't be deleted
    bool Remove();

    /// Reads a line up to its line feed or the end, without carriage returns. A zero cuts the line.
    /// @param rsLine the line without its line feed; empty if there is none
    /// @return false at the end and on a closed file. No empty line follows the last line feed
    bool ReadLine(CStringU& rsLine);
    /// Reads all lines that are left.
    /// @return each with a line feed behind it, also the last one
    [[nodiscard]] CStringU ReadAll();

    /// Writes a text in the file's encoding. Unless the file was opened with CFile::typeBinary,
    /// line ends follow gPutWithLineEnds.
    /// @return false on failure; GetLastErrorText has the first one since Open
    bool WriteText(const CStringU& rsText);
    /// Writes 8-bit text: as it is where the encoding has 8-bit units, else from the system's code
    /// page. Line ends as above.
    /// @param pText zero-terminated; null is the empty text
    bool WriteText(const char* pText);
    /// Writes 8-bit text with a length: where the encoding has 8-bit units exactly these bytes,
    /// without a look at line ends, else as above.
    /// @param pText the bytes; may be null if nLength is 0
    /// @param nLength how many, at least 0
    /// @throws CInvalidArgException for a negative length, and for null with another length than 0
    bool WriteText(const char* pText, int nLength);

    /// Writes a text as WriteText does, which keeps an error for GetLastErrorText.
    TTextFile& operator<<(const CStringU& rsText);
    /// Writes 8-bit text as WriteText does.
    TTextFile& operator<<(const char* pText);
    /// Writes a number in decimal digits.
    TTextFile& operator<<(int nNumber);
    /// Writes a number in decimal digits.
    TTextFile& operator<<(unsigned nNumber);
    /// Writes a number in decimal digits.
    TTextFile& operator<<(long nNumber);
    /// Writes a number in decimal digits.
    TTextFile& operator<<(unsigned long nNumber);
    /// Writes a number in decimal digits.
    TTextFile& operator<<(long long nNumber);
    /// Writes a number in decimal digits.
    TTextFile& operator<<(unsigned long long nNumber);
    /// Writes a number with up to 12 digits, as "%.12g" does in the "C" locale.
    TTextFile& operator<<(double dNumber);

    /// The first error since the last Open; empty for none. It outlives Close.
    [[nodiscard]] const CStringU& GetLastErrorText() const noexcept { return msError; }
    /// How many lines were read or written; 0 until the first operation.
    [[nodiscard]] int GetLineNumber() const noexcept { return mnLine; }
    /// The encoding that was given or detected.
    [[nodiscard]] TTextEncoding GetEncoding() const noexcept { return mEncoding; }
    /// Tells whether the file can be read or written: a text in memory always can.
    [[nodiscard]] bool IsOpen() const noexcept { return mbInMemory || HasHandle(); }

private:
    void StartInMemory(TTextEncoding encoding, const CStringU& rsName);
    bool OpenOnDisk(const CStringU& rsFileName, unsigned nOpenFlags, CFileException* pError);
    bool StartOnDisk(bool (TTextFile::*pFindEncoding)(TTextEncoding), TTextEncoding encoding,
                     CFileException* pError);
    bool MakeFolder(const CStringU& rsFileName);
    bool DetectEncoding(TTextEncoding whenUnknown);
    bool ApplyMarkRule(TTextEncoding encoding);

    void KeepError(const CStringU& rsError);
    void KeepOpenError(const CFileException* pError);
    void KeepWriteError(int nOsError);
    [[nodiscard]] std::int64_t MarkSize() const noexcept;

    // The file or the text in memory, past the buffer and with the mark.
    [[nodiscard]] bool IsInMemory() const noexcept { return mbInMemory && !HasHandle(); }
    [[nodiscard]] bool IsStream() const noexcept;
    unsigned RawRead(void* pBuffer, std::size_t nCount);
    void RawWrite(const char* pBuffer, std::size_t nCount);
    void RawSeek(std::uint64_t nPosition);
    [[nodiscard]] std::uint64_t RawPosition() const;
    [[nodiscard]] std::uint64_t RawLength() const;
    void WriteIntoMemory(std::string_view sBytes);
    void SkipTo(std::uint64_t nPosition);
    void RequireRoom(std::uint64_t nSize) const;

    // The buffer.
    void AllocateBuffer();
    void ResetBuffer() noexcept;
    void KeepRead(std::string_view sBytes);
    [[nodiscard]] std::uint64_t CurrentPosition() const;
    bool WriteOut();
    bool FillIfEmpty();
    [[nodiscard]] std::string_view Buffered() const noexcept;
    std::size_t TakeBuffered(char* pOut, std::size_t nCount);
    bool Put(std::string_view sBytes);

    bool ReadLineOfBytes(CStringU& rsLine);
    bool ReadLineOfUnits(CStringU& rsLine);
    std::size_t TakeUnits(std::string_view sBytes, bool& rbLineEnd);
    void SetLine(CStringU& rsLine, std::string_view sBytes) const;
    bool WriteBytes(std::string_view sBytes);
    bool WriteUnits(std::u16string_view sUnits);
    template <class TWrite> bool CatchWriteError(const TWrite& rWrite);
    template <class TNumber> TTextFile& WriteNumber(TNumber number);

    std::string msLineBuffer;    // grows, and is freed by Close
    std::u16string msUnitBuffer; // the same for 16-bit units
    std::unique_ptr<char[]> mpBuffer;
    std::uint64_t mnValid = 0;          // how much of the buffer is filled
    std::uint64_t mnBufferPosition = 0; // where in the file its first byte is, if it has any
    std::uint64_t mnIndex = 0;          // where in it the next read or write goes
    bool mbDirty = false;               // it holds what isn't in the file yet
    TTextEncoding mEncoding = EncodingAnsi;
    unsigned mnOpenFlags = 0;
    CStringU msError;
    CStringU msFileName;
    bool mbInMemory = false;
    CStringU msOwnText;
    CStringU* mpText = nullptr; // msOwnText or the caller's
    std::uint64_t mnMemoryPosition = 0;
    std::uint64_t mnStreamPosition = 0; // of what doesn't know its position itself
    int mnLine = 0;
};

#pragma GCC diagnostic pop
