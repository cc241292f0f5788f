#include "params/TextStore.h"

#include "params/Serialize.h"
#include "params/archive/TextIArchive.h"
#include "params/archive/TextOArchive.h"

int gLoadText(IByteSource& rSource, TCircuitParams& rStore)
{
    CTextIArchive archive(rSource);
    archive >> rStore;
    return archive.GetVersion();
}

void gSaveText(IByteTarget& rTarget, const TCircuitParams& rStore)
{
    CTextOArchive archive(rTarget);
    archive << rStore;
    archive.Finish();
}
