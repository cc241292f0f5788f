#include "params/ReadParamsFile.h"

#include "foundation/FileChecks.h"
#include "params/CircuitParams.h"
#include "params/ParamsFileError.h"
#include "platform/base/SystemPath.h"

#include <boost/smart_ptr/make_shared.hpp>

#include <exception>
#include <filesystem>
#include <string>
#include <system_error>

namespace
{

/// Tells whether a file is there. gFileExists goes through 16-bit text, which can't hold a name
/// that isn't in UTF-8; such a name is looked up by its bytes, as it is opened.
bool IsThere(const CStringU& rsPath)
{
    const std::string sOpened = gToSystemPathOfUtf8(rsPath.Text());
    if (gToSystemPath(rsPath.ToWide()) == sOpened) {
        return gFileExists(rsPath);
    }
    std::error_code error;
    return std::filesystem::is_regular_file(sOpened, error);
}

/// Reads the file into the result's store, and puts what is thrown into words.
void ReadInto(const CStringU& rsPath, TReadParamsFile& rResult)
{
    const CStringU sBegin = "Error reading data file '" + rsPath;
    try {
        if (!IsThere(rsPath)) {
            rResult.msMessage = sBegin + "': File not found";
            rResult.msDetail = "there is no file of that name";
            return;
        }
        rResult.mnArchiveVersion = rResult.mpStore->ReadThis(rsPath, "");
    } catch (const CParamsFileError& rError) {
        rResult.msMessage = sBegin + "': " + rError.what();
        rResult.msDetail = rError.GetDetail();
    } catch (const std::exception& rError) {
        rResult.msMessage = sBegin + "': " + rError.what();
        rResult.msDetail = rError.what();
    } catch (...) {
        rResult.msMessage = sBegin; // kept: without the closing quote
        rResult.msDetail = "an unknown exception";
    }
}

/// A store without an owner, for when there is no memory for another one. It is always empty.
boost::shared_ptr<TCircuitParams> SpareStore() noexcept
{
    static TCircuitParams spare;
    return {boost::shared_ptr<TCircuitParams>(), &spare};
}

/// For when there is no memory for a message.
void SetLeastMessage(CStringU& rsMessage) noexcept
{
    try {
        rsMessage = "Out of memory"; // so short that it needs no memory of its own
    } catch (...) {
        std::terminate(); // never, see above
    }
}

} // namespace

TReadParamsFile gReadParamsFile(const CStringU& rsPath) noexcept
{
    TReadParamsFile result;
    result.mpStore = SpareStore();
    try {
        result.mpStore = boost::make_shared<TCircuitParams>();
        ReadInto(rsPath, result);
    } catch (...) {
        if (result.msMessage.IsEmpty()) {
            SetLeastMessage(result.msMessage);
        }
    }
    return result;
}
