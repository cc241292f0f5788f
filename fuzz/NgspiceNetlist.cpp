// Any bytes as a netlist: no command of it is in the copy.

#include "simulators/ngspice/listings/Lines.h"
#include "simulators/ngspice/netlist/NetlistCopy.h"
#include "simulators/ngspice/process/ImportError.h"
#include "simulators/ngspice/process/PrivateFolder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize);

namespace
{

void Require(bool bHolds)
{
    if (!bHolds) {
        std::abort();
    }
}

/// What the simulator takes for a command, or for a way to another file, looked for in another way
/// than the importer's.
void CheckLine(std::string_view sLine)
{
    std::string sLower(sLine);
    std::ranges::transform(sLower, sLower.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    Require(!sLower.starts_with("*#") && !sLower.starts_with(".control") &&
            !sLower.starts_with('@'));
    Require(sLower.find('\r') == std::string::npos && sLower.find('\0') == std::string::npos);
    if (sLower.starts_with(".inc") || sLower.starts_with(".lib")) {
        // Names are of copies, of files that can't be there, or of sections.
        const std::size_t nSlash = sLower.find('/');
        const bool bOwn = sLower.starts_with(".include \"part") ||
                          sLower.starts_with(".lib \"part") ||
                          sLower.starts_with(".lib \"missing/");
        Require(bOwn || nSlash == std::string::npos);
    }
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    using namespace quorvawiz::ngspice;
    static const CPrivateFolder users;
    const CPrivateFolder folder;
    // Its own name is "a", so that it may refer to itself.
    users.Write("a", {reinterpret_cast<const char*>(pData), nSize});
    CNetlistCopy copy(folder);
    try {
        for (const std::string& rsCopy :
             {copy.Copy(users.GetPath() / "a"), folder.Read("part1.cir")}) {
            Require(rsCopy.empty() || rsCopy.ends_with('\n'));
            std::string_view sRest = rsCopy;
            while (!sRest.empty()) {
                CheckLine(gNextLine(sRest));
            }
        }
    } catch (const CImportError& rError) {
        Require(*rError.what() != '\0');
    }
    return 0;
}
