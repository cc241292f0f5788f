#include "simulators/ngspice/netlist/NetlistCopy.h"

#include "platform/base/Ascii.h"
#include "platform/base/Environment.h"
#include "simulators/ngspice/listings/Lines.h"
#include "simulators/ngspice/netlist/NetlistLine.h"
#include "simulators/ngspice/process/ImportError.h"
#include "simulators/ngspice/process/PrivateFolder.h"
#include "simulators/ngspice/process/ReadWhole.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace quorvawiz::ngspice
{
namespace
{

/// Far more than a netlist with the libraries of a process has.
constexpr std::size_t kMostBytes = 512U << 20U;
constexpr std::size_t kMostFiles = 10'000;

/// The title of the copy, which the simulator takes for nothing else.
constexpr std::string_view kTitle = "* imported";

std::string Quoted(const std::filesystem::path& rPath)
{
    return "'" + rPath.string() + "'";
}

/// A name that can't lead anywhere: of a section, or for the simulator's words about a missing
/// file.
std::string Harmless(std::string_view sName)
{
    sName.remove_prefix(sName.rfind('/') + 1); // with none, npos + 1 is 0
    std::string sPlain(sName);
    const auto isPlain = [](char c) {
        return c == '_' || c == '-' || c == '.' || (c >= '0' && c <= '9') ||
               (gToLowerAscii(c) >= 'a' && gToLowerAscii(c) <= 'z');
    };
    std::ranges::replace_if(
        sPlain, [&](char c) { return !isPlain(c); }, '_');
    return sPlain;
}

/// A file that is named in another one.
std::filesystem::path Locate(std::string_view sName, const std::filesystem::path& rBeside,
                             const std::filesystem::path& rNetlist)
{
    if (sName.starts_with("~/")) {
        return std::filesystem::path(gGetEnvironment("HOME").value_or("")) / sName.substr(2);
    }
    std::error_code ignored;
    auto beside = rBeside.parent_path() / sName;
    return std::filesystem::exists(beside, ignored) ? beside : rNetlist.parent_path() / sName;
}

} // namespace

std::string CNetlistCopy::Copy(const std::filesystem::path& rNetlist)
{
    std::error_code error;
    mNetlist = std::filesystem::absolute(rNetlist, error);
    if (!std::filesystem::is_regular_file(mNetlist, error)) {
        throw CImportError("there is no netlist " + Quoted(rNetlist));
    }
    return CopyText(mNetlist, true);
}

/// The text of a file as the simulator sees it: it takes no notice of carriage returns.
std::string CNetlistCopy::ReadText(const std::filesystem::path& rFile)
{
    auto text = gReadWhole(rFile, kMostBytes);
    if (!text) {
        throw CImportError("can't read " + Quoted(rFile));
    }
    mnBytes += text->size();
    if (mnBytes > kMostBytes || mCopies.size() > kMostFiles) {
        throw CImportError("the netlist includes too much");
    }
    if (text->find('\0') != std::string::npos) {
        throw CImportError(Quoted(rFile) + " isn't text");
    }
    std::erase(*text, '\r');
    return std::move(*text);
}

std::string CNetlistCopy::TellUsersFiles(std::string sWords) const
{
    for (const auto& [rPath, rsCopy] : mCopies) {
        const std::string sPath = rPath.string();
        std::size_t nAt = 0;
        while ((nAt = sWords.find(rsCopy, nAt)) != std::string::npos) {
            sWords.replace(nAt, rsCopy.size(), sPath);
            nAt += sPath.size();
        }
    }
    return sWords;
}

void CNetlistCopy::TakeInstance(std::string_view sLine)
{
    if (sLine.empty() || gToLowerAscii(sLine.front()) != 'x') {
        return;
    }
    std::string sName(gNextWord(sLine));
    std::ranges::transform(sName, sName.begin(), gToLowerAscii);
    mInstances.insert(std::move(sName));
}

std::string CNetlistCopy::CopyText(const std::filesystem::path& rFile, bool bNetlist)
{
    const std::string sText = ReadText(rFile);
    std::string sCopy;
    sCopy.reserve(sText.size() + 64);
    std::string_view sRest = sText;
    if (bNetlist) {
        sCopy.append(kTitle).append("\n");
        if (gClassifyLine(gTrimmed(sRest.substr(0, sRest.find('\n')))) != ELine::Include) {
            gNextLine(sRest); // an .include is followed in the title's place, too
        }
    }
    bool bCommands = false;
    while (!sRest.empty()) {
        // The simulator passes over blanks in front of a line.
        const std::string_view sLine = gTrimmed(gNextLine(sRest));
        const ELine eLine = gClassifyLine(sLine);
        if (eLine == ELine::EndOfFile && !bCommands) {
            break;
        }
        if (bCommands) {
            bCommands = eLine != ELine::EndControl;
            sCopy += "*\n";
            continue;
        }
        switch (eLine) {
        case ELine::Control:
            bCommands = true;
            [[fallthrough]];
        case ELine::Command:
            ++mnStripped;
            [[fallthrough]];
        case ELine::EndControl:
        case ELine::End:
            sCopy += "*";
            break;
        case ELine::Include:
        case ELine::Library:
            sCopy += CopyReference(sLine, rFile);
            break;
        case ELine::ForeignCode:
            throw CImportError(Quoted(rFile) +
                               " has code to load or to run, which an import "
                               "doesn't do:\n" +
                               std::string(sLine));
        case ELine::Other:
            TakeInstance(sLine);
            [[fallthrough]];
        case ELine::EndOfFile:
            sCopy += sLine;
            break;
        }
        sCopy += '\n';
    }
    return sCopy;
}

/// The line anew, word by word: nothing of it that this side reads in another way than the
/// simulator may name a file that isn't a copy.
std::string CNetlistCopy::CopyReference(std::string_view sLine, const std::filesystem::path& rFile)
{
    const bool bInclude = gClassifyLine(sLine) == ELine::Include;
    const TFileReference reference = gReadFileReference(sLine);
    std::string sCopy = bInclude ? ".include" : ".lib";
    if (reference.sFile.empty()) {
        return sCopy;
    }
    std::error_code error;
    const auto located =
        std::filesystem::canonical(Locate(reference.sFile, rFile, mNetlist), error);
    const bool bFile = !error && !std::filesystem::is_directory(located, error);
    if (!bFile && bInclude) {
        throw CImportError(Quoted(rFile) + " includes '" + std::string(reference.sFile) +
                           "', which isn't there");
    }
    const bool bSectionBegins = !bFile && reference.sSection.empty();
    if (bSectionBegins) {
        return sCopy + " " + Harmless(reference.sFile);
    }
    // A section that nobody takes may well be of a file that isn't there.
    const std::string sName =
        bFile ? CopyOf(located, bInclude) : "missing/" + Harmless(reference.sFile);
    sCopy += " \"" + sName + "\"";
    return reference.sSection.empty() ? sCopy : sCopy + " " + std::string(reference.sSection);
}

/// The name of the copy of a file, which is made once.
std::string CNetlistCopy::CopyOf(const std::filesystem::path& rFile, bool bInclude)
{
    if (bInclude && std::ranges::find(mIncluding, rFile) != mIncluding.end()) {
        throw CImportError(Quoted(rFile) + " includes itself");
    }
    if (const auto known = mCopies.find(rFile); known != mCopies.end()) {
        return known->second;
    }
    const std::string sName = "part" + std::to_string(mCopies.size() + 1) + ".cir";
    mCopies.emplace(rFile, sName); // first, as a library may refer to sections of its own
    if (bInclude) {
        mIncluding.push_back(rFile);
    }
    mrFolder.Write(sName, CopyText(rFile, false));
    if (bInclude) {
        mIncluding.pop_back();
    }
    return sName;
}

} // namespace quorvawiz::ngspice
