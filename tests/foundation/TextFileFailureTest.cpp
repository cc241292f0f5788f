// What happens when the disk doesn't take what is written.

#include "foundation/TextFile.h"
#include "platform/base/SystemError.h"
#include "support/PrintStringU.h"
#include "support/TempFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
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

TEST(TextFileFailureTest, APipeIsReadFromWhereItIs)
{
    const CTempFolder folder;
    const std::string sName = folder.Path("pipe");
    ASSERT_EQ(::mkfifo(sName.c_str(), 0600), 0);
    const int nBothEnds = ::open(sName.c_str(), O_RDWR); // so that opening one end doesn't wait
    ASSERT_GE(nBothEnds, 0);
    ASSERT_EQ(::write(nBothEnds, "a\nb\n", 4), 4);
    TTextFile detected;
    EXPECT_TRUE(detected.Open(CStringU(sName), CFile::modeRead, nullptr));
    TTextFile given;
    EXPECT_TRUE(given.Open(CStringU(sName), EncodingUtf8, CFile::modeRead, nullptr));
    ::close(nBothEnds); // now the pipe ends
    EXPECT_EQ(given.ReadAll(), "a\nb\n");
    EXPECT_EQ(given.GetLastErrorText(), "");
    EXPECT_EQ(detected.ReadAll(), "");
    EXPECT_EQ(detected.GetLastErrorText(), "");
}

TEST(TextFileFailureTest, AnErrorThatTheSystemTellsWhenClosingIsKept)
{
    const CTempFolder folder;
    const std::string sName = folder.Write("file", "abc\n");
    TTextFile file;
    ASSERT_TRUE(file.Open(CStringU(sName), CFile::modeRead, nullptr));
    for (const auto& rEntry : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code ignored;
        if (std::filesystem::read_symlink(rEntry.path(), ignored) == sName) {
            ::close(std::stoi(rEntry.path().filename().string()));
            break;
        }
    }
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
    file.Seek(0, CFile::end);
    file << "on\n";
    file.Close();
    EXPECT_EQ(folder.Read("a.txt").substr(0, 9), "flushed\r\n");
    EXPECT_TRUE(folder.Read("a.txt").ends_with("on\r\n"));
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
