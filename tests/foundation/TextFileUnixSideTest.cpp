// What messages show on the Unix side, and the names that texts in memory go by.

#include "foundation/PathScopes.h"
#include "foundation/TextFile.h"
#include "platform/base/SystemError.h"
#include "support/PrintStringU.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace
{

/// The other side's exports, for which the root is the drive z.
class CDriveZ final : public INamedExports
{
public:
    TFunction Find(std::string_view sName) const override
    {
        if (sName == "wine_get_unix_stripped_file_name") {
            return reinterpret_cast<TFunction>(&ToUnixName);
        }
        return sName == "wine_get_dos_file_name" ? reinterpret_cast<TFunction>(&ToDosName)
                                                 : nullptr;
    }
    void FreeHeapBlock(void* pBlock) override { std::free(pBlock); }

private:
    static char* ToUnixName(const char16_t* pDosName)
    {
        CStringU sName = CStringU(pDosName).Mid(2);
        sName.Replace(u'\\', u'/');
        return ::strdup(sName.Data());
    }
    static char16_t* ToDosName(const char* pUnixName)
    {
        const std::u16string sName = u"z:" + CStringU(pUnixName).ToWide();
        const std::size_t nBytes = (sName.size() + 1) * sizeof(char16_t);
        return static_cast<char16_t*>(std::memcpy(std::malloc(nBytes), sName.c_str(), nBytes));
    }
};

class TextFileUnixSideTest : public testing::Test
{
protected:
    TextFileUnixSideTest() { gSetNamedExports(std::make_shared<CDriveZ>()); }

private:
    CPathStateScope mState;
    CIsWineScope mIsWine{true};
};

TEST_F(TextFileUnixSideTest, ARelativeNameIsShownWithSlashes)
{
    TTextFile file;
    EXPECT_FALSE(file.Open("none\\at\\all", CFile::modeRead, nullptr));
    EXPECT_EQ(file.GetLastErrorText(), "Can't open file \"none/at/all\".");
    const CIsWineScope plain(false);
    EXPECT_FALSE(file.Open("none\\at\\all", CFile::modeRead, nullptr));
    EXPECT_EQ(file.GetLastErrorText(), "Can't open file \"none\\at\\all\".");
}

TEST_F(TextFileUnixSideTest, AnAbsoluteNameIsTranslated)
{
    TTextFile file;
    CFileException exception;
    EXPECT_FALSE(file.Open("z:\\none\\a.txt", CFile::modeRead, &exception));
    EXPECT_EQ(file.GetLastErrorText(),
              "Can't open file \"/none/a.txt\": " + gSystemErrorMessage(ENOENT));
    EXPECT_EQ(exception.GetFileName(), "z:\\none\\a.txt");
}

TEST_F(TextFileUnixSideTest, SoIsAFolderThatCannotBeMade)
{
    const TTextFile file(CStringU(u"z:\\none\\\u00e9\\a.csv"));
    EXPECT_FALSE(file.IsOpen());
    EXPECT_EQ(file.GetLastErrorText(),
              CStringU(u"Can't create directory \"/none/\u00e9\". ") + gSystemErrorMessage(ENOENT));
}

TEST_F(TextFileUnixSideTest, SoIsAFileThatCannotBeWritten)
{
    TTextFile file(CStringU("/dev/full"));
    file.SetFilePath("z:\\out\\a.csv");
    file << "a";
    file.Flush();
    EXPECT_EQ(file.GetLastErrorText(),
              "Error writing to file \"/out/a.csv\": " + gSystemErrorMessage(ENOSPC));
}

TEST_F(TextFileUnixSideTest, ATextInMemoryGoesByItsDosName)
{
    TTextFile file(EncodingUtf8, "", "/out/a.csv");
    try {
        file.SetLength(0x80000000U);
        FAIL();
    } catch (const CFileException& rException) {
        EXPECT_EQ(rException.GetFileName(), "z:/out/a.csv");
    }
}

} // namespace
