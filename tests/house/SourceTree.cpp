#include "house/SourceTree.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ios>
#include <iterator>
#include <stdexcept>

namespace quorvawiz::house
{
namespace
{

const std::filesystem::path kRoot = QUORVAWIZ_SOURCE_DIR;

TSourceFile gReadFile(const std::filesystem::path& rPath)
{
    std::ifstream stream(rPath, std::ios::binary);
    std::string text{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream.is_open() || stream.bad())
        throw std::runtime_error("cannot read " + rPath.string());
    return {rPath.lexically_relative(kRoot).generic_string(), std::move(text)};
}

void gSortByPath(std::vector<TSourceFile>& rFiles)
{
    std::sort(rFiles.begin(), rFiles.end(),
              [](const TSourceFile& rLeft, const TSourceFile& rRight) {
                  return rLeft.msPath < rRight.msPath;
              });
}

} // namespace

std::vector<TSourceFile> gReadFolders(const std::vector<std::string>& rFolders)
{
    std::vector<TSourceFile> files;
    for (const auto& folder : rFolders) {
        if (!std::filesystem::is_directory(kRoot / folder))
            continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(kRoot / folder)) {
            if (entry.is_regular_file())
                files.push_back(gReadFile(entry.path()));
        }
    }
    gSortByPath(files);
    return files;
}

std::vector<TSourceFile> gReadRootFiles()
{
    std::vector<TSourceFile> files;
    for (const auto& entry : std::filesystem::directory_iterator(kRoot)) {
        if (entry.is_regular_file())
            files.push_back(gReadFile(entry.path()));
    }
    gSortByPath(files);
    return files;
}

std::set<std::string> gPathsOf(const std::vector<TSourceFile>& rFiles)
{
    std::set<std::string> paths;
    for (const auto& file : rFiles)
        paths.insert(file.msPath);
    return paths;
}

std::vector<std::string> gSplitLines(const std::string& rText)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < rText.size();) {
        const std::size_t end = std::min(rText.find('\n', start), rText.size());
        lines.push_back(rText.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

bool gIsHeader(const std::string& rPath)
{
    return rPath.ends_with(".h");
}

bool gIsCode(const std::string& rPath)
{
    return gIsHeader(rPath) || rPath.ends_with(".cpp");
}

} // namespace quorvawiz::house
