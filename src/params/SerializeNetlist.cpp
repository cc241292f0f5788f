#include "params/SerializeNetlist.h"

#include "params/archive/TextIArchive.h"
#include "params/archive/TextOArchive.h"

#include <boost/archive/text_iarchive.hpp>
#include <boost/archive/text_oarchive.hpp>

// Nothing here reads or writes netlists; the library carries their serializers for those who do.
namespace quorvaapi
{

template void serialize(boost::archive::text_iarchive&, TDevicePin&, unsigned);
template void serialize(boost::archive::text_iarchive&, TNodeDeviceConnections&, unsigned);
template void serialize(boost::archive::text_iarchive&, TSubcktDefinition&, unsigned);
template void serialize(boost::archive::text_iarchive&, TSubcktLexicon&, unsigned);

template void serialize(boost::archive::text_oarchive&, TDevicePin&, unsigned);
template void serialize(boost::archive::text_oarchive&, TNodeDeviceConnections&, unsigned);
template void serialize(boost::archive::text_oarchive&, TSubcktDefinition&, unsigned);
template void serialize(boost::archive::text_oarchive&, TSubcktLexicon&, unsigned);

template void serialize(CTextIArchive&, TDevicePin&, unsigned);
template void serialize(CTextIArchive&, TNodeDeviceConnections&, unsigned);
template void serialize(CTextIArchive&, TSubcktDefinition&, unsigned);
template void serialize(CTextIArchive&, TSubcktLexicon&, unsigned);

template void serialize(CTextOArchive&, TDevicePin&, unsigned);
template void serialize(CTextOArchive&, TNodeDeviceConnections&, unsigned);
template void serialize(CTextOArchive&, TSubcktDefinition&, unsigned);
template void serialize(CTextOArchive&, TSubcktLexicon&, unsigned);

} // namespace quorvaapi
