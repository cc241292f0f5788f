#include "platform/base/SystemFolder.h"

#include "platform/base/Environment.h"
#include "platform/base/MapEnvironment.h"
#include "platform/base/NamedExports.h"
#include "platform/base/ProgramFile.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

namespace
{

class SystemFolder : public ::testing::Test
{
protected:
    SystemFolder()
    {
        std::string sTemplate = (std::filesystem::temp_directory_path() / "home-XXXXXX").string();
        mHome = ::mkdtemp(sTemplate.data());
        gSetEnvironmentSource(std::make_shared<CMapEnvironment>());
        gSetEnvironment("HOME", mHome.string());
    }
    ~SystemFolder() override
    {
        gResetEnvironmentSource();
        std::filesystem::remove_all(mHome);
    }

    std::u16string Home(const char* pName) const { return (mHome / pName).u16string(); }

    void Choose(const std::string& rsLines)
    {
        std::filesystem::create_directories(mHome / ".config");
        std::ofstream(mHome / ".config/user-dirs.dirs") << rsLines;
    }

    static std::u16string Documents(bool bCreate = false)
    {
        return gGetSystemFolder(ESystemFolder::Documents, bCreate);
    }

    std::filesystem::path mHome;
};

TEST_F(SystemFolder, DocumentsWithoutAChoice)
{
    EXPECT_EQ(Documents(), Home("Documents"));
    EXPECT_FALSE(std::filesystem::exists(mHome / "Documents"));
    EXPECT_EQ(Documents(true), Home("Documents"));
    EXPECT_TRUE(std::filesystem::is_directory(mHome / "Documents"));
}

TEST_F(SystemFolder, DocumentsByTheUsersChoice)
{
    struct Case {
        std::string sLines;
        std::u16string sFolder;
    };
    const Case cases[] = {
        {"# a comment\nXDG_MUSIC_DIR=\"$HOME/m\"\nXDG_DOCUMENTS_DIR=\"$HOME/Papers\"\n",
         Home("Papers")},
        {"XDG_DOCUMENTS_DIR=\"/srv/papers/\"\n", u"/srv/papers"},
        {"XDG_DOCUMENTS_DIR=\"$HOME/\"\n", mHome.u16string()},
        {"XDG_DOCUMENTS_DIR=\"/first\"\nXDG_DOCUMENTS_DIR=\"/last\"\n", u"/last"},
        {"XDG_DOCUMENTS_DIR=\"relative\"\n", Home("Documents")},
        {"XDG_DOCUMENTS_DIR=\"\"\n", Home("Documents")},
        {"XDG_DOCUMENTS_DIR=/srv\n", Home("Documents")},
    };
    for (const Case& rCase : cases) {
        Choose(rCase.sLines);
        EXPECT_EQ(Documents(), rCase.sFolder) << rCase.sLines;
    }
}

TEST_F(SystemFolder, ApplicationData)
{
    EXPECT_EQ(gGetSystemFolder(ESystemFolder::ApplicationData, true), Home(".config"));
    EXPECT_TRUE(std::filesystem::is_directory(mHome / ".config"));
    gSetEnvironment("XDG_CONFIG_HOME", (mHome / "conf").string());
    EXPECT_EQ(gGetSystemFolder(ESystemFolder::ApplicationData, false), Home("conf"));
    gSetEnvironment("XDG_CONFIG_HOME", "relative");
    EXPECT_EQ(gGetSystemFolder(ESystemFolder::ApplicationData, false), Home(".config"));
}

TEST_F(SystemFolder, NoneWithoutAHomeOrWhereItCantBeMade)
{
    std::ofstream(mHome / "Documents") << "in the way";
    EXPECT_EQ(Documents(true), u"");
    gSetEnvironment("HOME", "relative");
    EXPECT_EQ(Documents(), u"");
    gUnsetEnvironment("HOME");
    EXPECT_EQ(Documents(), u"");
}

TEST(ProgramFile, OfTheProgramAndOfALibrary)
{
    EXPECT_EQ(gGetProgramFile(), std::filesystem::canonical("/proc/self/exe").u16string());
    static const int here = 0;
    EXPECT_EQ(gGetModuleFile(&here), gGetProgramFile());
    const std::u16string sLibrary = gGetModuleFile(reinterpret_cast<const void*>(&::getenv));
    EXPECT_TRUE(std::filesystem::exists(sLibrary));
    EXPECT_EQ(gGetModuleFile(nullptr), u"");
}

TEST(NamedExports, WithoutTheOtherSideThereAreNone)
{
    EXPECT_EQ(gGetNamedExports()->Find("wine_get_unix_env"), nullptr);
}

} // namespace
