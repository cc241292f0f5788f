#include "platform/base/FileSystem.h"

#include "platform/base/SystemPath.h"

#include <gtest/gtest.h>
#include <stdlib.h>

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
    EXPECT_EQ(gToSystemName("a\\b\xE9"), "a/b\xE9");
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
    EXPECT_FALSE(mpFiles->GetAttributes(Name(u"loop"), eError));
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
