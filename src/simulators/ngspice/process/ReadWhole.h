#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace quorvawiz::ngspice
{

/// Reads a regular file.
/// @param rPath the file; pipes and devices, which might never end, are refused
/// @param nMost so many bytes are read at most
/// @return its bytes; nullopt if it isn't a regular file, is longer, or can't be read
[[nodiscard]] std::optional<std::string> gReadWhole(const std::filesystem::path& rPath,
                                                    std::uint64_t nMost);

} // namespace quorvawiz::ngspice
