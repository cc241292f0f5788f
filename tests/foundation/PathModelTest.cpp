#include "foundation/PathScopes.h"
#include "foundation/Paths.h"
#include "foundation/RandomNumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>
#include <vector>

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

/// The clean form by rewriting: a component and the ".." behind it go, again and again.
std::u16string ModelClean(std::u16string sPath)
{
    std::ranges::replace(sPath, u'\\', u'/');
    std::size_t nRoot = 0;
    if (sPath.starts_with(u"//")) {
        const std::size_t nFirst = sPath.find(u'/', 2);
        const std::size_t nSecond =
            nFirst == std::u16string::npos ? nFirst : sPath.find(u'/', nFirst + 1);
        nRoot = nSecond == std::u16string::npos ? 0 : nSecond;
    } else if (sPath.size() > 1 && sPath[1] == u':') {
        nRoot = 2;
    }
    const std::u16string sRoot = sPath.substr(0, nRoot);
    sPath.erase(0, nRoot);
    const bool bRooted = !sPath.empty() && sPath[0] == u'/';
    std::vector<std::u16string> parts{u""};
    for (const char16_t chChar : sPath) {
        if (chChar == u'/') {
            parts.emplace_back();
        } else {
            parts.back() += chChar;
        }
    }
    std::erase(parts, u"");
    std::erase(parts, u".");
    for (bool bChanged = true; bChanged;) {
        bChanged = false;
        for (std::size_t n = 0; n < parts.size() && !bChanged; ++n) {
            if (parts[n] != u"..") {
                continue;
            }
            if (n > 0 && parts[n - 1] != u"..") {
                parts.erase(parts.begin() + static_cast<long>(n) - 1,
                            parts.begin() + static_cast<long>(n) + 1);
                bChanged = true;
            } else if (n == 0 && bRooted) {
                parts.erase(parts.begin());
                bChanged = true;
            }
        }
    }
    std::u16string sClean = sRoot + (bRooted ? u"/" : u"");
    for (std::size_t n = 0; n < parts.size(); ++n) {
        sClean += (n == 0 ? u"" : u"/") + parts[n];
    }
    return sClean;
}

std::u16string ModelCanonical(const std::u16string& rsPath)
{
    std::u16string sClean = ModelClean(rsPath);
    std::ranges::replace(sClean, u'/', u'\\');
    const bool bDrive = sClean.size() > 2 && sClean[1] == u':' && sClean[2] == u'\\';
    if (gIsWine() && !bDrive && !sClean.starts_with(u"\\\\")) {
        std::ranges::replace(sClean, u'\\', u'/');
    }
    return sClean;
}

/// Runs a check on random paths under both rules.
template <class TCheck> void ForRandomPaths(std::uint64_t nSeed, TCheck check)
{
    const CEnvironmentScope environment({});
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
    ForRandomPaths(1, [](CRandomNumbers& rRandom) {
        const std::u16string sPath = RandomPath(rRandom);
        const CStringU canonical = gCanonicalizePath(sPath);
        ASSERT_EQ(canonical.Stored(), CStringU(ModelCanonical(sPath)).Stored())
            << CStringU(sPath).Text();
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
