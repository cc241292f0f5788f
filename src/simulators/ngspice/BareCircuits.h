#pragma once

#include <span>
#include <string_view>

namespace quorvawiz::ngspice
{

/// How to make the simplest device of a class: what it shows then are the defaults of the class.
struct TBareCircuit {
    std::string_view sClass; ///< the type of device, as gReadDeviceTypes names it
    std::string_view sType;  ///< of a model card: "npn"; without a card the letter of the device
    int nLevel = 0;          ///< of a model card; 0 without a card
    std::string_view sCards; ///< the device "?dut" and its model "dutmodel", a card in each line
};

/// The name of the model in all bare circuits.
inline constexpr std::string_view kBareModel = "dutmodel";

/// How the names of the devices end that bare circuits are about.
inline constexpr std::string_view kBareDevice = "dut";

/// The classes of which bare circuits are known. Those of code models and of numerical devices have
/// none: their ports and parameters can't be guessed.
[[nodiscard]] std::span<const TBareCircuit> gBareCircuits() noexcept;

/// The bare circuit of a class; null if none is known.
[[nodiscard]] const TBareCircuit* gFindBareCircuit(std::string_view sClass) noexcept;

/// What every bare circuit has besides: a node n0 at 0 V, by the source v0.
inline constexpr std::string_view kBareSupply = "v0 n0 0 0\n";

} // namespace quorvawiz::ngspice
