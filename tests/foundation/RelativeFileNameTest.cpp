#include "foundation/PathScopes.h"
#include "foundation/Paths.h"

#include <gtest/gtest.h>

namespace
{

struct Case {
    const char* pFolder;
    const char* pFile;
    const char* pRelative;
};

void ExpectCases(std::initializer_list<Case> cases)
{
    const CEnvironmentScope environment({});
    for (const Case& rCase : cases) {
        EXPECT_EQ(gGetRelativeFileName(rCase.pFolder, rCase.pFile), CStringU(rCase.pRelative))
            << rCase.pFolder << " , " << rCase.pFile;
    }
}

TEST(RelativeFileName, UnderThePlainRules)
{
    ExpectCases({
        {"C:\\a\\b", "C:\\a\\c\\d.txt", "..\\c\\d.txt"},
        {"C:\\a\\b\\", "C:\\A\\B\\d.txt", "d.txt"},
        {"C:\\a\\b", "C:\\A\\B\\d.txt", "d.txt"},
        {"D:\\x", "C:\\a.txt", "C:\\a.txt"},
        {"", "C:\\a.txt", "C:\\a.txt"},
        {"C:\\a", "b.txt", "b.txt"},
        {"C:\\a", "", ""},
        {"C:\\a", "\\a\\b", "\\a\\b"},
        // The folder goes on where the file has no slash.
        {"C:\\a\\b", "C:\\a\\bc\\d", "..\\bc\\d"},
        {"C:\\a\\bc", "C:\\a\\b\\d", "..\\b\\d"},
        {"C:\\a\\b", "C:\\a\\b", "..\\b"},
        {"C:\\a\\b\\", "C:\\a\\b", "..\\b"},
        {"C:\\a\\b\\", "C:\\a\\b\\", ""},
        {"C:\\a\\b\\c\\d", "C:\\a\\x", "..\\..\\..\\x"},
        {"C:\\a\\b\\c\\d\\", "C:\\a\\x", "..\\..\\..\\x"},
        {"C:\\", "C:\\a", "a"},
        {"C:\\b", "C:\\a", "..\\a"},
        {"C:/a/b", "C:/a/c", "..\\c"},
        {"C:\\a/b", "C:/a/c", "C:/a/c"}, // separators are compared as they are
        // Server and share have to be the same.
        {"\\\\s\\h\\a", "\\\\s\\h\\b", "..\\b"},
        {"\\\\s\\h\\a\\b", "\\\\s\\h\\c\\d", "..\\..\\c\\d"},
        {"\\\\s\\h\\a", "\\\\s\\i\\b", "\\\\s\\i\\b"},
        {"\\\\s\\h", "\\\\s\\h\\b", "b"},
        // A long name of a server alone isn't enough: four slashes in common are wanted.
        {"\\\\server\\h\\a", "\\\\server\\i\\b", "\\\\server\\i\\b"},
        {"\\\\server\\h\\a", "\\\\server\\h\\b", "..\\b"},
        // One letter for the server and none for the share: too short to be one.
        {"\\\\s\\\\a", "\\\\s\\\\b", "\\\\s\\\\b"},
        {"/a/b", "/a/c", "/a/c"},
        {"/a/b/", "/a/b/c", "c"},
        {"C:\\\xC3\xA9\\b", "C:\\\xC3\xA9\\c", "..\\c"},
        // Only A to Z are folded.
        {"C:\\x\\\xC3\xA9", "C:\\x\\\xC3\x89\\c", "..\\\xC3\x89\\c"},
    });
}

TEST(RelativeFileName, OnTheUnixSide)
{
    const CIsWineScope scope(true);
    ExpectCases({
        {"/a/b", "/a/c/d.txt", "../c/d.txt"},
        {"/a/b", "/a/b/d.txt", "d.txt"},
        {"/aa/b", "/aa/c", "../c"},
        {"/a/b", "/c/d", "/c/d"}, // only the root in common
        {"/a/b", "/A/C", "../C"},
        {"\"/a/b\"", "/a/c", "/a/c"},
        {"C:\\a\\b", "C:\\a\\c\\d", "../c/d"},
        {"C:\\a", "D:\\b\\c", "D:/b/c"}, // slashes in each result
    });
}

} // namespace
