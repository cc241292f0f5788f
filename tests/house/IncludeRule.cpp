#include "house/IncludeRule.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <optional>
#include <string_view>

namespace quorvawiz::house
{
namespace
{

// A folder, and the folders whose headers it may include besides its own. An allowed folder stands
// for the folders in it, too.
struct TFloor {
    std::string_view msFolder;
    std::vector<std::string_view> mAllowed;
    bool mbQt = false;
};

const std::vector<std::string_view> kUnderFrame{"src/platform/ui", "src/platform/base",
                                                "src/foundation"};
const std::vector<std::string_view> kUnderFamily{"src/wizard/frame", "src/platform/ui",
                                                 "src/platform/base", "src/foundation"};
const std::vector<std::string_view> kUnderCli{
    "src/exports",     "src/wizard",        "src/browser",
    "src/params",      "src/simulators",    "src/foundation",
    "src/platform/ui", "src/platform/base", "src/platform/headless"};

const std::vector<TFloor> kFloors{
    {"src/platform/base", {}},
    {"src/platform/ui", {"src/platform/base"}},
    {"src/platform/headless", {"src/platform/ui", "src/platform/base"}},
    {"src/platform/qt", {"src/platform/ui", "src/platform/base"}, true},
    {"src/foundation", {"src/platform/base"}},
    {"src/params", {"src/foundation", "src/platform/base"}},
    {"src/simulators", {"src/params", "src/foundation", "src/platform/base"}},
    {"src/browser", {"src/params", "src/foundation", "src/platform/ui", "src/platform/base"}},
    {"src/wizard/frame", kUnderFrame},
    {"src/wizard/analysis", kUnderFamily},
    {"src/wizard/sources", kUnderFamily},
    {"src/wizard/setup", kUnderFamily},
    {"src/wizard/output", kUnderFamily},
    {"src/wizard/optimization", kUnderFamily},
    {"src/exports",
     {"src/wizard", "src/browser", "src/params", "src/foundation", "src/platform/ui",
      "src/platform/base"}},
    {"apps/cli", kUnderCli},
    // What any host sees, and no more.
    {"apps/quorvahost", {"src/exports", "src/platform/qt", "src/platform/base"}, true},
};

// Written by the build, so never found in the tree.
constexpr std::string_view kGenerated = "quorvawiz/version.h";

struct TInclude {
    std::size_t mnLine = 0; // from 1
    std::string msName;
    bool mbQuoted = false;
};

std::string_view gSkipBlanks(std::string_view sText)
{
    return sText.substr(std::min(sText.find_first_not_of(" \t"), sText.size()));
}

std::optional<TInclude> gParseInclude(const std::string& rLine, std::size_t nLine)
{
    std::string_view rest = gSkipBlanks(rLine);
    if (!rest.starts_with('#'))
        return std::nullopt;
    rest = gSkipBlanks(rest.substr(1));
    constexpr std::string_view kWord = "include";
    if (!rest.starts_with(kWord))
        return std::nullopt;
    rest = gSkipBlanks(rest.substr(kWord.size()));
    if (!rest.starts_with('"') && !rest.starts_with('<'))
        return std::nullopt;
    const bool quoted = rest.front() == '"';
    const std::size_t end = rest.find(quoted ? '"' : '>', 1);
    if (end == std::string_view::npos)
        return std::nullopt;
    return TInclude{nLine, std::string(rest.substr(1, end - 1)), quoted};
}

std::vector<TInclude> gIncludesOf(const TSourceFile& rFile)
{
    std::vector<TInclude> includes;
    const auto lines = gSplitLines(rFile.msText);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (auto include = gParseInclude(lines[i], i + 1))
            includes.push_back(std::move(*include));
    }
    return includes;
}

bool gIsIn(std::string_view sPath, std::string_view sFolder)
{
    return sPath == sFolder ||
           (sPath.starts_with(sFolder) && sPath.substr(sFolder.size()).starts_with('/'));
}

const TFloor* gFloorOf(std::string_view sPath)
{
    const auto found = std::find_if(kFloors.begin(), kFloors.end(), [&](const TFloor& rFloor) {
        return gIsIn(sPath, rFloor.msFolder);
    });
    return found == kFloors.end() ? nullptr : &*found;
}

// In the order in which the compiler looks.
std::optional<std::string> gResolve(const TSourceFile& rFile, const TInclude& rInclude,
                                    const std::set<std::string>& rKnown)
{
    const auto folder = std::filesystem::path(rFile.msPath).parent_path();
    std::vector<std::filesystem::path> places{"src", "apps"};
    if (rInclude.mbQuoted)
        places.insert(places.begin(), folder);
    for (const auto& place : places) {
        auto candidate = (place / rInclude.msName).lexically_normal().generic_string();
        if (rKnown.contains(candidate))
            return candidate;
    }
    return std::nullopt;
}

// Qt's own headers: <QWidget>, <QtWidgets/QWidget>, and the older <qwidget.h>.
bool gIsQt(std::string_view sName)
{
    if (sName.size() < 2 || (sName[0] != 'Q' && sName[0] != 'q'))
        return false;
    const bool upperNext = std::isupper(static_cast<unsigned char>(sName[1])) != 0;
    return sName[0] == 'Q' ? upperNext || sName[1] == 't'
                           : sName.ends_with(".h") && !sName.starts_with("quorvawiz");
}

std::string gSay(const TSourceFile& rFile, const TInclude& rInclude, const std::string& rWhat)
{
    return rFile.msPath + ":" + std::to_string(rInclude.mnLine) + ": \"" + rInclude.msName + "\" " +
           rWhat;
}

std::optional<std::string> gJudge(const TSourceFile& rFile, const TFloor& rFloor,
                                  const TInclude& rInclude, const std::set<std::string>& rKnown)
{
    const auto target = gResolve(rFile, rInclude, rKnown);
    if (!target) {
        if (gIsQt(rInclude.msName)) {
            if (rFloor.mbQt)
                return std::nullopt;
            return gSay(rFile, rInclude, "is Qt's, which has no place here");
        }
        if (rInclude.mbQuoted && rInclude.msName != kGenerated)
            return gSay(rFile, rInclude, "is not a file of this tree");
        return std::nullopt;
    }
    const bool allowed =
        gIsIn(*target, rFloor.msFolder) ||
        std::any_of(rFloor.mAllowed.begin(), rFloor.mAllowed.end(),
                    [&](std::string_view sFolder) { return gIsIn(*target, sFolder); });
    if (allowed)
        return std::nullopt;
    return gSay(rFile, rInclude, "may not be seen from " + std::string(rFloor.msFolder));
}

} // namespace

