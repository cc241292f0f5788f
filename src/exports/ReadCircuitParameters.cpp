#include "exports/Quorvawiz.h"
#include "params/ReadParamsFile.h"

#include <utility>

std::pair<CStringU, boost::shared_ptr<TCircuitParams>>
quorvawiz::gReadCircuitParameters(const CStringU& rsPath)
{
    TReadParamsFile read = gReadParamsFile(rsPath);
    return {std::move(read.msMessage), std::move(read.mpStore)};
}
