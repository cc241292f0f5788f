#pragma once

#include "cli/ComposeCommand.h"
#include "cli/DescribeCommand.h"
#include "cli/OptionsCommand.h"
#include "cli/PagesCommand.h"
#include "cli/call/CallCommand.h"
#include "cli/example/MakeExampleCommand.h"
#include "cli/import/ImportCommand.h"
#include "cli/params/ParamsCommand.h"

#include <variant>

namespace quorvawiz::cli
{

/// `session` has no options of its own.
struct TSessionOptions {
};

/// A command with what it is asked for.
using TCommand =
    std::variant<TPagesOptions, TDescribeOptions, TComposeOptions, TOptionsOptions, TSessionOptions,
                 TCallOptions, TParamsOptions, TMakeExampleOptions, TImportCommandOptions>;

} // namespace quorvawiz::cli
