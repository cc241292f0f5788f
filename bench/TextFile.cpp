// 100 MB of a netlist by lines, against the standard streams on the same file.

#include "foundation/TextFile.h"

#include "Ratio.h"
#include "platform/base/CodePage.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <ios>
#include <stdexcept>
#include <string>

namespace
{

constexpr std::size_t kFileSize = 100'000'000;
constexpr unsigned kCreate = CFile::modeCreate | CFile::modeWrite;

/// Lines as a netlist has them; every eighth one has a character that isn't ASCII.
CStringU LineOf(std::size_t nLine)
{
    CStringU sLine;
    sLine.Format("R%zu node_%zu node_%zu 4.7k tc1=0.001 ; feedback path of the amplifier%s", nLine,
                 nLine * 7 % 1000, nLine * 13 % 1000, nLine % 8 == 0 ? " \xC2\xB5" : "");
    return sLine;
}

/// A file of 100 MB in the temporary folder, gone with it.
class CBigFile
{
public:
    explicit CBigFile(TTextEncoding encoding)
        : msPath((std::filesystem::temp_directory_path() / "quorvawiz-bench.txt").string())
    {
        TTextFile file;
        if (!file.Open(CStringU(msPath), encoding, kCreate, nullptr)) {
            throw std::runtime_error("can't make the file");
        }
        for (std::size_t nLine = 0; file.GetPosition() < kFileSize; ++nLine) {
            file << LineOf(nLine) << "\n";
        }
    }
    ~CBigFile()
    {
        std::error_code ignored;
        std::filesystem::remove(msPath, ignored);
    }
    CBigFile(const CBigFile&) = delete;
    CBigFile& operator=(const CBigFile&) = delete;

    const std::string& Path() const { return msPath; }

private:
    std::string msPath;
};

void ReadBoth(benchmark::State& rState, TTextEncoding encoding)
{
    const CBigFile big(encoding);
    gRunBoth(
        rState,
        [&] {
            TTextFile file;
            file.Open(CStringU(big.Path()), encoding, CFile::modeRead, nullptr);
            std::size_t nLines = 0;
            CStringU sLine;
            while (file.ReadLine(sLine)) {
                nLines += sLine.GetByteLength() > 0 ? 1 : 0;
            }
            return nLines;
        },
        [&] {
            std::ifstream stream(big.Path());
            std::size_t nLines = 0;
            std::string sLine;
            while (std::getline(stream, sLine)) {
                nLines += sLine.empty() ? 0 : 1;
            }
            return nLines;
        });
}

void BM_ReadUtf8(benchmark::State& rState)
{
    ReadBoth(rState, EncodingUtf8);
}
BENCHMARK(BM_ReadUtf8)->Iterations(5)->Unit(benchmark::kMillisecond);

void BM_ReadWindows1252(benchmark::State& rState)
{
    gSetSystemCodePage(kCodePageWindows1252);
    ReadBoth(rState, EncodingAnsi);
    gSetSystemCodePage(kCodePageUtf8);
}
BENCHMARK(BM_ReadWindows1252)->Iterations(5)->Unit(benchmark::kMillisecond);

void BM_ReadSystemUtf8(benchmark::State& rState)
{
    ReadBoth(rState, EncodingAnsi);
}
BENCHMARK(BM_ReadSystemUtf8)->Iterations(5)->Unit(benchmark::kMillisecond);

void BM_Write(benchmark::State& rState)
{
    const std::string sPath =
        (std::filesystem::temp_directory_path() / "quorvawiz-bench.out").string();
    CStringU lines[8];
    for (std::size_t i = 0; i < 8; ++i) {
        lines[i] = LineOf(i);
    }
    constexpr std::size_t linesToWrite = kFileSize / 75;
    gRunBoth(
        rState,
        [&] {
            TTextFile file;
            file.Open(CStringU(sPath), EncodingUtf8, kCreate, nullptr);
            for (std::size_t i = 0; i < linesToWrite; ++i) {
                file << lines[i % 8] << "\n";
            }
            return file.GetLength();
        },
        [&] {
            std::ofstream stream(sPath, std::ios::binary);
            for (std::size_t i = 0; i < linesToWrite; ++i) {
                stream << lines[i % 8].Text() << "\r\n";
            }
            return stream.tellp();
        });
    std::filesystem::remove(sPath);
}
BENCHMARK(BM_Write)->Iterations(5)->Unit(benchmark::kMillisecond);

} // namespace
