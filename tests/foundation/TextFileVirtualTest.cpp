// The operations of the platform's file, one by one, and their places in the virtual table.

#include "foundation/TextFile.h"
#include "platform/base/Exceptions.h"
#include "support/PrintStringU.h"
#include "support/TempFolder.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <limits>
#include <string>
#include <type_traits>

namespace
{

constexpr std::size_t kBuffer = 0x100000;
constexpr unsigned kCreate = CFile::modeCreate | CFile::modeReadWrite;

static_assert(std::is_base_of_v<CFile, TTextFile>);
static_assert(std::is_base_of_v<TNonCopyable, TTextFile>);
static_assert(!std::is_copy_constructible_v<TTextFile> && !std::is_copy_assignable_v<TTextFile>);

/// A file "+mark" of UTF-8 with the text "abcdef".
struct TSample {
    TSample()
    {
        EXPECT_TRUE(file.Open(folder.Path("a.txt"), EncodingUtf8Bom, kCreate, nullptr));
        file << "abcdef";
    }
    CTempFolder folder;
    TTextFile file;
};

std::string Read(CFile& rFile, unsigned nCount)
{
    std::string sBytes(nCount, '\0');
    sBytes.resize(rFile.Read(sBytes.data(), nCount));
    return sBytes;
}

int ErrorOf(const std::function<void()>& rCall)
{
    try {
        rCall();
    } catch (const CFileException& rException) {
        return rException.GetOsError();
    }
    return 0;
}

TEST(TextFileVirtualTest, TheTableKeepsThePlatformsOrder)
{
    using TOpen = bool (CFile::*)(const char*, unsigned, CFileException*);
    using TOpenTransaction =
        bool (CFile::*)(const char*, unsigned, CAtlTransactionManager*, CFileException*);
    using TOpenText = bool (TTextFile::*)(const CStringU&, unsigned, CFileException*);
    const std::size_t slots[] = {
        // The two entries of the destructor come first.
        gVirtualSlot(&TTextFile::GetPosition),
        gVirtualSlot(&TTextFile::GetFileName),
        gVirtualSlot(&TTextFile::GetFileTitle),
        gVirtualSlot(&TTextFile::GetFilePath),
        gVirtualSlot(&TTextFile::SetFilePath),
        gVirtualSlot(static_cast<TOpen>(&CFile::Open)),
        gVirtualSlot(static_cast<TOpenTransaction>(&CFile::Open)),
        gVirtualSlot(&TTextFile::Duplicate),
        gVirtualSlot(&TTextFile::Seek),
        gVirtualSlot(&TTextFile::SetLength),
        gVirtualSlot(&TTextFile::GetLength),
        gVirtualSlot(&TTextFile::Read),
        gVirtualSlot(&TTextFile::Write),
        gVirtualSlot(&TTextFile::LockRange),
        gVirtualSlot(&TTextFile::UnlockRange),
        gVirtualSlot(&TTextFile::Abort),
        gVirtualSlot(&TTextFile::Flush),
        gVirtualSlot(&TTextFile::Close),
        gVirtualSlot(&TTextFile::GetBufferPtr),
        gVirtualSlot(static_cast<TOpenText>(&TTextFile::Open)),
    };
    std::size_t nExpected = 2;
    for (const std::size_t nSlot : slots)
        EXPECT_EQ(nSlot, nExpected++);
}

TEST(TextFileVirtualTest, GetPositionCountsTheBuffer)
{
    TSample sample;
    EXPECT_EQ(sample.file.GetPosition(), 6U);
    sample.file.Flush();
    EXPECT_EQ(sample.file.GetPosition(), 6U);
    sample.file.Seek(1, CFile::begin);
    EXPECT_EQ(Read(sample.file, 2), "bc");
    EXPECT_EQ(sample.file.GetPosition(), 3U);
}

TEST(TextFileVirtualTest, NamesAreThoseOfThePlatform)
{
    TSample sample;
    EXPECT_EQ(sample.file.GetFileName(), "a.txt");
    EXPECT_EQ(sample.file.GetFileTitle(), "a");
    EXPECT_EQ(sample.file.GetFilePath(), CString(sample.folder.Path("a.txt")));
    EXPECT_THROW(sample.file.SetFilePath(nullptr), CInvalidArgException);
    sample.file.SetFilePath("/else/b.txt");
    EXPECT_EQ(sample.file.GetFileName(), "b.txt");
}

TEST(TextFileVirtualTest, SeekFromEachOrigin)
{
    TSample sample;
    struct Case {
        std::int64_t nOffset;
        unsigned nFrom;
        std::uint64_t nPosition;
        std::string sRest;
    };
    const Case cases[] = {
        {0, CFile::begin, 0, "abcdef"}, {4, CFile::begin, 4, "ef"},
        {-3, CFile::current, 3, "def"}, {-1, CFile::current, 5, "f"},
        {-6, CFile::end, 0, "abcdef"},  {0, CFile::end, 6, ""},
        {2, CFile::end, 8, ""},         {-8, CFile::current, 0, "abcdef"},
    };
    for (const bool bFlushed : {false, true}) {
        sample.file.Seek(0, CFile::end);
        for (const Case& rCase : cases) {
            EXPECT_EQ(sample.file.Seek(rCase.nOffset, rCase.nFrom), rCase.nPosition);
            EXPECT_EQ(sample.file.GetPosition(), rCase.nPosition);
            if (bFlushed)
                sample.file.Flush();
            EXPECT_EQ(Read(sample.file, 99), rCase.sRest);
        }
    }
}

TEST(TextFileVirtualTest, SeekRefusesWhatIsInFrontOfTheText)
{
    TSample sample;
    sample.file.Seek(2, CFile::begin);
    EXPECT_EQ(ErrorOf([&] { sample.file.Seek(-1, CFile::begin); }), EINVAL);
    EXPECT_EQ(ErrorOf([&] { sample.file.Seek(-3, CFile::current); }), EINVAL);
    EXPECT_EQ(ErrorOf([&] { sample.file.Seek(-7, CFile::end); }), EINVAL);
    EXPECT_EQ(
        ErrorOf([&] { sample.file.Seek(std::numeric_limits<std::int64_t>::max(), CFile::end); }),
        EINVAL);
    EXPECT_EQ(
        ErrorOf([&] { sample.file.Seek(std::numeric_limits<std::int64_t>::min(), CFile::end); }),
        EINVAL);
    EXPECT_EQ(ErrorOf([&] { sample.file.Seek(0, 3); }), EINVAL);
    EXPECT_EQ(sample.file.GetPosition(), 2U);
    EXPECT_EQ(ErrorOf([&] { TTextFile().Seek(0, CFile::begin); }), EBADF);
}

TEST(TextFileVirtualTest, SetLengthGivesAnEmptyFileItsMark)
{
    TSample sample;
    sample.file.SetLength(sample.file.GetLength());
    EXPECT_EQ(sample.folder.Read("a.txt"), "\xEF\xBB\xBF"
                                           "abcdef");
    sample.file.SetLength(2);
    EXPECT_EQ(sample.folder.Read("a.txt"), "\xEF\xBB\xBF"
                                           "ab");
    EXPECT_EQ(sample.file.GetLength(), 2U);
    sample.file.SetLength(0);
    EXPECT_EQ(sample.folder.Read("a.txt"), "\xEF\xBB\xBF");
    EXPECT_EQ(sample.file.GetLength(), 0U);
    EXPECT_EQ(sample.file.GetPosition(), 0U);
    sample.file << "x";
    sample.file.Flush();
    EXPECT_EQ(sample.folder.Read("a.txt"), "\xEF\xBB\xBFx");
}

TEST(TextFileVirtualTest, GetLengthCountsTheBuffer)
{
    TSample sample;
    EXPECT_EQ(sample.folder.Read("a.txt"), "\xEF\xBB\xBF");
    EXPECT_EQ(sample.file.GetLength(), 6U);
    sample.file.Seek(0, CFile::begin);
    sample.file << "x";
    EXPECT_EQ(sample.file.GetLength(), 6U);
    EXPECT_EQ(ErrorOf([] { static_cast<void>(TTextFile().GetLength()); }), EBADF);
}

TEST(TextFileVirtualTest, ReadAndWritePassTheBufferInEverySize)
{
    const CTempFolder folder;
    for (const std::size_t nSize : {std::size_t{0}, std::size_t{1}, kBuffer - 1, kBuffer,
                                    kBuffer + 1, 2 * kBuffer, 3 * kBuffer + 7}) {
        std::string sBytes(nSize, '\0');
        for (std::size_t i = 0; i < nSize; ++i)
            sBytes[i] = static_cast<char>(i * 7 + i / 251);
        TTextFile file;
        ASSERT_TRUE(file.Open(folder.Path("a.bin"), EncodingUtf8, kCreate, nullptr));
        file.Write("head", 4);
        file.Write(sBytes.data(), static_cast<unsigned>(nSize));
        EXPECT_EQ(file.GetPosition(), nSize + 4);
        file.Write("tail", 4);
        EXPECT_EQ(file.GetLength(), nSize + 8);
        EXPECT_EQ(file.Seek(4, CFile::begin), 4U);
        EXPECT_TRUE(Read(file, static_cast<unsigned>(nSize)) == sBytes) << nSize;
        EXPECT_EQ(Read(file, 9), "tail") << nSize;
        file.Seek(0, CFile::begin);
        EXPECT_EQ(Read(file, 1), "h");
        EXPECT_TRUE(Read(file, static_cast<unsigned>(nSize + 99)) == "ead" + sBytes + "tail")
            << nSize;
        file.Close();
        EXPECT_TRUE(folder.Read("a.bin") == "head" + sBytes + "tail") << nSize;
    }
}

TEST(TextFileVirtualTest, AWriteIntoReadBytesReplacesThem)
{
    const CTempFolder folder;
    TTextFile file(folder.Write("a.txt", "abcdef"), CFile::modeReadWrite);
    EXPECT_EQ(Read(file, 2), "ab");
    file.Write("XY", 2);
    EXPECT_EQ(Read(file, 9), "ef");
    file.Close();
    EXPECT_EQ(folder.Read("a.txt"), "abXYef");
}

TEST(TextFileVirtualTest, LocksMoveByTheMark)
{
    TSample sample;
    sample.file.Flush();
    CFile other(sample.folder.Path("a.txt").c_str(), CFile::modeReadWrite);
    sample.file.LockRange(0, 1);
    EXPECT_EQ(ErrorOf([&] { other.LockRange(0, 3); }), 0);
    EXPECT_EQ(ErrorOf([&] { other.LockRange(3, 1); }), EAGAIN);
    sample.file.UnlockRange(0, 1);
    EXPECT_EQ(ErrorOf([&] { other.LockRange(3, 1); }), 0);
    TTextFile memory(EncodingUtf8, "abc", "");
    memory.LockRange(0, 1);
    memory.UnlockRange(0, 1);
}

TEST(TextFileVirtualTest, ADuplicateIsAPlainFile)
{
    TSample sample;
    sample.file.Flush();
    const auto pFile = sample.file.Duplicate();
    EXPECT_EQ(pFile->GetLength(), 9U); // the mark is a part of it
    EXPECT_EQ(dynamic_cast<TTextFile*>(pFile.get()), nullptr);
}

TEST(TextFileVirtualTest, AbortLeavesWhatIsBufferedUnwritten)
{
    TSample sample;
    sample.file.Abort();
    EXPECT_FALSE(sample.file.IsOpen());
    sample.file.Close();
    EXPECT_EQ(sample.folder.Read("a.txt"), "\xEF\xBB\xBF");
    EXPECT_EQ(sample.file.GetLastErrorText(), "");
    ASSERT_TRUE(sample.file.Open(sample.folder.Path("a.txt"), CFile::modeRead, nullptr));
    EXPECT_EQ(sample.file.ReadAll(), "");
}

TEST(TextFileVirtualTest, AfterAbortNothingAnswersFromTheBuffer)
{
    TSample sample;
    sample.file.Abort();
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(sample.file.GetPosition()); }), EBADF);
    EXPECT_EQ(ErrorOf([&] { sample.file.Seek(0, CFile::begin); }), EBADF);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(sample.file.GetLength()); }), EBADF);
    EXPECT_EQ(ErrorOf([&] { sample.file.SetLength(0); }), EBADF);
    EXPECT_EQ(Read(sample.file, 9), "");
    sample.file.Flush();
    EXPECT_EQ(sample.file.GetLastErrorText(), "");
    EXPECT_EQ(sample.folder.Read("a.txt"), "\xEF\xBB\xBF");
}

