#pragma once

#include "cli/params/BrowserTables.h"

#include <functional>
#include <string>
#include <string_view>

namespace quorvawiz::cli
{

/// A window as text: its tables with their titles, the columns aligned. Where it shows parameters,
/// its title comes first, the label of each tab stands above the tab's table, and a star in front
/// of each parameter that is set.
std::string gTellAsText(const TBrowserWindow& rWindow);

/// A window as one line of JSON: {"title", "tables": [{"label", "columns", "rows": [{"cells",
/// "set"}]}]}. The label is null without tabs.
/// @param rWrite takes the text, piece by piece
void gTellAsJson(const TBrowserWindow& rWindow,
                 const std::function<void(std::string_view sText)>& rWrite);

} // namespace quorvawiz::cli
