#pragma once

#include "foundation/StringU.h"

#include <deque>
#include <map>
#include <utility>
#include <vector>

/// What is shared with the simulator. These types tell how a circuit is connected; nothing in this
/// library fills or reads them.
namespace quorvaapi
{

/// One subcircuit of the netlist.
struct TSubcktDefinition {
    CStringU msName;   ///< its name
    int mnID = 0;      ///< its id
    int mnParent = 0;  ///< the id of the subcircuit in which it stands
    double mdMult = 0; ///< how often it stands there
};

/// All subcircuits of the netlist.
struct TSubcktLexicon {
    std::vector<TSubcktDefinition> mDefinitions;       ///< one per subcircuit
    std::map<CStringU, int, TStringLessNoCase> mIndex; ///< from a name in any case to its place
};

/// One pin of a device.
struct TDevicePin {
    int mnSubcktID = 0;    ///< the subcircuit of the device
    CStringU msDeviceName; ///< the device
    int mnPin = 0;         ///< the pin
    /// The way out through the pins of the subcircuits around it.
    std::vector<std::pair<int, int>> mSubcktPinPath;
};

/// Which pins meet at which node.
struct TNodeDeviceConnections {
    std::map<CStringU, int, TStringLessNoCase> mNodeNameIndex; ///< from a node's name to its index
    std::vector<std::deque<TDevicePin>> mDevicePins;           ///< by the node's index
    CStringU sGndName;                                         ///< the name of the ground node
};

} // namespace quorvaapi
