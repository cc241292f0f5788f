#pragma once

#include "cli/FieldJson.h"
#include "platform/base/StringA.h"

#include <nlohmann/json.hpp>

#include <span>
#include <string>

namespace quorvawiz::cli
{

/// The members of a request, read by name. Every function throws CRequestError for a member that is
/// missing or of another type.
class CRequestMembers
{
public:
    /// @param rObject a JSON object; lives longer than this
    explicit CRequestMembers(const TJson& rObject) : mrObject(rObject) {}

    bool Has(const char* pName) const { return mrObject.contains(pName); }
    /// A text in UTF-8.
    std::string Utf8Of(const char* pName) const;
    /// A text in the system's code page; one that doesn't fit is an error, too.
    CString Text(const char* pName) const;
    /// A whole number in the range of int.
    int Index(const char* pName) const;
    bool Flag(const char* pName) const;
    /// Any value.
    const TJson& Value(const char* pName) const;

    /// Refuses every member that isn't named here. `op` is always allowed.
    void AllowOnly(std::span<const char* const> names) const;

private:
    const TJson& mrObject;
};

} // namespace quorvawiz::cli
