#pragma once

#include <boost/smart_ptr/shared_ptr.hpp>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <stop_token>
#include <string>
#include <vector>

class TCircuitParams;

/// Fills the store from an installed ngspice, version 39 or later.
namespace quorvawiz::ngspice
{

/// What to import, and how.
struct TImportOptions {
    std::filesystem::path netlist;
    std::string sSimulator = "ngspice";        ///< its path, or its name to be found on the PATH
    std::chrono::milliseconds timeout{60'000}; ///< for all that the simulator does
    std::filesystem::path cache;               ///< folder of CCatalogueCache; empty for none
};

/// What an import is about to do.
enum class EImportStage {
    Copying,    ///< the netlist is read
    Simulating, ///< the simulator works on it
    Classes,    ///< the simulator is asked for its classes, once for a version
    Filling,    ///< the store is filled
};

/// How far an import is.
struct TImportProgress {
    EImportStage eStage = EImportStage::Copying;
    std::size_t nDone = 0; ///< of nAll
    std::size_t nAll = 0;  ///< parts of the stage; 0 where it has none
};

/// What came of an import.
struct TImported {
    boost::shared_ptr<TCircuitParams> pStore; ///< never null
    std::string sSimulator;                   ///< "ngspice-39"
    std::size_t nModels = 0;                  ///< in the store
    std::size_t nDevices = 0;                 ///< in the store
    std::vector<std::string> notes;           ///< what the user should know, one line each
};

/// Lets the simulator find the operating point of a netlist, and fills a store with what it tells:
/// its classes, and the netlist's subcircuits, models and devices. The simulator runs without a
/// shell on a copy without commands, in a folder of its own, which is gone in the end. It can run
/// in any thread, and keeps to the one that calls it.
/// @param rOptions what to import
/// @param stop ends it, from any thread: the simulator is killed
/// @param rOnProgress called at the beginning of each stage and part of it, in this thread; may be
///                    empty
/// @throws CImportError for a missing simulator or netlist, a netlist at which the simulator fails,
///         the end of the time, and output that isn't understood; CImportCancelled
[[nodiscard]] TImported
gImport(const TImportOptions& rOptions, const std::stop_token& stop = {},
        const std::function<void(const TImportProgress&)>& rOnProgress = {});

} // namespace quorvawiz::ngspice
