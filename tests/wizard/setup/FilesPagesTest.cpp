// The three pages that refer to a file.

#include "platform/headless/HeadlessDesktop.h"
#include "platform/ui/FieldView.h"
#include "support/Look.h"
#include "support/PageTest.h"
#include "support/Steps.h"
#include "support/TranslationScope.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace
{
using namespace steps;

using FilesPages = PageTest;

constexpr const char* kInclude = "Files/Include file";
constexpr const char* kLibrary = "Files/Library file";
constexpr const char* kDelete = "Files/Delete library file";

constexpr const char* kLibraryFilter =
    "Library Files (*.lib)|*.lib|SPICE Files (*.sp;*.spc;*.cir)|*.sp; *.spc; *.cir|Model Files "
    "(*.md)|*.md|All Files (*.*)|*.*||";

/// The path of a page as `CBracketTranslation` writes it.
CString Bracketed(std::string sPath)
{
    return "[" + sPath.replace(sPath.find('/'), 1, "]/[") + "]";
}

TStep OpenPage(const char* pPage)
{
    return Open(pPage);
}

// --- the templates

struct TTemplateCase {
    const char* pPage;
    const char* pGroup;
    bool bSection;
    const char* pFilter;
};

const TTemplateCase kTemplateCases[] = {
    {kInclude, "I&nclude file", false,
     "Model Files (*.md)|*.md|SPICE Files (*.sp;*.spc;*.cir)|*.sp; *.spc; *.cir|All Files "
     "(*.*)|*.*||"},
    {kLibrary, "&Library file", true, kLibraryFilter},
    {kDelete, "&Library file", true, kLibraryFilter},
};

/// Lets the next file dialog end with this path.
CScript::TAction AnswerFile(const char* pPath)
{
    return [pPath](CDialog&) {
        dynamic_cast<HeadlessDesktop&>(gDesktop()).AnswerFile({TFileChoice::EEnd::Chosen, pPath});
    };
}

TEST_F(FilesPages, TheirTemplatesAreAFileAButtonUnderItAndPerhapsASectionUntranslated)
{
    const CBracketTranslation translation;
    for (const TTemplateCase& rCase : kTemplateCases) {
        SCOPED_TRACE(rCase.pPage);
        CScript script;
        script.Do({Open(Bracketed(rCase.pPage))})
            .Look({look::Text("file-group", rCase.pGroup), look::Label("file", rCase.pGroup),
                   look::Text("file", ""), look::Text("browse", "&Browse...")});
        if (rCase.bSection)
            script.Look({look::Label("section", "Lib&rary section:"), look::Text("section", "")});
        script.Then([&rCase](CDialog& rDialog) {
            EXPECT_EQ(gFindField(rDialog, "section").pControl != nullptr, rCase.bSection);
            EXPECT_GT(gFindField(rDialog, "browse").pControl->GetRect().y,
                      gFindField(rDialog, "file").pControl->GetRect().y);
        });
        gRunWizard(std::move(script));
    }
}

TEST_F(FilesPages, BrowsingFillsTheFieldWithTheAbsolutePathByThePagesFilter)
{
    const auto before = std::filesystem::current_path();
    for (const TTemplateCase& rCase : kTemplateCases) {
        SCOPED_TRACE(rCase.pPage);
        gRunWizard(CScript()
                       .Do({OpenPage(rCase.pPage), Set("file", "lib/tech.lib")})
                       .Then(AnswerFile("/models/other.lib"))
                       .Do({Click("browse")})
                       .Look({look::Text("file", "/models/other.lib")})
                       .Then([&rCase](CDialog&) {
                           const auto shown =
                               dynamic_cast<HeadlessDesktop&>(gDesktop()).TakeFileDialogs();
                           ASSERT_EQ(shown.size(), 1U);
                           EXPECT_EQ(shown[0].sFilter, rCase.pFilter);
                           EXPECT_EQ(shown[0].sFileName, "lib/tech.lib");
                       }));
    }
    std::filesystem::current_path(before);
}

TEST_F(FilesPages, TheNextPageBrowsesWhereTheLastOneEnded)
{
    const auto before = std::filesystem::current_path();
    gRunWizard(CScript()
                   .Do({OpenPage(kInclude)})
                   .Then(AnswerFile("/models/nmos.md"))
                   .Do({Click("browse"), OpenPage(kDelete), Click("browse")})
                   .Then([&before](CDialog&) {
                       const auto shown =
                           dynamic_cast<HeadlessDesktop&>(gDesktop()).TakeFileDialogs();
                       ASSERT_EQ(shown.size(), 2U);
                       EXPECT_EQ(shown[0].sFolder, CString(before));
                       EXPECT_EQ(shown[1].sFolder, "/models");
                   }));
    std::filesystem::current_path(before);
}

TEST_F(FilesPages, ABrowsedPathMayBeEditedBeforeItIsInserted)
{
    const auto before = std::filesystem::current_path();
    const auto outcome = gRunWizard(CScript()
                                        .Do({OpenPage(kInclude)})
                                        .Then(AnswerFile("/models/nmos.md"))
                                        .Do({Click("browse"), Insert(), Set("file", "nmos.md")})
                                        .Do({Insert()}));
    EXPECT_EQ(outcome.inserted,
              (std::vector<std::string>{".include \"/models/nmos.md\"", ".include \"nmos.md\""}));
    std::filesystem::current_path(before);
}

// --- the commands

struct TCase {
    const char* pName;
    const char* pPage;
    const char* pFile;
    const char* pSection; ///< null: left alone
    std::vector<std::string> inserted;
    std::vector<std::string> messages;
};

const TCase kCases[] = {
    {"include", kInclude, "C:\\models\\nmos.md", nullptr, {".include \"C:\\models\\nmos.md\""}, {}},
    {"include: trimmed at both ends", kInclude, " a.md\t ", nullptr, {".include \"a.md\""}, {}},
    {"include: a name with blanks",
     kInclude,
     "my file.md",
     nullptr,
     {".include \"my file.md\""},
     {}},
    {"include: no quoting of a quotation mark",
     kInclude,
     "a\"b.md",
     nullptr,
     {".include \"a\"b.md\""},
     {}},
    {"include: nothing", kInclude, "", nullptr, {}, {"[Missing include file name.]"}},
    {"include: blanks are missing", kInclude, "  ", nullptr, {}, {"[Missing include file name.]"}},

    {"library", kLibrary, "lib/tech.lib", "TT", {".lib \"lib/tech.lib\" TT"}, {}},
    {"library: without a section",
     kLibrary,
     "lib/tech.lib",
     nullptr,
     {".lib \"lib/tech.lib\""},
     {}},
    {"library: only the file is trimmed",
     kLibrary,
     " my tech.lib ",
     " TT ",
     {".lib \"my tech.lib\"  TT "},
     {}},
    {"library: a section of blanks isn't empty",
     kLibrary,
     "a.lib",
     "  ",
     {".lib \"a.lib\"   "},
     {}},
    {"library: nothing", kLibrary, "", "TT", {}, {"[Missing library file name.]"}},
    {"library: blanks are missing", kLibrary, " \t", "TT", {}, {"[Missing library file name.]"}},

    {"delete", kDelete, "lib/tech.lib", "TT", {".del lib \"lib/tech.lib\" TT"}, {}},
    {"delete: trimmed on the left only",
     kDelete,
     " my tech.lib ",
     " TT ",
     {".del lib \"my tech.lib \" TT "},
     {}},
    {"delete: nothing, the file is missed first",
     kDelete,
     "",
     nullptr,
     {},
     {"[Missing library file name.]"}},
    {"include: a name that is blanks and a tab",
     kInclude,
     " \t ",
     nullptr,
     {},
     {"[Missing include file name.]"}},
    {"library: separators stay",
     kLibrary,
     "C:\\a/b\\c.lib",
     "TT",
     {".lib \"C:\\a/b\\c.lib\" TT"},
     {}},
    {"library: no quoting of a quotation mark",
     kLibrary,
     "a\"b.lib",
     nullptr,
     {".lib \"a\"b.lib\""},
     {}},
    {"delete: no quoting of a quotation mark, separators stay",
     kDelete,
     "C:\\a\"/b.lib",
     "TT",
     {".del lib \"C:\\a\"/b.lib\" TT"},
     {}},
    {"delete: blanks are missing", kDelete, "  ", "TT", {}, {"[Missing library file name.]"}},
    {"delete: a section is required",
     kDelete,
     "a.lib",
     nullptr,
     {},
     {"[Missing library section.]"}},
    {"delete: a section of blanks is missing",
     kDelete,
     "a.lib",
     "  ",
     {},
     {"[Missing library section.]"}},
};

TEST_F(FilesPages, BuildTheirCommands)
{
    const CBracketTranslation translation;
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        CRememberedBase::ResetAll();
        std::vector<std::string> arguments{std::string("file=") + rCase.pFile};
        if (rCase.pSection)
            arguments.push_back(std::string("section=") + rCase.pSection);
        const auto outcome = gCompose(rCase.pPage, arguments);
        EXPECT_EQ(outcome.inserted, rCase.inserted);
        EXPECT_EQ(outcome.messages, rCase.messages);
    }
}

