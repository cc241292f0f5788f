// What happens when the disk doesn't take what is written.

#include "foundation/SystemErrorText.h"
#include "foundation/TextFile.h"
#include "platform/base/CodePageScope.h"
#include "platform/base/MessagesScope.h"
#include "platform/base/SystemError.h"
#include "support/PrintStringU.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>

namespace
{

constexpr std::size_t kBuffer = 0x100000;

CStringU WriteError(const std::string& rsName, int nError)
{
    return "Error writing to file \"" + CStringU(rsName) + "\": " + gSystemErrorMessage(nError);
}

/// While it lives, no file may get longer than this: the write at the limit is done by half and the
/// next one fails.
class CFileSizeLimit
{
public:
    explicit CFileSizeLimit(rlim_t nBytes)
    {
        mOldHandler = std::signal(SIGXFSZ, SIG_IGN);
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &mOld), 0);
        rlimit limit = mOld;
        limit.rlim_cur = nBytes;
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~CFileSizeLimit()
    {
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &mOld), 0);
        std::signal(SIGXFSZ, mOldHandler);
    }
    CFileSizeLimit(const CFileSizeLimit&) = delete;
    CFileSizeLimit& operator=(const CFileSizeLimit&) = delete;

private:
    rlimit mOld{};
    void (*mOldHandler)(int) = nullptr;
};

// Closes the system's handle of a file behind the back of the object that has it open.
void CloseHandleOf(const std::string& rsName)
{
    for (const auto& rEntry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code ignored;
        if (std::filesystem::read_symlink(rEntry.path(), ignored) == rsName) {
            ::close(std::stoi(rEntry.path().filename().string()));
            break;
        }
    }
}

TEST(TextFileFailureTest, AnErrorThatTheSystemTellsWhenClosingIsKept)
{
    const CTempFolder folder;
    const std::string sName = folder.Write("file", "abc\n");
    TTextFile file;
    ASSERT_TRUE(file.Open(CStringU(sName), CFile::modeRead, nullptr));
    CloseHandleOf(sName);
    file.Close();
    EXPECT_EQ(file.GetLastErrorText(), WriteError(sName, EBADF));
    EXPECT_FALSE(file.IsOpen());
}

TEST(TextFileFailureTest, AFullDiskIsToldWhenTheBufferIsWrittenOut)
{
    TTextFile file{CStringU("/dev/full")};
    ASSERT_TRUE(file.IsOpen());
    EXPECT_TRUE(file.WriteText("abc\n")); // into the buffer
    EXPECT_EQ(file.GetLastErrorText(), "");
    file.Flush();
    EXPECT_EQ(file.GetLastErrorText(), WriteError("/dev/full", ENOSPC));
    EXPECT_TRUE(file.IsOpen());
    file << "more"; // further writes are tried
    file.Close();
    EXPECT_EQ(file.GetLastErrorText(), WriteError("/dev/full", ENOSPC));
}

TEST(TextFileFailureTest, AFullDiskIsTheResultOfTheWriteThatMeetsIt)
{
    TTextFile file{CStringU("/dev/full")};
    const std::string sMuch(kBuffer / 2, 'x');
    EXPECT_TRUE(file.WriteText(sMuch.c_str()));
    EXPECT_FALSE(file.WriteText(sMuch.c_str())); // fills the buffer
    EXPECT_EQ(file.GetLastErrorText(), WriteError("/dev/full", ENOSPC));
    EXPECT_FALSE(file.WriteText(CStringU(sMuch + sMuch + sMuch)));
    EXPECT_FALSE(
        file.WriteText((sMuch + sMuch + sMuch).c_str(), static_cast<int>(3 * kBuffer / 2)));
}

TEST(TextFileFailureTest, TheFirstErrorStays)
{
    TTextFile file{CStringU("/dev/full")};
    file << "a";
    file.Flush();
    file.SetFilePath("/other/name");
    file << "b";
    file.Flush();
    EXPECT_EQ(file.GetLastErrorText(), WriteError("/dev/full", ENOSPC));
}

