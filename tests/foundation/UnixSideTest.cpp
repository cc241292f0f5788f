#include "foundation/FakeFileSystem.h"
#include "foundation/PathScopes.h"
#include "foundation/Paths.h"
#include "platform/base/CodePageScope.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <map>
#include <set>
#include <string>

namespace
{

/// The other side's exports, working on a heap that is counted.
class CFakeExports final : public INamedExports
{
public:
    TFunction Find(std::string_view sName) const override
    {
        const auto found = mFunctions.find(std::string(sName));
        return found == mFunctions.end() ? nullptr : found->second;
    }

    void FreeHeapBlock(void* pBlock) override
    {
        EXPECT_EQ(sBlocks.erase(pBlock), 1U) << "not a block of the heap";
        std::free(pBlock);
    }

    template <class TFunctionType> void Add(const char* pName, TFunctionType* pFunction)
    {
        mFunctions[pName] = reinterpret_cast<TFunction>(pFunction);
    }

    template <class TChar> static TChar* Allocate(const std::basic_string<TChar>& rsText)
    {
        const std::size_t nBytes = (rsText.size() + 1) * sizeof(TChar);
        void* const pBlock = std::malloc(nBytes);
        std::memcpy(pBlock, rsText.c_str(), nBytes);
        sBlocks.insert(pBlock);
        return static_cast<TChar*>(pBlock);
    }

    static inline std::set<void*> sBlocks;
    static inline std::string sAsked; ///< what the last call was given

private:
    std::map<std::string, TFunction> mFunctions;
};

std::string Utf8(const char16_t* pText)
{
    return gWideToMultiByte(pText, kCodePageUtf8);
}

char16_t* GetDosFileName(const char* pName)
{
    CFakeExports::sAsked = pName;
    return pName[1] == '\0'
               ? nullptr
               : CFakeExports::Allocate(u"Z:" + CStringU(pName, TTextKind::Utf8IfNeeded).ToWide());
}

char* GetUnixStrippedFileName(const char16_t* pName)
{
    CFakeExports::sAsked = Utf8(pName);
    return pName[0] == u'X' ? nullptr : CFakeExports::Allocate("/unix/" + Utf8(pName));
}

const char* GetUnixEnv(const char* pName)
{
    CFakeExports::sAsked = pName;
    return std::strcmp(pName, "SET") == 0 ? "a\xC3\xA9" : nullptr;
}

int SetUnixEnv(const char* pName, const char* pValue, int nOverwrite)
{
    CFakeExports::sAsked = std::string(pName) + "=" + pValue;
    return nOverwrite;
}

int UnsetUnixEnv(const char* pName)
{
    CFakeExports::sAsked = pName;
    return 7;
}

int PutUnixEnv(const char* pAssignment)
{
    CFakeExports::sAsked = pAssignment;
    return 8;
}

class UnixSide : public ::testing::Test
{
protected:
    UnixSide()
    {
        mpExports->Add("wine_get_dos_file_name", GetDosFileName);
        mpExports->Add("wine_get_unix_stripped_file_name", GetUnixStrippedFileName);
        mpExports->Add("wine_get_unix_env", GetUnixEnv);
        mpExports->Add("wine_set_unix_env", SetUnixEnv);
        mpExports->Add("wine_unset_unix_env", UnsetUnixEnv);
        mpExports->Add("wine_put_unix_env", PutUnixEnv);
        gSetNamedExports(mpExports);
        CFakeExports::sAsked.clear();
    }

    void TearDown() override { EXPECT_TRUE(CFakeExports::sBlocks.empty()) << "a block is left"; }

    static std::string Asked() { return std::exchange(CFakeExports::sAsked, {}); }

