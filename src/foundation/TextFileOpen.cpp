// Opening and closing, and the mark.

#include "foundation/FileChecks.h"
#include "foundation/Paths.h"
#include "foundation/TextFile.h"
#include "foundation/UnixSide.h"

#include <array>

namespace
{

constexpr unsigned kModeMask = 3;

} // namespace

TTextFile::TTextFile(const CStringU& rsFileName, unsigned nOpenFlags)
{
    TTextFile::Open(rsFileName, nOpenFlags, nullptr);
}

TTextFile::TTextFile(const CStringU& rsFileName)
{
    TTextFile::Open(rsFileName, EncodingAnsi, kExportFlags, nullptr);
}

TTextFile::TTextFile(TTextEncoding encoding, const CStringU& rsText, const CStringU& rsName)
    : msOwnText(rsText), mpText(&msOwnText)
{
    StartInMemory(encoding, rsName);
}

TTextFile::TTextFile(TTextEncoding encoding, CStringU* pText, const CStringU& rsName)
    : mpText(pText)
{
    StartInMemory(encoding, rsName);
}

TTextFile::~TTextFile()
{
    TTextFile::Close();
}

void TTextFile::StartInMemory(TTextEncoding encoding, const CStringU& rsName)
{
    mbInMemory = true;
    mnOpenFlags = modeReadWrite;
    msFileName = gToDosPath(rsName);
    ApplyMarkRule(encoding);
    TTextFile::Seek(0, begin);
}

void TTextFile::SetFilePath(const char* pFileName)
{
    CFile::SetFilePath(pFileName);
    msFileName = pFileName;
}

bool TTextFile::Open(const CStringU& rsFileName, unsigned nOpenFlags, CFileException* pError)
{
    return OpenOnDisk(rsFileName, nOpenFlags, pError) &&
           StartOnDisk(&TTextFile::DetectEncoding, EncodingAnsi, pError);
}

bool TTextFile::Open(const CStringU& rsFileName, TTextEncoding encoding, unsigned nOpenFlags,
                     CFileException* pError)
{
    return OpenOnDisk(rsFileName, nOpenFlags, pError) &&
           StartOnDisk(&TTextFile::ApplyMarkRule, encoding, pError);
}

bool TTextFile::StartOnDisk(bool (TTextFile::*pFindEncoding)(TTextEncoding), TTextEncoding encoding,
                            CFileException* pError)
{
    try {
        if ((this->*pFindEncoding)(encoding)) {
            TTextFile::Seek(0, begin);
            return true;
        }
    } catch (const CFileException& rException) {
        if (pError != nullptr) {
            *pError = rException;
        }
        KeepOpenError(pError);
    }
    TTextFile::Close();
    return false;
}

bool TTextFile::OpenOnDisk(const CStringU& rsFileName, unsigned nOpenFlags, CFileException* pError)
{
    TTextFile::Close();
    mbInMemory = false;
    mnLine = 0;
    msError.Empty();
    msFileName = rsFileName;
    mnOpenFlags = nOpenFlags;
    if ((nOpenFlags & modeCreate) != 0 && !MakeFolder(rsFileName)) {
        return false;
    }
    if (!CFile::Open(rsFileName.ToAnsi().GetString(), nOpenFlags, pError)) {
        KeepOpenError(pError);
        return false;
    }
    AllocateBuffer();
    return true;
}

bool TTextFile::MakeFolder(const CStringU& rsFileName)
{
    const CStringU sFolder = gGetPathWithoutFileName(rsFileName);
    CStringU sReason;
    if (sFolder.IsEmpty() || gDirectoryExists(sFolder) || gCreateDirectories(sFolder, sReason)) {
        return true;
    }
    CStringU sMessage;
    sMessage.Format("Can't create directory \"%s\". %s", gToUnixPath(sFolder).Data(),
                    sReason.Data());
    KeepError(sMessage);
    return false;
}

void TTextFile::Close()
{
    if (IsOpen()) {
        WriteOut();
    }
    ResetBuffer();
    // A CFile opens without a word to its derived class; then the text in memory was left.
    mbInMemory = IsInMemory();
    try {
        CFile::Close();
    } catch (const CFileException& rException) {
        KeepWriteError(rException.GetOsError()); // the system reports late what it couldn't write
    }
}

bool TTextFile::Remove()
{
    if (IsInMemory() || msFileName.IsEmpty()) {
        return false;
    }
    TTextFile::Close();
    try {
        CFile::Remove(msFileName.ToAnsi().GetString());
    } catch (const CFileException&) {
        return false;
    }
    return true;
}

bool TTextFile::DetectEncoding(TTextEncoding whenUnknown)
{
    std::array<char, kDetectedBytes> first{};
    unsigned nRead = 0;
    try {
        const std::uint64_t nPosition = RawPosition();
        nRead = RawRead(first.data(), first.size());
        if (IsStream()) {
            KeepRead({first.data(), nRead}); // what was read from it can't be read again
        } else {
            RawSeek(nPosition);
        }
    } catch (const CFileException&) {
        nRead = 0; // not open for reading
    }
    mEncoding = gDetectEncoding({first.data(), nRead}, whenUnknown);
    return true;
}

bool TTextFile::ApplyMarkRule(TTextEncoding encoding)
{
    mEncoding = encoding;
    const unsigned nMode = mnOpenFlags & kModeMask;
    if (nMode != modeWrite && nMode != modeReadWrite) {
        return DetectEncoding(encoding);
    }
    try {
        if (RawLength() == 0) {
            RawSeek(0);
            const std::string_view sMark = gMarkOf(encoding);
            RawWrite(sMark.data(), sMark.size());
        }
    } catch (const CFileException& rException) {
        KeepWriteError(rException.GetOsError());
        return false;
    }
    return true;
}
