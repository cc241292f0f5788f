#pragma once

#include "foundation/FormatScopes.h"
#include "foundation/Paths.h"
#include "platform/base/FileSystem.h"
#include "platform/base/MapEnvironment.h"
#include "platform/base/NamedExports.h"

#include <filesystem>
#include <memory>
#include <string>
#include <utility>

/// Gives path functions only these variables for a scope.
class CEnvironmentScope
{
public:
    explicit CEnvironmentScope(CMapEnvironment::TVariables variables)
    {
        gSetEnvironmentSource(std::make_shared<CMapEnvironment>(std::move(variables)));
    }
    CEnvironmentScope(const CEnvironmentScope&) = delete;
    CEnvironmentScope& operator=(const CEnvironmentScope&) = delete;
    ~CEnvironmentScope() { gResetEnvironmentSource(); }
};

/// Puts everything that paths keep for the process back to the start at the end of a scope.
class CPathStateScope
{
public:
    CPathStateScope() = default;
    CPathStateScope(const CPathStateScope&) = delete;
    CPathStateScope& operator=(const CPathStateScope&) = delete;
    ~CPathStateScope()
    {
        gClearPathLogger();
        gSetFileCheckMode(0);
        gResetDocumentsFolder();
        gSetFileSystem(nullptr);
        gSetNamedExports(nullptr);
    }
};

/// An empty folder on the disk that goes with the scope.
class CTemporaryFolder
{
public:
    CTemporaryFolder()
    {
        std::string sTemplate = (std::filesystem::temp_directory_path() / "paths-XXXXXX").string();
        mPath = ::mkdtemp(sTemplate.data());
    }
    CTemporaryFolder(const CTemporaryFolder&) = delete;
    CTemporaryFolder& operator=(const CTemporaryFolder&) = delete;
    ~CTemporaryFolder() { std::filesystem::remove_all(mPath); }

    [[nodiscard]] std::string Name(const std::string& rsEntry) const
    {
        return (mPath / rsEntry).string();
    }
    [[nodiscard]] const std::filesystem::path& Path() const { return mPath; }

private:
    std::filesystem::path mPath;
};
