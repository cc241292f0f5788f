// What a save does with its target, whatever that is.

#include "params/DamagedForms.h"
#include "support/TempFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace
{

/// A file of the system that the test has open.
class COpenFile
{
public:
    explicit COpenFile(int nHandle) : mnHandle(nHandle) { EXPECT_GE(nHandle, 0); }
    ~COpenFile() { ::close(mnHandle); }
    COpenFile(const COpenFile&) = delete;
    COpenFile& operator=(const COpenFile&) = delete;

    /// The link that the system makes to it.
    [[nodiscard]] std::string Link() const { return "/proc/self/fd/" + std::to_string(mnHandle); }
    /// What can be read of it now, from where it stands; the sample fits.
    [[nodiscard]] std::string Read() const
    {
        std::string sBytes(gSampleFile().size() + 100, '\0');
        const ssize_t nRead = ::read(mnHandle, sBytes.data(), sBytes.size());
        sBytes.resize(nRead > 0 ? static_cast<std::size_t>(nRead) : 0);
        return sBytes;
    }

private:
    int mnHandle;
};

void SaveSample(const CStringU& rsPath)
{
    TCircuitParams store;
    gFillSample(store);
    store.WriteThis(rsPath, "");
}

TEST(SavedFileTest, APipeIsWrittenThroughTheSystemsLinkToIt)
{
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe(ends.data()), 0);
    const COpenFile out(ends[0]);
    const COpenFile in(ends[1]);
    SaveSample(in.Link());
    EXPECT_EQ(out.Read(), gSampleFile());
}

TEST(SavedFileTest, APipeWithANameIsWrittenAndStays)
{
    const CTempFolder folder;
    const std::string sPath = folder.Path("pipe");
    ASSERT_EQ(::mkfifo(sPath.c_str(), 0600), 0);
    const COpenFile both(::open(sPath.c_str(), O_RDWR | O_CLOEXEC)); // so that no end waits
    SaveSample(sPath);
    EXPECT_EQ(both.Read(), gSampleFile());
    std::filesystem::create_symlink("pipe", folder.Path("link"));
    SaveSample(folder.Path("link"));
    EXPECT_EQ(both.Read(), gSampleFile());
    EXPECT_TRUE(std::filesystem::is_fifo(sPath));
}

TEST(SavedFileTest, AnOpenFileThatIsDeletedIsWrittenItself)
{
    const CTempFolder folder;
    const std::string sPath = folder.Write("p", std::string(5'000, 'x')); // longer than the sample
    const COpenFile file(::open(sPath.c_str(), O_RDONLY | O_CLOEXEC));
    std::filesystem::remove(sPath);
    folder.Write("p (deleted)", "another"); // which is how the link's text reads
    SaveSample(file.Link());
    EXPECT_EQ(file.Read(), gSampleFile());
    EXPECT_EQ(folder.Read("p (deleted)"), "another");
    EXPECT_FALSE(std::filesystem::exists(sPath));
}

TEST(SavedFileTest, AnOpenFileThatHasItsNameIsReplaced)
{
    const CTempFolder folder;
    const std::string sPath = folder.Write("p", "old");
    const COpenFile file(::open(sPath.c_str(), O_RDONLY | O_CLOEXEC));
    SaveSample(file.Link());
    EXPECT_EQ(folder.Read("p"), gSampleFile());
    EXPECT_EQ(file.Read(), "old"); // whoever has it open keeps the old one whole
}

/// Writes until the system kills this process, at the hundredth byte.
void SaveAndBeKilled(const std::string& rsPath)
{
    std::signal(SIGXFSZ, SIG_DFL);
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
    const rlimit few{100, 100};
    ::setrlimit(RLIMIT_FSIZE, &few);
    SaveSample(rsPath);
    std::_Exit(0);
}

TEST(SavedFileTest, AKilledProcessLeavesTheOldFileWhole)
{
    const CTempFolder folder;
    const std::string sPath = folder.Write("p", "old");
    EXPECT_EXIT(SaveAndBeKilled(sPath), testing::KilledBySignal(SIGXFSZ), "");
    EXPECT_EQ(folder.Read("p"), "old");
    bool bHalf = false; // it was killed in the middle, not before it wrote anything
    for (const auto& rEntry : std::filesystem::directory_iterator(folder.Path(""))) {
        bHalf = bHalf || rEntry.file_size() == 100;
    }
    EXPECT_TRUE(bHalf);
    SaveSample(sPath);
    EXPECT_EQ(folder.Read("p"), gSampleFile());
}

} // namespace
