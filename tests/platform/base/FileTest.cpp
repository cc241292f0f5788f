#include "platform/base/File.h"

#include "platform/base/CodePage.h"
#include "platform/base/CodePageScope.h"
#include "platform/base/Exceptions.h"
#include "platform/base/SystemError.h"
#include "support/TempFolder.h"
#include "support/Unprivileged.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <string>

namespace
{

// The system's code of what a call throws; 0 for nothing.
int ErrorOf(const std::function<void()>& rCall)
{
    try {
        rCall();
    } catch (const CFileException& rException) {
        EXPECT_EQ(gGetLastError(), rException.GetOsError());
        return rException.GetOsError();
    }
    return 0;
}

std::string ReadAll(CFile& rFile)
{
    std::string sBytes(100, '\0');
    sBytes.resize(rFile.Read(sBytes.data(), 100));
    return sBytes;
}

TEST(FileTest, ReadsWritesAndSeeks)
{
    const CTempFolder folder;
    CFile file(folder.Path("a.txt").c_str(), CFile::modeReadWrite | CFile::modeCreate);
    file.Write("hello", 5);
    EXPECT_EQ(file.GetPosition(), 5U);
    EXPECT_EQ(file.GetLength(), 5U);
    EXPECT_EQ(file.Seek(1, CFile::begin), 1U);
    file.Write("E", 1);
    EXPECT_EQ(file.Seek(-1, CFile::current), 1U);
    EXPECT_EQ(ReadAll(file), "Ello");
    EXPECT_EQ(file.Seek(-2, CFile::end), 3U);
    EXPECT_EQ(ReadAll(file), "lo");
    EXPECT_EQ(ReadAll(file), "");
    file.SetLength(2);
    EXPECT_EQ(file.GetLength(), 2U);
    file.SetLength(4);
    file.Flush();
    file.Close();
    EXPECT_FALSE(file.HasHandle());
    file.Close();
    EXPECT_EQ(folder.Read("a.txt"), std::string("hE\0\0", 4));
}

TEST(FileTest, OpensByItsFlags)
{
    const CTempFolder folder;
    const std::string sName = folder.Write("a.txt", "abc");
    struct Case {
        std::string_view sName;
        unsigned nFlags;
        std::string_view sLeft;
        int nReadError;
        int nWriteError;
    };
    const Case cases[] = {
        {"read", CFile::modeRead, "abc", 0, EBADF},
        {"write", CFile::modeWrite, "abc", EBADF, 0},
        {"both", CFile::modeReadWrite | CFile::shareDenyNone, "abc", 0, 0},
        {"keep", CFile::modeReadWrite | CFile::modeCreate | CFile::modeNoTruncate, "abc", 0, 0},
        {"empty", CFile::modeReadWrite | CFile::modeCreate, "", 0, 0},
    };
    for (const Case& rCase : cases) {
        folder.Write("a.txt", "abc");
        CFile file;
        ASSERT_TRUE(file.Open(sName.c_str(), rCase.nFlags)) << rCase.sName;
        EXPECT_EQ(folder.Read("a.txt"), rCase.sLeft) << rCase.sName;
        char ch = 'x';
        EXPECT_EQ(ErrorOf([&] { file.Read(&ch, 1); }), rCase.nReadError) << rCase.sName;
        EXPECT_EQ(ErrorOf([&] { file.Write(&ch, 1); }), rCase.nWriteError) << rCase.sName;
    }
}

TEST(FileTest, NamesAreInTheCodePageWithEitherSeparator)
{
    const CTempFolder folder;
    const std::string sOnDisk = folder.Write("\xC3\xA9.txt", "abc");
    const std::string sFolder = folder.Path("");
    struct Case {
        unsigned nCodePage;
        std::string sName;
    };
    const Case cases[] = {
        {kCodePageUtf8, sFolder + "\xC3\xA9.txt"},
        {kCodePageUtf8, sFolder + "\\\xC3\xA9.txt"},
        {kCodePageUtf8, R"(\\?\)" + sFolder + "\xC3\xA9.txt"},
        {kCodePageWindows1252, sFolder + "\xE9.txt"},
        {kCodePageWindows1252, sFolder + "\\\xE9.txt"},
    };
    for (const Case& rCase : cases) {
        const CCodePageScope scope(rCase.nCodePage);
        folder.Write("\xC3\xA9.txt", "abc");
        {
            CFile file(rCase.sName.c_str(), CFile::modeRead);
            EXPECT_EQ(ReadAll(file), "abc") << rCase.sName;
            EXPECT_EQ(file.GetFilePath(), CString(rCase.sName));
        }
        CFile::Remove(rCase.sName.c_str());
        EXPECT_FALSE(std::filesystem::exists(sOnDisk)) << rCase.sName;
    }
    // In UTF-8 a name keeps bytes that are no characters.
    CFile(folder.Path("\xE9").c_str(), CFile::modeWrite | CFile::modeCreate).Close();
    EXPECT_EQ(folder.Read("\xE9"), "");
}

TEST(FileTest, TheAccessModeThatIsNoneIsRefused)
{
    const CTempFolder folder;
    const std::string sName = folder.Write("a.txt", "abc");
    EXPECT_EQ(ErrorOf([&] { const CFile file(sName.c_str(), 3 | CFile::modeCreate); }), EINVAL);
    EXPECT_EQ(folder.Read("a.txt"), "abc");
}

TEST(FileTest, OpenClosesTheFileBefore)
{
    const CTempFolder folder;
    CFile file(folder.Write("a.txt", "abc").c_str(), CFile::modeRead);
    ASSERT_TRUE(file.Open(folder.Write("b.txt", "def").c_str(), CFile::modeRead));
    EXPECT_EQ(ReadAll(file), "def");
    EXPECT_FALSE(file.Open(folder.Path("none").c_str(), CFile::modeRead));
    EXPECT_FALSE(file.HasHandle());
}

TEST(FileTest, KnowsWhetherItHasPositions)
{
    const CTempFolder folder;
    EXPECT_TRUE(CFile(folder.Write("a.txt", "").c_str(), CFile::modeRead).HasPositions());
    const std::string sPipe = folder.Path("pipe");
    ASSERT_EQ(::mkfifo(sPipe.c_str(), 0600), 0);
    EXPECT_FALSE(CFile(sPipe.c_str(), CFile::modeReadWrite).HasPositions());
}

TEST(FileTest, TellsWhyItCannotBeOpened)
{
    const CTempFolder folder;
    std::filesystem::create_directory(folder.Path("locked"));
    std::filesystem::permissions(folder.Path("locked"), std::filesystem::perms(0555));
    struct Case {
        std::string sName;
        unsigned nFlags;
        int nError;
    };
    const Case cases[] = {
        {folder.Path("none.txt"), CFile::modeRead, ENOENT},
        {folder.Path("none/none.txt"), CFile::modeWrite | CFile::modeCreate, ENOENT},
        {folder.Path(""), CFile::modeRead, EISDIR},
        {folder.Path(""), CFile::modeReadWrite, EISDIR},
        {folder.Path("locked/a.txt"), CFile::modeWrite | CFile::modeCreate, EACCES},
        {"", CFile::modeRead, ENOENT},
    };
    const CUnprivileged unprivileged;
    for (const Case& rCase : cases) {
        CFile file;
        CFileException exception;
        EXPECT_FALSE(file.Open(rCase.sName.c_str(), rCase.nFlags, &exception)) << rCase.sName;
        EXPECT_EQ(exception.GetOsError(), rCase.nError) << rCase.sName;
        EXPECT_EQ(exception.GetFileName(), CString(rCase.sName));
        EXPECT_FALSE(file.HasHandle());
        EXPECT_FALSE(file.Open(rCase.sName.c_str(), rCase.nFlags));
        EXPECT_EQ(gGetLastError(), rCase.nError);
        EXPECT_EQ(ErrorOf([&] { const CFile other(rCase.sName.c_str(), rCase.nFlags); }),
                  rCase.nError);
    }
}

TEST(FileTest, TransactionsAreRefused)
{
    const CTempFolder folder;
    const std::string sName = folder.Write("a.txt", "abc");
    CFile file;
    EXPECT_TRUE(file.Open(sName.c_str(), CFile::modeRead, nullptr, nullptr));
    int nAnything = 0;
    auto* const pTransaction = reinterpret_cast<CAtlTransactionManager*>(&nAnything);
    CFileException exception;
    EXPECT_FALSE(file.Open(sName.c_str(), CFile::modeRead, pTransaction, &exception));
    EXPECT_EQ(exception.GetOsError(), EOPNOTSUPP);
    EXPECT_FALSE(file.Open(sName.c_str(), CFile::modeRead, pTransaction, nullptr));
}

TEST(FileTest, KnowsItsName)
{
    CFile file;
    EXPECT_EQ(file.GetFilePath(), "");
    file.SetFilePath("/tmp/a.b/c.d.txt");
    EXPECT_EQ(file.GetFilePath(), "/tmp/a.b/c.d.txt");
    EXPECT_EQ(file.GetFileName(), "c.d.txt");
    EXPECT_EQ(file.GetFileTitle(), "c.d");
    file.SetFilePath(".rc");
    EXPECT_EQ(file.GetFileTitle(), ".rc");
    file.SetFilePath("/tmp/a.b/c");
    EXPECT_EQ(file.GetFileTitle(), "c");
    file.SetFilePath("z:\\a.b/x\\c.txt");
    EXPECT_EQ(file.GetFileName(), "c.txt");
    EXPECT_EQ(file.GetFileTitle(), "c");
    file.SetFilePath("/tmp/a.b/c");
    EXPECT_THROW(file.SetFilePath(nullptr), CInvalidArgException);
    EXPECT_EQ(file.GetFileName(), "c");
}

TEST(FileTest, ADuplicateSharesThePosition)
{
    const CTempFolder folder;
    CFile file(folder.Write("a.txt", "abcdef").c_str(), CFile::modeRead);
    const auto pOther = file.Duplicate();
    file.Seek(2, CFile::begin);
    EXPECT_EQ(pOther->GetPosition(), 2U);
    EXPECT_EQ(pOther->GetFilePath(), file.GetFilePath());
    file.Close();
    EXPECT_EQ(ReadAll(*pOther), "cdef");
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(file.Duplicate()); }), EBADF);
}