TEST(TextFileVirtualTest, FlushAndCloseAndDestructorWriteOut)
{
    const CTempFolder folder;
    {
        TTextFile file{CStringU(folder.Path("a.txt"))};
        file << "a";
        EXPECT_EQ(folder.Read("a.txt"), "");
        file.Flush();
        EXPECT_EQ(folder.Read("a.txt"), "a");
        file << "b";
    }
    EXPECT_EQ(folder.Read("a.txt"), "ab");
    TTextFile file(folder.Path("a.txt"), CFile::modeReadWrite);
    file << "XYZ";
    file.Close();
    EXPECT_EQ(folder.Read("a.txt"), "XYZ");
    EXPECT_FALSE(file.IsOpen());
    file.Close();
}

TEST(TextFileVirtualTest, ThePlatformsOpenIsThere)
{
    const CTempFolder folder;
    const std::string sName = folder.Write("a.txt", "abc");
    TTextFile file;
    CFile& rBase = file;
    EXPECT_TRUE(rBase.Open(sName.c_str(), CFile::modeReadWrite));
    EXPECT_EQ(Read(file, 9), "abc");
    file << "d";
    file.Close();
    EXPECT_EQ(folder.Read("a.txt"), "abcd");
    EXPECT_EQ(file.GetBufferPtr(0), 0U);
}

