#include "cli/SessionCommand.h"

#include "cli/Failure.h"
#include "cli/Session.h"

#include <iostream>

namespace quorvawiz::cli
{

int gRunSession()
{
    std::ios::sync_with_stdio(false);
    CSession(gSpiceWizard(), std::cin, std::cout).Run();
    return kDone;
}

} // namespace quorvawiz::cli
