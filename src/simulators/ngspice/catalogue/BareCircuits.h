#pragma once

#include <span>
#include <string_view>

namespace quorvawiz::ngspice
{

/// How to make the simplest device of a class: what it shows then are the defaults of the class.
/// What its card has to give is none, and neither is what follows from that. So a device that can't
/// do without values has a twin with other ones: a default is what both of them show, and neither
/// of them gives.
struct TBareCircuit {
    std::string_view sClass; ///< the type of device, as gReadDeviceTypes names it
    std::string_view sType;  ///< of a model card: "npn"; without a card the letter of the device
    int nLevel = 0;          ///< of a model card; 0 without a card
    std::string_view sCards; ///< the device "?dut", its model "dutmodel", perhaps the twin "?twin"
                             ///< with "twinmodel", and what they need; a card in each line
};

/// The name of the model in all bare circuits.
inline constexpr std::string_view kBareModel = "dutmodel";

/// The name of the model of a twin that has one of its own.
inline constexpr std::string_view kTwinModel = "twinmodel";

/// How the names of the devices end that bare circuits are about.
inline constexpr std::string_view kBareDevice = "dut";

/// How the names of their twins end.
inline constexpr std::string_view kTwinDevice = "twin";

/// The classes of which bare circuits are known. Those of code models and of numerical devices have
/// none: their ports and parameters can't be guessed.
[[nodiscard]] std::span<const TBareCircuit> gBareCircuits() noexcept;

/// The bare circuit of a class; null if none is known.
[[nodiscard]] const TBareCircuit* gFindBareCircuit(std::string_view sClass) noexcept;

/// What every bare circuit has besides: a node n0 at 0 V, by the source v0.
inline constexpr std::string_view kBareSupply = "v0 n0 0 0\n";

} // namespace quorvawiz::ngspice
