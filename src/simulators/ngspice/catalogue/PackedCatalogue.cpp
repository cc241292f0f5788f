#include "simulators/ngspice/catalogue/PackedCatalogue.h"

#include "simulators/ngspice/listings/Lines.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>

namespace quorvawiz::ngspice
{
namespace
{

// The number goes up whenever the bytes, or the bare circuits, become others.
constexpr std::string_view kHead = "quorvawiz classes of a simulator, 2";

/// FNV-1a, which finds what goes wrong by accident.
std::uint64_t CheckSum(std::string_view sBytes) noexcept
{
    std::uint64_t nSum = 0xCBF29CE484222325U;
    for (const char c : sBytes) {
        nSum = (nSum ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    }
    return nSum;
}

/// "SIZE", a line feed, and so many bytes.
void Append(std::string_view sPart, std::string& rsBytes)
{
    rsBytes.append(std::to_string(sPart.size())).append("\n").append(sPart);
}

std::optional<std::string> Cut(std::string_view& rsRest)
{
    const std::string_view sSize = gNextLine(rsRest);
    std::size_t nSize = 0;
    const auto read = std::from_chars(sSize.data(), sSize.data() + sSize.size(), nSize);
    const bool bNumber = read.ec == std::errc() && read.ptr == sSize.data() + sSize.size();
    if (!bNumber || nSize > rsRest.size()) {
        return std::nullopt;
    }
    std::string sPart(rsRest.substr(0, nSize));
    rsRest.remove_prefix(nSize);
    return sPart;
}

std::string HeadOf(const TVersion& rVersion, std::string_view sBody)
{
    return std::string(kHead) + "\n" + rVersion.sName + "\n" + rVersion.sDate + "\n" +
           std::to_string(CheckSum(sBody)) + "\n";
}

} // namespace

std::string gPackCatalogue(const TVersion& rVersion, const TCatalogueListings& rListings)
{
    std::string sBody;
    Append(rListings.sTables, sBody);
    for (const TBareListing& rBare : rListings.bares) {
        Append(rBare.sClass, sBody);
        Append(rBare.sShow, sBody);
        Append(rBare.sShowMod, sBody);
    }
    return HeadOf(rVersion, sBody) + sBody;
}

std::optional<TCatalogueListings> gUnpackCatalogue(const TVersion& rVersion,
                                                   std::string_view sBytes)
{
    std::string_view sBody = sBytes;
    for (int nLine = 0; nLine < 4; ++nLine) {
        gNextLine(sBody);
    }
    if (sBytes.substr(0, sBytes.size() - sBody.size()) != HeadOf(rVersion, sBody)) {
        return std::nullopt;
    }
    auto tables = Cut(sBody);
    if (!tables) {
        return std::nullopt;
    }
    TCatalogueListings listings{std::move(*tables), {}};
    while (!sBody.empty()) {
        auto name = Cut(sBody);
        auto show = Cut(sBody);
        auto showMod = Cut(sBody);
        if (!name || !show || !showMod) {
            return std::nullopt;
        }
        listings.bares.push_back({std::move(*name), std::move(*show), std::move(*showMod)});
    }
    return listings;
}

} // namespace quorvawiz::ngspice
