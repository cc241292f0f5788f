#pragma once

#include "platform/ui/FieldView.h"

#include <nlohmann/json_fwd.hpp>

class CTreeCtrl;

namespace quorvawiz::cli
{

/// JSON with its members in the order in which they were put in.
using TJson = nlohmann::ordered_json;

/// The state of a field, as the session's replies tell it (docs/session.md, "fields").
TJson gFieldToJson(const TFieldView& rField);

/// The selected and the open nodes of a tree: {"selected": path or null, "expanded": [paths]}.
TJson gTreeToJson(const CTreeCtrl& rTree);

/// A JSON value as one line without a line end, always valid UTF-8.
std::string gToLine(const TJson& rValue);

} // namespace quorvawiz::cli
