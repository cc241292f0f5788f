#include "foundation/SystemErrorText.h"

#include "platform/base/SystemError.h"

CStringU gGetSystemErrorText(int nCode)
{
    constexpr int moduleNotFound = 126;
    constexpr int notAProgram = 193;
    if (nCode == moduleNotFound) {
        return "The specified module or one of its sub-modules could not be found.";
    }
    if (nCode == notAProgram) {
        return "It is not valid Win64 application.";
    }
    return gSystemErrorMessageWide(nCode);
}

CStringU gAppendLastError(const CStringU& rText, int* pnCode)
{
    const int nCode = gGetLastError();
    if (pnCode != nullptr) {
        *pnCode = nCode;
    }
    const CStringU error = gGetSystemErrorText(nCode);
    const bool bBoth = !rText.IsEmpty() && !error.IsEmpty();
    return rText + (bBoth ? "\n" : "") + error;
}
