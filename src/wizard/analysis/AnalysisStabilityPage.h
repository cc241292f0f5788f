#pragma once

#include "wizard/frame/CommandPage.h"

/// Builds ".lstb " and the source or probe in the loop whose stability is analysed.
class CAnalysisStabilityPage : public CCommandPage
{
public:
    CAnalysisStabilityPage();

    bool OnInitDialog() override;
    bool BuildCommand(CString& rsCommand) override;

    struct TFields {
        CString msSourceOrProbe;
    };

protected:
    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    TFields mFields;
};
