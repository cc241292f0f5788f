// Cleaning a path, against the standard library. One turn is the paths of the list, a hundred
// times.

#include "foundation/Paths.h"

#include "Ratio.h"
#include "platform/base/IsWine.h"
#include "platform/base/MapEnvironment.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
const std::vector<std::string>& Texts()
{
    static const std::vector<std::string> sTexts{
        "/usr/local/lib/../share/quorva/./models/opamp.lib",
        "models/../../library/mos/bsim4.mod",
        "/home/user/projects/amplifier/netlists/stage1.cir",
        "a/b/c",
        "../../include/parameters.inc",
        "/srv/designs//power//converter/../inverter/bridge.sub",
    };
    return sTexts;
}

void BM_Canonicalize(benchmark::State& rState)
{
    gSetIsWine(true);
    gSetEnvironmentSource(std::make_shared<CMapEnvironment>());
    std::vector<CStringU> ours;
    std::vector<std::filesystem::path> theirs;
    for (const std::string& rsText : Texts()) {
        ours.emplace_back(rsText);
        theirs.emplace_back(rsText);
        if (gCanonicalizePath(ours.back()).Text() != theirs.back().lexically_normal().native())
            throw std::runtime_error("the two disagree on " + rsText);
    }
    const auto cleanOurs = [&ours] {
        int nLength = 0;
        for (const CStringU& rPath : ours)
            nLength += gCanonicalizePath(rPath).GetByteLength();
        return nLength;
    };
    const auto cleanTheirs = [&theirs] {
        std::size_t nLength = 0;
        for (const std::filesystem::path& rPath : theirs)
            nLength += rPath.lexically_normal().native().size();
        return nLength;
    };
    gRunBoth(rState, gRepeated(cleanOurs), gRepeated(cleanTheirs));
}
BENCHMARK(BM_Canonicalize);
} // namespace
