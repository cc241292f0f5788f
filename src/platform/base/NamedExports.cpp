#include "platform/base/NamedExports.h"

#include <utility>

namespace
{

/// The table of a system that has no other side.
class CNoExports final : public INamedExports
{
public:
    TFunction Find(std::string_view) const override { return nullptr; }
    void FreeHeapBlock(void*) override {}
};

/// The current one, unguarded.
std::shared_ptr<INamedExports>& Slot()
{
    static std::shared_ptr<INamedExports> pCurrent = std::make_shared<CNoExports>();
    return pCurrent;
}

} // namespace

std::shared_ptr<INamedExports> gGetNamedExports()
{
    return Slot();
}

void gSetNamedExports(std::shared_ptr<INamedExports> pExports)
{
    Slot() = pExports ? std::move(pExports) : std::make_shared<CNoExports>();
}
