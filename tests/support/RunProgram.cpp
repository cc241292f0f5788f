#include "support/RunProgram.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <memory>
#include <ostream>
#include <stdexcept>

namespace
{
/// A file without a name. Files rather than pipes: neither side can wait for the other.
class CTemporaryFile
{
public:
    CTemporaryFile() : mpFile(std::tmpfile(), &std::fclose)
    {
        if (!mpFile)
            throw std::runtime_error("can't create a temporary file");
    }

    int Handle() const { return fileno(mpFile.get()); }

    void Write(const std::string& rsText)
    {
        if (std::fwrite(rsText.data(), 1, rsText.size(), mpFile.get()) != rsText.size())
            throw std::runtime_error("can't write a temporary file");
        std::rewind(mpFile.get());
    }

    std::string Read()
    {
        std::rewind(mpFile.get());
        std::string sText;
        char buffer[4096];
        for (std::size_t n = 0; (n = std::fread(buffer, 1, sizeof buffer, mpFile.get())) > 0;)
            sText.append(buffer, n);
        return sText;
    }

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> mpFile;
};
} // namespace

void PrintTo(const TProgramRun& rRun, std::ostream* pOut)
{
    *pOut << "exit code " << rRun.nExitCode << "\nstandard output:\n"
          << rRun.sOut << "\nstandard error:\n"
          << rRun.sError;
}

TProgramRun gRunProgram(const std::string& rsProgram, const std::vector<std::string>& rArguments,
                        const std::string& rsInput)
{
    CTemporaryFile in;
    CTemporaryFile out;
    CTemporaryFile error;
    in.Write(rsInput);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, in.Handle(), STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, out.Handle(), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, error.Handle(), STDERR_FILENO);

    std::string sProgram = rsProgram;
    std::vector<std::string> words = rArguments;
    std::vector<char*> argv{sProgram.data()};
    for (std::string& rsWord : words)
        argv.push_back(rsWord.data());
    argv.push_back(nullptr);

    pid_t child = 0;
    const int nFailed =
        posix_spawnp(&child, sProgram.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    int nStatus = 0;
    if (nFailed != 0 || waitpid(child, &nStatus, 0) != child)
        throw std::runtime_error("can't run " + sProgram);
    return {out.Read(), error.Read(), WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1};
}

TProgramRun gRunQuorvawiz(const std::vector<std::string>& rArguments, const std::string& rsInput)
{
    return gRunProgram(QUORVAWIZ_CLI_PATH, rArguments, rsInput);
}
