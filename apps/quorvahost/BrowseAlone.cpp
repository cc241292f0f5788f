#include "quorvahost/BrowseAlone.h"

#include "quorvahost/FileQuestions.h"
#include "quorvahost/ParamsFile.h"
#include "quorvahost/WaitPointer.h"

#include <cstdio>
#include <exception>

namespace quorvawiz::host
{
namespace
{
bool Read(CParamsFile& rFile, const QString& rsPath)
{
    const auto fault = [&] {
        const CWaitPointer wait;
        return rFile.Load(rsPath);
    }();
    if (!fault)
        return true;
    std::fprintf(stderr, "quorvahost: %s\n", fault->toLocal8Bit().constData());
    std::fflush(stderr);
    gShowText(nullptr, *fault);
    return false;
}
} // namespace

int gRunBrowseAlone(const THostOptions& rOptions)
{
    try {
        CParamsFile file;
        do {
            if (!Read(file, rOptions.sFile))
                return 1;
        } while (gBrowse(rOptions.list, nullptr, *file.Store()));
        return 0;
    } catch (const std::exception& rError) {
        std::fprintf(stderr, "quorvahost: %s\n", rError.what());
        return 1;
    }
}

} // namespace quorvawiz::host
