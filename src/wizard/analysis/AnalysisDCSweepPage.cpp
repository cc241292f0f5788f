#include "platform/ui/DataExchange.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/analysis/SourceName.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"

#include <array>

namespace
{
/// A direction's controls, as the distance of their ids from its first one.
enum EPart { kGroup, kSourceName, kStart, kEnd, kIncrement };

constexpr int IdOf(int nDirection, EPart part)
{
    return 1001 + nDirection * 10 + part;
}

/// One of the four fields of a direction, which stand side by side.
constexpr TBlock<2> Field(int nDirection, EPart part, const char* pKey, const char* pLabel)
{
    return LabelledAt(Row(IdOf(nDirection, part), pKey, EControl::Edit, "",
                          {14 + (part - kSourceName) * 57, 0, 50, kEditHeight}),
                      pLabel);
}

constexpr auto Direction(int nDirection, const char* pTitle, const char* pGroupKey,
                         const char* pSourceKey, const char* pStartKey, const char* pEndKey,
                         const char* pIncrementKey)
{
    return GroupBox(IdOf(nDirection, kGroup), pGroupKey, pTitle,
                    SameTop(Field(nDirection, kSourceName, pSourceKey, "Source name:"),
                            Field(nDirection, kStart, pStartKey, "Start:"),
                            Field(nDirection, kEnd, pEndKey, "End:"),
                            Field(nDirection, kIncrement, pIncrementKey, "Increment:")));
}

constexpr auto kRows = PageRows(Direction(0, "Sweep direction 1", "direction-1", "source-name-1",
                                          "start-1", "end-1", "increment-1"),
                                Direction(1, "Sweep direction 2", "direction-2", "source-name-2",
                                          "start-2", "end-2", "increment-2"),
                                Direction(2, "Sweep direction 3", "direction-3", "source-name-3",
                                          "start-3", "end-3", "increment-3"));
constexpr DialogTemplate kTemplate{"DC sweep", kPageSize, kRows};

struct TDirection {
    CString msSourceName;
    CString msStart;
    CString msEnd;
    CString msIncrement;
};

// Meant: the last one, and the messages of the names, are never translated.
constexpr const char* kIncomplete[] = {
    "__$$Translatable$$_Incomplete specification for sweep direction 1.",
    "__$$Translatable$$_Incomplete specification for sweep direction 2.",
    "Incomplete specification for sweep direction 3.",
};
constexpr const char* kIllegalName[] = {
    "Source name for sweep direction 1 is not a legal voltage \r\n"
    "or current source name.  Voltage source names must start \r\n"
    "with 'V' and current source names must start with 'I'.",
    "Source name for sweep direction 2 is not a legal voltage \r\n"
    "or current source name.  Voltage source names must start \r\n"
    "with 'V' and current source names must start with 'I'.",
    "Source name for sweep direction 3 is not a legal voltage \r\n"
    "or current source name.  Voltage source names must start \r\n"
    "with 'V' and current source names must start with 'I'.",
};

int FilledFields(const TDirection& rDirection)
{
    int nFilled = 0;
    for (const CString* pField : {&rDirection.msSourceName, &rDirection.msStart, &rDirection.msEnd,
                                  &rDirection.msIncrement})
        nFilled += pField->IsEmpty() ? 0 : 1;
    return nFilled;
}
} // namespace

/// Builds ".dc" and up to three directions, each a source with a start, an end and an increment.
/// No node of the wizard's tree leads here.
class CAnalysisDCSweepPage : public CCommandPage
{
public:
    CAnalysisDCSweepPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override { return {}; }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        for (int n = 0; n < 3; ++n) {
            TDirection& rDirection = mDirections[static_cast<std::size_t>(n)];
            DDX_Text(pDX, IdOf(n, kSourceName), rDirection.msSourceName);
            DDX_Text(pDX, IdOf(n, kStart), rDirection.msStart);
            DDX_Text(pDX, IdOf(n, kEnd), rDirection.msEnd);
            DDX_Text(pDX, IdOf(n, kIncrement), rDirection.msIncrement);
        }
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        for (TDirection& rDirection : mDirections)
            gTrim(rDirection.msSourceName, rDirection.msStart, rDirection.msEnd,
                  rDirection.msIncrement);
        CString sCommand = ".dc";
        bool bUsed = false;
        for (std::size_t n = 0; n < mDirections.size(); ++n) {
            const TDirection& rDirection = mDirections[n];
            const int nFilled = FilledFields(rDirection);
            if (nFilled == 0)
                continue;
            if (nFilled < 4)
                return gReportFailure(*this, msMessage, kIncomplete[n]);
            if (!gIsSourceName(rDirection.msSourceName))
                return gReportFailure(*this, msMessage, kIllegalName[n]);
            sCommand += " " + rDirection.msSourceName + " " + rDirection.msStart + " " +
                        rDirection.msEnd + " " + rDirection.msIncrement;
            bUsed = true;
        }
        if (!bUsed)
            return gReportFailure(
                *this, msMessage,
                "__$$Translatable$$_At least one sweep must be specified before inserting the "
                "command");
        rsCommand = sCommand;
        return true;
    }

private:
    CString msMessage;
    std::array<TDirection, 3> mDirections;
};

template const CRuntimeClass& gRuntimeClass<CAnalysisDCSweepPage>();
