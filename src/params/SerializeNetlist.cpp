#include "params/SerializeNetlist.h"

#include "params/archive/TextIArchive.h"
#include "params/archive/TextOArchive.h"

#include <boost/archive/text_iarchive.hpp>
#include <boost/archive/text_oarchive.hpp>

// Nothing here reads or writes netlists; the library carries their serializers for those who do.
namespace quorvaapi
{

#define QUORVAWIZ_CARRY(TArchive)                                                                  \
    template void serialize(TArchive&, TDevicePin&, unsigned);                                     \
    template void serialize(TArchive&, TNodeDeviceConnections&, unsigned);                         \
    template void serialize(TArchive&, TSubcktDefinition&, unsigned);                              \
    template void serialize(TArchive&, TSubcktLexicon&, unsigned);

QUORVAWIZ_CARRY(boost::archive::text_iarchive)
QUORVAWIZ_CARRY(boost::archive::text_oarchive)
QUORVAWIZ_CARRY(CTextIArchive)
QUORVAWIZ_CARRY(CTextOArchive)

#undef QUORVAWIZ_CARRY

} // namespace quorvaapi
