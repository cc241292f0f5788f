#include "platform/base/SystemError.h"

#include "platform/base/CodePageScope.h"
#include "platform/base/FileException.h"
#include "platform/base/MessagesScope.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <limits>
#include <string>
#include <thread>

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
