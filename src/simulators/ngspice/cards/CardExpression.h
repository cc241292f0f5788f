#pragma once

#include "simulators/ngspice/listings/ClassPlan.h"

#include <string_view>

namespace quorvawiz::ngspice
{

/// The expression that a card gives behind the name of a parameter: all up to the next "NAME=" of
/// the class that stands in no parentheses, or to the card's end. "v(m)==1" in it names nothing.
/// @param sBehind the card's text behind the name, any bytes
/// @param rPlans the parameters of the class
/// @return the expression without "=" and white space around it; it leads into sBehind
[[nodiscard]] std::string_view gReadCardExpression(std::string_view sBehind,
                                                   const CParamPlans& rPlans);

} // namespace quorvawiz::ngspice
