#include "simulators/ngspice/process/Simulator.h"

#include "platform/base/Environment.h"
#include "simulators/ngspice/listings/OwnWords.h"
#include "simulators/ngspice/process/ChildProcess.h"
#include "simulators/ngspice/process/ImportError.h"
#include "simulators/ngspice/process/PrivateFolder.h"

#include <unistd.h>

#include <csignal>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

constexpr const char* kOut = "stdout.txt";
constexpr const char* kError = "stderr.txt";

bool IsProgram(const std::filesystem::path& rPath)
{
    std::error_code ignored;
    return std::filesystem::is_regular_file(rPath, ignored) && ::access(rPath.c_str(), X_OK) == 0;
}

std::string FindProgram(const std::string& rsProgram)
{
    if (rsProgram.find('/') != std::string::npos) {
        std::error_code ignored;
        return IsProgram(rsProgram) ? std::filesystem::absolute(rsProgram, ignored).string()
                                    : std::string();
    }
    const std::string sFolders = gGetEnvironment("PATH").value_or("/usr/bin:/bin");
    std::string_view sRest = sFolders;
    while (!sRest.empty()) {
        const std::size_t nEnd = sRest.find(':');
        const std::filesystem::path folder(sRest.substr(0, nEnd));
        sRest.remove_prefix(nEnd == std::string_view::npos ? sRest.size() : nEnd + 1);
        if (folder.is_absolute() && IsProgram(folder / rsProgram)) {
            return (folder / rsProgram).string();
        }
    }
    return {};
}

/// What a simulator needs of the user's environment, and where it finds files of data. Its home is
/// the private folder, so that it finds no start-up file.
std::vector<std::string> MakeEnvironment(const std::filesystem::path& rFolder,
                                         const std::filesystem::path& rInputFolder)
{
    std::vector<std::string> environment{"LC_ALL=C", "HOME=" + rFolder.string(),
                                         "TMPDIR=" + rFolder.string(),
                                         "NGSPICE_INPUT_DIR=" + rInputFolder.string()};
    for (const char* const pName :
         {"PATH", "LD_LIBRARY_PATH", "SPICE_LIB_DIR", "SPICE_SCRIPTS", "OMP_NUM_THREADS"}) {
        if (const auto value = gGetEnvironment(pName)) {
            environment.push_back(std::string(pName) + "=" + *value);
        }
    }
    return environment;
}

std::string TellSeconds(std::chrono::milliseconds time)
{
    const auto nSeconds = std::chrono::duration_cast<std::chrono::seconds>(time).count();
    return nSeconds > 0 ? std::to_string(nSeconds) + " s" : std::to_string(time.count()) + " ms";
}

} // namespace

CSimulator::CSimulator(const std::string& rsProgram, std::chrono::milliseconds timeout,
                       std::stop_token stop)
    : msProgram(FindProgram(rsProgram)), mTimeout(timeout),
      mDeadline(std::chrono::steady_clock::now() + timeout), mStop(std::move(stop))
{
    if (msProgram.empty()) {
        throw CImportError("there is no simulator '" + rsProgram +
                           "'; on Debian the package ngspice has it");
    }
}

std::string CSimulator::Run(const CPrivateFolder& rFolder, const std::string& rsFile,
                            const std::filesystem::path& rInputFolder) const
{
    TChildRequest request;
    request.sProgram = msProgram;
    request.arguments = {"-n", "-b", rsFile};
    request.environment = MakeEnvironment(rFolder.GetPath(), rInputFolder);
    request.folder = rFolder.GetPath();
    request.sOut = kOut;
    request.sError = kError;
    request.deadline = mDeadline;
    const TChildResult result = gRunChild(request, mStop);
    const auto failed = [&rFolder](const std::string& rsHow) { return rsHow + ReadWords(rFolder); };
    switch (result.eEnd) {
    case EChildEnd::Exited:
        return result.nCode == 0
                   ? std::string()
                   : failed("it ended with exit code " + std::to_string(result.nCode));
    case EChildEnd::Killed:
        return failed(result.nCode == SIGXFSZ
                          ? "it wrote too much"
                          : "it crashed with signal " + std::to_string(result.nCode));
    case EChildEnd::TimedOut:
        throw CImportError("the simulator took longer than " + TellSeconds(mTimeout));
    case EChildEnd::Cancelled:
        break;
    }
    throw CImportCancelled();
}

std::string CSimulator::ReadWords(const CPrivateFolder& rFolder)
{
    return gOwnWords(rFolder.Read(kError), rFolder.Read(kOut));
}

bool CSimulator::WasAborted(const CPrivateFolder& rFolder)
{
    return rFolder.Read(kError).find("simulation(s) aborted") != std::string::npos;
}

} // namespace quorvawiz::ngspice
