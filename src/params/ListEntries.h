#pragma once

#include "foundation/StringU.h"

/// A device in a list, with what identifies its model.
struct TDeviceListEntry {
    int mnSubckt = 0;      ///< the subcircuit of the device
    CStringU msName;       ///< the device
    CStringU msType;       ///< the type of its model
    int mnModelSubckt = 0; ///< the subcircuit of its model
    CStringU msModelName;  ///< its model
};

/// A model in a list, with what identifies its class.
struct TModelListEntry {
    int mnSubckt = 0; ///< the subcircuit of the model
    CStringU msName;  ///< the model
    CStringU msType;  ///< its type
    int mnLevel = 0;  ///< the level of its class
    CStringU msClass; ///< the name of its class
};
