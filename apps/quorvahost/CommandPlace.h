#pragma once

#include <QString>
#include <QStringView>
#include <functional>

namespace quorvawiz::host
{

/// A netlist as lines, so that a place in a large one is found without copying it.
struct TLines {
    int nCount = 0;                     ///< at least 1
    std::function<QString(int)> lineAt; ///< the text of a line, from 0, without its end
};

/// The caret, or what is selected.
struct TSelection {
    int nLine = 0;      ///< of its end, from 0
    int nColumn = 0;    ///< of its end, in 16-bit units
    bool bEmpty = true; ///< a caret, nothing is selected
};

/// Where a command goes.
struct TCommandPlace {
    int nLine = 0;           ///< from 0
    bool bTakesLine = false; ///< the line is empty and becomes the command's; otherwise below it

    bool operator==(const TCommandPlace&) const = default;
};

/// Finds the place of a command, which never splits anything and never replaces anything: an empty
/// line at the caret is taken; otherwise the command goes below the caret's line, or below the last
/// line that has something selected. A statement that is continued ("+ ...") stays in one piece:
/// below its last line. It goes where a simulator reads it: the first line is the netlist's title,
/// also when it is empty, and never taken; at ".end", or behind it with nothing between, the
/// command goes in front of it.
TCommandPlace gPlaceOfCommand(const TLines& rLines, TSelection selection);

/// Tells whether a line continues the statement above: "+" is its first character.
bool gIsContinuation(QStringView sLine);

/// Tells whether a line closes the netlist: ".end", in any case, is its first word.
bool gIsNetlistEnd(QStringView sLine);

} // namespace quorvawiz::host
