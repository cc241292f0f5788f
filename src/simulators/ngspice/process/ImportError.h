#pragma once

#include <stdexcept>

namespace quorvawiz::ngspice
{

/// An import that can't be done. The text tells the user what the matter is, with the simulator's
/// own words where it has some; it may have several lines, without a line feed at the end.
class CImportError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// An import that its user ended.
class CImportCancelled : public CImportError
{
public:
    CImportCancelled() : CImportError("the import was cancelled") {}
};

} // namespace quorvawiz::ngspice
