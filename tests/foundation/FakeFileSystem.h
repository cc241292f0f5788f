#pragma once

#include "platform/base/CodePage.h"
#include "platform/base/FileSystem.h"
#include "platform/base/SystemError.h"

#include <map>
#include <string>
#include <vector>

/// A disk in memory that keeps what it was asked.
class CFakeFileSystem final : public IFileSystem
{
public:
    std::map<std::u16string, TFileAttributes> mEntries;
    std::map<std::u16string, std::vector<std::u16string>> mFolders; ///< what is enumerated
    bool mbEnumerationBreaks = false;                               ///< behind what is enumerated
    EFileError meError = EFileError::FileNotFound;                  ///< for a missing path
    int mnMakeError = 0;                                            ///< for a folder to be made
    std::u16string msCurrentFolder;
    std::u16string msProgramFile;
    std::u16string msModuleFile;
    std::vector<std::string> mCalls; ///< "find PATH" and so on, in UTF-8

    std::optional<TFileAttributes> FindEntry(std::u16string_view sPath) override
    {
        return LookUp("find ", sPath);
    }

    std::optional<TFileAttributes> GetAttributes(std::u16string_view sPath,
                                                 EFileError& reError) override
    {
        reError = meError;
        return LookUp("attributes ", sPath);
    }

    std::optional<TFileAttributes> GetStatus(std::u16string_view sPath) override
    {
        return LookUp("status ", sPath);
    }

    bool Enumerate(std::u16string_view sFolder, const TVisit& rVisit) override
    {
        Note("enumerate ", sFolder);
        const auto found = mFolders.find(std::u16string(sFolder));
        if (found == mFolders.end()) {
            return false;
        }
        for (const std::u16string& rsName : found->second) {
            if (!rVisit(rsName)) {
                break;
            }
        }
        return !mbEnumerationBreaks;
    }

    bool CanAccess(std::u16string_view sPath) override
    {
        return mEntries.contains(std::u16string(sPath));
    }

    bool MakeFolder(std::u16string_view sPath) override
    {
        Note("make ", sPath);
        if (mnMakeError != 0) {
            gSetLastError(mnMakeError);
            return false;
        }
        mEntries[std::u16string(sPath)] = {.mbDirectory = true};
        return true;
    }

    std::u16string GetCurrentFolder() override { return msCurrentFolder; }

    bool SetCurrentFolder(std::u16string_view sFolder) override
    {
        msCurrentFolder = sFolder;
        return true;
    }

    std::int64_t GetModificationTime(std::string_view sName) override
    {
        mCalls.push_back("time " + std::string(sName));
        return 1234;
    }

    std::u16string GetProgramFile() override { return msProgramFile; }

    std::u16string GetModuleFile(const void*) override { return msModuleFile; }

private:
    void Note(const char* pCall, std::u16string_view sPath)
    {
        mCalls.push_back(pCall + gWideToMultiByte(sPath, kCodePageUtf8));
    }

    std::optional<TFileAttributes> LookUp(const char* pCall, std::u16string_view sPath)
    {
        Note(pCall, sPath);
        const auto found = mEntries.find(std::u16string(sPath));
        return found == mEntries.end() ? std::nullopt : std::optional(found->second);
    }
};
