// Files that can't be sought in: pipes.

#include "foundation/TextFile.h"
#include "platform/base/SystemError.h"
#include "support/PrintStringU.h"
#include "support/TempFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <string>
#include <string_view>

namespace
{

using namespace std::string_view_literals;

/// A pipe in the kernel, whose ends TTextFile opens by a name as any other file.
class CPipe
{
public:
    CPipe() { EXPECT_EQ(::pipe2(mEnds, O_CLOEXEC), 0); }
    CPipe(const CPipe&) = delete;
    CPipe& operator=(const CPipe&) = delete;
    ~CPipe()
    {
        ::close(mEnds[0]);
        CloseWriter();
    }

    static CStringU NameOf(int nHandle) { return "/proc/self/fd/" + std::to_string(nHandle); }
    CStringU Reader() const { return NameOf(mEnds[0]); }
    CStringU Writer() const { return NameOf(mEnds[1]); }

    void Fill(std::string_view sBytes)
    {
        EXPECT_EQ(::write(mEnds[1], sBytes.data(), sBytes.size()),
                  static_cast<ssize_t>(sBytes.size()));
        CloseWriter();
    }
    std::string Drain()
    {
        CloseWriter();
        std::string sBytes(4096, '\0');
        const ssize_t nRead = ::read(mEnds[0], sBytes.data(), sBytes.size());
        sBytes.resize(nRead < 0 ? 0 : static_cast<std::size_t>(nRead));
        return sBytes;
    }

private:
    void CloseWriter()
    {
        if (mEnds[1] >= 0) {
            ::close(mEnds[1]);
            mEnds[1] = -1;
        }
    }

