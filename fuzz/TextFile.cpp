// Any bytes as a file in any encoding: read by lines, sought in, written into.

#include "foundation/TextFile.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace
{

void Require(bool bHolds)
{
    if (!bHolds) {
        std::abort();
    }
}

// Lines hold no line feeds, and all of them together are what ReadAll gives.
void CheckLines(TTextFile& rFile)
{
    CStringU sJoined;
    CStringU sLine;
    rFile.Seek(0, CFile::begin);
    while (rFile.ReadLine(sLine)) {
        sJoined += sLine;
        sJoined += '\n';
    }
    Require(sLine.IsEmpty());
    rFile.Seek(0, CFile::begin);
    Require(rFile.ReadAll() == sJoined);
}

// Goes to places and writes there, as the bytes say, and reads back what was written.
void CheckEdits(TTextFile& rFile, std::string_view sBytes)
{
    for (std::size_t nAt = 0; nAt + 1 < sBytes.size() && nAt < 64; nAt += 2) {
        const std::uint64_t nLength = rFile.GetLength();
        const std::uint64_t nPlace = static_cast<unsigned char>(sBytes[nAt]) % (nLength + 1);
        const std::string_view sPiece =
            sBytes.substr(nAt, static_cast<unsigned char>(sBytes[nAt + 1]) % 9);
        Require(rFile.Seek(static_cast<std::int64_t>(nPlace), CFile::begin) == nPlace);
        rFile.Write(sPiece.data(), static_cast<unsigned>(sPiece.size()));
        Require(rFile.GetPosition() == nPlace + sPiece.size());
        if ((sBytes[nAt] & 1) != 0) {
            rFile.Flush();
        }
        rFile.Seek(static_cast<std::int64_t>(nPlace), CFile::begin);
        std::array<char, 9> back{};
        const unsigned nRead = rFile.Read(back.data(), static_cast<unsigned>(sPiece.size()));
        Require(std::string_view(back.data(), nRead) == sPiece);
    }
}

} // namespace

/// The first byte is the encoding, the rest is the file.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    if (nSize == 0) {
        return 0;
    }
    const std::string_view sBytes(reinterpret_cast<const char*>(pData + 1), nSize - 1);
    const auto encoding = static_cast<TTextEncoding>(pData[0] % 7);
    static_cast<void>(gDetectEncoding(sBytes, encoding));
    CStringU sText;
    TTextFile file(encoding, &sText, "fuzz");
    file.Write(sBytes.data(), static_cast<unsigned>(sBytes.size()));
    Require(file.GetLength() == sBytes.size());
    CheckLines(file);
    file.Seek(0, CFile::end);
    file << CStringU(sBytes, TTextKind::Utf8IfNeeded) << "\n" << 0.5;
    CheckLines(file);
    if (!gHasTwoByteUnits(encoding)) {
        CheckEdits(file, sBytes);
    }
    Require(file.GetLastErrorText().IsEmpty());
    return 0;
}
