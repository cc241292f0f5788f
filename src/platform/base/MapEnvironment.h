#pragma once

#include "platform/base/Environment.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

/// An environment of its own, with nothing inherited from the process: for tests, and for the
/// command line, whose variables are only those that it is given.
class CMapEnvironment final : public IEnvironment
{
public:
    /// The variables, by name.
    using TVariables = std::map<std::string, std::string, std::less<>>;

    /// An environment without variables.
    CMapEnvironment() = default;

    /// An environment with these variables.
    /// @param variables names and values
    explicit CMapEnvironment(TVariables variables);

    [[nodiscard]] std::optional<std::string> Get(std::string_view sName) const override;
    void Set(std::string_view sName, std::string_view sValue) override;
    void Unset(std::string_view sName) override;

private:
    TVariables mVariables;
};