TEST(TextFileVirtualTest, ThePlatformsOpenOnAUsedFileStartsAnew)
{
    const CTempFolder folder;
    const std::string sNew = folder.Write("new.txt", "abc");
    TTextFile file;
    ASSERT_TRUE(file.Open(folder.Path("old.txt"), EncodingUtf8, kCreate, nullptr));
    file << "for the old one";
    CFile& rBase = file;
    EXPECT_TRUE(rBase.Open(sNew.c_str(), CFile::modeReadWrite));
    EXPECT_EQ(folder.Read("old.txt"), "for the old one");
    EXPECT_EQ(file.GetPosition(), 0U);
    EXPECT_EQ(Read(file, 2), "ab");
    EXPECT_TRUE(rBase.Open(sNew.c_str(), CFile::modeReadWrite, nullptr, nullptr));
    EXPECT_EQ(Read(file, 9), "abc"); // not what was still buffered
    file << "d";
    file.Close();
    EXPECT_EQ(folder.Read("new.txt"), "abcd");
    EXPECT_EQ(folder.Read("old.txt"), "for the old one");
}

TEST(TextFileVirtualTest, ADuplicateSeesWhatIsFlushedAndMayMoveThePosition)
{
    TSample sample;
    sample.file.Seek(2, CFile::begin);
    sample.file.Flush();
    const auto pFile = sample.file.Duplicate();
    EXPECT_EQ(pFile->GetPosition(), 5U); // the mark is a part of it
    EXPECT_EQ(Read(*pFile, 2), "cd");
    EXPECT_EQ(sample.file.GetPosition(), 4U);
    EXPECT_EQ(Read(sample.file, 9), "ef");
}

TEST(TextFileVirtualTest, AClosedFileReadsNothingAndRefusesWrites)
{
    TTextFile file;
    EXPECT_EQ(Read(file, 3), "");
    EXPECT_EQ(ErrorOf([&] { file.Write("a", 1); }), EBADF);
    EXPECT_FALSE(file.WriteText("a"));
    EXPECT_NE(file.GetLastErrorText().Find("Error writing to file \"\": "), -1);
}

} // namespace
