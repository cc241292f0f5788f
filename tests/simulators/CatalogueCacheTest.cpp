#include "simulators/ngspice/catalogue/CatalogueCache.h"

#include "platform/base/Environment.h"
#include "platform/base/MapEnvironment.h"
#include "simulators/ngspice/catalogue/PackedCatalogue.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <string>

namespace quorvawiz::ngspice
{
namespace
{

const TVersion kVersion{39, "ngspice-39", "Sun Feb  5 2023"};
const TVersion kOther{39, "ngspice-39", "Mon Feb  6 2023"};
const TCatalogueListings kListings{"A - a\n", {{"A", "a1:\n", ""}, {"B", "", "x\ny"}}};

TEST(PackedCatalogue, ComesBack)
{
    EXPECT_EQ(gUnpackCatalogue(kVersion, gPackCatalogue(kVersion, kListings)), kListings);
    EXPECT_EQ(gUnpackCatalogue(kVersion, gPackCatalogue(kVersion, {})), TCatalogueListings());
}

TEST(PackedCatalogue, IsOfOneVersion)
{
    EXPECT_FALSE(gUnpackCatalogue(kOther, gPackCatalogue(kVersion, kListings)));
}

TEST(PackedCatalogue, IsRefusedWhereAnyByteIsAnother)
{
    const std::string sBytes = gPackCatalogue(kVersion, kListings);
    for (std::size_t n = 0; n < sBytes.size(); ++n) {
        std::string sDamaged = sBytes;
        sDamaged[n] = static_cast<char>(sDamaged[n] ^ 1);
        EXPECT_FALSE(gUnpackCatalogue(kVersion, sDamaged)) << n;
        EXPECT_FALSE(gUnpackCatalogue(kVersion, sBytes.substr(0, n))) << n;
    }
    EXPECT_FALSE(gUnpackCatalogue(kVersion, sBytes + "x"));
}

TEST(CatalogueCache, KeepsVersionsApart)
{
    const CTempFolder folder;
    const CCatalogueCache cache(folder.Path("made/when/needed"));
    EXPECT_FALSE(cache.Load(kVersion));
    cache.Store(kVersion, kListings);
    EXPECT_EQ(cache.Load(kVersion), kListings);
    EXPECT_FALSE(cache.Load(kOther));
    cache.Store(kOther, {});
    EXPECT_EQ(cache.Load(kVersion), kListings);
    EXPECT_EQ(cache.Load(kOther), TCatalogueListings());
}

TEST(CatalogueCache, LeavesNothingButItsFile)
{
    const CTempFolder folder;
    const CCatalogueCache cache(folder.Path("cache"));
    cache.Store(kVersion, kListings);
    cache.Store(kVersion, kListings);
    int nFiles = 0;
    for (const auto& rEntry : std::filesystem::directory_iterator(folder.Path("cache"))) {
        EXPECT_EQ(rEntry.path().filename(), "ngspice-39_Sun_Feb__5_2023.classes");
        ++nFiles;
    }
    EXPECT_EQ(nFiles, 1);
}

TEST(CatalogueCache, ADamagedFileIsAsGoodAsNone)
{
    const CTempFolder folder;
    const CCatalogueCache cache(folder.Path(""));
    cache.Store(kVersion, kListings);
    folder.Write("ngspice-39_Sun_Feb__5_2023.classes", "rubbish");
    EXPECT_FALSE(cache.Load(kVersion));
    cache.Store(kVersion, kListings);
    EXPECT_EQ(cache.Load(kVersion), kListings);
}

TEST(CatalogueCache, WithoutAFolderThereIsNone)
{
    const CCatalogueCache cache{std::filesystem::path()};
    cache.Store(kVersion, kListings);
    EXPECT_FALSE(cache.Load(kVersion));
}

TEST(CatalogueCache, AFolderThatCantBeMadeIsNoError)
{
    const CTempFolder folder;
    const CCatalogueCache cache(folder.Write("file", "") + "/cache");
    cache.Store(kVersion, kListings);
    EXPECT_FALSE(cache.Load(kVersion));
}

struct TFolderCase {
    CMapEnvironment::TVariables variables;
    const char* pFolder;
};

TEST(CatalogueCache, TheUsersFolder)
{
    const TFolderCase cases[] = {
        {{{"XDG_CACHE_HOME", "/cache"}, {"HOME", "/home"}}, "/cache/quorvawiz"},
        {{{"HOME", "/home"}}, "/home/.cache/quorvawiz"},
        {{{"XDG_CACHE_HOME", "relative"}, {"HOME", "/home"}}, "/home/.cache/quorvawiz"},
        {{}, ""},
    };
    for (const TFolderCase& rCase : cases) {
        gSetEnvironmentSource(std::make_shared<CMapEnvironment>(rCase.variables));
        EXPECT_EQ(CCatalogueCache::GetUserFolder(), rCase.pFolder);
    }
    gResetEnvironmentSource();
}

} // namespace
} // namespace quorvawiz::ngspice
