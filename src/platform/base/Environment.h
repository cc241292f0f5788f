#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Where environment variables are read and written. Names are exact, letters of different case are
/// different.
class IEnvironment
{
public:
    IEnvironment() = default;
    IEnvironment(const IEnvironment&) = delete;
    IEnvironment& operator=(const IEnvironment&) = delete;
    virtual ~IEnvironment() = default;

    /// Reads a variable.
    /// @param sName any text; a name that no variable can have is just not set
    /// @return its value, perhaps empty; nullopt if it is not set
    [[nodiscard]] virtual std::optional<std::string> Get(std::string_view sName) const = 0;

    /// Sets a variable, in place of its old value if it has one.
    /// @param sName a valid name: not empty, without "=" and without a NUL
    /// @param sValue the value, without a NUL
    virtual void Set(std::string_view sName, std::string_view sValue) = 0;

    /// Removes a variable; without effect if it is not set.
    /// @param sName a valid name, as for Set
    virtual void Unset(std::string_view sName) = 0;
};

/// Reads an environment variable from the current source.
/// @param sName the name, exact
/// @return its value, perhaps empty; nullopt if it is not set
[[nodiscard]] std::optional<std::string> gGetEnvironment(std::string_view sName);

/// Sets an environment variable in the current source.
/// @param sName the name: not empty, without "=" and without a NUL
/// @param sValue the value, without a NUL
/// @throws CInvalidArgException for any other name or value; nothing is changed then
void gSetEnvironment(std::string_view sName, std::string_view sValue);

/// Removes an environment variable from the current source; without effect if it is not set.
/// @param sName the name, as for gSetEnvironment
/// @throws CInvalidArgException for an invalid name
void gUnsetEnvironment(std::string_view sName);

/// Puts a source in the place of the current one, for the whole process.
/// @param pSource the new source; null as gResetEnvironmentSource
void gSetEnvironmentSource(std::shared_ptr<IEnvironment> pSource);

/// Goes back to the environment of the process, the source at the start.
void gResetEnvironmentSource();
