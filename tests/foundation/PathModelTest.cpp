#include "foundation/PathModel.h"

#include "foundation/PathScopes.h"
#include "foundation/Paths.h"
#include "foundation/RandomNumbers.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <utility>

// Paths of a few characters in any order, against slow models and against what must hold of each.

namespace
{

constexpr int kRounds = QUORVAWIZ_LONG_RUNS ? 10'000'000 : 100'000;

std::u16string RandomPath(CRandomNumbers& rRandom, int nMost = 14)
{
    static const std::u16string pieces[] = {u"/",  u"\\", u"/",  u"\\",     u".",
                                            u"..", u"a",  u"b",  u"A",      u":",
                                            u"?",  u"C:", u"//", u"\u00E9", u"\u4E2D"};
    std::u16string sPath;
    for (int nLength = rRandom.Int(nMost); nLength > 0; --nLength) {
        sPath += pieces[rRandom.Int(14)];
    }
    return sPath;
}

const CPathModel::TVariables kVariables{
    {u"X", u"x"},       {u"A", u"/a"},           {u"R", u"\\r"},       {u"D", u"C:\\d"},
    {u"H", u"//s/h/x"}, {u"S", u"$S\\${T}"},     {u"T", u"%A%\\t/.."}, {u"U", u"a${R}%U%"},
    {u"E", u""},        {u"a", u"b/../"},        {u"a}", u"%X%$T"},    {u"V", u"$V$W$X"},
    {u"W", u"${V}x$D"}, {u"b\\a", u"\\\\s\\$H"}, {u"\u00E9", u"$A"},
};

/// A path that may begin with a root and has references and quotes.
std::u16string RandomMixedPath(CRandomNumbers& rRandom)
{
    static const std::u16string roots[] = {u"",      u"C:\\",     u"C:",           u"/",  u"\\",
                                           u"//s/h", u"\\\\s\\h", u"\\\\server\\", u"\"", u"'"};
    static const std::u16string pieces[] = {
        u"/",    u"\\",   u"/",    u"\\",   u"..",   u".", u"a", u"A",     u"b",  u":",
        u"$",    u"%",    u"{",    u"}",    u"${",   u"X", u"E", u"$A",    u"$S", u"%T%",
        u"${U}", u"${a}", u"%b\\", u"${V}", u"$W\\", u"%", u"_", u"\u00E9"};
    std::u16string sPath = roots[rRandom.Int(9)];
    const int nMost = rRandom.Flag() ? 9 : 27; // without references, or with them
    for (int nLength = rRandom.Int(10); nLength > 0; --nLength) {
        sPath += pieces[rRandom.Int(nMost)];
    }
    if (sPath.starts_with(u'"') || sPath.starts_with(u'\'')) {
        sPath += sPath.front();
    }
    return sPath;
}

/// Runs a check on random paths under both rules.
template <class TCheck>
void ForRandomPaths(std::uint64_t nSeed, TCheck check, CMapEnvironment::TVariables variables = {})
{
    const CEnvironmentScope environment(std::move(variables));
    CRandomNumbers random(nSeed);
    for (int nRound = 0; nRound < kRounds; ++nRound) {
        const CIsWineScope scope(random.Flag());
        check(random);
        if (::testing::Test::HasFatalFailure()) {
            return;
        }
    }
}

TEST(PathModel, CanonicalPaths)
{
    const CPathModel model({});
    ForRandomPaths(1, [&model](CRandomNumbers& rRandom) {
        const std::u16string sPath = RandomPath(rRandom);
        const CStringU canonical = gCanonicalizePath(sPath);
        ASSERT_EQ(canonical.Stored(), CStringU(model.Canonical(sPath)).Stored())
            << CStringU(sPath).Text();
    });
}

std::string Utf8(const std::u16string& rsText)
{
    return std::string(CStringU(rsText).Text());
}

/// The variables of the model as those of the process.
CMapEnvironment::TVariables Environment()
{
    CMapEnvironment::TVariables variables;
    for (const auto& [sName, sValue] : kVariables) {
        variables[Utf8(sName)] = Utf8(sValue);
    }
    return variables;
}

/// Runs a check on two random paths with the variables of the model.
template <class TCheck> void ForRandomPairs(std::uint64_t nSeed, TCheck check)
{
    ForRandomPaths(
        nSeed,
        [&check](CRandomNumbers& rRandom) {
            const std::u16string sLeft = RandomMixedPath(rRandom);
            // Half of the pairs have a beginning in common.
            const std::u16string sRight =
                rRandom.Flag() ? RandomMixedPath(rRandom)
                               : sLeft.substr(0, static_cast<std::size_t>(rRandom.Int(12))) +
                                     RandomMixedPath(rRandom);
            check(sLeft, sRight);
        },
        Environment());
}

/// How a failure tells of a pair.
std::string Told(const std::u16string& rsLeft, const std::u16string& rsRight)
{
    return Utf8(rsLeft) + " , " + Utf8(rsRight) + (gIsWine() ? " on the Unix side" : "");
}

TEST(PathModel, CanonicalPathsWithVariables)
{
    const CPathModel model(kVariables);
    ForRandomPairs(11, [&model](const std::u16string& rsPath, const std::u16string&) {
        ASSERT_EQ(gCanonicalizePath(rsPath), CStringU(model.Canonical(rsPath))) << Told(rsPath, {});
        ASSERT_EQ(gIsAbsolutePath(rsPath), model.IsAbsolute(rsPath)) << Told(rsPath, {});
        ASSERT_EQ(gIsUnixStylePath(rsPath), CPathModel::IsUnixStyle(rsPath)) << Told(rsPath, {});
    });
}

TEST(PathModel, JoinedPaths)
{
    const CPathModel model(kVariables);
    ForRandomPairs(12, [&model](const std::u16string& rsLeft, const std::u16string& rsRight) {
        ASSERT_EQ(gConcatenatePaths(rsLeft, rsRight), CStringU(model.Join(rsLeft, rsRight)))
            << Told(rsLeft, rsRight);
        ASSERT_EQ(gResolvePath(rsLeft, rsRight), CStringU(model.Resolve(rsLeft, rsRight)))
            << Told(rsLeft, rsRight);
    });
}

TEST(PathModel, RelativeNames)
{
    const CPathModel model(kVariables);
    ForRandomPairs(13, [&model](const std::u16string& rsLeft, const std::u16string& rsRight) {
        ASSERT_EQ(gGetRelativeFileName(rsLeft, rsRight), CStringU(model.Relative(rsLeft, rsRight)))
            << Told(rsLeft, rsRight);
    });
}

TEST(PathModel, ShortenedPaths)
{
    ForRandomPaths(14, [](CRandomNumbers& rRandom) {
        const std::u16string sPath = RandomMixedPath(rRandom);
        const int nWidth = rRandom.Int(20);
        const bool bKeepName = rRandom.Flag();
        ASSERT_EQ(
            gAbbreviatePath(sPath, nWidth, bKeepName),
            CStringU(CPathModel::Abbreviate(sPath, static_cast<std::size_t>(nWidth), bKeepName)))
            << Told(sPath, {}) << nWidth;
    });
}

TEST(PathModel, NamesAndFoldersMakeUpThePath)
{
    ForRandomPaths(2, [](CRandomNumbers& rRandom) {
        const CStringU path = RandomPath(rRandom);
        const CStringU name = gGetFileNameWithoutPath(path);
        const CStringU folder = gGetPathWithoutFileName(path);
        ASSERT_TRUE(path.EndsWith(name)) << path.Text();
        ASSERT_TRUE(path.StartsWith(folder)) << path.Text();
        const int nBetween = path.GetByteLength() - folder.GetByteLength() - name.GetByteLength();
        ASSERT_TRUE(nBetween == 0 || nBetween == 1) << path.Text();
        ASSERT_EQ(CStringU(name.ToWide()).Stored(), name.Stored());
        if (gHasExtension(path)) {
            const CStringU title = gGetFileTitle(path);
            ASSERT_EQ(title + "." + gGetExtension(path), name) << path.Text();
            ASSERT_EQ(gSetExtension(path, gGetExtension(path)), path) << path.Text();
        }
    });
}

TEST(PathModel, ARelativeNameLeadsBack)
{
    ForRandomPaths(3, [](CRandomNumbers& rRandom) {
        // Clean absolute paths on one drive.
        const auto absolute = [&rRandom] {
            return gCanonicalizePath(u"C:\\" + RandomPath(rRandom, 8) + u"\\x").ToWide();
        };
        const std::u16string sFolder = absolute();
        const std::u16string sFile = absolute();
        if (sFolder.find(u':', 2) != std::u16string::npos ||
            sFile.find(u':', 2) != std::u16string::npos) {
            return; // a colon in the middle can become a drive
        }
        const CStringU relative = gGetRelativeFileName(sFolder, sFile);
        ASSERT_EQ(gConcatenatePaths(sFolder, relative).CompareNoCase(sFile), 0)
            << CStringU(sFolder).Text() << " , " << CStringU(sFile).Text() << " : "
            << relative.Text();
    });
}

TEST(PathModel, AShortenedPathFits)
{
    ForRandomPaths(4, [](CRandomNumbers& rRandom) {
        const CStringU path = RandomPath(rRandom);
        const int nWidth = rRandom.Int(20);
        const CStringU shortened = gAbbreviatePath(path, nWidth, false);
        ASSERT_LE(shortened.GetCharCount(), nWidth) << path.Text();
        const CStringU kept = gAbbreviatePath(path, nWidth, true);
        ASSERT_EQ(kept, shortened.IsEmpty() && path.GetCharCount() > nWidth
                            ? gGetFileNameWithoutPath(path)
                            : shortened);
        // A wider place never shows less.
        ASSERT_LE(shortened.GetCharCount(),
                  gAbbreviatePath(path, nWidth + 1, false).GetCharCount());
    });
}

TEST(PathModel, AnyBytesAreAPath)
{
    CRandomNumbers random(5);
    const CEnvironmentScope environment({{"a", "/x"}, {"b", "%a%"}});
    for (int nRound = 0; nRound < kRounds / 10; ++nRound) {
        const CIsWineScope scope(random.Flag());
        std::string bytes(static_cast<std::size_t>(random.Int(12)), '\0');
        for (char& rchByte : bytes) {
            rchByte =
                random.Flag() ? "/\\:.$%{}ab"[random.Int(9)] : static_cast<char>(random.Int(255));
        }
        const CStringU path(bytes, static_cast<TTextKind>(random.Int(4)));
        const CStringU canonical = gCanonicalizePath(path);
        ASSERT_EQ(CStringU(canonical.ToWide()).Stored(), canonical.Stored());
        std::ignore = gGetRelativeFileName(path, canonical);
        std::ignore = gConcatenatePaths(path, path);
        std::ignore = gAbbreviatePath(path, random.Int(10), random.Flag());
        std::ignore = gGetPathWithoutExtension(path);
        ASSERT_TRUE(gPathsEqual(path, path));
    }
}

} // namespace