    CPathStateScope mState;
    CEnvironmentScope mEnvironment{{}};
    CIsWineScope mIsWine{true};
    std::shared_ptr<CFakeExports> mpExports = std::make_shared<CFakeExports>();
};

TEST_F(UnixSide, ToDosPath)
{
    EXPECT_EQ(gToDosPath("/a/b"), "Z:/a/b");
    EXPECT_EQ(Asked(), "/a/b");
    EXPECT_EQ(gToDosPath(u"/\u00E9").Stored(), CStringU(u"Z:/\u00E9").Stored());
    EXPECT_EQ(Asked(), "/\xC3\xA9");
    EXPECT_EQ(gToDosPath("/"), "/"); // the other side has no name for it
    Asked();
    EXPECT_EQ(gToDosPath("C:/a/b"), "C:\\a\\b");
    EXPECT_EQ(gToDosPath("a/b"), "a/b");
    EXPECT_EQ(gToDosPath("\\a/b"), "\\a/b");
    EXPECT_EQ(gToDosPath("\\\\s/h/x"), "\\\\s\\h\\x");
    EXPECT_EQ(gToDosPath(""), "");
    EXPECT_EQ(Asked(), "");
}

TEST_F(UnixSide, ToUnixPath)
{
    EXPECT_EQ(gToUnixPath("C:\\a"), "/unix/C:\\a");
    EXPECT_EQ(Asked(), "C:\\a");
    EXPECT_EQ(gToUnixPath(u"C:\\\u00E9").Stored(), CStringU(u"/unix/C:\\\u00E9").Stored());
    EXPECT_EQ(gToUnixPath("X:\\a"), "X:\\a");
    EXPECT_EQ(gToUnixPath("/a"), "/unix//a");
    Asked();
    EXPECT_EQ(gToUnixPath("a\\b"), "a/b");
    EXPECT_EQ(gToUnixPath("\\a"), "/a");
    EXPECT_EQ(gToUnixPath(""), "");
    EXPECT_EQ(Asked(), "");
}

TEST_F(UnixSide, NamesOfTheUnixSideAreUtf8WhateverTheCodePage)
{
    const CCodePageScope scope(kCodePageWindows1252);
    EXPECT_EQ(gToDosPath(u"/\u0439"), u"Z:/\u0439");
    EXPECT_EQ(Asked(), "/\xD0\xB9");
    EXPECT_EQ(gToUnixPath(u"C:\\\u0439"), u"/unix/C:\\\u0439");
    EXPECT_EQ(gGetUnixEnv("SET"), u"a\u00E9");
    Asked();
}

TEST_F(UnixSide, Environment)
{
    EXPECT_EQ(gGetUnixEnv("SET").Stored(), CStringU(u"a\u00E9").Stored());
    EXPECT_EQ(gGetUnixEnv("NOTSET"), "");
    EXPECT_EQ(gSetUnixEnv("N", u"\u00E9", 5), 5);
    EXPECT_EQ(Asked(), "N=\xC3\xA9");
    EXPECT_EQ(gUnsetUnixEnv("N"), 7);
    EXPECT_EQ(Asked(), "N");
    EXPECT_EQ(gPutUnixEnv("N=v"), 8);
    EXPECT_EQ(Asked(), "N=v");
}

/// What each function gives where nothing can be translated.
void ExpectUntranslated()
{
    EXPECT_EQ(gToDosPath("/a/b"), "/a/b");
    EXPECT_EQ(gToDosPath("C:/a/b"), "C:\\a\\b");
    EXPECT_EQ(gToUnixPath("C:\\a"), "C:\\a");
    EXPECT_EQ(gGetUnixEnv("SET"), "");
    EXPECT_EQ(gSetUnixEnv("N", "v", 1), -1);
    EXPECT_EQ(gUnsetUnixEnv("N"), -1);
    EXPECT_EQ(gPutUnixEnv("N=v"), -1);
    EXPECT_EQ(CFakeExports::sAsked, "");
}

TEST_F(UnixSide, WithThePlainRulesNothingIsAsked)
{
    gSetIsWine(false);
    ExpectUntranslated();
    EXPECT_EQ(gToUnixPath("a\\b"), "a\\b");
}

TEST_F(UnixSide, WithoutTheExportsItIsAsWithThePlainRules)
{
    gSetNamedExports(std::make_shared<CFakeExports>());
    ExpectUntranslated();
    gSetNamedExports(nullptr);
    ExpectUntranslated();
    EXPECT_EQ(gToUnixPath("a\\b"), "a/b"); // that needs no export
}

TEST_F(UnixSide, TheCurrentFolderGoesBothWays)
{
    const auto pFiles = std::make_shared<CFakeFileSystem>();
    gSetFileSystem(pFiles);
    pFiles->msCurrentFolder = u"/home/u";
    EXPECT_EQ(gGetCurrentDirectory(false), "/home/u");
    EXPECT_EQ(gGetCurrentDirectory(true), "/unix/Z:/home/u");
}

TEST_F(UnixSide, TheDocumentsFolderGoesThreeWays)
{
    const CTemporaryFolder home;
    gSetEnvironment("HOME", home.Path().string());
    EXPECT_EQ(gGetDocumentsFolder(), CStringU("Z:/unix/Z:" + home.Name("Documents")));
}

TEST_F(UnixSide, TheFileChecksLookAtTheDosForm)
{
    const auto pFiles = std::make_shared<CFakeFileSystem>();
    gSetFileSystem(pFiles);
    pFiles->mEntries[u"Z:/f"] = {.mbDirectory = true};
    pFiles->mEntries[u"Z:/a"] = {};
    const char* const calls[] = {"find Z:/", "attributes Z:/", "status Z:/"};
    for (const int nMode : {3, 4, 5}) {
        const std::string sCall = calls[nMode - 3];
        gSetFileCheckMode(nMode);
        EXPECT_TRUE(gFileExists("/a"));
        EXPECT_EQ(pFiles->mCalls.back(), sCall + "a");
        EXPECT_EQ(gGetFileCheckMode(), nMode);
        EXPECT_TRUE(gDirectoryExists("/f"));
        EXPECT_EQ(pFiles->mCalls.back(), sCall + "f");
        EXPECT_EQ(gGetFileCheckMode(), nMode - 6);
        gSetFileCheckMode(nMode);
        EXPECT_FALSE(gDirectoryExists("/a"));
        EXPECT_FALSE(gFileExists("/f")); // the Unix form, now that the mode has fallen
        EXPECT_EQ(pFiles->mCalls.back(), "find /f");
    }
}

} // namespace
