#pragma once

#include "platform/headless/Step.h"

#include <stdexcept>
#include <string>
#include <utility>

// A user's actions by name, so that a test's list of them reads like a story.

namespace steps
{
inline TStep Set(std::string sKey, const CString& rsText)
{
    return {EStep::Set, std::move(sKey), rsText};
}

inline TStep Select(std::string sKey, int nIndex)
{
    return {EStep::Select, std::move(sKey), {}, nIndex};
}

inline TStep Select(std::string sKey, const CString& rsEntry)
{
    return {EStep::SelectEntry, std::move(sKey), rsEntry};
}

inline TStep Check(std::string sKey, bool bOn)
{
    return {EStep::Check, std::move(sKey), {}, bOn ? 1 : 0};
}

inline TStep Choose(std::string sKey, int nIndex)
{
    return {EStep::Choose, std::move(sKey), {}, nIndex};
}

inline TStep Click(std::string sKey)
{
    return {EStep::Click, std::move(sKey)};
}

inline TStep DoubleClick(std::string sKey)
{
    return {EStep::DoubleClick, std::move(sKey)};
}

inline TStep Focus(std::string sKey)
{
    return {EStep::Focus, std::move(sKey)};
}

inline TStep Key(std::string_view sName)
{
    TStep step{EStep::Key};
    if (!gParseKeyName(sName, step.key))
        throw std::invalid_argument("no such key: " + std::string(sName));
    return step;
}

/// Goes to a page of the wizard by its path in the tree.
inline TStep Open(const CString& rsPath)
{
    return {.op = EStep::SelectPath, .sKey = "tree", .sText = rsPath, .bOnFrame = true};
}

/// A step on a field of the dialog's own, even if its pane has one of that key.
inline TStep OnFrame(TStep step)
{
    step.bOnFrame = true;
    return step;
}

inline TStep Insert()
{
    return OnFrame(Click("insert"));
}

inline TStep Close()
{
    return OnFrame(Click("close"));
}
} // namespace steps
