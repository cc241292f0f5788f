#include "simulators/ngspice/listings/Version.h"

#include "simulators/ngspice/listings/Lines.h"

#include <charconv>

namespace quorvawiz::ngspice
{
namespace
{

constexpr std::string_view kName = "ngspice-";
constexpr std::string_view kDate = "Creation Date:";

} // namespace

TVersion gReadVersion(std::string_view sText)
{
    TVersion version;
    while (!sText.empty()) {
        std::string_view sLine = gNextLine(sText);
        std::string_view sRest = sLine.starts_with("** ") ? sLine.substr(3) : sLine;
        if (sRest.starts_with(kName) && version.sName.empty()) {
            const std::string_view sWord = gNextWord(sRest);
            const std::string_view sNumber = sWord.substr(kName.size());
            std::from_chars(sNumber.data(), sNumber.data() + sNumber.size(), version.nMajor);
            version.sName = sWord;
        } else if (sRest.starts_with(kDate) && version.sDate.empty()) {
            version.sDate = gTrimmed(sRest.substr(kDate.size()));
        }
    }
    return version;
}

} // namespace quorvawiz::ngspice
