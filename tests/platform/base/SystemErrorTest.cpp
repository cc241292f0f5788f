#include "platform/base/SystemError.h"

#include "platform/base/CodePageScope.h"
#include "platform/base/FileException.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <libintl.h>
#include <locale.h>
#include <stdlib.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <limits>
#include <string>
#include <thread>
#include <vector>

namespace
{

using namespace std::string_literals;

TEST(SystemErrorTest, GivesTheSystemsTextForEveryCodeThatHasOne)
{
    int nKnown = 0;
    for (int nCode = 0; nCode < 4096; ++nCode) {
        const std::string sSystem = std::strerror(nCode);
        const bool bKnown = sSystem.rfind("Unknown error", 0) != 0;
        EXPECT_EQ(gSystemErrorMessage(nCode), bKnown ? sSystem : std::string()) << nCode;
        nKnown += bKnown ? 1 : 0;
    }
    EXPECT_GT(nKnown, 100);
    EXPECT_EQ(gSystemErrorMessage(ENOENT), "No such file or directory");
}

TEST(SystemErrorTest, CodesThatCannotExistHaveNoText)
{
    for (const int nCode :
         {-1, -2, 999999, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        EXPECT_EQ(gSystemErrorMessage(nCode), "") << nCode;
    }
}

TEST(SystemErrorTest, AskingForATextKeepsTheLastError)
{
    gSetLastError(EACCES);
    EXPECT_NE(gSystemErrorMessage(ENOENT), "");
    EXPECT_EQ(gSystemErrorMessage(-1), "");
    EXPECT_EQ(gGetLastError(), EACCES);
    gSetLastError(0);
    EXPECT_EQ(gGetLastError(), 0);
}

TEST(SystemErrorTest, EachThreadHasItsOwnLastError)
{
    gSetLastError(EEXIST);
    int nBefore = -1;
    int nAfter = -1;
    std::thread thread([&] {
        nBefore = gGetLastError();
        gSetLastError(EPERM);
        nAfter = gGetLastError();
    });
    thread.join();
    EXPECT_EQ(gGetLastError(), EEXIST);
    EXPECT_EQ(nBefore, 0);
    EXPECT_EQ(nAfter, EPERM);
    gSetLastError(0);
}

/// A catalogue of one message that the system's library takes its texts from, for a scope.
class CMessagesScope
{
public:
    /// @param sText the text for "No such file or directory", in UTF-8
    explicit CMessagesScope(const std::string& sText)
        : mOld(::uselocale(static_cast<locale_t>(nullptr)))
    {
        const std::string sKey = "No such file or directory";
        const std::string sHeader = "Content-Type: text/plain; charset=UTF-8\n";
        // The head of the file, then length and place of both keys, the first one empty, and of
        // their texts.
        constexpr std::uint32_t keyTable = 28;
        constexpr std::uint32_t textTable = keyTable + 2 * 8;
        constexpr std::uint32_t strings = textTable + 2 * 8;
        const auto nHeaderAt = static_cast<std::uint32_t>(strings + 1 + sKey.size() + 1);
        const auto nTextAt = static_cast<std::uint32_t>(nHeaderAt + sHeader.size() + 1);
        std::vector<std::uint32_t> numbers{0x950412DE, 0, 2, keyTable, textTable, 0, strings};
        const auto addString = [&numbers](const std::string& rsString, std::uint32_t nAt) {
            numbers.push_back(static_cast<std::uint32_t>(rsString.size()));
            numbers.push_back(nAt);
        };
        addString("", strings);
        addString(sKey, strings + 1);
        addString(sHeader, nHeaderAt);
        addString(sText, nTextAt);
        std::filesystem::create_directories(mFolder.Path("xx/LC_MESSAGES"));
        std::string sFile(reinterpret_cast<const char*>(numbers.data()),
                          numbers.size() * sizeof(std::uint32_t));
        for (const std::string& rsPart : {std::string(), sKey, sHeader, sText}) {
            sFile += rsPart + '\0';
        }
        mFolder.Write("xx/LC_MESSAGES/libc.mo", sFile);
        ::setenv("LANGUAGE", "xx", 1);
        ::bindtextdomain("libc", mFolder.Path("").c_str());
        ::uselocale(mNew);
    }
    CMessagesScope(const CMessagesScope&) = delete;
    CMessagesScope& operator=(const CMessagesScope&) = delete;
    ~CMessagesScope()
    {
        ::uselocale(mOld);
        ::freelocale(mNew);
        ::bindtextdomain("libc", "/usr/share/locale");
        ::unsetenv("LANGUAGE");
    }

private:
    CTempFolder mFolder;
    locale_t mOld;
    locale_t mNew = ::newlocale(LC_ALL_MASK, "C.UTF-8", nullptr);
};

TEST(SystemErrorTest, TheTextIsDecodedByTheLocaleAndNotByTheCodePage)
{
    const CMessagesScope messages("Datei fehlt: \xC3\xA9\xD0\xB9\xF0\x9F\x98\x80");
    EXPECT_EQ(gSystemErrorMessageWide(ENOENT), u"Datei fehlt: \u00E9\u0439\U0001F600");
    EXPECT_EQ(gSystemErrorMessage(ENOENT), "Datei fehlt: \xC3\xA9\xD0\xB9\xF0\x9F\x98\x80");
    const CCodePageScope scope(kCodePageWindows1252);
    EXPECT_EQ(gSystemErrorMessageWide(ENOENT), u"Datei fehlt: \u00E9\u0439\U0001F600");
    EXPECT_EQ(gSystemErrorMessage(ENOENT), "Datei fehlt: \xE9???");
    EXPECT_EQ(CFileException(ENOENT, "f").what(), "file \"f\": Datei fehlt: \xE9???"s);
}

} // namespace
