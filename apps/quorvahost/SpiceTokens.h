#pragma once

#include <QStringView>
#include <vector>

namespace quorvawiz::host
{

/// What a part of a netlist's line is.
enum class EToken {
    Comment,      ///< a line that starts with "*", or from ";" or a blank and "$" to the end
    Directive,    ///< ".tran", the first word of a line
    Continuation, ///< the "+" that starts a line
    Name,         ///< the first word of any other line: an element
    Parameter,    ///< a word with "=" behind it
    Number,       ///< with suffix and unit: 1meg, 2.5u, 1e-9, 10kohm
    Text,         ///< "..."
    Expression,   ///< '...' or {...}
};

/// A part of a line, in 16-bit units.
struct TToken {
    qsizetype nStart = 0;
    qsizetype nLength = 0;
    EToken kind = EToken::Comment;

    bool operator==(const TToken&) const = default;
};

/// Finds the parts of one line, from the left, without overlaps; what is nothing special is left
/// out. A quote or brace that isn't closed reaches to the end of the line.
std::vector<TToken> gTokenize(QStringView sLine);

/// Tells whether a word is a SPICE number: a decimal number, perhaps with an exponent, with letters
/// behind it. So "2N2222" is none.
bool gIsSpiceNumber(QStringView sWord);

} // namespace quorvawiz::host