    int mEnds[2] = {-1, -1};
};

TEST(TextFileStreamTest, APipeIsReadInEveryEncoding)
{
    struct Case {
        TTextEncoding given;
        std::string_view sBytes;
        TTextEncoding encoding;
        CStringU sAll;
    };
    const Case cases[] = {
        {EncodingAnsi, "", EncodingAnsi, ""},
        {EncodingAnsi, "a", EncodingAnsi, "a\n"},
        {EncodingUtf8, "ab\r\nc\xC3\xA9", EncodingUtf8, u"ab\nc\u00e9\n"},
        {EncodingAnsi, "\xEF\xBB\xBFx\xC3\xA9", EncodingUtf8Bom, u"x\u00e9\n"},
        {EncodingAnsi, "\xFF\xFEx\0"sv, EncodingUtf16Bom, "x\n"},
        {EncodingAnsi, "x\0y\0"sv, EncodingUtf16, "xy\n"},
        {EncodingUtf8Bom, "abcdef", EncodingUtf8Bom, "def\n"}, // as of a file on the disk
        {EncodingUtf8Bom, "ab", EncodingUtf8Bom, ""},
    };
    for (const Case& rCase : cases) {
        CPipe pipe;
        pipe.Fill(rCase.sBytes);
        TTextFile file;
        ASSERT_TRUE(file.Open(pipe.Reader(), rCase.given, CFile::modeRead, nullptr))
            << rCase.sBytes;
        EXPECT_EQ(file.GetEncoding(), rCase.encoding) << rCase.sBytes;
        EXPECT_EQ(file.GetPosition(), 0U) << rCase.sBytes;
        EXPECT_EQ(file.ReadAll(), rCase.sAll) << rCase.sBytes;
        file.Close();
        EXPECT_EQ(file.GetLastErrorText(), "") << rCase.sBytes;
    }
}

TEST(TextFileStreamTest, OpenWithDetectionKeepsTheFirstBytes)
{
    CPipe pipe;
    pipe.Fill("one\ntwo\n");
    TTextFile file(pipe.Reader(), CFile::modeRead);
    EXPECT_EQ(file.GetLastErrorText(), "");
    CStringU sLine;
    EXPECT_TRUE(file.ReadLine(sLine));
    EXPECT_EQ(sLine, "one");
    file.Flush(); // loses nothing that was read ahead
    EXPECT_TRUE(file.ReadLine(sLine));
    EXPECT_EQ(sLine, "two");
    EXPECT_EQ(file.GetLength(), 8U);
    EXPECT_FALSE(file.ReadLine(sLine));
}

TEST(TextFileStreamTest, APipeIsWritten)
{
    for (const TTextEncoding encoding : {EncodingUtf8, EncodingUtf8Bom}) {
        const std::string sMark(gMarkOf(encoding));
        CPipe pipe;
        TTextFile file;
        ASSERT_TRUE(file.Open(pipe.Writer(), encoding, CFile::modeWrite, nullptr));
        file.Seek(0, CFile::end);
        file << "a\n";
        file.Flush();
        EXPECT_EQ(file.GetPosition(), 3U);
        EXPECT_EQ(file.Seek(0, CFile::end), 3U);
        file << 1.5;
        file.Close();
        EXPECT_EQ(file.GetLastErrorText(), "");
        EXPECT_EQ(pipe.Drain(), sMark + "a\r\n1.5");
    }
}

TEST(TextFileStreamTest, ANamedPipeIsAFileLikeAnyOther)
{
    const CTempFolder folder;
    const std::string sName = folder.Path("pipe");
    ASSERT_EQ(::mkfifo(sName.c_str(), 0600), 0);
    const int nHold = ::open(sName.c_str(), O_RDWR | O_CLOEXEC); // so that no end waits
    TTextFile writer;
    ASSERT_TRUE(writer.Open(sName, EncodingUtf8, CFile::modeWrite | CFile::modeCreate, nullptr));
    TTextFile reader;
    writer << "abc\n";
    writer.Close();
    ASSERT_TRUE(reader.Open(sName, CFile::modeRead, nullptr));
    ::close(nHold);
    EXPECT_EQ(reader.ReadAll(), "abc\n");
    EXPECT_EQ(reader.GetLastErrorText() + writer.GetLastErrorText(), "");
}

TEST(TextFileStreamTest, SeekGoesOnAndNeverBackBehindWhatIsBuffered)
{
    CPipe pipe;
    pipe.Fill("abcdefgh\nij");
    TTextFile file(pipe.Reader(), CFile::modeRead);
    EXPECT_EQ(file.Seek(1, CFile::begin), 1U); // inside what detection read
    EXPECT_EQ(file.Seek(5, CFile::begin), 5U);
    EXPECT_EQ(file.GetPosition(), 5U);
    EXPECT_THROW(file.Seek(0, CFile::begin), CFileException);
    CStringU sLine;
    EXPECT_TRUE(file.ReadLine(sLine));
    EXPECT_EQ(sLine, "fgh");
    EXPECT_EQ(file.Seek(-3, CFile::current), 6U);
    EXPECT_TRUE(file.ReadLine(sLine));
    EXPECT_EQ(sLine, "gh");
    EXPECT_THROW(file.SetLength(0), CFileException);
}

TEST(TextFileStreamTest, AReaderThatHasGoneIsTold)
{
    void (*const pOldHandler)(int) = std::signal(SIGPIPE, SIG_IGN);
    {
        int ends[2] = {-1, -1};
        ASSERT_EQ(::pipe2(ends, O_CLOEXEC), 0);
        TTextFile file(CPipe::NameOf(ends[1]), CFile::modeWrite);
        ASSERT_TRUE(file.IsOpen());
        ::close(ends[0]);
        ::close(ends[1]);
        file << "abc";
        file.Flush();
        EXPECT_TRUE(file.GetLastErrorText().EndsWith(gSystemErrorMessage(EPIPE)));
        EXPECT_TRUE(file.IsOpen());
        file << "def"; // tried again
        file.Close();
    }
    std::signal(SIGPIPE, pOldHandler);
}

} // namespace
