#pragma once

#include "wizard/frame/CommandPage.h"

/// Builds ".noise v(", the output of a noise analysis and its input source.
class CAnalysisNoisePage : public CCommandPage
{
public:
    CAnalysisNoisePage();

    bool OnInitDialog() override;
    bool BuildCommand(CString& rsCommand) override;

    struct TFields {
        CString msOutputNode;
        CString msReferenceNode;
        CString msInputSource;
    };

protected:
    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    CString msMessage;
    TFields mFields;
};