TEST(TextFileFailureTest, ADirectWriteOfTooMuchThrows)
{
    TTextFile file{CStringU("/dev/full")};
    const std::string sMuch(kBuffer + 1, 'x');
    EXPECT_THROW(file.Write(sMuch.data(), static_cast<unsigned>(sMuch.size())), CFileException);
    EXPECT_TRUE(file.IsOpen());
    EXPECT_NO_THROW(file.Write("a", 1)); // into the buffer
    file.Close();
}

TEST(TextFileFailureTest, AMarkThatCannotBeWrittenFailsTheOpen)
{
    TTextFile file;
    EXPECT_FALSE(file.Open("/dev/full", EncodingUtf8Bom, CFile::modeWrite, nullptr));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(file.GetLastErrorText(), WriteError("/dev/full", ENOSPC));
}

TEST(TextFileFailureTest, AnInterruptedWriteLosesNothingThatWasFlushed)
{
    const CTempFolder folder;
    TTextFile file{CStringU(folder.Path("a.txt"))};
    file << "flushed\n";
    file.Flush();
    {
        const CFileSizeLimit limit(12);
        file << "cut in the middle";
        file.Flush();
        EXPECT_EQ(file.GetLastErrorText(), WriteError(folder.Path("a.txt"), EFBIG));
        EXPECT_EQ(folder.Read("a.txt"), "flushed\r\ncut");
    }
    EXPECT_TRUE(file.IsOpen());
    EXPECT_EQ(file.GetPosition(), 26U); // behind all that was to be written
    file.Seek(0, CFile::end);
    file << "on\n";
    file.Close();
    EXPECT_EQ(folder.Read("a.txt").substr(0, 9), "flushed\r\n");
    EXPECT_TRUE(folder.Read("a.txt").ends_with("on\r\n"));
}

TEST(TextFileFailureTest, MessagesHaveTheMarkerOfAllTheirParts)
{
    const CMessagesScope messages("Kein Platz: \xC3\xA9\xD0\xB9", "No space left on device");
    const CCodePageScope scope(kCodePageWindows1252);
    EXPECT_EQ(gGetSystemErrorText(ENOSPC), u"Kein Platz: \u00e9\u0439");
    const CTempFolder folder;
    const std::string sFull = folder.Path("a\xC3\xA9");
    ASSERT_EQ(::symlink("/dev/full", sFull.c_str()), 0);
    TTextFile file{CStringU(sFull, TTextKind::Utf8)};
    file << "a";
    file.Close();
    const CStringU& sError = file.GetLastErrorText();
    EXPECT_EQ(sError.ToWide(), u"Error writing to file \"" +
                                   CStringU(sFull, TTextKind::Utf8).ToWide() +
                                   u"\": Kein Platz: \u00e9\u0439");
    EXPECT_EQ(sError.Stored(), CStringU(sError.ToWide()).Stored());
}

TEST(TextFileFailureTest, WhyAFileCannotBeOpenedIsReadFromTheCodePage)
{
    const CMessagesScope messages("Fehlt: \xC3\xA9\xD0\xB9");
    const CCodePageScope scope(kCodePageWindows1252);
    const CTempFolder folder;
    TTextFile file;
    CFileException exception;
    EXPECT_FALSE(file.Open(CStringU(folder.Path("a")), CFile::modeRead, &exception));
    EXPECT_TRUE(file.GetLastErrorText().ToWide().ends_with(u"\u00e9?"))
        << file.GetLastErrorText().Text();
}

TEST(TextFileFailureTest, WhyAFolderCannotBeMadeHasItsMarker)
{
    const CMessagesScope messages("Name zu lang: \xC3\xA9", "File name too long");
    const CTempFolder folder;
    const std::string sLong(256, 'x'); // of what a file system takes one less
    TTextFile file{CStringU(folder.Path("a\xC3\xA9" + sLong + "/b"), TTextKind::Utf8)};
    const CStringU& sError = file.GetLastErrorText();
    EXPECT_TRUE(sError.ToWide().find(u"a\u00e9") != std::u16string::npos) << sError.Text();
    EXPECT_TRUE(sError.ToWide().find(u"Name zu lang: \u00e9") != std::u16string::npos)
        << sError.Text();
    EXPECT_EQ(sError.Stored(), CStringU(sError.ToWide()).Stored());
}

