#include "params/ReadParamsFile.h"

#include "exports/Quorvawiz.h"
#include "foundation/FakeFileSystem.h"
#include "foundation/PathScopes.h"
#include "params/DamagedForms.h"
#include "params/FileOpenException.h"
#include "params/ModelsFilePath.h"
#include "params/PrintParams.h"
#include "platform/base/SystemError.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <exception>
#include <filesystem>
#include <memory>
#include <string>
#include <type_traits>

namespace
{

using quorvaapi::FileOpenException;

CStringU MessageOf(const CStringU& rsPath)
{
    const auto [message, pStore] = quorvawiz::gReadCircuitParameters(rsPath);
    EXPECT_NE(pStore, nullptr);
    return message;
}

TEST(ReadCircuitParametersTest, SuccessGivesEmptyText)
{
    const CTempFolder folder;
    const auto [message, pStore] =
        quorvawiz::gReadCircuitParameters(folder.Write("p", gSampleFile()));
    EXPECT_EQ(message, "");
    EXPECT_EQ(gOursOf(*pStore), gSampleFile());
}

TEST(ReadCircuitParametersTest, WhatIsNoFileIsNotFound)
{
    const CTempFolder folder;
    const CStringU sFolder = folder.Path("");
    EXPECT_EQ(MessageOf(""), "Error reading data file '': File not found");
    EXPECT_EQ(MessageOf(sFolder), "Error reading data file '" + sFolder + "': File not found");
    const CStringU sNone = folder.Path("n\xC3\xB6ne");
    EXPECT_EQ(MessageOf(sNone), "Error reading data file '" + sNone + "': File not found");
    EXPECT_EQ(MessageOf("/dev/null"), "Error reading data file '/dev/null': File not found");
}

TEST(ReadCircuitParametersTest, ADamagedFileGivesTheFixedMessageAndTheStoreSoFar)
{
    const CTempFolder folder;
    std::string sFile = gSampleFile();
    sFile.resize(sFile.find("\n3 1 2 n2"));
    const CStringU sPath = folder.Write("p", sFile);
    const auto [message, pStore] = quorvawiz::gReadCircuitParameters(sPath);
    EXPECT_EQ(message,
              "Error reading data file '" + sPath + "': Params file ReadThis() operation failed!");
    ASSERT_NE(pStore, nullptr);
    EXPECT_EQ(pStore->mModelClasses.size(), 1U);
    const TReadParamsFile read = gReadParamsFile(sPath);
    EXPECT_EQ(read.msMessage, message);
    EXPECT_EQ(read.msDetail, "byte 551: more elements than the file has room for");
}

TEST(ReadCircuitParametersTest, EveryDamagedFormGivesTheMessage)
{
    const CTempFolder folder;
    for (const TDamagedForm& rForm : gDamagedForms()) {
        const CStringU sPath = folder.Write("p", rForm.Damage(gSampleFile()));
        EXPECT_EQ(MessageOf(sPath), "Error reading data file '" + sPath +
                                        "': Params file ReadThis() operation failed!")
            << rForm.msName;
    }
}

// Whatever can be written can be read by the same name.
TEST(ReadCircuitParametersTest, NamesThatAreNotUtf8)
{
    const CTempFolder folder;
    for (const char* const pName : {"p\xE9.params", "\x80", "\xC3\xA9\xFF", "p\xED\xA0\x80"}) {
        const CStringU sPath(folder.Path(pName), TTextKind::Utf8IfNeeded);
        EXPECT_EQ(MessageOf(sPath), "Error reading data file '" + sPath + "': File not found");
        TCircuitParams store;
        gFillSample(store);
        store.WriteThis(sPath, "");
        EXPECT_EQ(folder.Read(pName), gSampleFile());
        EXPECT_EQ(MessageOf(sPath), "");
    }
    std::filesystem::create_directory(folder.Path("d\xE9"));
    const CStringU sFolder(folder.Path("d\xE9"), TTextKind::Utf8IfNeeded);
    EXPECT_EQ(MessageOf(sFolder), "Error reading data file '" + sFolder + "': File not found");
}

TEST(ReadCircuitParametersTest, ABackslashSeparatesFoldersInWritingAndInReading)
{
    const CTempFolder folder;
    const CStringU sPath = folder.Path("a\\b");
    folder.Write("a\\b", gSampleFile()); // by the system's own rule, out of reach
    EXPECT_EQ(MessageOf(sPath), "Error reading data file '" + sPath + "': File not found");
    std::filesystem::create_directory(folder.Path("a"));
    const TCircuitParams store;
    store.WriteThis(sPath, "");
    EXPECT_TRUE(std::filesystem::is_regular_file(folder.Path("a/b")));
    EXPECT_EQ(MessageOf(sPath), "");
    EXPECT_EQ(folder.Read("a\\b"), gSampleFile());
}

// A file system finds a file where there is none, as if it vanished at once.
TEST(ReadCircuitParametersTest, AFileThatVanishesGivesTheOpenMessage)
{
    const CPathStateScope state;
    const auto pFiles = std::make_shared<CFakeFileSystem>();
    pFiles->mEntries[u"/none/p"] = {};
    gSetFileSystem(pFiles);
    EXPECT_EQ(MessageOf("/none/p"), "Error reading data file '/none/p': Params file open failed!");
}

static_assert(std::is_base_of_v<std::exception, FileOpenException>);

struct TAnother : public virtual std::exception {
};
/// There is only one std::exception in it, as the base is virtual.
struct TBoth : public FileOpenException, public TAnother {
    TBoth() : FileOpenException("p", ENOENT) {}
};
static_assert(std::is_convertible_v<TBoth*, std::exception*>);

TEST(FileOpenExceptionTest, Text)
{
    const std::string sSystem(CStringU(gSystemErrorMessageWide(ENOENT)).Text());
    ASSERT_FALSE(sSystem.empty());
    EXPECT_EQ(FileOpenException("C:\\a b", ENOENT).what(),
              "Cannot open file \"C:\\a b\". " + sSystem);
    EXPECT_EQ(FileOpenException(u"\u00E9", ENOENT).what(),
              "Cannot open file \"\xC3\xA9\". " + sSystem);
    EXPECT_STREQ(FileOpenException("", 1'234'567).what(), "Cannot open file \"\". ");
    EXPECT_STREQ(TBoth().what(), FileOpenException("p", ENOENT).what());
}

TEST(ModelsFilePathTest, InTheUsersFolder)
{
    const CTempFolder home;
    const CEnvironmentScope environment({{"HOME", home.Path("")}});
    const CStringU sConfig = home.Path(".config");
    {
        const CIsWineScope unixSide(true);
        EXPECT_EQ(gGetModelsFilePath("Sim", "dat"),
                  sConfig + "/Velkara_EDA/SimModels_v2021.264.dat");
        EXPECT_EQ(gGetModelsFilePath("", "x"), sConfig + "/Velkara_EDA/Models_v2021.264.x");
        EXPECT_TRUE(std::filesystem::is_directory(home.Path(".config")));
        EXPECT_EQ(gGetModelsFilePath(u"\u00E9", ""),
                  sConfig + u"/Velkara_EDA/\u00E9Models_v2021.264.");
    }
    const CIsWineScope plain(false);
    CStringU sPlain = sConfig + "/Velkara EDA/SimModels_v2021.264.dat";
    sPlain.Replace(TCharacter('/'), TCharacter('\\'));
    EXPECT_EQ(gGetModelsFilePath("Sim", "dat"), sPlain);
}

TEST(ModelsFilePathTest, WithoutAFolderTheNameAlone)
{
    const CEnvironmentScope environment({});
    EXPECT_EQ(gGetModelsFilePath("Sim", "dat"), "SimModels_v2021.264.dat");
    EXPECT_EQ(gGetModelsFilePath("", "dat"), "Models_v2021.264.dat");
}

} // namespace
