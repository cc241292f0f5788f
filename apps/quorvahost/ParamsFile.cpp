#include "quorvahost/ParamsFile.h"

#include "exports/Quorvawiz.h"
#include "quorvahost/LibraryText.h"

namespace quorvawiz::host
{

std::optional<QString> CParamsFile::Load(const QString& rsPath)
{
    auto [sMessage, pStore] = gReadCircuitParameters(gToLibrary(rsPath));
    if (!sMessage.IsEmpty())
        return gFromLibrary(sMessage);
    msPath = rsPath;
    mpStore = std::move(pStore);
    return std::nullopt;
}

} // namespace quorvawiz::host
