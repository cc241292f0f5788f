#include "params/ReadParamsFile.h"

#include "foundation/FileChecks.h"
#include "params/CircuitParams.h"
#include "params/ParamsFileError.h"

#include <boost/smart_ptr/make_shared.hpp>

#include <exception>

TReadParamsFile gReadParamsFile(const CStringU& rsPath)
{
    TReadParamsFile result;
    result.mpStore = boost::make_shared<TCircuitParams>();
    const CStringU sBegin = "Error reading data file '" + rsPath;
    if (!gFileExists(rsPath)) {
        result.msMessage = sBegin + "': File not found";
        result.msDetail = "there is no file of that name";
        return result;
    }
    try {
        result.mnArchiveVersion = result.mpStore->ReadThis(rsPath, "");
    } catch (const CParamsFileError& rError) {
        result.msMessage = sBegin + "': " + rError.what();
        result.msDetail = rError.GetDetail();
    } catch (const std::exception& rError) {
        result.msMessage = sBegin + "': " + rError.what();
        result.msDetail = rError.what();
    } catch (...) {
        result.msMessage = sBegin; // kept: without the closing quote
        result.msDetail = "an unknown exception";
    }
    return result;
}
