#pragma once

#include "foundation/EngineeringFormatSettings.h"
#include "platform/base/IsWine.h"

/// Puts the format settings back at the end of a scope; at its start they are the library's own.
class CFormatSettingsScope
{
public:
    CFormatSettingsScope() { gGetEngineeringFormatSettings() = TEngineeringFormatSettings(); }
    CFormatSettingsScope(const CFormatSettingsScope&) = delete;
    CFormatSettingsScope& operator=(const CFormatSettingsScope&) = delete;
    ~CFormatSettingsScope() { gGetEngineeringFormatSettings() = mOld; }

private:
    TEngineeringFormatSettings mOld = gGetEngineeringFormatSettings();
};

/// Selects the path rules for a scope, and puts the old ones back at its end.
class CIsWineScope
{
public:
    /// @param bIsWine true for the rules of the Unix side
    explicit CIsWineScope(bool bIsWine) : mbOld(gIsWine()) { gSetIsWine(bIsWine); }
    CIsWineScope(const CIsWineScope&) = delete;
    CIsWineScope& operator=(const CIsWineScope&) = delete;
    ~CIsWineScope() { gSetIsWine(mbOld); }

private:
    bool mbOld;
};