TEST(TextFileFailureTest, FlushAndSetLengthHaveTheSystemWriteToTheDisk)
{
    const CTempFolder folder;
    for (const bool bFlush : {true, false}) {
        const std::string sName = folder.Write("file", "abc\n");
        TTextFile file;
        ASSERT_TRUE(file.Open(CStringU(sName), EncodingUtf8, CFile::modeReadWrite, nullptr));
        CloseHandleOf(sName);
        try {
            bFlush ? file.Flush() : file.SetLength(1);
            ADD_FAILURE() << "no error";
        } catch (const CFileException& rException) {
            EXPECT_EQ(rException.GetOsError(), EBADF);
        }
    }
}

TEST(TextFileFailureTest, AfterADirectWriteCutShortThePositionIsTheFiles)
{
    const CTempFolder folder;
    TTextFile file{CStringU(folder.Path("a.bin"))};
    const std::string sMuch(3 * kBuffer, 'x');
    {
        const CFileSizeLimit limit(2 * kBuffer + 5);
        EXPECT_THROW(file.Write(sMuch.data(), static_cast<unsigned>(sMuch.size())), CFileException);
        EXPECT_EQ(file.GetPosition(), 2 * kBuffer + 5);
        EXPECT_EQ(file.GetLength(), 2 * kBuffer + 5);
    }
    file.Write("end", 3);
    file.Close();
    std::string sExpected(2 * kBuffer + 5, 'x');
    sExpected += "end";
    EXPECT_TRUE(folder.Read("a.bin") == sExpected);
}

TEST(TextFileFailureTest, AReadCutShortGivesWhatThereWas)
{
    // The process's own memory as a file, of which a piece ends where nothing may be read.
    constexpr std::size_t size = 4 * kBuffer;
    void* const pBlock =
        ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(pBlock, MAP_FAILED);
    std::memset(pBlock, 'x', size);
    ASSERT_EQ(::munmap(static_cast<char*>(pBlock) + size / 2, size / 2), 0);
    const auto nStart = static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(pBlock));
    TTextFile file("/proc/self/mem", CFile::modeRead);
    ASSERT_TRUE(file.IsOpen());
    for (const std::size_t nAsked : {size / 2 + 5, size}) { // through the buffer, and past it
        file.Seek(nStart, CFile::begin);
        std::string sRead(nAsked, '\0');
        EXPECT_EQ(file.Read(sRead.data(), static_cast<unsigned>(nAsked)), size / 2);
        EXPECT_EQ(file.GetPosition(), static_cast<std::uint64_t>(nStart) + size / 2);
        EXPECT_EQ(sRead[size / 2 - 1], 'x');
        EXPECT_EQ(file.Read(sRead.data(), 1), 0U);
    }
    EXPECT_EQ(::munmap(pBlock, size / 2), 0);
}

TEST(TextFileFailureTest, AFileOpenedForReadingTakesNoText)
{
    const CTempFolder folder;
    const std::string sName = folder.Write("a.txt", "abc");
    TTextFile file(sName, CFile::modeRead);
    file << "x";
    file.SetLength(0); // not reached: what is buffered can't be written
    EXPECT_EQ(file.GetLastErrorText(), WriteError(sName, EBADF));
    EXPECT_EQ(folder.Read("a.txt"), "abc");
    EXPECT_TRUE(file.Open(sName, CFile::modeRead, nullptr));
    EXPECT_EQ(file.ReadAll(), "abc\n");
}

TEST(TextFileFailureTest, AFileOpenedForWritingGivesNoText)
{
    const CTempFolder folder;
    TTextFile file(folder.Write("a.txt", "abc"), CFile::modeWrite);
    CStringU sLine;
    EXPECT_FALSE(file.ReadLine(sLine));
    char ch = 0;
    EXPECT_EQ(file.Read(&ch, 1), 0U);
    const std::string sMuch(3 * kBuffer, 'x');
    std::string sRoom = sMuch;
    EXPECT_EQ(file.Read(sRoom.data(), static_cast<unsigned>(sRoom.size())), 0U);
}

} // namespace
