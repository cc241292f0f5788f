#include "foundation/FakeFileSystem.h"
#include "foundation/PathScopes.h"
#include "foundation/Paths.h"
#include "platform/base/SystemError.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <utility>

namespace
{

TEST(ProgramPaths, OfThisProgram)
{
    const std::string sProgram = std::filesystem::canonical("/proc/self/exe").string();
    EXPECT_EQ(gGetExecutablePath(), CStringU(sProgram));
    EXPECT_EQ(gGetModulePath(), CStringU(sProgram)); // the library is linked in
    const std::string sFolder = std::filesystem::path(sProgram).parent_path().string();
    EXPECT_EQ(gGetExecutableFolder(), CStringU(sFolder));
    EXPECT_EQ(gGetModuleFolder(), CStringU(sFolder));
}

TEST(ProgramPaths, ComeOutOfABufferOf2096Characters)
{
    const CPathStateScope state;
    const auto pFiles = std::make_shared<CFakeFileSystem>();
    gSetFileSystem(pFiles);
    const std::u16string sFits = u"/f/" + std::u16string(2092, u'\u00E9');
    pFiles->msProgramFile = sFits;
    pFiles->msModuleFile = sFits + u'x';
    EXPECT_EQ(gGetExecutablePath(), CStringU(sFits));
    EXPECT_EQ(gGetExecutableFolder(), "/f");
    EXPECT_EQ(gGetModulePath(), "");
    EXPECT_EQ(gGetModuleFolder(), "");
    std::swap(pFiles->msProgramFile, pFiles->msModuleFile);
    EXPECT_EQ(gGetExecutablePath(), "");
    EXPECT_EQ(gGetExecutableFolder(), "");
    EXPECT_EQ(gGetModulePath(), CStringU(sFits));
    EXPECT_EQ(gGetModuleFolder(), "/f");
    pFiles->msModuleFile.clear(); // the system can't tell
    EXPECT_EQ(gGetModulePath(), "");
}

TEST(CurrentDirectory, InBothForms)
{
    const CPathStateScope state;
    EXPECT_EQ(gGetCurrentDirectory(false), CStringU(std::filesystem::current_path().string()));
    const auto pFiles = std::make_shared<CFakeFileSystem>();
    gSetFileSystem(pFiles);
    pFiles->msCurrentFolder = u"C:\\a/b";
    EXPECT_EQ(gGetCurrentDirectory(false), "C:\\a/b");
    EXPECT_EQ(gGetCurrentDirectory(true), "C:\\a\\b"); // the DOS form, and no other side
    pFiles->msCurrentFolder.clear();
    EXPECT_EQ(gGetCurrentDirectory(false), "");
    EXPECT_EQ(gGetCurrentDirectory(true), "");
}

TEST(FileTime, InSeconds)
{
    const CTemporaryFolder folder;
    const std::string sFile = folder.Name("f\xC3\xA9");
    std::ofstream(sFile) << "text";
    std::filesystem::last_write_time(sFile,
                                     std::chrono::file_clock::from_sys(std::chrono::sys_seconds{
                                         std::chrono::seconds(4'102'444'800)})); // beyond 32 bits
    EXPECT_EQ(gGetFileTime(sFile), 4'102'444'800);
    EXPECT_NE(gGetFileTime(folder.Name("")), -1);
    EXPECT_EQ(gGetFileTime(folder.Name("none")), -1);
    EXPECT_EQ(gGetFileTime(""), -1);
}

TEST(FileTime, TheNameIsInTheSystemsCodePage)
{
    const CPathStateScope state;
    const auto pFiles = std::make_shared<CFakeFileSystem>();
    gSetFileSystem(pFiles);
    gSetSystemCodePage(kCodePageWindows1252);
    EXPECT_EQ(gGetFileTime(u"a\u00E9\u0439"), 1234);
    gSetSystemCodePage(kCodePageUtf8);
    EXPECT_EQ(pFiles->mCalls.back(), "time a\xE9?");
}

TEST(DocumentsFolder, IsKept)
{
    const CPathStateScope state;
    const CTemporaryFolder home;
    {
        const CEnvironmentScope nothing({});
        EXPECT_EQ(gGetDocumentsFolder(), "");
    }
    const CEnvironmentScope environment({{"HOME", home.Path().string()}});
    const CStringU documents = home.Name("Documents");
    EXPECT_EQ(gGetDocumentsFolder(), documents);
    EXPECT_TRUE(gDirectoryExists(documents));
    gSetEnvironment("HOME", "/nowhere");
    EXPECT_EQ(gGetDocumentsFolder(), documents);
    gResetDocumentsFolder();
    gUnsetEnvironment("HOME");
    EXPECT_EQ(gGetDocumentsFolder(), "");
}

TEST(SystemErrorText, TwoCodesHaveTextsOfTheirOwn)
{
    EXPECT_EQ(gGetSystemErrorText(126),
              "The specified module or one of its sub-modules could not be found.");
    EXPECT_EQ(gGetSystemErrorText(193), "It is not valid Win64 application.");
    EXPECT_EQ(gGetSystemErrorText(ENOENT), CStringU(gSystemErrorMessage(ENOENT)));
    EXPECT_NE(gGetSystemErrorText(ENOENT), "");
    EXPECT_EQ(gGetSystemErrorText(1'234'567), "");
    EXPECT_EQ(gGetSystemErrorText(-1), "");
}

TEST(AppendLastError, ALineOfItsOwn)
{
    const CStringU text = gGetSystemErrorText(EACCES);
    int nCode = 0;
    gSetLastError(EACCES);
    EXPECT_EQ(gAppendLastError("Can't", &nCode), "Can't\n" + text);
    EXPECT_EQ(nCode, EACCES);
    gSetLastError(EACCES);
    EXPECT_EQ(gAppendLastError("", nullptr), text);
    gSetLastError(1'234'567);
    EXPECT_EQ(gAppendLastError("Can't", &nCode), "Can't");
    EXPECT_EQ(nCode, 1'234'567);
    gSetLastError(193);
    EXPECT_EQ(gAppendLastError(u"\u00E9"), CStringU(u"\u00E9\nIt is not valid Win64 application."));
}

} // namespace
