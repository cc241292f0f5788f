#pragma once

#include "cli/Command.h"

#include <string>

namespace CLI
{
class App;
}

namespace quorvawiz::cli
{

/// The arguments that one command takes: tells them to the parser and holds what the parser reads
/// for them. A class of its own for each command says which they are.
class CCommandArguments
{
public:
    /// Adds the command.
    /// @param rProgram the parser of the program; lives longer than this
    /// @param pName, pDescription as the program's help tells them
    CCommandArguments(CLI::App& rProgram, const char* pName, const char* pDescription);
    virtual ~CCommandArguments() = default;
    CCommandArguments(const CCommandArguments&) = delete; // the parser knows where the members are
    CCommandArguments& operator=(const CCommandArguments&) = delete;

    const std::string& Name() const;
    /// Whether the arguments that were parsed chose this command.
    bool IsChosen() const;
    /// The command as it was written, once it is chosen.
    /// @throws CUsageError for what the parser doesn't check
    virtual TCommand Read() = 0;

protected:
    CLI::App& Parser() { return mrParser; }
    void AddJsonFlag(bool& rbJson);
    /// The argument that names a page.
    void AddPage(std::string& rsPage);
    /// Puts a text above the last line of the help.
    void AddFooter(const char* pText);

private:
    CLI::App& mrParser;
};

} // namespace quorvawiz::cli
