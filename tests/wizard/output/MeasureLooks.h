#pragma once

#include "platform/ui/Button.h"
#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/Steps.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

// The page of measurements in tests: its types, and looks at what its radio buttons enable.

namespace measureLooks
{
inline constexpr const char* kPath = "Output/Measure";

enum { kDifference, kStatistics, kFindWhen, kExpression, kErrorFunction };
inline constexpr const char* kTypes[] = {"Difference", "Signal statistics", "Find-when",
                                         "Expression evaluation", "Error function"};

using TKeys = std::vector<std::string>;

inline const TKeys kTriggerFields{"trigger-signal", "trigger-value", "trigger-crossing-kind",
                                  "trigger-crossing-number", "trigger-delay"};
inline const TKeys kTargetFields{"target-signal", "target-value", "target-crossing-kind",
                                 "target-crossing-number", "target-delay"};
inline const TKeys kValueFields{"when-signal", "when-value", "value-row-crossing-kind",
                                "value-row-crossing-number", "value-row-delay"};
inline const TKeys kSignalFields{"signal-row-first-signal", "signal-row-second-signal",
                                 "signal-row-crossing-kind", "signal-row-crossing-number",
                                 "signal-row-delay"};

/// The user sees the fields; whether they take his actions.
inline std::vector<CScript::TAction> Enabled(const TKeys& rKeys, bool bEnabled)
{
    std::vector<CScript::TAction> looks;
    for (const std::string& rsKey : rKeys)
        looks.push_back(look::Enabled(rsKey, bEnabled));
    return looks;
}

/// The radio button of a point to be found.
inline CScript::TAction FindXEnabled(bool bEnabled)
{
    return [bEnabled](CDialog& rDialog) {
        EXPECT_EQ(gFindField(rDialog, "find-choice").radios[0]->IsUsable(), bEnabled);
    };
}
} // namespace measureLooks
