#include "foundation/FakeFileSystem.h"
#include "foundation/PathScopes.h"
#include "foundation/Paths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace
{

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr TFileAttributes kFolder{.mbDirectory = true};
constexpr TFileAttributes kDevice{.mbDevice = true};

class FileChecks : public ::testing::Test
{
protected:
    FileChecks()
    {
        gSetFileSystem(mpFiles);
        mpFiles->mEntries = {{u"a", {}}, {u"f", kFolder}, {u"d", kDevice}};
    }

    std::vector<std::string> TakeCalls() { return std::exchange(mpFiles->mCalls, {}); }

    CPathStateScope mState;
    CEnvironmentScope mEnvironment{{}};
    std::shared_ptr<CFakeFileSystem> mpFiles = std::make_shared<CFakeFileSystem>();
};

TEST_F(FileChecks, FilesFoldersAndDevicesInEachMode)
{
    for (const int nMode : {0, 1, 2, 3, 4, 5, 6, -1, -3, 1000}) {
        const auto fileExists = [nMode](const char* pPath) {
            gSetFileCheckMode(nMode);
            return gFileExists(pPath);
        };
        const auto directoryExists = [nMode](const char* pPath) {
            gSetFileCheckMode(nMode);
            return gDirectoryExists(pPath);
        };
        EXPECT_TRUE(fileExists("a")) << nMode;
        EXPECT_FALSE(fileExists("f")) << nMode;
        EXPECT_FALSE(fileExists("d")) << nMode;
        EXPECT_FALSE(fileExists("x")) << nMode;
        EXPECT_FALSE(directoryExists("a")) << nMode;
        EXPECT_TRUE(directoryExists("f")) << nMode;
        EXPECT_FALSE(directoryExists("d")) << nMode;
        EXPECT_FALSE(directoryExists("x")) << nMode;
    }
}

TEST_F(FileChecks, EachModeHasItsWayOfLooking)
{
    struct Case {
        int nMode;
        const char* pCall;
    };
    constexpr Case cases[] = {{0, "find C:/a"},  {1, "attributes C:/a"},  {2, "status C:/a"},
                              {3, "find C:\\a"}, {4, "attributes C:\\a"}, {5, "status C:\\a"},
                              {6, "find C:/a"},  {-1, "find C:/a"}};
    for (const Case& rCase : cases) {
        gSetFileCheckMode(rCase.nMode);
        EXPECT_FALSE(gFileExists("C:/a"));
        EXPECT_THAT(TakeCalls(), ElementsAre(rCase.pCall)) << rCase.nMode;
        EXPECT_EQ(gGetFileCheckMode(), rCase.nMode);
        EXPECT_FALSE(gDirectoryExists("C:/a"));
        EXPECT_THAT(TakeCalls(), ElementsAre(rCase.pCall)) << rCase.nMode;
    }
}

TEST_F(FileChecks, TheFolderCheckTakesThreeOffTwice)
{
    for (const int nMode : {3, 4, 5}) {
        gSetFileCheckMode(nMode);
        std::ignore = gDirectoryExists("f");
        EXPECT_EQ(gGetFileCheckMode(), nMode - 6);
    }
    for (const int nMode : {0, 1, 2, 6, -1}) {
        gSetFileCheckMode(nMode);
        std::ignore = gDirectoryExists("f");
        EXPECT_EQ(gGetFileCheckMode(), nMode);
    }
}

TEST_F(FileChecks, OneClosingSlashGoesInModeZero)
{
    EXPECT_TRUE(gDirectoryExists("f\\"));
    EXPECT_TRUE(gDirectoryExists("f/"));
    EXPECT_FALSE(gDirectoryExists("f\\\\"));
    EXPECT_TRUE(gFileExists("a/"));
    EXPECT_THAT(TakeCalls(), ElementsAre("find f", "find f", "find f\\", "find a"));
}

TEST_F(FileChecks, ARootIsEnumerated)
{
    for (const char16_t* pRoot :
         {u"C:\\", u"C:/", u"\\\\s\\h", u"//s/h", u"\\\\s\\h\\", u"/", u"\\"}) {
        const CStringU root(pRoot);
        const std::string sCall = "enumerate " + std::string(root.Text());
        EXPECT_FALSE(gDirectoryExists(root));
        mpFiles->mFolders[pRoot] = {};
        EXPECT_FALSE(gDirectoryExists(root));
        mpFiles->mFolders[pRoot] = {u"pagefile.sys"};
        EXPECT_TRUE(gDirectoryExists(root));
        EXPECT_FALSE(gFileExists(root)) << "a root is a folder, whatever is in it";
        EXPECT_THAT(TakeCalls(), ElementsAre(sCall, sCall, sCall, sCall));
    }
    for (const char* pOther :
         {"C:", "\\\\s", "\\\\s\\", "\\\\s\\h\\x", "C:\\x", "//", "\\\\", "///"}) {
        EXPECT_FALSE(gDirectoryExists(pOther));
        EXPECT_EQ(TakeCalls().front().substr(0, 5), "find ") << pOther;
    }
}

TEST_F(FileChecks, ALongPathIsTriedTwice)
{
    gSetFileCheckMode(1);
    mpFiles->meError = EFileError::PathNotFound;
    const std::string sShort(210, 'x');
    const std::string sLong(211, 'x');
    EXPECT_FALSE(gFileExists(sShort));
    EXPECT_THAT(TakeCalls(), ElementsAre("attributes " + sShort));
    EXPECT_FALSE(gFileExists(sLong));
    EXPECT_THAT(TakeCalls(), ElementsAre("attributes " + sLong, "attributes \\\\?\\" + sLong));
    mpFiles->mEntries[u"\\\\?\\" + std::u16string(211, u'x')] = {};
    EXPECT_TRUE(gFileExists(sLong));
    for (const EFileError eOther : {EFileError::FileNotFound, EFileError::Other}) {
        mpFiles->meError = eOther;
        TakeCalls();
        EXPECT_FALSE(gFileExists(sLong));
        EXPECT_THAT(TakeCalls(), ElementsAre("attributes " + sLong));
    }
    // Characters count, not bytes.
    mpFiles->meError = EFileError::PathNotFound;
    EXPECT_FALSE(gFileExists(std::u16string(210, u'\u00E9')));
    EXPECT_EQ(TakeCalls().size(), 1U);
}

TEST_F(FileChecks, AnEmptyFolderHasNothingBehindItsFirstEntry)
{
    struct Case {
        std::vector<std::u16string> names;
        bool bEmpty;
    };
    const Case cases[] = {
        {{u".", u".."}, true},          {{}, true},           {{u".", u"..", u"a"}, false},
        {{u".", u"...", u".."}, false}, {{u"a"}, true}, // the first is not looked at
        {{u"a", u"b"}, false},          {{u"a", u"."}, true},
    };
    for (const Case& rCase : cases) {
        mpFiles->mFolders[u"C:\\f"] = rCase.names;
        EXPECT_EQ(gIsDirectoryEmpty("C:\\f"), rCase.bEmpty) << rCase.names.size();
    }
    EXPECT_FALSE(gIsDirectoryEmpty("C:\\none"));
}

TEST(FileChecksOnDisk, InEachMode)
{
    const CPathStateScope state;
    const CTemporaryFolder folder;
    std::ofstream(folder.Name("file")) << "text";
    std::filesystem::create_symlink("file", folder.Name("link"));
    std::filesystem::create_symlink("nothing", folder.Name("dangling"));
    std::filesystem::create_directory(folder.Name("sub"));
    std::filesystem::create_symlink("sub", folder.Name("sublink"));
    std::filesystem::create_symlink("/dev/null", folder.Name("nullink"));
    ASSERT_EQ(::mkfifo(folder.Name("pipe").c_str(), 0600), 0);
    for (const bool bIsWine : {false, true}) {
        const CIsWineScope scope(bIsWine);
        for (const int nMode : {0, 1, 2}) {
            gSetFileCheckMode(nMode);
            EXPECT_TRUE(gFileExists(folder.Name("file")));
            EXPECT_TRUE(gFileExists(folder.Name("link")));
            // Only the standard library asks what is behind a link.
            EXPECT_EQ(gFileExists(folder.Name("dangling")), nMode != 2) << nMode;
            EXPECT_FALSE(gDirectoryExists(folder.Name("dangling")));
            EXPECT_FALSE(gFileExists(folder.Name("sublink")));
            EXPECT_TRUE(gDirectoryExists(folder.Name("sublink")));
            EXPECT_FALSE(gFileExists(folder.Name("nullink")));
            EXPECT_FALSE(gFileExists(folder.Name("sub")));
            EXPECT_FALSE(gFileExists(folder.Name("pipe")));
            EXPECT_FALSE(gFileExists(folder.Name("none/x")));
            EXPECT_FALSE(gFileExists(folder.Name("file/x")));
            EXPECT_FALSE(gFileExists("/dev/null"));
            EXPECT_FALSE(gFileExists(""));
            EXPECT_TRUE(gDirectoryExists(folder.Name("sub")));
            EXPECT_TRUE(gDirectoryExists(folder.Name("sub/")));
            EXPECT_EQ(gDirectoryExists(folder.Name("sub//")), nMode != 0) << nMode;
            EXPECT_TRUE(gDirectoryExists("/"));
            EXPECT_TRUE(gDirectoryExists("\\")) << nMode;
            EXPECT_EQ(gDirectoryExists("//"), nMode != 0) << nMode;
            EXPECT_FALSE(gDirectoryExists(folder.Name("file")));
            EXPECT_FALSE(gDirectoryExists("/dev/null"));
            EXPECT_FALSE(gDirectoryExists(folder.Name(std::string(300, 'x'))));
        }
    }
    EXPECT_TRUE(gIsDirectoryEmpty(folder.Name("sub")));
    EXPECT_FALSE(gIsDirectoryEmpty(folder.Name("file")));
    EXPECT_FALSE(gIsDirectoryEmpty(folder.Name("")));
    std::ofstream(folder.Name("sub/one"));
    EXPECT_FALSE(gIsDirectoryEmpty(folder.Name("sub")));
}

TEST_F(FileChecks, AFolderThatCantBeReadToItsEndIsNotEmpty)
{
    mpFiles->mFolders[u"C:\\f"] = {u".", u".."};
    EXPECT_TRUE(gIsDirectoryEmpty("C:\\f"));
    mpFiles->mbEnumerationBreaks = true;
    EXPECT_FALSE(gIsDirectoryEmpty("C:\\f"));
}

class CreateDirectories : public FileChecks
{
protected:
    bool Create(const char* pPath) { return gCreateDirectories(pPath, mErrors); }

    CStringU mErrors;
};

TEST_F(CreateDirectories, EachMissingPrefixIsMade)
{
    struct Case {
        const char* pPath;
        std::vector<std::string> made;
    };
    const Case cases[] = {
        {"n", {"n"}},
        {"f\\n\\o", {"f\\n", "f\\n\\o"}},
        {"f/p//q/", {"f/p", "f/p//q"}},
        {"C:\\a\\b", {"C:\\a", "C:\\a\\b"}},
        {"D:a", {"D:a"}},
        {"\\\\s\\h\\x\\y", {"\\\\s\\h\\x", "\\\\s\\h\\x\\y"}},
        {"/r/s", {"/r", "/r/s"}},
        {"", {}},
        {"E:\\", {}},
        {"\\\\s\\i", {}},
        {"\\\\s", {}},
    };
    for (const Case& rCase : cases) {
        EXPECT_TRUE(Create(rCase.pPath)) << rCase.pPath;
        std::vector<std::string> made;
        for (const std::string& rsCall : TakeCalls()) {
            if (rsCall.starts_with("make ")) {
                made.push_back(rsCall.substr(5));
            }
        }
        EXPECT_EQ(made, rCase.made) << rCase.pPath;
    }
    EXPECT_EQ(mErrors, "");
}

TEST_F(CreateDirectories, WhatCanBeAccessedIsLeftAlone)
{
    EXPECT_TRUE(Create("f"));
    EXPECT_TRUE(Create("a")); // even a file
    EXPECT_THAT(TakeCalls(), IsEmpty());
}

TEST_F(CreateDirectories, AFileInTheWayIsTold)
{
    EXPECT_FALSE(Create("a\\b"));
    EXPECT_EQ(mErrors, "\nFile with the name \"a\" already exists.\n");
    EXPECT_FALSE(Create("a\\b"));
    EXPECT_EQ(mErrors, "\nFile with the name \"a\" already exists.\n"
                       "\nFile with the name \"a\" already exists.\n");
}

TEST_F(CreateDirectories, TheModeFallsWithTheFirstFolderThatIsThere)
{
    struct Case {
        int nMode;
        const char* pFirst;
    };
    constexpr Case cases[] = {{3, "find f"}, {4, "attributes f"}, {5, "status f"}};
    int nMade = 0;
    for (const Case& rCase : cases) {
        mpFiles->mEntries[u"f\\g"] = kFolder;
        TakeCalls();
        gSetFileCheckMode(rCase.nMode);
        const std::string sPath = "f\\g\\" + std::to_string(++nMade);
        EXPECT_TRUE(Create(sPath.c_str()));
        EXPECT_THAT(TakeCalls(), ElementsAre(rCase.pFirst, "find f\\g", "make " + sPath));
        EXPECT_EQ(gGetFileCheckMode(), rCase.nMode - 6);
    }
    gSetFileCheckMode(4);
    EXPECT_FALSE(Create("a\\b"));
    EXPECT_EQ(mErrors, "\nFile with the name \"a\" already exists.\n");
}

TEST_F(CreateDirectories, AFailureTellsTheSystemsText)
{
    mErrors = "before";
    mpFiles->mnMakeError = EACCES;
    EXPECT_FALSE(Create("x\\y"));
    EXPECT_EQ(mErrors, gGetSystemErrorText(EACCES));
    EXPECT_THAT(TakeCalls(), ElementsAre("make x"));
}

TEST(CreateDirectoriesOnDisk, DownToTheLast)
{
    const CTemporaryFolder folder;
    CStringU errors;
    const std::string sDeep = folder.Name("a/b\xC3\xA9/c");
    EXPECT_TRUE(gCreateDirectories(sDeep, errors));
    EXPECT_TRUE(std::filesystem::is_directory(sDeep));
    EXPECT_TRUE(gCreateDirectories(sDeep, errors));
    std::ofstream(folder.Name("file")) << "text";
    EXPECT_FALSE(gCreateDirectories(folder.Name("file/x"), errors));
    EXPECT_EQ(errors,
              "\nFile with the name \"" + CStringU(folder.Name("file")) + "\" already exists.\n");
    errors.Empty();
    EXPECT_FALSE(gCreateDirectories(folder.Name(std::string(300, 'x')), errors));
    EXPECT_EQ(errors, gGetSystemErrorText(ENAMETOOLONG));
}

} // namespace
