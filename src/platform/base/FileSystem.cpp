#include "platform/base/FileSystem.h"

#include "platform/base/PosixFileSystem.h"

#include <utility>

namespace
{

/// The current one, unguarded.
std::shared_ptr<IFileSystem>& Slot()
{
    static std::shared_ptr<IFileSystem> pCurrent = std::make_shared<CPosixFileSystem>();
    return pCurrent;
}

} // namespace

std::shared_ptr<IFileSystem> gGetFileSystem()
{
    return Slot();
}

void gSetFileSystem(std::shared_ptr<IFileSystem> pFileSystem)
{
    Slot() = pFileSystem ? std::move(pFileSystem) : std::make_shared<CPosixFileSystem>();
}
