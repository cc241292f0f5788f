#include "platform/base/FileException.h"

#include "platform/base/SystemError.h"

#include <cstddef>
#include <string>

CFileException::CFileException() : std::runtime_error("no file error") {}

CFileException::CFileException(int nOsError, const CString& rsFileName)
    : std::runtime_error("file \"" + std::string(rsFileName.GetString()) +
                         "\": " + gSystemErrorMessage(nOsError)),
      mnOsError(nOsError), msFileName(rsFileName)
{
}

bool CFileException::GetErrorMessage(char* pText, unsigned nMost) const
{
    const std::string sMessage = gSystemErrorMessage(mnOsError);
    pText[sMessage.copy(pText, std::size_t{nMost} - 1)] = '\0';
    return !sMessage.empty();
}

void CFileException::ThrowOsError(int nOsError, const CString& rsFileName)
{
    CFileException exception(nOsError, rsFileName);
    gSetLastError(nOsError);
    throw exception;
}
