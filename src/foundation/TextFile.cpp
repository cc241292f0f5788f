// What is kept of errors.

#include "foundation/TextFile.h"

#include "foundation/SystemErrorText.h"
#include "foundation/UnixSide.h"

#include <array>

std::int64_t TTextFile::MarkSize() const noexcept
{
    return static_cast<std::int64_t>(gMarkOf(mEncoding).size());
}

void TTextFile::KeepError(const CStringU& rsError)
{
    if (msError.IsEmpty()) {
        msError = rsError;
    }
}

void TTextFile::KeepOpenError(const CFileException* pError)
{
    CStringU sMessage;
    const CStringU sShown = gToUnixPath(msFileName);
    if (pError != nullptr) {
        std::array<char, 1024> reason{};
        pError->GetErrorMessage(reason.data(), static_cast<unsigned>(reason.size()));
        sMessage.Format("Can't open file \"%s\": %s", sShown.Data(),
                        CStringU(reason.data()).Data());
    } else {
        sMessage.Format("Can't open file \"%s\".", sShown.Data());
    }
    KeepError(sMessage);
}

void TTextFile::KeepWriteError(int nOsError)
{
    CStringU sMessage;
    sMessage.Format("Error writing to file \"%s\": %s", gToUnixPath(msFileName).Data(),
                    gGetSystemErrorText(nOsError).Data());
    KeepError(sMessage);
}
