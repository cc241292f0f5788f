#include "cli/call/CallTable.h"
#include "foundation/TextFile.h"

#include <sys/mman.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

namespace quorvawiz::cli
{
namespace
{
/// A file without a place on the disk, which TTextFile opens by a name as any other.
class CMemoryFile
{
public:
    CMemoryFile() : mnHandle(::memfd_create("text", MFD_CLOEXEC))
    {
        if (mnHandle < 0)
            throw std::runtime_error("can't make a file in memory");
    }
    CMemoryFile(const CMemoryFile&) = delete;
    CMemoryFile& operator=(const CMemoryFile&) = delete;
    ~CMemoryFile() { ::close(mnHandle); }

    CStringU Name() const { return "/proc/self/fd/" + std::to_string(mnHandle); }

    void Write(const std::string& rsBytes) const
    {
        CFile file(Name().Data(), CFile::modeWrite);
        file.Write(rsBytes.data(), static_cast<unsigned>(rsBytes.size()));
    }

    std::string Read() const
    {
        CFile file(Name().Data(), CFile::modeRead);
        std::string sBytes(file.GetLength(), '\0');
        file.Read(sBytes.data(), static_cast<unsigned>(sBytes.size()));
        return sBytes;
    }

private:
    int mnHandle;
};

/// Opens for reading; the file's text starts behind its mark.
void OpenToRead(TTextFile& rFile, const CMemoryFile& rMemory, TTextEncoding whenUnknown)
{
    if (!rFile.Open(rMemory.Name(), whenUnknown, CFile::modeRead, nullptr))
        throw std::runtime_error(std::string(rFile.GetLastErrorText().Text()));
}

TJson Read(const TBytes& rBytes, TTextEncoding whenUnknown)
{
    CMemoryFile memory;
    memory.Write(rBytes.msBytes);
    TTextFile file;
    OpenToRead(file, memory, whenUnknown);
    TJson lines = TJson::array();
    for (CStringU line; file.ReadLine(line);)
        lines.push_back(gToResult(line));
    const int nLineNumber = file.GetLineNumber();
    OpenToRead(file, memory, whenUnknown);
    return {{"encoding", static_cast<int>(file.GetEncoding())},
            {"length", file.GetLength()},
            {"lines", std::move(lines)},
            {"line-number", nLineNumber},
            {"all", gToResult(file.ReadAll())}};
}

TJson Write(TTextEncoding encoding, unsigned nFlags, const std::vector<CStringU>& rTexts)
{
    const unsigned nMode = (nFlags & CFile::modeReadWrite) != 0 ? 0U : unsigned{CFile::modeWrite};
    CMemoryFile memory;
    TTextFile file;
    if (file.Open(memory.Name(), encoding, nFlags | CFile::modeCreate | nMode, nullptr)) {
        for (const CStringU& rText : rTexts)
            file.WriteText(rText);
        file.Close();
    }
    return {{"bytes", gToResult(TBytes{memory.Read()})},
            {"line-number", file.GetLineNumber()},
            {"error", gToResult(file.GetLastErrorText())}};
}
} // namespace

std::vector<TCallFunction> gTextFileCalls()
{
    return {
        gCallable("TTextFile.read", Read),
        gCallable("TTextFile.write", Write),
    };
}

} // namespace quorvawiz::cli
