#pragma once

#include <fstream>
#include <ios>
#include <iterator>
#include <stdexcept>
#include <string>

/// A listing that was recorded from the simulator, see recorded/netlist.cir.
/// @param rsName the file's name in the folder "recorded"
inline std::string gRecorded(const std::string& rsName)
{
    const std::string sPath = QUORVAWIZ_SOURCE_DIR "/tests/simulators/recorded/" + rsName;
    std::ifstream stream(sPath, std::ios::binary);
    if (!stream)
        throw std::runtime_error("can't read " + sPath);
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}
