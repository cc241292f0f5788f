// Path functions on any bytes, over a disk in memory. The first byte says the rules, the way of
// looking at the disk and how the two texts behind it, parted by a line feed, are read.

#include "foundation/Paths.h"

#include "platform/base/FileSystem.h"
#include "platform/base/IsWine.h"
#include "platform/base/MapEnvironment.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <memory>
#include <optional>
#include <string>
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

/// A disk in memory with two files and a folder, to which folders are added.
class CMemoryFileSystem final : public IFileSystem
{
public:
    std::optional<TFileAttributes> FindEntry(std::u16string_view sPath) override
    {
        const auto found = mEntries.find(KeyOf(sPath));
        return found == mEntries.end() ? std::nullopt : std::optional(found->second);
    }
    std::optional<TFileAttributes> GetAttributes(std::u16string_view sPath,
                                                 EFileError& reError) override
    {
        reError = EFileError::PathNotFound;
        return FindEntry(sPath);
    }
    std::optional<TFileAttributes> GetStatus(std::u16string_view sPath) override
    {
        return FindEntry(sPath);
    }
    bool Enumerate(std::u16string_view sFolder, const TVisit& rVisit) override
    {
        return sFolder.size() % 2 == 0 && rVisit(u".") && rVisit(sFolder);
    }
    bool CanAccess(std::u16string_view sPath) override { return mEntries.contains(KeyOf(sPath)); }
    bool MakeFolder(std::u16string_view sPath) override
    {
        return mEntries.try_emplace(KeyOf(sPath), TFileAttributes{.mbDirectory = true}).second;
    }
    std::u16string GetCurrentFolder() override { return u"/f"; }
    std::int64_t GetModificationTime(std::string_view) override { return 1; }
    std::u16string GetProgramFile() override { return u"/f/a"; }
    std::u16string GetModuleFile(const void*) override { return u"/f/a"; }

private:
    /// Both separators are one.
    static std::u16string KeyOf(std::u16string_view sPath)
    {
        std::u16string sKey(sPath);
        std::ranges::replace(sKey, u'\\', u'/');
        return sKey;
    }

    std::map<std::u16string, TFileAttributes> mEntries{
        {u"a", {}}, {u"/f/a", {}}, {u"/f", {.mbDirectory = true}}};
};

/// A result is stored as the same text is that comes from 16-bit units.
void RequireWellFormed(const CStringU& rText)
{
    Require(CStringU(rText.ToWide()).Stored() == rText.Stored());
}

/// A text made of 16-bit units ends at a zero, so that not all that is made of such a path holds.
bool HoldsZero(const CStringU& rText)
{
    return rText.ToWide().find(u'\0') != std::u16string::npos;
}

void TakeApart(const CStringU& rPath)
{
    RequireWellFormed(gGetFileNameWithoutPath(rPath));
    RequireWellFormed(gGetPathWithoutFileName(rPath));
    RequireWellFormed(gGetExtension(rPath));
    RequireWellFormed(gGetFileTitle(rPath));
    RequireWellFormed(gSetExtension(rPath, "e"));
    RequireWellFormed(gGetPathWithoutExtension(rPath));
    Require(gHasExtension(rPath) || gGetExtension(rPath).IsEmpty());
    Require(gEnsureExtension(rPath, gGetExtension(rPath)).Stored() == rPath.Stored());
    const CStringU ensured = gEnsureExtension(rPath, "e");
    Require(HoldsZero(rPath) || gGetExtension(ensured).CompareNoCase("e") == 0);
    std::ignore = gIsUnixStylePath(rPath);
    std::ignore = gToDosPath(rPath);
    std::ignore = gToUnixPath(rPath);
    for (const int nWidth : {0, 3, 8, 20}) {
        const CStringU shortened = gAbbreviatePath(rPath, nWidth, false);
        Require(static_cast<int>(shortened.ToWide().size()) <= nWidth);
        const CStringU kept = gAbbreviatePath(rPath, nWidth, true);
        RequireWellFormed(kept);
        Require(kept == shortened || kept == gGetFileNameWithoutPath(rPath));
    }
}

/// Looks a path up in one of the modes, and makes it.
void LookAtDisk(const CStringU& rPath, int nMode)
{
    gSetFileSystem(std::make_shared<CMemoryFileSystem>());
    gSetFileCheckMode(nMode);
    const bool bFile = gFileExists(rPath);
    Require(gGetFileCheckMode() == nMode);
    Require(!bFile || !gDirectoryExists(rPath));
    std::ignore = gIsDirectoryEmpty(rPath);
    gSetFileCheckMode(nMode);
    CStringU errors;
    if (gCreateDirectories(rPath, errors)) {
        Require(errors.IsEmpty());
        Require(HoldsZero(rPath) || gCreateDirectories(rPath, errors));
    }
    RequireWellFormed(errors);
    std::ignore = gGetFileTime(rPath);
    gSetFileCheckMode(0);
    gSetFileSystem(nullptr);
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
    const int nMode = (pData[0] >> 4U) % 6;
    LookAtDisk(first, nMode);
    LookAtDisk(canonical, nMode);
    RequireWellFormed(gConcatenatePaths(first, second));
    RequireWellFormed(gResolvePath(first, second));
    RequireWellFormed(gGetRelativeFileName(first, second));
    Require(gPathsEqual(first, first));
    gResetEnvironmentSource();
    return 0;
}
