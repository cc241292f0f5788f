#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>

/// The rules for paths written down a second time, slowly and step by step, for tests that compare.
/// All follow gIsWine.
class CPathModel
{
public:
    /// Variables by name.
    using TVariables = std::map<std::u16string, std::u16string>;

    /// @param variables the environment
    explicit CPathModel(TVariables variables) : mVariables(std::move(variables)) {}

    /// As gCanonicalizePath.
    [[nodiscard]] std::u16string Canonical(const std::u16string& rsPath) const
    {
        return Canonical(rsPath, {});
    }

    /// As gIsAbsolutePath.
    [[nodiscard]] bool IsAbsolute(const std::u16string& rsPath) const
    {
        return IsAbsolute(rsPath, {});
    }

    /// As gConcatenatePaths.
    [[nodiscard]] std::u16string Join(const std::u16string& rsPath,
                                      const std::u16string& rsRelative) const;

    /// As gResolvePath.
    [[nodiscard]] std::u16string Resolve(const std::u16string& rsBase,
                                         const std::u16string& rsPath) const;

    /// As gGetRelativeFileName.
    [[nodiscard]] std::u16string Relative(const std::u16string& rsFolder,
                                          const std::u16string& rsFile) const;

    /// As gIsUnixStylePath.
    [[nodiscard]] static bool IsUnixStyle(const std::u16string& rsPath);

    /// As gAbbreviatePath.
    [[nodiscard]] static std::u16string Abbreviate(const std::u16string& rsPath, std::size_t nWidth,
                                                   bool bKeepName);

private:
    /// The names whose values are being looked at, each with a comma in front and behind.
    using TNames = std::u16string;

    std::u16string Canonical(const std::u16string& rsPath, const TNames& rNames) const;
    bool IsAbsolute(const std::u16string& rsPath, const TNames& rNames) const;
    std::u16string Expand(std::u16string sText, const TNames& rNames) const;

    TVariables mVariables;
};
