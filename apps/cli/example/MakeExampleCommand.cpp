#include "cli/example/MakeExampleCommand.h"

#include "cli/Failure.h"
#include "cli/Output.h"
#include "cli/example/ExampleStore.h"
#include "params/ParamsFileError.h"

namespace quorvawiz::cli
{

int gRunMakeExample(const TMakeExampleOptions& rOptions)
{
    TCircuitParams store;
    gFillExample(store, rOptions.nDevices, rOptions.nSeed);
    try {
        store.WriteThis(CStringU(rOptions.sOut, TTextKind::Utf8IfNeeded), "");
    } catch (const CParamsFileError& rError) {
        gWriteError(rError.what());
        return kNothingDone;
    }
    return kDone;
}

} // namespace quorvawiz::cli
