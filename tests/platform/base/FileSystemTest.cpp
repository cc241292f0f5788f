#include "platform/base/FileSystem.h"

#include "platform/base/CodePageScope.h"
#include "platform/base/SystemPath.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace
{

TEST(SystemPath, ForThePosixCalls)
{
    EXPECT_EQ(gToSystemPath(u""), "");
    EXPECT_EQ(gToSystemPath(u"\\a\\b/c"), "/a/b/c");
    EXPECT_EQ(gToSystemPath(u"a\u00E9\U0001F600"), "a\xC3\xA9\xF0\x9F\x98\x80");
    EXPECT_EQ(gToSystemPath(u"\\\\?\\/a"), "/a");
    EXPECT_EQ(gToSystemPath(u"\\\\s\\h"), "//s/h");
    EXPECT_EQ(gToSystemPath(u"\xD800"), "?");
}

class FileSystem : public ::testing::Test
{
protected:
    FileSystem()
    {
        std::string sTemplate = (std::filesystem::temp_directory_path() / "files-XXXXXX").string();
        mFolder = ::mkdtemp(sTemplate.data());
        std::ofstream(mFolder / "file") << "text";
        std::filesystem::create_directory(mFolder / "sub");
    }
    ~FileSystem() override { std::filesystem::remove_all(mFolder); }

    std::u16string Name(const char16_t* pName) const { return mFolder.u16string() + u'/' + pName; }

    std::filesystem::path mFolder;
    std::shared_ptr<IFileSystem> mpFiles = gGetFileSystem();
};

TEST_F(FileSystem, WhyAttributesAreMissing)
{
    struct Case {
        const char16_t* pName;
        EFileError eError;
    };
    const std::u16string sLong(5000, u'x');
    const Case cases[] = {
        {u"none", EFileError::FileNotFound},
        {u"none/x", EFileError::PathNotFound},
        {u"file/x", EFileError::PathNotFound},
        {sLong.c_str(), EFileError::PathNotFound},
    };
    for (const Case& rCase : cases) {
        EFileError eError = EFileError::Other;
        EXPECT_FALSE(mpFiles->GetAttributes(Name(rCase.pName), eError));
        EXPECT_EQ(eError, rCase.eError);
    }
    EFileError eError = EFileError::Other;
    EXPECT_FALSE(mpFiles->GetAttributes(u"nosuchfileatall", eError));
    EXPECT_EQ(eError, EFileError::FileNotFound);
    std::filesystem::create_symlink("loop", mFolder / "loop");
    EXPECT_FALSE(mpFiles->GetAttributes(Name(u"loop/x"), eError));
    EXPECT_EQ(eError, EFileError::Other);
    EXPECT_EQ(errno, ELOOP);
    ASSERT_TRUE(mpFiles->GetAttributes(Name(u"file"), eError));
    EXPECT_TRUE(mpFiles->GetAttributes(u"\\\\?\\" + Name(u"sub"), eError)->mbDirectory);
}

TEST_F(FileSystem, TheTwoThatEveryFolderHasComeFirst)
{
    std::vector<std::u16string> names;
    const auto visit = [&names](std::u16string_view sName) {
        names.emplace_back(sName);
        return names.size() < 3;
    };
    EXPECT_TRUE(mpFiles->Enumerate(Name(u"sub"), visit));
    EXPECT_EQ(names, (std::vector<std::u16string>{u".", u".."}));
    names.clear();
    EXPECT_TRUE(mpFiles->Enumerate(Name(u""), visit));
    EXPECT_EQ(names.size(), 3U) << "the visitor ends it";
    EXPECT_FALSE(mpFiles->Enumerate(Name(u"file"), visit));
    EXPECT_FALSE(mpFiles->Enumerate(Name(u"none"), visit));
}

TEST_F(FileSystem, AnEntryIsLookedUpInItsFolder)
{
    struct Case {
        const char16_t* pName;
        bool bEntry; ///< by FindEntry
        bool bAttributes;
        bool bStatus;
        bool bDirectory;
        bool bDevice;
    };
    std::filesystem::create_symlink("file", mFolder / "to-file");
    std::filesystem::create_symlink("sub", mFolder / "to-sub");
    std::filesystem::create_symlink("/dev/null", mFolder / "to-null");
    std::filesystem::create_symlink("none", mFolder / "dangling");
    std::filesystem::create_symlink("loop", mFolder / "loop");
    const Case cases[] = {
        {u"file", true, true, true, false, false},
        {u"sub", true, true, true, true, false},
        {u"to-file", true, true, true, false, false},
        {u"to-sub", true, true, true, true, false},
        {u"to-null", true, true, true, false, true},
        {u"dangling", true, true, false, false, false},
        {u"loop", true, true, false, false, false},
        {u"none", false, false, false, false, false},
        {u"sub/", false, true, true, true, false}, // a slash at the end: no entry of that name
        {u"sub\\", false, true, true, true, false},
        {u"file/", false, false, false, false, false},
    };
    for (const Case& rCase : cases) {
        const std::u16string sPath = Name(rCase.pName);
        EFileError eError = EFileError::Other;
        const auto entry = mpFiles->FindEntry(sPath);
        const auto attributes = mpFiles->GetAttributes(sPath, eError);
        const auto status = mpFiles->GetStatus(sPath);
        const std::string sName = gToSystemPath(rCase.pName);
        EXPECT_EQ(entry.has_value(), rCase.bEntry) << sName;
        EXPECT_EQ(attributes.has_value(), rCase.bAttributes) << sName;
        EXPECT_EQ(status.has_value(), rCase.bStatus) << sName;
        for (const auto& rFound : {entry, attributes, status}) {
            EXPECT_EQ(rFound && rFound->mbDirectory, rFound && rCase.bDirectory) << sName;
            EXPECT_EQ(rFound && rFound->mbDevice, rFound && rCase.bDevice) << sName;
        }
    }
    EXPECT_FALSE(mpFiles->FindEntry(u"/"));
    EXPECT_EQ(errno, ENOENT);
}

TEST_F(FileSystem, ADiskErrorEndsAnEnumeration)
{
    // The folder will get the lowest free number. A file in its place can't be read as one.
    const int nFolder = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    const int nFile = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(nFolder);
    std::vector<std::u16string> names;
    const auto visit = [&](std::u16string_view sName) {
        names.emplace_back(sName);
        ::dup2(nFile, nFolder);
        return true;
    };
    EXPECT_FALSE(mpFiles->Enumerate(Name(u""), visit));
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(names, (std::vector<std::u16string>{u".", u".."}));
    ::close(nFile);
}

TEST_F(FileSystem, TimesAreThoseOfNamesInTheSystemsCodePage)
{
    // The second byte of the Japanese character is a backslash when it stands alone.
    std::ofstream(mFolder / u"\u30BD") << "text";
    std::ofstream(mFolder / u"\u00E9") << "text";
    const std::string sFolder = mFolder.string();
    {
        const CCodePageScope scope(932);
        EXPECT_NE(mpFiles->GetModificationTime(sFolder + "/\x83\x5C"), -1);
        EXPECT_NE(mpFiles->GetModificationTime(sFolder + "\\\x83\x5C"), -1);
    }
    const CCodePageScope scope(kCodePageWindows1252);
    EXPECT_NE(mpFiles->GetModificationTime(sFolder + "/\xE9"), -1);
    EXPECT_EQ(mpFiles->GetModificationTime(sFolder + "/\xEA"), -1);
}

TEST_F(FileSystem, FoldersAreMadeOneByOne)
{
    EXPECT_FALSE(mpFiles->CanAccess(Name(u"new")));
    EXPECT_FALSE(mpFiles->MakeFolder(Name(u"new/deep")));
    EXPECT_EQ(errno, ENOENT);
    EXPECT_TRUE(mpFiles->MakeFolder(Name(u"new")));
    EXPECT_TRUE(mpFiles->CanAccess(Name(u"new")));
    EXPECT_FALSE(mpFiles->MakeFolder(Name(u"new")));
    EXPECT_EQ(errno, EEXIST);
}

TEST_F(FileSystem, AFolderBecomesTheCurrentOne)
{
    const auto before = std::filesystem::current_path();
    EXPECT_TRUE(mpFiles->SetCurrentFolder(Name(u"sub")));
    EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(mFolder / "sub"));
    for (const std::u16string& rsNone : {Name(u"none"), Name(u"file"), std::u16string()}) {
        EXPECT_FALSE(mpFiles->SetCurrentFolder(rsNone));
        EXPECT_EQ(std::filesystem::current_path(), std::filesystem::canonical(mFolder / "sub"));
    }
    std::filesystem::current_path(before);
}

TEST_F(FileSystem, ARemovedCurrentFolderIsNone)
{
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(mFolder / "sub");
    EXPECT_EQ(mpFiles->GetCurrentFolder(), std::filesystem::canonical(mFolder / "sub").u16string());
    std::filesystem::remove(mFolder / "sub");
    EXPECT_EQ(mpFiles->GetCurrentFolder(), u"");
    std::filesystem::current_path(before);
}

} // namespace
