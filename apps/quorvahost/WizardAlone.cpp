#include "quorvahost/WizardAlone.h"

#include "platform/base/Utf8Text.h"
#include "platform/qt/QtDesktop.h"
#include "quorvahost/ClipboardKeeper.h"
#include "quorvahost/CommandSinks.h"
#include "quorvahost/Sentence.h"

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

/// Says so when a sink fails, and lets the wizard go on.
class CTellingTarget : public QuorvaCommandWizardTarget
{
public:
    explicit CTellingTarget(QuorvaCommandWizardTarget& rSink) : mrSink(rSink) {}

    bool HasFailed() const { return mbFailed; }

    void InsertCommand(CString sCommand) override
    {
        try {
            mrSink.InsertCommand(sCommand);
        } catch (const CSinkError& rError) {
            mbFailed = true;
            std::fprintf(stderr, "quorvahost: %s\n", rError.what());
            const QString sText = gAsSentence(QString::fromUtf8(rError.what()));
            gShowMessageBox({nullptr, gFromUtf8(sText.toStdString()).value_or(rError.what()),
                             CString("quorvahost"), MB_OK | MB_ICONEXCLAMATION});
        }
    }

private:
    QuorvaCommandWizardTarget& mrSink;
    bool mbFailed = false;
};
} // namespace

int gRunWizardAlone(const THostOptions& rOptions)
{
    try {
        const auto pSink = MakeSink(rOptions);
        CTellingTarget target(*pSink);
        gInvokeSpiceCommandWizard(nullptr, &target);
        if (rOptions.sink == ECommandSink::Clipboard)
            gKeepClipboard();
        return target.HasFailed() ? 1 : 0;
    } catch (const std::exception& rError) {
        std::fprintf(stderr, "quorvahost: %s\n", rError.what());
        return 1;
    }
}

} // namespace quorvawiz::host
