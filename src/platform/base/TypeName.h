#pragma once

#include <string_view>
#include <typeinfo>

/// The name of a class as it stands in the source, with its namespace: "CSettingsTemperaturePage",
/// "std::runtime_error". Each name is worked out once and kept for the life of the process.
/// @param rType the type, of an object by typeid(rObject)
/// @return the readable name, valid until the process ends; the compiler's own name for the type
///         where it can't be made readable
[[nodiscard]] std::string_view gTypeName(const std::type_info& rType);
