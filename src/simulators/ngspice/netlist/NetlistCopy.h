#pragma once

#include "simulators/ngspice/cards/FlatName.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{

class CPrivateFolder;

/// Copies a netlist, and all files that it includes, into a private folder, without the commands
/// that a netlist can hold: the simulator would run them, and they can run any program. Left out
/// are .control blocks, lines that begin with "*#", the title (one of "*ng_script" makes all lines
/// commands) and .end lines. What is left out is an empty comment in the copy, so that the lines
/// keep their numbers. Paths of .include and .lib lines lead to the copies of those files; a
/// relative one is looked for beside the file that has it, then beside the netlist.
class CNetlistCopy
{
public:
    /// @param rFolder where the copies go; it stays where it is
    explicit CNetlistCopy(const CPrivateFolder& rFolder) : mrFolder(rFolder) {}

    /// Copies a netlist.
    /// @param rNetlist its path
    /// @return its text, to which cards may be added; it has no .end. Its title is a comment
    /// @throws CImportError if it, or what it includes, can't be read or isn't text; if it includes
    ///         itself, too many files or too much; if it has code that the simulator would load
    ///         ("d_process", "d_cosim"). A missing file of a .lib line is left to the simulator
    [[nodiscard]] std::string Copy(const std::filesystem::path& rNetlist);

    /// How many blocks and lines of commands were left out.
    [[nodiscard]] std::size_t GetStripped() const noexcept { return mnStripped; }

    /// The first words of all lines that may be instances of subcircuits, in lower case.
    [[nodiscard]] const TInstanceNames& GetInstances() const noexcept { return mInstances; }

    /// What the simulator says, with the paths of the user's files for the names of their copies.
    [[nodiscard]] std::string TellUsersFiles(std::string sWords) const;

private:
    void TakeInstance(std::string_view sLine);
    std::string ReadText(const std::filesystem::path& rFile);
    std::string CopyText(const std::filesystem::path& rFile, bool bNetlist);
    std::string CopyReference(std::string_view sLine, const std::filesystem::path& rFile);
    std::string CopyOf(const std::filesystem::path& rFile, bool bInclude);

    const CPrivateFolder& mrFolder;
    std::filesystem::path mNetlist;
    std::map<std::filesystem::path, std::string> mCopies; // names of copies by canonical path
    std::vector<std::filesystem::path> mIncluding;        // files whose .include lines are followed
    TInstanceNames mInstances;
    std::size_t mnBytes = 0;
    std::size_t mnStripped = 0;
};

} // namespace quorvawiz::ngspice
