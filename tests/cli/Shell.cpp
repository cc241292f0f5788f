#include "cli/Shell.h"

#include <cstdio>
#include <stdexcept>

std::string gRunShell(const std::string& rsCommand)
{
    const std::string sProgram = QUORVAWIZ_CLI_PATH;
    const std::string sFolder = sProgram.substr(0, sProgram.rfind('/'));
    FILE* const pPipe =
        popen(("PATH='" + sFolder + "':$PATH; { " + rsCommand + "; } 2>&1").c_str(), "r");
    if (!pPipe)
        throw std::runtime_error("can't run a shell");
    std::string sOutput;
    for (int c = 0; (c = getc(pPipe)) != EOF;)
        sOutput += static_cast<char>(c);
    pclose(pPipe);
    return sOutput;
}
