#pragma once

#include "params/ModelClass.h"

#include <span>

namespace quorvawiz::cli
{

/// A parameter of the example, as a table tells it.
struct TExampleParam {
    const char* pName;
    const char* pUnits;
    const char* pDescription; ///< in UTF-8
    double dDefault;          ///< NaN for one without a value yet
    const char* pAlias = nullptr;
};

/// A class of the example, as a table tells it.
struct TExampleClass {
    const char* pName;
    const char* pType;
    int nLevel;
    double dVersion;
    const char* pDescription; ///< in UTF-8
    char chDevice;            ///< what its devices' names begin with
    std::span<const TExampleParam> model;
    std::span<const TExampleParam> device;
    std::span<const TExampleParam> state;
};

/// The electrical classes of the example: MOS and bipolar transistors, diodes, resistors and
/// capacitors.
std::span<const TExampleClass> gExampleClasses();

/// The optical class of the example.
const TExampleClass& gExampleOpticalClass();

/// A class as the store takes it.
TModelClassDef gMakeExampleClass(const TExampleClass& rClass);

} // namespace quorvawiz::cli
