// Feeds a fuzz target the files it is given, so that its seeds run as a plain test on any compiler.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <ios>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

/// The fuzz target's entry: takes nSize bytes at pData, returns 0; any defect ends the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

namespace
{

// Sorted, so that a failure names the same file on every machine.
std::vector<std::filesystem::path> gCollectFiles(const std::filesystem::path& rStart)
{
    if (!std::filesystem::is_directory(rStart))
        return {rStart};
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(rStart)) {
        if (entry.is_regular_file())
            files.push_back(entry.path());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string gReadBytes(const std::filesystem::path& rFile)
{
    std::ifstream stream(rFile, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (!stream.is_open() || stream.bad())
        throw std::runtime_error("cannot read " + rFile.string());
    return bytes;
}

std::size_t gReplay(const std::filesystem::path& rStart)
{
    const auto files = gCollectFiles(rStart);
    for (const auto& file : files) {
        const std::string bytes = gReadBytes(file);
        // Printed first and flushed: a target that crashes leaves its input's name as the last
        // line.
        std::printf("%s\n", file.c_str());
        std::fflush(stdout);
        // A copy of exactly this size, so that the sanitizer sees a read one past the end.
        const std::vector<std::uint8_t> input(bytes.begin(), bytes.end());
        if (LLVMFuzzerTestOneInput(input.data(), input.size()) != 0)
            throw std::runtime_error("the target refused " + file.string());
    }
    return files.size();
}

} // namespace

int main(int nCount, char** ppArguments)
{
    try {
        std::size_t replayed = 0;
        for (int i = 1; i < nCount; ++i)
            replayed += gReplay(ppArguments[i]);
        std::printf("%zu inputs replayed\n", replayed);
        if (replayed == 0) {
            std::fputs("no inputs: give files, or folders that hold some\n", stderr);
            return 1;
        }
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
