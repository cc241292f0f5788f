#pragma once

#include <exception>
#include <string>

class CStringU;

namespace quorvaapi
{

/// A file could not be opened.
class FileOpenException : public virtual std::exception
{
public:
    /// @param rPath the file
    /// @param nErrorCode the system's error code
    FileOpenException(const CStringU& rPath, int nErrorCode);

    /// `Cannot open file "PATH". ` and the system's text for the error, in UTF-8.
    [[nodiscard]] const char* what() const noexcept override { return msText.c_str(); }

private:
    std::string msText;
};

} // namespace quorvaapi
