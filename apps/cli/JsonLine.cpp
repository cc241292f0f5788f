#include "cli/JsonLine.h"

#include "cli/Quote.h"
#include "cli/RequestError.h"

#include <algorithm>
#include <string>
#include <vector>

namespace quorvawiz::cli
{

TJson gParseJsonLine(std::string_view sLine)
{
    using TEvent = TJson::parse_event_t;
    TJson object;
    std::vector<std::string> names;
    const auto look = [&names](int nDepth, TEvent event, const TJson& rName) {
        // The depth is that around a list or an object that begins.
        if ((event == TEvent::array_start || event == TEvent::object_start) &&
            nDepth >= kMostJsonDepth)
            throw CRequestError("the line is nested more than " + std::to_string(kMostJsonDepth) +
                                " deep");
        if (event == TEvent::key && nDepth == 1)
            names.push_back(rName.get<std::string>());
        return true;
    };
    try {
        object = TJson::parse(sLine, look);
    } catch (const TJson::parse_error& rError) {
        throw CRequestError("the line isn't JSON from byte " + std::to_string(rError.byte) + " on");
    } catch (const TJson::out_of_range&) {
        throw CRequestError("the line holds a number that is too big");
    }
    // The parser takes a NUL for the end of the line.
    if (const auto nNul = sLine.find('\0'); nNul != std::string_view::npos)
        throw CRequestError("the line isn't JSON from byte " + std::to_string(nNul + 1) + " on");
    if (!object.is_object())
        throw CRequestError("the line isn't a JSON object");
    std::ranges::sort(names);
    if (const auto twice = std::ranges::adjacent_find(names); twice != names.end())
        throw CRequestError("the member " + gQuoted(*twice) + " stands there twice");
    return object;
}

} // namespace quorvawiz::cli
