#include <fcntl.h>
#include <gtest/gtest.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <stdexcept>
#include <string>

// A program that talks to the session waits for each reply before it sends the next request.

namespace
{
/// The session with both ends of its pipes.
class CDialogue
{
public:
    CDialogue()
    {
        int in[2];
        int out[2];
        // The child has to inherit its own ends only, or it never sees the end of its input.
        if (pipe2(in, O_CLOEXEC) != 0 || pipe2(out, O_CLOEXEC) != 0)
            throw std::runtime_error("can't create pipes");
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, in[0], STDIN_FILENO);
        posix_spawn_file_actions_adddup2(&actions, out[1], STDOUT_FILENO);
        std::string sProgram = QUORVAWIZ_CLI_PATH;
        std::string sCommand = "session";
        char* argv[] = {sProgram.data(), sCommand.data(), nullptr};
        const int nFailed =
            posix_spawn(&mChild, sProgram.c_str(), &actions, nullptr, argv, environ);
        posix_spawn_file_actions_destroy(&actions);
        close(in[0]);
        close(out[1]);
        mpRequests = fdopen(in[1], "w");
        mpReplies = fdopen(out[0], "r");
        if (nFailed != 0 || !mpRequests || !mpReplies)
            throw std::runtime_error("can't run the session");
    }
    CDialogue(const CDialogue&) = delete;
    CDialogue& operator=(const CDialogue&) = delete;

    /// Sends a line and waits for its reply.
    std::string Ask(const std::string& rsRequest)
    {
        std::fputs((rsRequest + '\n').c_str(), mpRequests);
        std::fflush(mpRequests);
        std::string sReply;
        for (int c = 0; (c = std::getc(mpReplies)) != EOF && c != '\n';)
            sReply += static_cast<char>(c);
        return sReply;
    }

    /// Ends the input. Result: the exit code.
    int End()
    {
        std::fclose(mpRequests);
        const bool bSilent = std::getc(mpReplies) == EOF;
        std::fclose(mpReplies);
        int nStatus = 0;
        waitpid(mChild, &nStatus, 0);
        return bSilent && WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1;
    }

private:
    pid_t mChild = 0;
    std::FILE* mpRequests = nullptr;
    std::FILE* mpReplies = nullptr;
};

TEST(Dialogue, EachReplyComesBeforeTheNextRequest)
{
    CDialogue session;
    EXPECT_NE(session.Ask(R"({"op":"open","page":"Settings/Temperature"})")
                  .find(R"("page":"Settings/Temperature")"),
              std::string::npos);
    EXPECT_NE(session.Ask(R"({"op":"set","field":"temperature-list","text":"27"})")
                  .find(R"("text":"27")"),
              std::string::npos);
    EXPECT_NE(session.Ask(R"({"op":"insert"})").find(R"("inserted":[".temp 27"])"),
              std::string::npos);
    EXPECT_NE(session.Ask(R"({"op":"key","key":"escape"})").find(R"("page":null)"),
              std::string::npos);
    EXPECT_NE(session.Ask(R"({"op":"reopen"})").find(R"("page":"Analysis")"), std::string::npos);
    EXPECT_EQ(session.End(), 0);
}
} // namespace
