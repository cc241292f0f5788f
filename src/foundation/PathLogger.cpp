#include "foundation/PathLogger.h"

#include "foundation/PathLog.h"

#include <string>
#include <utility>

namespace
{

TPathLogger& Logger()
{
    static TPathLogger logger;
    return logger;
}

} // namespace

void gSetPathLogger(TPathLogger logger)
{
    Logger() = std::move(logger);
}

void gClearPathLogger()
{
    Logger() = nullptr;
}

bool gIsPathLoggerSet()
{
    return Logger() != nullptr;
}

void gLogPathCall(std::string_view sFunction, std::initializer_list<TLoggedArgument> arguments,
                  const CStringU& rResult)
{
    if (!gIsPathLoggerSet()) {
        return;
    }
    try {
        std::string sLine(sFunction);
        std::string_view sBefore = "(";
        for (const TLoggedArgument& rArgument : arguments) {
            sLine += sBefore;
            sLine += rArgument.msName;
            sLine += '=';
            sLine += rArgument.mrValue.Text();
            sBefore = ", ";
        }
        sLine += ") returns ";
        sLine += rResult.Text();
        const TPathLogger logger = Logger(); // a copy: it may set another one while it runs
        logger(CStringU(sLine, TTextKind::Utf8IfNeeded));
    } catch (...) {
        // A line that is lost has no influence on the result that it tells of.
    }
}
