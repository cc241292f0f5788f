#pragma once

#include "platform/base/CodePage.h"

/// Sets the system's code page for a scope, and puts the old one back at its end.
class CCodePageScope
{
public:
    /// @param nCodePage a known code page
    explicit CCodePageScope(unsigned nCodePage) : mnOld(gGetSystemCodePage())
    {
        gSetSystemCodePage(nCodePage);
    }

    CCodePageScope(const CCodePageScope&) = delete;
    CCodePageScope& operator=(const CCodePageScope&) = delete;

    ~CCodePageScope() { gSetSystemCodePage(mnOld); }

private:
    unsigned mnOld;
};
