#include "cli/Output.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <stdexcept>

namespace quorvawiz::cli
{
namespace
{
std::size_t CountCharacters(std::string_view sUtf8)
{
    return static_cast<std::size_t>(std::ranges::count_if(
        sUtf8, [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}
} // namespace

void gWriteOut(std::string_view sText)
{
    if (std::fwrite(sText.data(), 1, sText.size(), stdout) != sText.size() ||
        std::fflush(stdout) != 0)
        throw std::runtime_error("can't write to the standard output");
}

void gComplain(std::string_view sText)
{
    gWriteError("quorvawiz: " + std::string(sText));
}

void gWriteError(std::string_view sText)
{
    const std::string sLine = std::string(sText) + '\n';
    std::fwrite(sLine.data(), 1, sLine.size(), stderr);
}

std::string gAlignColumns(const std::vector<std::vector<std::string>>& rRows)
{
    std::vector<std::size_t> widths;
    for (const auto& rRow : rRows) {
        widths.resize(std::max(widths.size(), rRow.size()));
        for (std::size_t n = 0; n < rRow.size(); ++n)
            widths[n] = std::max(widths[n], CountCharacters(rRow[n]));
    }
    std::string sText;
    for (const auto& rRow : rRows) {
        std::size_t nPending = 0;
        for (std::size_t n = 0; n < rRow.size(); ++n) {
            if (!rRow[n].empty()) {
                sText.append(nPending, ' ');
                sText += rRow[n];
                nPending = 0;
            }
            nPending += widths[n] - CountCharacters(rRow[n]) + 2;
        }
        sText += '\n';
    }
    return sText;
}

} // namespace quorvawiz::cli