TEST_F(FilesPages, AFailedAttemptLeavesTheRunsCommand)
{
    for (const char* const pPage : {kInclude, kLibrary, kDelete}) {
        SCOPED_TRACE(pPage);
        gRunWizard(CScript()
                       .Do({Open("Settings/Temperature"), Set("temperature-list", "27"), Insert(),
                            OpenPage(pPage), Insert()})
                       .Look({look::Command(".temp 27")}));
    }
}

// --- what is remembered

struct TRememberedCase {
    const char* pPage;
    const char* pSection; ///< as it is remembered; null for a page without one
};

const TRememberedCase kRememberedCases[] = {
    {kInclude, nullptr},
    {kLibrary, " TT "}, // as it was typed
    {kDelete, "TT "},   // trimmed on the left
};

TEST_F(FilesPages, TheNextRunShowsTheFileAsItWasTypedAndTheSectionAsItWasInserted)
{
    for (const TRememberedCase& rCase : kRememberedCases) {
        SCOPED_TRACE(rCase.pPage);
        CScript first;
        first.Do({OpenPage(rCase.pPage), Set("file", "  a.lib ")});
        if (rCase.pSection)
            first.Do({Set("section", " TT ")});
        gRunWizard(first.Do({Insert()}));
        CScript second;
        second.Do({OpenPage(rCase.pPage)}).Look({look::Text("file", "  a.lib ")});
        if (rCase.pSection)
            second.Look({look::Text("section", rCase.pSection)});
        gRunWizard(std::move(second));
    }
}

