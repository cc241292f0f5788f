#pragma once

#include "wizard/frame/CommandPage.h"

/// Builds ".temp " and the temperatures, in degrees Celsius, at which the circuit is analysed.
class CSettingsTemperaturePage : public CCommandPage
{
public:
    CSettingsTemperaturePage();

    bool OnInitDialog() override;
    bool BuildCommand(CString& rsCommand) override;

    struct TFields {
        CString msTemperatures;
    };

protected:
    TMessageMap GetMessageMap() const override { return {}; }
    void DoDataExchange(CDataExchange* pDX) override;

private:
    CString msMessage;
    TFields mFields;
};
