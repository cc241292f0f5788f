#include "cli/params/WriteCsv.h"

#include "browser/CsvLine.h"
#include "browser/Export.h"
#include "cli/Failure.h"
#include "cli/Output.h"
#include "cli/Quote.h"
#include "foundation/TextFile.h"

namespace quorvawiz::cli
{
namespace
{
CStringU TitleLine(const TParamTableData& rTable)
{
    TParamTableRow row;
    for (const CStringU& rsTitle : rTable.mColumnTitles)
        row.push_back({rsTitle, false});
    return gMakeCsvLine(row) + "\n";
}
} // namespace

int gWriteCsv(const TParamTableData& rTable, bool bHeader, const std::string& rsFile)
{
    CStringU sText = gMakeExportText(rTable);
    if (bHeader)
        sText = TitleLine(rTable) + sText;
    if (rsFile == "-") {
        CStringU sBytes;
        TTextFile(EncodingAnsi, &sBytes, "-").WriteText(sText);
        gWriteOut(sBytes.Text());
        return kDone;
    }
    const CStringU sError = gWriteExport(CStringU(rsFile, TTextKind::Utf8IfNeeded), sText);
    if (sError.IsEmpty())
        return kDone;
    gWriteError(gPrintable(sError.Text()));
    return kNothingDone;
}

} // namespace quorvawiz::cli
