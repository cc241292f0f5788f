#pragma once

#include "wizard/frame/CommandPage.h"

/// Builds ".tf ", an output of the circuit and its input source.
class CAnalysisTransferFunctionPage : public CCommandPage
{
public:
    CAnalysisTransferFunctionPage();

    bool OnInitDialog() override;
    bool BuildCommand(CString& rsCommand) override;

    struct TFields {
        CString msOutput;
        CString msInputSource;
    };

protected:
    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    CString msMessage;
    TFields mFields;
};
