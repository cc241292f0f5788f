#include "simulators/ngspice/netlist/NetlistLine.h"

#include "platform/base/Ascii.h"
#include "simulators/ngspice/listings/Lines.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace quorvawiz::ngspice
{
namespace
{

bool Begins(std::string_view sLine, std::string_view sWord)
{
    return std::ranges::equal(sLine.substr(0, sWord.size()), sWord, {}, gToLowerAscii);
}

/// ".end", but not ".ends" and other words.
bool IsEnd(std::string_view sLine)
{
    constexpr std::string_view end = ".end";
    return Begins(sLine, end) && (sLine.size() == end.size() || gIsBlank(sLine[end.size()]));
}

/// "d_process" starts a program, "d_cosim" loads a library. They stand in .model cards, perhaps in
/// a continued line, so they are looked for everywhere.
bool HasForeignCode(std::string_view sLine)
{
    constexpr std::array<std::string_view, 2> words{"d_process", "d_cosim"};
    return !sLine.starts_with('*') && std::ranges::any_of(words, [&](std::string_view sWord) {
        return gHoldsNoCase(sLine, sWord);
    });
}

/// Cuts the first word off a text. The simulator takes comments behind ";" and "//" away before it
/// looks for words, so that they may stand right behind one; nothing is left of the text then.
std::string_view CutWord(std::string_view& rsRest)
{
    const std::string_view sWord = gNextWord(rsRest);
    const std::size_t nComment = std::min(sWord.find(';'), sWord.find("//"));
    if (nComment == std::string_view::npos) {
        return sWord;
    }
    rsRest = {};
    return sWord.substr(0, nComment);
}

/// The name at the beginning of a text, in quotes or up to white space.
std::string_view CutName(std::string_view& rsRest)
{
    rsRest = gTrimmed(rsRest);
    if (rsRest.empty()) {
        return {};
    }
    const char cQuote = rsRest.front();
    if (cQuote != '"' && cQuote != '\'') {
        return CutWord(rsRest);
    }
    const std::size_t nEnd = rsRest.find(cQuote, 1);
    const std::string_view sName = rsRest.substr(1, nEnd - 1);
    rsRest.remove_prefix(nEnd == std::string_view::npos ? rsRest.size() : nEnd + 1);
    return sName;
}

} // namespace

ELine gClassifyLine(std::string_view sLine)
{
    if (sLine.starts_with('@')) {
        return ELine::EndOfFile;
    }
    if (sLine.starts_with("*#")) {
        return ELine::Command;
    }
    if (HasForeignCode(sLine)) {
        return ELine::ForeignCode;
    }
    if (!sLine.starts_with('.')) {
        return ELine::Other;
    }
    if (Begins(sLine, ".control")) {
        return ELine::Control;
    }
    if (Begins(sLine, ".endc")) {
        return ELine::EndControl;
    }
    if (Begins(sLine, ".inc")) {
        return ELine::Include;
    }
    if (Begins(sLine, ".lib")) {
        return ELine::Library;
    }
    return IsEnd(sLine) ? ELine::End : ELine::Other;
}

TFileReference gReadFileReference(std::string_view sLine)
{
    TFileReference reference;
    const bool bLibrary = Begins(sLine, ".lib");
    gNextWord(sLine);
    reference.sFile = CutName(sLine);
    const std::string_view sNext = CutWord(sLine);
    // Behind a dollar and a blank stands a comment, too.
    if (bLibrary && sNext != "$") {
        reference.sSection = sNext;
    }
    return reference;
}

} // namespace quorvawiz::ngspice
