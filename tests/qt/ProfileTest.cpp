#include "qt/Player.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace
{
TEST(Profile, ValuesLive)
{
    const QTemporaryDir folder;
    const QString sFile = folder.filePath(QStringLiteral("profile.ini"));
    const std::pair<const char*, const char*> kValues[] = {
        {"Path", "/tmp/a b.cir"}, {"Empty", ""},        {"List", "a, b; c=d"},
        {"Quote", "\"x\\y\""},    {"At", "@Invalid()"}, {"Umlaut", "\xC3\xA4"},
        {"Lines", "a\r\nb"},      {"Number", "007"},    {"a b", "blank"},
    };
    {
        QtDesktop desktop(sFile);
        for (const auto& [pEntry, pValue] : kValues)
            EXPECT_TRUE(desktop.WriteProfile("Section", pEntry, pValue)) << pEntry;
        EXPECT_TRUE(desktop.WriteProfile("", "Path", "/of/no/section"));
    }
    QtDesktop desktop(sFile);
    for (const auto& [pEntry, pValue] : kValues)
        EXPECT_EQ(desktop.ReadProfile("Section", pEntry), CString(pValue)) << pEntry;
    EXPECT_EQ(desktop.ReadProfile("", "Path"), CString("/of/no/section"));
    EXPECT_EQ(desktop.ReadProfile("Section", "Never"), std::nullopt);
    EXPECT_EQ(desktop.ReadProfile("Other", "Path"), std::nullopt);
}

TEST(Profile, ASectionMayHaveNoName)
{
    const QTemporaryDir folder;
    const QString sFile = folder.filePath(QStringLiteral("profile.ini"));
    {
        QtDesktop desktop(sFile);
        EXPECT_TRUE(desktop.WriteProfile("", "MRPATH", "/tmp/a.lib"));
        EXPECT_TRUE(desktop.WriteProfile("General", "MRPATH", "another"));
    }
    QtDesktop desktop(sFile);
    EXPECT_EQ(desktop.ReadProfile("", "MRPATH"), CString("/tmp/a.lib"));
    EXPECT_EQ(desktop.ReadProfile("General", "MRPATH"), CString("another"));
    EXPECT_EQ(desktop.ReadProfile("", "Never"), std::nullopt);
}

TEST(Profile, AValueThatCannotBeWrittenIsToldOf)
{
    const QTemporaryDir folder;
    // A folder of the file's name stands in its way, for root too.
    QDir(folder.path()).mkdir(QStringLiteral("profile.ini"));
    QtDesktop desktop(folder.filePath(QStringLiteral("profile.ini")));
    EXPECT_FALSE(desktop.WriteProfile("Section", "Entry", "Value"));
    EXPECT_EQ(desktop.ReadProfile("Section", "Entry"), std::nullopt);
}
} // namespace
