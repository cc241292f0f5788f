#include "params/ModelsFilePath.h"

#include "foundation/Paths.h"
#include "platform/base/IsWine.h"
#include "platform/base/SystemFolder.h"

#include <string>

namespace
{

constexpr int kMajorVersion = 2021;
constexpr int kMinorVersion = 2;

CStringU Folder()
{
    const CStringU data = gGetSystemFolder(ESystemFolder::ApplicationData, true);
    if (data.IsEmpty()) {
        return {};
    }
    return gConcatenatePaths(data, gIsWine() ? "Velkara_EDA" : "Velkara EDA");
}

} // namespace

CStringU gGetModelsFilePath(const CStringU& rsPrefix, const CStringU& rsExtension)
{
    // kept: the minor version and the 64 stand side by side
    const std::string sVersions =
        std::to_string(kMajorVersion) + '.' + std::to_string(kMinorVersion) + "64.";
    return gConcatenatePaths(Folder(), rsPrefix + "Models_v" + CStringU(sVersions) + rsExtension);
}