std::vector<std::string> gFindFloorBreaches(const TSourceFile& rFile,
                                            const std::set<std::string>& rKnown)
{
    const TFloor* pFloor = gFloorOf(rFile.msPath);
    if (pFloor == nullptr)
        return {rFile.msPath + ": stands on no floor"};
    std::vector<std::string> breaches;
    for (const auto& include : gIncludesOf(rFile)) {
        if (auto breach = gJudge(rFile, *pFloor, include, rKnown))
            breaches.push_back(std::move(*breach));
    }
    return breaches;
}

std::vector<std::string> gFindUmbrellas(const TSourceFile& rFile)
{
    // By name: <QtGlobal>, <QtMath> and others of that form are single headers.
    constexpr std::array<std::string_view, 8> kModules{"QtConcurrent", "QtCore",         "QtGui",
                                                       "QtNetwork",    "QtPrintSupport", "QtSvg",
                                                       "QtTest",       "QtWidgets"};
    std::vector<std::string> breaches;
    for (const auto& include : gIncludesOf(rFile)) {
        const auto last = std::filesystem::path(include.msName).filename().string();
        if (std::find(kModules.begin(), kModules.end(), last) != kModules.end())
            breaches.push_back(gSay(rFile, include, "is a whole module; name single headers"));
    }
    return breaches;
}

} // namespace quorvawiz::house
