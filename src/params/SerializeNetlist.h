#pragma once

#include "params/Netlist.h"
#include "params/Serialize.h"

#include <boost/serialization/deque.hpp>
#include <boost/serialization/version.hpp>

// How netlists stand in a text archive; there is no XML form of them. No member depends on the
// version.
BOOST_CLASS_VERSION(quorvaapi::TSubcktDefinition, 1)
BOOST_CLASS_VERSION(quorvaapi::TSubcktLexicon, 1)
BOOST_CLASS_VERSION(quorvaapi::TDevicePin, 1)
BOOST_CLASS_VERSION(quorvaapi::TNodeDeviceConnections, 1)

namespace quorvaapi
{

/// One pin of a device.
template <class TArchive>
void serialize(TArchive& rArchive, TDevicePin& rPin, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("mnSubcktID", rPin.mnSubcktID);
    rArchive& make_nvp("msDeviceName", rPin.msDeviceName);
    rArchive& make_nvp("mnPin", rPin.mnPin);
    rArchive& make_nvp("mSubcktPinPath", rPin.mSubcktPinPath);
}

/// Which pins meet at which node.
template <class TArchive>
void serialize(TArchive& rArchive, TNodeDeviceConnections& rConnections, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("mNodeNameIndex", rConnections.mNodeNameIndex);
    rArchive& make_nvp("mDevicePins", rConnections.mDevicePins);
    rArchive& make_nvp("sGndName", rConnections.sGndName);
}

/// One subcircuit.
template <class TArchive>
void serialize(TArchive& rArchive, TSubcktDefinition& rSubckt, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("msName", rSubckt.msName);
    rArchive& make_nvp("mnID", rSubckt.mnID);
    rArchive& make_nvp("mnParent", rSubckt.mnParent);
    rArchive& make_nvp("mdMult", rSubckt.mdMult);
}

/// All subcircuits.
template <class TArchive>
void serialize(TArchive& rArchive, TSubcktLexicon& rLexicon, unsigned /*nVersion*/)
{
    using boost::serialization::make_nvp;
    rArchive& make_nvp("mDefinitions", rLexicon.mDefinitions);
    rArchive& make_nvp("mIndex", rLexicon.mIndex);
}

} // namespace quorvaapi
