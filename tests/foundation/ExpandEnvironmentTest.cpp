#include "foundation/PathScopes.h"
#include "foundation/Paths.h"
#include "platform/base/CodePageScope.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>

namespace
{

const CMapEnvironment::TVariables kVariables{{"X", "x"},
                                             {"LONG_9", "long"},
                                             {"HOME", "/home/u"},
                                             {"DRIVE", "D:\\d"},
                                             {"SHARE", "\\\\s\\h\\p"},
                                             {"EMPTY", ""},
                                             {"DIRTY", "a/../b/"},
                                             {"REF", "$X"},
                                             {"lower", "l"},
                                             {"A B", "blank"},
                                             {"\xC3\xA9", "\xC3\xBC"},
                                             {"ROOTED", "\\r"}};

TEST(ExpandEnvironment, References)
{
    struct Case {
        const char* pPath;
        const char* pPlain;
    };
    constexpr Case cases[] = {
        {"${X}", "x"},
        {"$X", "x"},
        {"%X%", "x"},
        {"a\\$X\\b", "a\\x\\b"},
        {"a${X}b", "axb"},
        {"a%X%b", "axb"},
        {"a$X-b", "ax-b"},
        {"$LONG_9.c", "long.c"},
        {"$X$X", "xx"},
        {"%X%%X%", "xx"},
        {"%X%X%", "xX%"},
        // Not set, or no reference.
        {"%NOSUCH%\\a", "%NOSUCH%\\a"},
        {"$NOSUCH\\a", "$NOSUCH\\a"},
        {"${NOSUCH}\\a", "${NOSUCH}\\a"},
        {"%NOSUCH%X%", "%NOSUCH%X%"},
        {"$Xx", "$Xx"},
        {"$x", "$x"},
        {"$lower", "l"},
        {"$LOWER", "$LOWER"},
        {"%", "%"},
        {"$", "$"},
        {"a%", "a%"},
        {"a$", "a$"},
        {"$$", "$$"},
        {"$$X", "$x"},
        {"100%\\$X", "100%\\x"},
        {"${X", "${X"},
        {"${X\\$X", "${X\\x"},
        {"$-X", "$-X"},
        // With an empty name: skipped whole.
        {"${}X", "${}X"},
        {"%%X", "%%X"},
        {"%%X%", "%%X%"},
        {"%%%X%", "%%x"},
        {"${A B}", "blank"},
        {"%A B%", "blank"},
        {"$A B", "$A B"},
        // What is set to nothing is set.
        {"a$EMPTY", "a"},
        {"a\\%EMPTY%\\b", "a\\\\b"},
        // Filled in when the path is clean already, and not scanned again.
        {"$DIRTY", "a/../b/"},
        {"c\\$DIRTY\\..\\d", "c\\d"},
        {"$REF", "$X"},
        {"$REF\\$X", "$X\\x"},
        // An absolute value throws away what stood before it.
        {"a\\$DRIVE\\b", "D:\\d\\b"},
        {"C:\\a\\${HOME}\\b", "/home/u\\b"},
        {"C:\\a\\%SHARE%", "\\\\s\\h\\p"},
        {"$X\\$DRIVE\\$X\\$HOME", "/home/u"},
        {"a\\$ROOTED", "a\\\\r"},
        {"%\xC3\xA9%", "\xC3\xBC"},
        {"a$\xC3\xA9", "a$\xC3\xA9"},
        {"${\xC3\xA9}z", "\xC3\xBCz"},
    };
    const CEnvironmentScope scope(kVariables);
    for (const Case& rCase : cases) {
        EXPECT_EQ(gCanonicalizePath(rCase.pPath), CStringU(rCase.pPlain)) << rCase.pPath;
    }
}

TEST(ExpandEnvironment, NamesAndValuesAreUtf8WhateverTheCodePage)
{
    const CEnvironmentScope environment(CMapEnvironment::TVariables{{"\xD0\xB9", "\xC3\xA9"}});
    const CCodePageScope scope(kCodePageWindows1252);
    EXPECT_EQ(gCanonicalizePath(u"a/${\u0439}"), u"a\\\u00e9");
}

TEST(ExpandEnvironment, OnTheUnixSideValuesGetSlashesToo)
{
    const CEnvironmentScope scope(kVariables);
    const CIsWineScope isWine(true);
    EXPECT_EQ(gCanonicalizePath("a\\$ROOTED"), "a//r");
    EXPECT_EQ(gCanonicalizePath("a/$HOME/b"), "/home/u/b");
    EXPECT_EQ(gCanonicalizePath("a/$DRIVE/b"), "D:\\d\\b");
    EXPECT_EQ(gCanonicalizePath("a/$SHARE/b"), "\\\\s\\h\\p\\b");
}

TEST(ExpandEnvironment, AVariableThatRefersToItselfComesToAnEnd)
{
    const CEnvironmentScope scope({{"SELF", "$SELF"},
                                   {"A", "$B\\a"},
                                   {"B", "${A}\\b"},
                                   {"DEEP", "%DEEP%\\$DEEP\\${DEEP}"},
                                   {"ABS", "/abs/$ABS"},
                                   {"LATE", "x\\$ABS"}});
    EXPECT_EQ(gCanonicalizePath("p\\$SELF"), "p\\$SELF");
    EXPECT_EQ(gCanonicalizePath("p\\$A"), "p\\$B\\a");
    EXPECT_EQ(gCanonicalizePath("p\\$DEEP"), "p\\%DEEP%\\$DEEP\\${DEEP}");
    EXPECT_EQ(gCanonicalizePath("p\\$ABS"), "/abs/$ABS");
    // The value is absolute by what it refers to; once it is filled in, it isn't scanned again.
    EXPECT_EQ(gCanonicalizePath("p\\$LATE"), "x\\$ABS");
    EXPECT_FALSE(gIsAbsolutePath("$LATE"));
}

TEST(ExpandEnvironment, ManyThatReferToManyComeToAnEnd)
{
    CMapEnvironment::TVariables variables;
    for (int n = 0; n < 200; ++n) {
        const std::string sNext = "$V" + std::to_string(n + 1);
        variables["V" + std::to_string(n)] = sNext + sNext;
    }
    variables["V200"] = "/root";
    for (int n = 0; n < 30; ++n) {
        for (int nOther = 0; nOther < 30; ++nOther) {
            variables["W" + std::to_string(n)] += "$W" + std::to_string(nOther) + ".";
        }
    }
    const CEnvironmentScope scope(variables);
    EXPECT_EQ(gCanonicalizePath("a$V0"), "a$V1$V1");
    EXPECT_EQ(gCanonicalizePath("a$V199"), "$V200$V200"); // absolute in the end
    EXPECT_EQ(gCanonicalizePath("a$V198"), "a$V199$V199");
    EXPECT_EQ(gCanonicalizePath("$W0\\$W1").Find("$W29."), 135);
}

/// An environment in which every variable refers to every other one, and which counts look-ups.
class CTangledEnvironment final : public IEnvironment
{
public:
    std::optional<std::string> Get(std::string_view sName) const override
    {
        ++mnLookups;
        return sName == "PLAIN" ? "x" : sName == "INNER" ? "$PLAIN" : "$A.$B.$C.$D.$E.$F.$G.$H.$I";
    }
    void Set(std::string_view, std::string_view) override {}
    void Unset(std::string_view) override {}

