#include "simulators/ngspice/process/Commands.h"

#include <algorithm>

namespace quorvawiz::ngspice
{
namespace
{

/// A block of commands. Without "quit" the netlist's own analyses would run behind it.
std::string Block(const std::string& rsCommands)
{
    return ".control\nset noaskquit\n" + rsCommands + "quit 0\n.endc\n.end\n";
}

/// A command that writes its listing to a file, perhaps behind what is there.
std::string To(std::string_view sCommand, std::string_view sFile, bool bAppend = false)
{
    return std::string(sCommand) + (bAppend ? " >> " : " > ") + std::string(sFile) + "\n";
}

bool IsWord(const TDeviceType& rType)
{
    return std::ranges::all_of(rType.sName, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               c == '_' || c == '-' || c == '.';
    });
}

} // namespace

std::string gListingCommands()
{
    return Block(To("version -s", files::kVersion) + "set altshow\nop\n" +
                 To("echo $curplot", files::kPlot) + To("show all : all", files::kShow) +
                 To("showmod all : all", files::kShowMod) + To("listing expand", files::kExpand));
}

std::string gTypeCommands()
{
    return "* types\n" + Block(To("devhelp", files::kTypes));
}

std::string gTableCommands(std::span<const TDeviceType> types)
{
    std::string sCommands;
    for (const TDeviceType& rType : types) {
        if (IsWord(rType)) {
            sCommands += To("devhelp -csv -type -flags " + rType.sName, files::kTables, true);
        }
    }
    return "* tables\n" + Block(sCommands);
}

} // namespace quorvawiz::ngspice
