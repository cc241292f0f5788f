#pragma once

#include "platform/base/FileSystem.h"

/// The files of a POSIX system. Names are UTF-8 on the disk, and both separators are one.
class CPosixFileSystem final : public IFileSystem
{
public:
    [[nodiscard]] std::optional<TFileAttributes> FindEntry(std::u16string_view sPath) override;
    [[nodiscard]] std::optional<TFileAttributes> GetAttributes(std::u16string_view sPath,
                                                               EFileError& reError) override;
    [[nodiscard]] std::optional<TFileAttributes> GetStatus(std::u16string_view sPath) override;
    bool Enumerate(std::u16string_view sFolder, const TVisit& rVisit) override;
    [[nodiscard]] bool CanAccess(std::u16string_view sPath) override;
    bool MakeFolder(std::u16string_view sPath) override;
    [[nodiscard]] std::u16string GetCurrentFolder() override;
    bool SetCurrentFolder(std::u16string_view sFolder) override;
    [[nodiscard]] std::int64_t GetModificationTime(std::string_view sName) override;
    [[nodiscard]] std::u16string GetProgramFile() override;
    [[nodiscard]] std::u16string GetModuleFile(const void* pAddress) override;
};