    mutable int mnLookups = 0;
};

TEST(ExpandEnvironment, TheLimitIsOneForTheWholePath)
{
    const auto pEnvironment = std::make_shared<CTangledEnvironment>();
    gSetEnvironmentSource(pEnvironment);
    std::string sPath;
    for (int n = 0; n < 1000; ++n) {
        sPath += "$N" + std::to_string(n) + ".";
    }
    std::ignore = gCanonicalizePath(sPath);
    EXPECT_EQ(pEnvironment->mnLookups, 1000 + 10'000);
    gResetEnvironmentSource();
}

TEST(ExpandEnvironment, AVariableThatComesAgainIsJudgedOnce)
{
    const auto pEnvironment = std::make_shared<CTangledEnvironment>();
    gSetEnvironmentSource(pEnvironment);
    std::string sPath;
    std::string sExpected;
    for (int n = 0; n < 20'000; ++n) {
        sPath += "$INNER.";
        sExpected += "$PLAIN.";
    }
    EXPECT_EQ(gCanonicalizePath(sPath), sExpected);
    EXPECT_EQ(pEnvironment->mnLookups, 20'000 + 1);
    gResetEnvironmentSource();
}

TEST(ExpandEnvironment, NamesWithinNamesGoAHundredDeep)
{
    // Each even one is absolute if the next even one isn't: that one's value would take the place
    // of the slash. At the limit the slash stays.
    for (const int nLast : {96, 100}) {
        CMapEnvironment::TVariables variables{{"V" + std::to_string(nLast), "/root"}};
        for (int n = 0; n < nLast; ++n) {
            variables["V" + std::to_string(n)] =
                (n % 2 == 0 ? "/p$V" : "q$V") + std::to_string(n + 1);
        }
        const CEnvironmentScope scope(variables);
        EXPECT_EQ(gCanonicalizePath("a\\$V0"), nLast < 100 ? "/p$V1" : "a\\/p$V1") << nLast;
    }
}

TEST(ExpandEnvironment, LongTextsOfOpenReferences)
{
    const CEnvironmentScope scope(CMapEnvironment::TVariables{{"X", "xyz"}});
    for (const char* pPiece : {"${", "%", "$", "$X", "${X}", "%X%", "${}", "$X%"}) {
        std::string sPath;
        for (int n = 0; n < 50'000; ++n) {
            sPath += pPiece;
        }
        EXPECT_GE(gCanonicalizePath(sPath).GetByteLength(), 50'000) << pPiece;
    }
}

} // namespace
