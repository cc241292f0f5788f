#pragma once

#include "foundation/StringU.h"

/// The titles of the browser's windows, in the user's language.

/// The title of the list of devices.
/// @param rsFilter the subcircuit that it is limited to, or empty
[[nodiscard]] CStringU gMakeDevicesTitle(const CStringU& rsFilter);

/// The title of a device's details.
/// @param rsDevice what gMakeDeviceTitle says of it
[[nodiscard]] CStringU gMakeDeviceDetailsTitle(const CStringU& rsDevice);

/// The title of the list of library models.
[[nodiscard]] CStringU gMakeModelsTitle();

/// The title of a library model's details.
/// @param rsModel the model as gMakeDisplayName names it
[[nodiscard]] CStringU gMakeModelDetailsTitle(const CStringU& rsModel);

/// The title of the list of the simulator's model classes.
[[nodiscard]] CStringU gMakeClassesTitle();

/// The title of a model class's details.
/// @param rsClass the class
[[nodiscard]] CStringU gMakeClassDetailsTitle(const CStringU& rsClass);
