#pragma once

#include "wizard/frame/CommandPage.h"

/// Builds ".ac " and a range of frequencies, its keyword in capitals.
/// No node of the wizard's tree leads here.
class CAnalysisACPage : public CCommandPage
{
public:
    CAnalysisACPage();

    bool OnInitDialog() override;
    bool BuildCommand(CString& rsCommand) override;

    /// The ids of the sampling type's radio buttons.
    enum ESamplingType { kDecade = 1001, kOctave, kLinear };

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnSamplingType(int nId);

    CString msMessage;
    CString msNumberOfSamples;
    CString msStartFrequency;
    CString msFinalFrequency;
    int mnSamplingType = kDecade;
};