TEST_F(FilesPages, AFailedAttemptIsNotRemembered)
{
    for (const TRememberedCase& rCase : kRememberedCases) {
        SCOPED_TRACE(rCase.pPage);
        CScript first;
        first.Do({OpenPage(rCase.pPage), Set("file", "a.lib")});
        if (rCase.pSection)
            first.Do({Set("section", "TT")});
        gRunWizard(first.Do({Insert(), Set("file", " "), Insert()}));
        gRunWizard(CScript().Do({OpenPage(rCase.pPage)}).Look({look::Text("file", "a.lib")}));
    }
}

TEST_F(FilesPages, AMissingSectionLeavesTheRunsCommandAndWhatIsRemembered)
{
    const auto outcome =
        gRunWizard(CScript()
                       .Do({OpenPage(kDelete), Set("file", "a.lib"), Set("section", "TT"), Insert(),
                            Set("file", " b.lib"), Set("section", "  "), Insert()})
                       .Look({look::Command(".del lib \"a.lib\" TT"), look::Text("file", " b.lib"),
                              look::Text("section", "  ")}));
    EXPECT_EQ(outcome.messages, std::vector<std::string>{"Missing library section."});
    gRunWizard(CScript()
                   .Do({OpenPage(kDelete)})
                   .Look({look::Text("file", "a.lib"), look::Text("section", "TT")}));
}

TEST_F(FilesPages, ThePagesOfLibrariesRememberEachTheirOwn)
{
    gRunWizard({OpenPage(kLibrary), Set("file", "a.lib"), Insert(), OpenPage(kDelete),
                Set("file", "b.lib"), Set("section", "S"), Insert()});
    gRunWizard(CScript()
                   .Do({OpenPage(kLibrary)})
                   .Look({look::Text("file", "a.lib"), look::Text("section", "")})
                   .Do({OpenPage(kDelete)})
                   .Look({look::Text("file", "b.lib"), look::Text("section", "S")})
                   .Do({OpenPage(kInclude)})
                   .Look({look::Text("file", "")}));
}
} // namespace
