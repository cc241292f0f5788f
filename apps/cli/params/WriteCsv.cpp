#include "cli/params/WriteCsv.h"

#include "browser/CsvLine.h"
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

/// Result: why it can't be written; empty if it is.
CStringU WriteFile(const CStringU& rsText, const std::string& rsFile)
{
    TTextFile file(CStringU(rsFile, TTextKind::Utf8IfNeeded));
    if (file.IsOpen())
        file.WriteText(rsText);
    file.Close();
    return file.GetLastErrorText();
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
    const CStringU sError = WriteFile(sText, rsFile);
    if (sError.IsEmpty())
        return kDone;
    gWriteError(gPrintable(sError.Text()));
    return kNothingDone;
}

} // namespace quorvawiz::cli
