#pragma once

#include "wizard/frame/CommandPage.h"

/// Builds ".four " and what is to be transformed from a transient result.
class CAnalysisFourierPage : public CCommandPage
{
public:
    CAnalysisFourierPage();

    bool OnInitDialog() override;
    bool BuildCommand(CString& rsCommand) override;

    struct TFields {
        CString msBaseFrequency;
        CString msNumberOfFrequencies;
        CString msNumberOfPoints;
        CString msSignals;
        int mnInterpolate = 0;
    };

protected:
    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    CString msMessage;
    TFields mFields;
};
