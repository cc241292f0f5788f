#include "foundation/CharClass.h"
#include "foundation/StringU.h"

CStringU& CStringU::TrimLeft()
{
    TCharIterator it = begin();
    while (!it.IsEnd() && gIsWhiteSpace(*it)) {
        ++it;
    }
    if (it.GetIndex() > 0) {
        *this = Mid(it);
    }
    return *this;
}

CStringU& CStringU::TrimRight()
{
    TCharIterator it = end();
    while (it.GetIndex() > 0 && gIsWhiteSpace(*(it - 1))) {
        --it;
    }
    if (!it.IsEnd()) {
        *this = Left(it.GetIndex());
    }
    return *this;
}

CStringU& CStringU::Trim()
{
    TrimRight();
    return TrimLeft();
}

CStringU& CStringU::StripQuotes()
{
    const TCharIterator last = end() - 1;
    const TCharIterator second = begin() + 1;
    // The second character begins at or before the last: so there are two of them.
    if (second.GetIndex() <= last.GetIndex() && gIsQuote(*begin()) && gIsQuote(*last)) {
        *this = Mid(second.GetIndex(), last.GetIndex() - second.GetIndex());
    }
    return *this;
}

CStringU& CStringU::AddQuotes()
{
    if (IsEmpty()) {
        *this = CStringU("\"\"");
    } else if (!gIsQuote(*begin()) || !gIsQuote(*(end() - 1))) {
        *this = "\"" + *this + "\"";
    }
    return *this;
}
