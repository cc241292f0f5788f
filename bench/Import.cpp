// The import of a netlist by the program against the simulator alone, which finds the same
// operating point and writes the same listings. Both are processor time of processes, so that other
// work on the machine counts little.

#include "simulators/ngspice/process/Commands.h"

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

namespace
{

/// A netlist of so many devices in a folder of its own, gone with it.
class CNetlist
{
public:
    explicit CNetlist(std::int64_t nDevices)
        : mFolder(std::filesystem::temp_directory_path() / "quorvawiz-bench-import")
    {
        std::filesystem::create_directories(mFolder);
        std::ofstream netlist(mFolder / "netlist.cir");
        netlist
            << "* bench\n.model nch nmos(level=1 vto=0.5)\n.model dd d(is=1e-15)\nvdd vdd 0 1\n";
        for (std::int64_t n = 0; n < nDevices / 4; ++n) {
            netlist << 'r' << n << " vdd n" << n << ' ' << 1000 + n << "\nd" << n << " n" << n
                    << " 0 dd\nm" << n << " n" << n << " n" << n << " 0 0 nch w=1u l=1u\nc" << n
                    << " n" << n << " 0 1p\n";
        }
        netlist << quorvawiz::ngspice::gListingCommands();
    }
    ~CNetlist()
    {
        std::error_code ignored;
        std::filesystem::remove_all(mFolder, ignored);
    }
    CNetlist(const CNetlist&) = delete;
    CNetlist& operator=(const CNetlist&) = delete;

    /// Runs a command of the shell in the folder. Result: seconds of processor time of all that it
    /// started.
    double Run(const std::string& rsCommand) const
    {
        const double dBefore = Seconds();
        const std::string sAll = "cd '" + mFolder.string() + "' && " + rsCommand + " > out 2>&1";
        if (std::system(sAll.c_str()) != 0) {
            throw std::runtime_error("this fails: " + sAll);
        }
        return Seconds() - dBefore;
    }

private:
    static double Seconds()
    {
        rusage usage{};
        ::getrusage(RUSAGE_CHILDREN, &usage);
        const auto seconds = [](const timeval& rTime) {
            return static_cast<double>(rTime.tv_sec) + 1e-6 * static_cast<double>(rTime.tv_usec);
        };
        return seconds(usage.ru_utime) + seconds(usage.ru_stime);
    }

    std::filesystem::path mFolder;
};

void BM_Import(benchmark::State& rState)
{
    const CNetlist netlist(rState.range(0));
    const std::string sImport = std::string("XDG_CACHE_HOME=. '") + QUORVAWIZ_CLI_PATH +
                                "' import netlist.cir -o out.params";
    const std::string sAlone = "ngspice -n -b netlist.cir < /dev/null";
    netlist.Run(sImport); // so that the simulator's classes are known
    double dOurs = 0;
    double dTheirs = 0;
    for ([[maybe_unused]] const auto turn : rState) {
        dOurs += netlist.Run(sImport);
        dTheirs += netlist.Run(sAlone);
    }
    const auto dTurns = static_cast<double>(rState.iterations());
    rState.counters["ours_ns"] = 1e9 * dOurs / dTurns;
    rState.counters["theirs_ns"] = 1e9 * dTheirs / dTurns;
    rState.counters["ratio"] = dOurs / dTheirs;
}
BENCHMARK(BM_Import)->Arg(100)->Arg(10'000)->Iterations(10)->Unit(benchmark::kMillisecond);

} // namespace
