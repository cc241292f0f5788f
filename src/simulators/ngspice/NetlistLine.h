#pragma once

#include <optional>
#include <string_view>

namespace quorvawiz::ngspice
{

/// What a line of a netlist is to the importer.
enum class ELine {
    Other,       ///< a card, a comment, a part of one
    Control,     ///< begins a block of commands
    EndControl,  ///< ends it
    Command,     ///< is a command by itself
    End,         ///< ends the netlist
    EndOfFile,   ///< nothing behind it is read
    Include,     ///< names a file to include
    Library,     ///< names a file and a section of it
    ForeignCode, ///< names a code model that loads or starts a program
};

/// Tells what a line is. The simulator looks at beginnings alone, in any case: ".controls" is
/// ".control".
/// @param sLine the line without carriage returns and without white space in front
[[nodiscard]] ELine gClassifyLine(std::string_view sLine);

/// A line that names a file.
struct TFileReference {
    std::string_view sCommand; ///< ".include"
    std::string_view sFile;    ///< the name, without quotes
    std::string_view sRest;    ///< what stands behind
};

/// Reads the name of the file in a line of the kinds Include and Library.
/// @param sLine the line; the result leads into it
/// @return nullopt if there is none, and for a .lib line that begins a section (".lib TT")
[[nodiscard]] std::optional<TFileReference> gReadFileReference(std::string_view sLine);

} // namespace quorvawiz::ngspice
