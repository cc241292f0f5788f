#pragma once

#include "simulators/ngspice/catalogue/Catalogue.h"
#include "simulators/ngspice/listings/Version.h"

#include <filesystem>
#include <optional>
#include <utility>

namespace quorvawiz::ngspice
{

/// The listings of simulators' classes, kept between imports: a file for each version. A file that
/// is damaged, or of another version, is as good as none. A failure to write leaves things as they
/// were, and is told to nobody: the next import asks the simulator again.
class CCatalogueCache
{
public:
    /// @param folder where the files are; it is made when it is needed. Empty for no cache
    explicit CCatalogueCache(std::filesystem::path folder) : mFolder(std::move(folder)) {}

    /// The user's folder: "quorvawiz" in XDG_CACHE_HOME, else in ".cache" of the home folder; empty
    /// without a home. Reads the current environment (gGetEnvironment).
    [[nodiscard]] static std::filesystem::path GetUserFolder();

    /// The listings of a version; nullopt if they aren't there.
    [[nodiscard]] std::optional<TCatalogueListings> Load(const TVersion& rVersion) const;

    /// Keeps the listings of a version. The file takes the place of an older one when it is whole.
    void Store(const TVersion& rVersion, const TCatalogueListings& rListings) const;

private:
    [[nodiscard]] std::filesystem::path FileOf(const TVersion& rVersion) const;

    std::filesystem::path mFolder;
};

} // namespace quorvawiz::ngspice
