// Path functions on any bytes. The first byte says the rules and how the two texts behind it,
// parted by a line feed, are read.

#include "foundation/Paths.h"

#include "platform/base/IsWine.h"
#include "platform/base/MapEnvironment.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <tuple>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

namespace
{
void Require(bool bHolds)
{
    if (!bHolds)
        std::abort();
}

/// A result is stored as the same text is that comes from 16-bit units.
void RequireWellFormed(const CStringU& rText)
{
    Require(CStringU(rText.ToWide()).Stored() == rText.Stored());
}

void TakeApart(const CStringU& rPath)
{
    RequireWellFormed(gGetFileNameWithoutPath(rPath));
    RequireWellFormed(gGetPathWithoutFileName(rPath));
    RequireWellFormed(gGetExtension(rPath));
    RequireWellFormed(gGetFileTitle(rPath));
    RequireWellFormed(gSetExtension(rPath, "e"));
    RequireWellFormed(gGetPathWithoutExtension(rPath));
    std::ignore = gIsUnixStylePath(rPath);
    std::ignore = gToDosPath(rPath);
    std::ignore = gToUnixPath(rPath);
    for (const int nWidth : {0, 3, 8, 20}) {
        const CStringU shortened = gAbbreviatePath(rPath, nWidth, false);
        Require(static_cast<int>(shortened.ToWide().size()) <= nWidth);
    }
}
} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    if (nSize == 0)
        return 0;
    gSetEnvironmentSource(std::make_shared<CMapEnvironment>(CMapEnvironment::TVariables{
        {"X", "x"}, {"A", "/a"}, {"S", "$S\\$R"}, {"R", "%S%"}, {"D", "D:\\d\\..\\$X"}}));
    gSetIsWine((pData[0] & 1U) != 0);
    const auto kind = static_cast<TTextKind>((pData[0] >> 1U) % 5);
    const std::string_view bytes(reinterpret_cast<const char*>(pData) + 1, nSize - 1);
    const std::size_t nEnd = bytes.find('\n');
    const CStringU first(bytes.substr(0, nEnd), kind);
    const CStringU second(nEnd == bytes.npos ? "" : bytes.substr(nEnd + 1), kind);

    const CStringU canonical = gCanonicalizePath(first);
    RequireWellFormed(canonical);
    std::ignore = gIsAbsolutePath(first);
    TakeApart(first);
    TakeApart(canonical);
    RequireWellFormed(gConcatenatePaths(first, second));
    RequireWellFormed(gResolvePath(first, second));
    RequireWellFormed(gGetRelativeFileName(first, second));
    Require(gPathsEqual(first, first));
    gResetEnvironmentSource();
    return 0;
}
