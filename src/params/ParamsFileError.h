#pragma once

#include <exception>
#include <string>
#include <utility>

/// What reading and writing a params file throws: a fixed text, which is all that users see, and
/// the detail for whoever looks into it.
class CParamsFileError : public std::exception
{
public:
    /// @param sText the fixed text
    /// @param sDetail what the matter is, in English
    CParamsFileError(std::string sText, std::string sDetail)
        : msText(std::move(sText)), msDetail(std::move(sDetail))
    {
    }

    /// The fixed text.
    [[nodiscard]] const char* what() const noexcept override { return msText.c_str(); }

    /// What the matter is: for a file that was refused the byte and the reason.
    [[nodiscard]] const std::string& GetDetail() const noexcept { return msDetail; }

private:
    std::string msText;
    std::string msDetail;
};
