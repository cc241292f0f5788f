#include "simulators/ngspice/catalogue/CatalogueCache.h"

#include "platform/base/Environment.h"
#include "simulators/ngspice/catalogue/PackedCatalogue.h"
#include "simulators/ngspice/process/ReadWhole.h"

#include <stdlib.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace quorvawiz::ngspice
{
namespace
{

/// Some 20 times what version 39 has.
constexpr std::uint64_t kMostBytes = 64U << 20U;

/// A text as a part of a file's name.
std::string AsName(std::string_view sText)
{
    std::string sName;
    for (const char c : sText) {
        const bool bKept = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') ||
                           (c >= 'A' && c <= 'Z') || c == '-' || c == '.';
        sName += bKept ? c : '_';
    }
    return sName;
}

bool WriteAll(int nHandle, std::string_view sBytes)
{
    while (!sBytes.empty()) {
        const ssize_t nNow = ::write(nHandle, sBytes.data(), sBytes.size());
        if (nNow <= 0) {
            return false;
        }
        sBytes.remove_prefix(static_cast<std::size_t>(nNow));
    }
    return true;
}

} // namespace

std::filesystem::path CCatalogueCache::GetUserFolder()
{
    const std::string sCache = gGetEnvironment("XDG_CACHE_HOME").value_or("");
    if (sCache.starts_with('/')) { // a relative one doesn't count
        return std::filesystem::path(sCache) / "quorvawiz";
    }
    const std::string sHome = gGetEnvironment("HOME").value_or("");
    return sHome.empty() ? std::filesystem::path()
                         : std::filesystem::path(sHome) / ".cache" / "quorvawiz";
}

std::filesystem::path CCatalogueCache::FileOf(const TVersion& rVersion) const
{
    return mFolder / (AsName(rVersion.sName + " " + rVersion.sDate) + ".classes");
}

std::optional<TCatalogueListings> CCatalogueCache::Load(const TVersion& rVersion) const
{
    const auto bytes = mFolder.empty() ? std::nullopt : gReadWhole(FileOf(rVersion), kMostBytes);
    return bytes ? gUnpackCatalogue(rVersion, *bytes) : std::nullopt;
}

void CCatalogueCache::Store(const TVersion& rVersion, const TCatalogueListings& rListings) const
{
    std::error_code ignored;
    if (mFolder.empty()) {
        return;
    }
    std::filesystem::create_directories(mFolder, ignored);
    const std::filesystem::path target = FileOf(rVersion);
    // Six of these letters are what the system fills in.
    std::string sBeside = (mFolder / ".classes-").string() + std::string(6, 'X');
    const int nHandle = ::mkstemp(sBeside.data());
    if (nHandle < 0) {
        return;
    }
    const bool bWritten = WriteAll(nHandle, gPackCatalogue(rVersion, rListings));
    const bool bClosed = ::close(nHandle) == 0;
    std::error_code failed;
    if (bWritten && bClosed) {
        std::filesystem::rename(sBeside, target, failed);
    }
    if (!bWritten || !bClosed || failed) {
        std::filesystem::remove(sBeside, ignored);
    }
}

} // namespace quorvawiz::ngspice