TEST(FileTest, ALockKeepsAnotherOpenFileOut)
{
    const CTempFolder folder;
    const std::string sName = folder.Write("a.txt", "abcdef");
    CFile one(sName.c_str(), CFile::modeReadWrite);
    CFile two(sName.c_str(), CFile::modeReadWrite);
    CFile reader(sName.c_str(), CFile::modeRead);
    one.LockRange(1, 2);
    EXPECT_EQ(ErrorOf([&] { two.LockRange(2, 1); }), EAGAIN);
    EXPECT_EQ(ErrorOf([&] { reader.LockRange(1, 1); }), EAGAIN);
    EXPECT_EQ(ErrorOf([&] { two.LockRange(3, 1); }), 0);
    one.UnlockRange(1, 2);
    EXPECT_EQ(ErrorOf([&] { two.LockRange(1, 2); }), 0);
}

TEST(FileTest, EveryOperationOfAClosedFileIsRefused)
{
    CFile file;
    char ch = 'x';
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(file.GetPosition()); }), EBADF);
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(file.GetLength()); }), EBADF);
    EXPECT_EQ(ErrorOf([&] { file.Seek(0, CFile::begin); }), EBADF);
    EXPECT_EQ(ErrorOf([&] { file.SetLength(0); }), EBADF);
    EXPECT_EQ(ErrorOf([&] { file.Read(&ch, 1); }), EBADF);
    EXPECT_EQ(ErrorOf([&] { file.Write(&ch, 1); }), EBADF);
    EXPECT_EQ(ErrorOf([&] { file.LockRange(0, 1); }), EBADF);
    file.Flush();
    file.Abort();
    EXPECT_EQ(file.GetBufferPtr(0), 0U);
}

