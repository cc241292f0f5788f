#pragma once

#include "wizard/frame/CommandPage.h"

#include <array>

/// Builds ".dc" and up to three directions, each a source with a start, an end and an increment.
/// No node of the wizard's tree leads here.
class CAnalysisDCSweepPage : public CCommandPage
{
public:
    CAnalysisDCSweepPage();

    bool BuildCommand(CString& rsCommand) override;

    struct TDirection {
        CString msSourceName;
        CString msStart;
        CString msEnd;
        CString msIncrement;
    };

protected:
    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    CString msMessage;
    std::array<TDirection, 3> mDirections;
};
