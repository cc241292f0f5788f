#pragma once

#include "wizard/frame/CommandPage.h"

/// Builds ".op", the calculation of the DC operating point.
class CAnalysisDCOpPage : public CCommandPage
{
public:
    CAnalysisDCOpPage();

    bool OnInitDialog() override;
    bool BuildCommand(CString& rsCommand) override;

    struct TFields {
        int mnSuppress = 0;
    };

protected:
    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    TFields mFields;
};
