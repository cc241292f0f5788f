#pragma once

#include "platform/ui/ComboBox.h"
#include "wizard/analysis/SweepSlot.h"
#include "wizard/frame/CommandPage.h"

/// Builds ".ac ", the frequencies of a small-signal analysis, and a sweep.
class CAnalysisAC1Page : public CCommandPage
{
public:
    CAnalysisAC1Page();

    bool OnInitDialog() override;
    bool BuildCommand(CString& rsCommand) override;

    struct TFields {
        int mnSamplingType = 0;
        CString msNumberOfSamples;
        CString msStartFrequency;
        CString msListOfValues;
        CString msFinalFrequency;
        CString msCountOfListedValues;
    };

protected:
    TMessageMap GetMessageMap() const override;
    void DoDataExchange(CDataExchange* pDX) override;

private:
    void OnSamplingType();
    void OnSweep();

    bool AppendFrequencies(CString& rsCommand);
    bool AppendRange(const char* pType, CString& rsCommand);

    CString msMessage;
    SweepSlot mSweep;
    CComboBox mSamplingType;
    TFields mFields;
};
