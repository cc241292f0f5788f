#include "house/IncludeRule.h"
#include "house/SourceTree.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace quorvawiz::house
{
namespace
{

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr std::ptrdiff_t kMaxLines = 500;

std::ptrdiff_t gCountLines(const std::string& rText)
{
    return std::count(rText.begin(), rText.end(), '\n');
}

std::vector<TSourceFile> gReadCode()
{
    auto files = gReadFolders({"src", "apps"});
    std::erase_if(files, [](const TSourceFile& rFile) { return !gIsCode(rFile.msPath); });
    return files;
}

TEST(Floors, IncludesOnlyPointDown)
{
    const auto files = gReadCode();
    ASSERT_FALSE(files.empty());
    const auto known = gPathsOf(files);
    for (const auto& file : files)
        EXPECT_THAT(gFindFloorBreaches(file, known), IsEmpty());
}

TEST(Floors, NoModuleIsIncludedWhole)
{
    const auto files = gReadFolders({"src", "apps", "tests", "bench", "fuzz", "examples"});
    ASSERT_FALSE(files.empty());
    for (const auto& file : files) {
        if (gIsCode(file.msPath)) {
            EXPECT_THAT(gFindUmbrellas(file), IsEmpty());
        }
    }
}

TEST(Floors, FilesStayShort)
{
    const auto files = gReadCode();
    ASSERT_FALSE(files.empty());
    for (const auto& file : files)
        EXPECT_LE(gCountLines(file.msText), kMaxLines) << file.msPath;
}

TEST(FloorsProof, ALongFileIsCounted)
{
    std::string text;
    for (std::ptrdiff_t i = 0; i <= kMaxLines; ++i)
        text += "int x;\n";
    EXPECT_GT(gCountLines(text), kMaxLines);
}

TEST(FloorsProof, AModuleHeaderIsFound)
{
    EXPECT_THAT(gFindUmbrellas({"src/platform/qt/A.cpp", "int a;\n#include <QtWidgets>\n"}),
                ElementsAre(HasSubstr("src/platform/qt/A.cpp:2:")));
    EXPECT_THAT(gFindUmbrellas({"a.cpp", "#include <QtCore/QtCore>\n"}),
                ElementsAre(HasSubstr("a.cpp:1:")));
    EXPECT_THAT(gFindUmbrellas({"a.cpp", "#include <QtWidgets/QWidget>\n#include <QtGlobal>\n"}),
                IsEmpty());
}

// Headers to point at, one per floor.
const std::set<std::string> kKnown{
    "src/platform/base/B.h",     "src/platform/ui/U.h",
    "src/platform/headless/H.h", "src/platform/qt/Q.h",
    "src/foundation/F.h",        "src/params/P.h",
    "src/simulators/I.h",        "src/browser/W.h",
    "src/wizard/frame/R.h",      "src/wizard/analysis/A.h",
    "src/wizard/sources/S.h",    "src/wizard/setup/T.h",
    "src/wizard/output/O.h",     "src/wizard/optimization/Z.h",
    "src/exports/E.h",           "apps/cli/C.h",
    "apps/quorvahost/N.h",
};

struct TFloorCase {
    std::string msFolder;
    std::set<std::string> mSeen; // of kKnown
};

// Who sees whom, written out in full and apart from the table that the rule uses.
std::vector<TFloorCase> gFloorCases()
{
    const std::string b = "src/platform/base/B.h", u = "src/platform/ui/U.h";
    const std::string h = "src/platform/headless/H.h", q = "src/platform/qt/Q.h";
    const std::string f = "src/foundation/F.h", p = "src/params/P.h", w = "src/browser/W.h";
    const std::string r = "src/wizard/frame/R.h", e = "src/exports/E.h";
    const std::string a = "src/wizard/analysis/A.h", s = "src/wizard/sources/S.h";
    const std::string t = "src/wizard/setup/T.h", o = "src/wizard/output/O.h";
    const std::string z = "src/wizard/optimization/Z.h";
    const std::string i = "src/simulators/I.h";
    const std::string c = "apps/cli/C.h", n = "apps/quorvahost/N.h";
    return {
        {"src/platform/base", {b}},
        {"src/platform/ui", {b, u}},
        {"src/platform/headless", {b, u, h}},
        {"src/platform/qt", {b, u, q}},
        {"src/foundation", {b, f}},
        {"src/params", {b, f, p}},
        {"src/simulators", {b, f, p, i}},
        {"src/browser", {b, u, f, p, w}},
        {"src/wizard/frame", {b, u, f, r}},
        {"src/wizard/analysis", {b, u, f, r, a}},
        {"src/wizard/sources", {b, u, f, r, s}},
        {"src/wizard/setup", {b, u, f, r, t}},
        {"src/wizard/output", {b, u, f, r, o}},
        {"src/wizard/optimization", {b, u, f, r, z}},
        {"src/exports", {b, u, f, p, w, r, a, s, t, o, z, e}},
        {"apps/cli", {b, u, h, f, p, i, w, r, a, s, t, o, z, e, c}},
        {"apps/quorvahost", {b, q, e, n}},
    };
}

TEST(FloorsProof, EachFolderSeesItsFloorsAndNoOther)
{
    for (const auto& row : gFloorCases()) {
        for (const auto& header : kKnown) {
            const std::string include = header.substr(header.find('/') + 1);
            const TSourceFile file{row.msFolder + "/X.cpp", "#include \"" + include + "\"\n"};
            EXPECT_EQ(gFindFloorBreaches(file, kKnown).empty(), row.mSeen.contains(header))
                << row.msFolder << " includes " << header;
        }
    }
}

struct TFormCase {
    std::string msName;
    std::string msPath;
    std::string msText;
    bool mbBreach;
};

TEST(FloorsProof, EveryFormOfAnIncludeIsJudged)
{
    const std::vector<TFormCase> cases{
        {"angle brackets", "src/params/X.h", "#include <platform/ui/U.h>\n", true},
        {"blanks", "src/params/X.h", "  #  include \"platform/ui/U.h\"\n", true},
        {"no blank", "src/params/X.h", "#include\"platform/ui/U.h\"\n", true},
        {"a comment behind", "src/params/X.h", "#include \"platform/ui/U.h\" // why\n", true},
        {"no line feed at the end", "src/params/X.h", "#include \"platform/ui/U.h\"", true},
        {"up and down", "src/params/X.h", "#include \"../platform/ui/U.h\"\n", true},
        {"beside the file", "src/params/X.h", "#include \"P.h\"\n", false},
        {"a comment", "src/params/X.h", "// #include \"platform/ui/U.h\"\n", false},
        {"standard header", "src/params/X.h", "#include <string>\n", false},
        {"generated header", "src/params/X.h", "#include \"quorvawiz/version.h\"\n", false},
        {"unknown header", "src/params/X.h", "#include \"platform/base/Nothing.h\"\n", true},
        {"no floor in src", "src/elsewhere/X.h", "", true},
        {"no floor in the wizard", "src/wizard/X.h", "", true},
        {"no floor by a longer name", "src/paramsold/X.h", "", true},
        {"Qt class", "src/platform/ui/X.h", "#include <QWidget>\n", true},
        {"Qt class by module", "src/platform/ui/X.h", "#include <QtWidgets/QWidget>\n", true},
        {"Qt class, quoted", "src/platform/ui/X.h", "#include \"QWidget\"\n", true},
        {"Qt class, older name", "src/platform/ui/X.h", "#include <qwidget.h>\n", true},
        {"Qt on the command line", "apps/cli/X.cpp", "#include <QString>\n", true},
        {"Qt in its desktop", "src/platform/qt/X.h", "#include <QWidget>\n", false},
        {"Qt in the host", "apps/quorvahost/X.h", "#include <QWidget>\n", false},
    };
    for (const auto& row : cases)
        EXPECT_EQ(!gFindFloorBreaches({row.msPath, row.msText}, kKnown).empty(), row.mbBreach)
            << row.msName;
}

} // namespace
} // namespace quorvawiz::house
