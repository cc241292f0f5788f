#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

/// A line "    NAME = VALUE" of a listing. Vectors and complex numbers have a line for each number.
struct TShownValue {
    std::string_view sName;
    std::string_view sValue; ///< without white space at its ends

    friend bool operator==(const TShownValue&, const TShownValue&) = default;
};

/// Values in the order of their listing.
using TShownValues = std::vector<TShownValue>;

/// Reads such a line.
/// @param sLine any bytes; the result leads into it
/// @return nullopt for a line of another form
[[nodiscard]] std::optional<TShownValue> gReadShownValue(std::string_view sLine) noexcept;

} // namespace quorvawiz::ngspice
