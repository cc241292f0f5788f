#pragma once

#include "simulators/ngspice/catalogue/Catalogue.h"

#include <cstddef>
#include <functional>

namespace quorvawiz::ngspice
{

class CSimulator;

/// Asks a simulator for its classes: one run for their names, one for their parameters, and one for
/// each bare circuit, as a circuit at which the simulator fails leaves its class without defaults.
/// @param rSimulator the simulator
/// @param rOnStep called as (done, all) before each run
/// @throws CImportError if it can't be run, took too long, or says nothing that is understood;
///         CImportCancelled
[[nodiscard]] TCatalogueListings
gAskCatalogue(const CSimulator& rSimulator,
              const std::function<void(std::size_t, std::size_t)>& rOnStep);

} // namespace quorvawiz::ngspice
