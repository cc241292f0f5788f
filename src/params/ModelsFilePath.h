#pragma once

class CStringU;

/// The full path of a file of model definitions in the user's folder for application data, which is
/// made where it is missing: "Velkara EDA/SimModels_v2021.264.dat" in it for "Sim" and "dat". The
/// folder's blank is an underscore where gIsWine says so.
/// @param rsPrefix what the name begins with
/// @param rsExtension without a point
/// @return the name alone where the system can't tell the user's folder
[[nodiscard]] CStringU gGetModelsFilePath(const CStringU& rsPrefix, const CStringU& rsExtension);
