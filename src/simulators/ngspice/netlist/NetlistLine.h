#pragma once

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

/// A line of the kinds Include and Library.
struct TFileReference {
    std::string_view sFile; ///< the name, without quotes; empty if there is none
    std::string_view
        sSection; ///< for Library: what to take of the file; empty where the line has one
                  ///< name alone, which begins a section of this file, or is a file
};

/// Reads a line of the kinds Include and Library.
/// @param sLine the line; the result leads into it
[[nodiscard]] TFileReference gReadFileReference(std::string_view sLine);

} // namespace quorvawiz::ngspice