TEST(FileTest, AFullDiskIsTold)
{
    CFile file("/dev/full", CFile::modeWrite);
    EXPECT_EQ(ErrorOf([&] { file.Write("abc", 3); }), ENOSPC);
    file.Flush(); // a device, which has no disk to be written to
    file.Abort();
    EXPECT_FALSE(file.HasHandle());
}

TEST(FileTest, RemovesAFile)
{
    const CTempFolder folder;
    const std::string sName = folder.Write("a.txt", "abc");
    CFile::Remove(sName.c_str());
    EXPECT_FALSE(std::filesystem::exists(sName));
    EXPECT_EQ(ErrorOf([&] { CFile::Remove(sName.c_str()); }), ENOENT);
}

TEST(FileTest, AnExceptionGivesTheSystemsText)
{
    const CFileException exception(ENOENT, "a.txt");
    std::array<char, 64> text{};
    EXPECT_TRUE(exception.GetErrorMessage(text.data(), text.size()));
    EXPECT_EQ(text.data(), gSystemErrorMessage(ENOENT));
    EXPECT_NE(std::string(exception.what()).find("a.txt"), std::string::npos);
    EXPECT_TRUE(exception.GetErrorMessage(text.data(), 3));
    EXPECT_EQ(text.data(), gSystemErrorMessage(ENOENT).substr(0, 2));
    EXPECT_FALSE(CFileException(-12345).GetErrorMessage(text.data(), text.size()));
    EXPECT_STREQ(text.data(), "");
    EXPECT_EQ(CFileException().GetOsError(), 0);
}

} // namespace
