#include "quorvahost/WizardAlone.h"

#include "quorvahost/CommandSinks.h"

#include <cstdio>
#include <exception>
#include <memory>

namespace quorvawiz::host
{
namespace
{
std::unique_ptr<QuorvaCommandWizardTarget> MakeSink(const THostOptions& rOptions)
{
    switch (rOptions.sink) {
    case ECommandSink::Output:
        return std::make_unique<COutputSink>(stdout);
    case ECommandSink::File:
        return std::make_unique<CFileSink>(rOptions.sFile);
    case ECommandSink::Clipboard:
        return std::make_unique<CClipboardSink>();
    }
    return nullptr;
}
} // namespace

int gRunWizardAlone(const THostOptions& rOptions)
{
    try {
        const auto pSink = MakeSink(rOptions);
        gInvokeSpiceCommandWizard(nullptr, pSink.get());
    } catch (const std::exception& rError) {
        std::fprintf(stderr, "quorvahost: %s\n", rError.what());
        return 1;
    }
    return 0;
}

} // namespace quorvawiz::host
