#include "platform/base/MapEnvironment.h"

#include <utility>

CMapEnvironment::CMapEnvironment(TVariables variables) : mVariables(std::move(variables)) {}

std::optional<std::string> CMapEnvironment::Get(std::string_view sName) const
{
    const auto it = mVariables.find(sName);
    return it != mVariables.end() ? std::optional(it->second) : std::nullopt;
}

void CMapEnvironment::Set(std::string_view sName, std::string_view sValue)
{
    mVariables.insert_or_assign(std::string(sName), std::string(sValue));
}

void CMapEnvironment::Unset(std::string_view sName)
{
    if (const auto it = mVariables.find(sName); it != mVariables.end()) {
        mVariables.erase(it);
    }
}
