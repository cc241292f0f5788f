#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

/// In which direction a parameter goes.
enum class EDirection {
    In,    ///< it can be set, and never asked for
    InOut, ///< it can be set and asked for
    Out,   ///< it can only be asked for
};

/// One name of a parameter, a row of a table.
struct TParamRow {
    int nId = 0;       ///< names with the same id are names of one parameter
    std::string sName; ///< in lower case, as the simulator has it
    EDirection eDirection = EDirection::InOut;
    std::string sType;        ///< "real", "integer", "flag", "string", "realvec", "complex", ...
    std::string sFlags;       ///< letters; R: redundant, another name; P: the principal parameter
    std::string sDescription; ///< one line; empty where the simulator has none

    friend bool operator==(const TParamRow&, const TParamRow&) = default;
};

/// The parameters of one type of device.
struct TParamTable {
    std::string sType;               ///< the type, as gReadDeviceTypes names it
    std::string sDescription;        ///< that of the type
    std::vector<TParamRow> model;    ///< parameters of a model card
    std::vector<TParamRow> instance; ///< parameters of a device

    friend bool operator==(const TParamTable&, const TParamTable&) = default;
};

/// Reads the listings of `devhelp -csv -type -flags NAME`, one after another. Fields are separated
/// by a comma and a blank and have no quotes; what stands behind the fifth comma is the
/// description, which may hold commas. Lines of another form are passed over.
/// @param sListing any bytes
/// @return the tables in the order of the listing
[[nodiscard]] std::vector<TParamTable> gReadParamTables(std::string_view sListing);

} // namespace quorvawiz::ngspice
