// What of a netlist reaches the simulator.

#include "simulators/ngspice/netlist/NetlistCopy.h"

#include "simulators/ngspice/netlist/NetlistLine.h"
#include "simulators/ngspice/process/ImportError.h"
#include "simulators/ngspice/process/PrivateFolder.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

namespace quorvawiz::ngspice
{
namespace
{

using ::testing::HasSubstr;

struct TLineCase {
    const char* pLine;
    ELine eLine;
};

TEST(NetlistLine, Kinds)
{
    constexpr TLineCase cases[] = {
        {"", ELine::Other},
        {"r1 a b 1k", ELine::Other},
        {"* comment", ELine::Other},
        {".control", ELine::Control},
        {".CONTROL", ELine::Control},
        {".controls and more", ELine::Control},
        {".endc", ELine::EndControl},
        {".EndControl", ELine::EndControl},
        {"*# shell ls", ELine::Command},
        {"*#", ELine::Command},
        {".end", ELine::End},
        {".END x", ELine::End},
        {".ends", ELine::Other},
        {".endl", ELine::Other},
        {".include a", ELine::Include},
        {".inc a", ELine::Include},
        {".incl a", ELine::Include},
        {".lib a b", ELine::Library},
        {".model p d_process(process_file=\"x\")", ELine::ForeignCode},
        {"+ D_COSIM (simulation=\"x\")", ELine::ForeignCode},
        {"* d_process", ELine::Other},
        {"@", ELine::EndOfFile},
    };
    for (const TLineCase& rCase : cases) {
        EXPECT_EQ(gClassifyLine(rCase.pLine), rCase.eLine) << rCase.pLine;
    }
}

struct TFileCase {
    const char* pLine;
    const char* pFile;
    const char* pSection;
};

TEST(NetlistLine, NamesOfFiles)
{
    constexpr TFileCase cases[] = {
        {".include a.cir", "a.cir", ""},
        {".include 'a b.cir' ; why", "a b.cir", ""},
        {".inc \"a b.cir\"", "a b.cir", ""},
        {".include \"a b", "a b", ""},
        {".include", "", ""},
        {".include \"\"", "", ""},
        {".include a.cir; why", "a.cir", ""},
        {".include a.cir;why", "a.cir", ""},
        {".include a.cir//why", "a.cir", ""},
        {".include a/b.cir/why", "a/b.cir/why", ""},
        {".include 'a;b.cir';why", "a;b.cir", ""},
        {".lib a.lib;TT", "a.lib", ""},
        {".lib a.lib TT;why", "a.lib", "TT"},
        {".lib a.lib // why", "a.lib", ""},
        {".lib a.lib TT", "a.lib", "TT"},
        {".lib 'a.lib' TT $ why", "a.lib", "TT"},
        {".lib TT", "TT", ""},
        {".lib TT ; why", "TT", ""},
        {".lib TT $ why", "TT", ""},
        {".lib", "", ""},
    };
    for (const TFileCase& rCase : cases) {
        const TFileReference reference = gReadFileReference(rCase.pLine);
        EXPECT_EQ(reference.sFile, rCase.pFile) << rCase.pLine;
        EXPECT_EQ(reference.sSection, rCase.pSection) << rCase.pLine;
    }
}

class NetlistCopy : public ::testing::Test
{
protected:
    std::string Copy(const std::string& rsNetlist)
    {
        return mCopy.Copy(mUsers.Write("netlist.cir", rsNetlist));
    }

    std::string ErrorOf(const std::string& rsNetlist)
    {
        try {
            Copy(rsNetlist);
        } catch (const CImportError& rError) {
            return rError.what();
        }
        return "no error";
    }

    CTempFolder mUsers;
    CPrivateFolder mFolder;
    CNetlistCopy mCopy{mFolder};
};

TEST_F(NetlistCopy, KnowsTheInstancesOfSubcircuits)
{
    mUsers.Write("part.cir", "Xpart a b sub\n");
    Copy("xtitle\nX1 a b sub\n  xq.1 a b\n+ xmore\n.include part.cir\n* x2 a b sub\n"
         ".control\nx3\n.endc\nr1 a b 1\nx\n.end\nx4 a b sub\n");
    EXPECT_EQ(mCopy.GetInstances(), (TInstanceNames{"x", "x1", "xpart", "xq.1", "x4"}));
}

struct TCopyCase {
    const char* pName;
    const char* pNetlist; ///< behind the title
    const char* pCopy;    ///< behind the title
    std::size_t nStripped = 0;
};

constexpr TCopyCase kCopies[] = {
    {"cards", "r1 a b 1k\n+ tc=1\n", "r1 a b 1k\n+ tc=1\n"},
    {"no line feed at the end", "r1 a b 1k", "r1 a b 1k\n"},
    {"a block of commands", "r1 a b 1k\n.control\nshell ls\n.endc\nr2 a b 1k\n",
     "r1 a b 1k\n*\n*\n*\nr2 a b 1k\n", 1},
    {"in any case, with blanks in front", " \t.CONTROL\nshell ls\n\t.ENDC\n", "*\n*\n*\n", 1},
    {"a block without an end", ".control\nshell ls\n", "*\n*\n", 1},
    {"a block in a block", ".control\n.control\n.endc\nr1 a b 1\n.endc\n", "*\n*\n*\nr1 a b 1\n*\n",
     1},
    {"two blocks", ".control\n.endc\n.control\n.endc\n", "*\n*\n*\n*\n", 2},
    {"an end without a block", ".endc\n", "*\n"},
    {"a carriage return within the word", ".cont\rrol\nshell ls\n", "*\n*\n", 1},
    {"a form feed in front", "\f.control\nshell ls\n", "*\n*\n", 1},
    {"a command as a comment", "*#shell ls\n* #no\n", "*\n* #no\n", 1},
    {"a command as a comment, blanks in front", "  *# shell ls\n", "*\n", 1},
    {"a carriage return in front of the hash", "*\r# shell ls\n", "*\n", 1},
    {"behind the end", ".end\n.control\nshell ls\n.endc\n", "*\n*\n*\n*\n", 1},
    {"behind the end of the file", "r1 a b 1\n@\n.control\n", "r1 a b 1\n"},
    {"the end of the file in a block", ".control\n@\nshell ls\n.endc\nr1 a b 1\n",
     "*\n*\n*\n*\nr1 a b 1\n", 1},
    {"a section begins", ".lib TT\n.endl TT\n", ".lib TT\n.endl TT\n"},
    {"a section of a missing file", ".lib \"/no/such.lib\" TT\n", ".lib \"missing/such.lib\" TT\n"},
    {"quotes in a name", ".lib '/no/a\"b' TT\n", ".lib \"missing/a_b\" TT\n"},
    {"a section whose name is a path", ".lib \"/no/such\"\n", ".lib such\n"},
    {"an .include without a name", ".include\n", ".include\n"},
};

TEST_F(NetlistCopy, HasNoCommands)
{
    for (const TCopyCase& rCase : kCopies) {
        CNetlistCopy copy(mFolder);
        const std::string sNetlist = std::string("title\n") + rCase.pNetlist;
        EXPECT_EQ(copy.Copy(mUsers.Write("netlist.cir", sNetlist)),
                  std::string("* imported\n") + rCase.pCopy)
            << rCase.pName;
        EXPECT_EQ(copy.GetStripped(), rCase.nStripped) << rCase.pName;
    }
}

TEST_F(NetlistCopy, HasAnotherTitle)
{
    EXPECT_EQ(Copy("*ng_script\nshell ls\n"), "* imported\nshell ls\n");
    EXPECT_EQ(Copy(""), "* imported\n");
    EXPECT_EQ(Copy("title"), "* imported\n");
    EXPECT_EQ(Copy("\nr1 a b 1\n"), "* imported\nr1 a b 1\n");
}

TEST_F(NetlistCopy, CopiesWhatIsIncluded)
{
    std::filesystem::create_directory(mUsers.Path("sub"));
    mUsers.Write("sub/a.cir", ".control\nshell ls\n.endc\n.include b.cir\n");
    mUsers.Write("sub/b.cir", "r2 a b 1\r\n");
    EXPECT_EQ(Copy("title\n.include sub/a.cir\n.INC 'sub/../sub/b.cir'\n"),
              "* imported\n.include \"part1.cir\"\n.include \"part2.cir\"\n");
    EXPECT_EQ(mFolder.Read("part1.cir"), "*\n*\n*\n.include \"part2.cir\"\n");
    EXPECT_EQ(mFolder.Read("part2.cir"), "r2 a b 1\n");
    EXPECT_EQ(mCopy.GetStripped(), 1U);
}

TEST_F(NetlistCopy, FollowsAnIncludeInTheTitlesPlace)
{
    mUsers.Write("a.cir", "*# shell ls\n");
    EXPECT_EQ(Copy(".include a.cir\n"), "* imported\n.include \"part1.cir\"\n");
    EXPECT_EQ(mFolder.Read("part1.cir"), "*\n");
}

TEST_F(NetlistCopy, CopiesLibrariesWithReferencesToThemselves)
{
    mUsers.Write("a.lib", ".lib TT\n.lib 'a.lib' common\n.endl\n.lib common\n.endl\n");
    EXPECT_EQ(Copy("title\n.lib a.lib TT\n"), "* imported\n.lib \"part1.cir\" TT\n");
    EXPECT_EQ(mFolder.Read("part1.cir"),
              ".lib TT\n.lib \"part1.cir\" common\n.endl\n.lib common\n.endl\n");
}

TEST_F(NetlistCopy, NamesTheUsersFiles)
{
    mUsers.Write("a.lib", ".lib TT\n.endl\n");
    Copy("title\n.lib a.lib TT\n");
    EXPECT_EQ(mCopy.TellUsersFiles("part1.cir and part1.cir, not part2.cir"),
              mUsers.Path("a.lib") + " and " + mUsers.Path("a.lib") + ", not part2.cir");
}

TEST_F(NetlistCopy, LooksBesideTheNetlistToo)
{
    std::filesystem::create_directory(mUsers.Path("sub"));
    mUsers.Write("sub/a.cir", ".include b.cir\n");
    mUsers.Write("b.cir", "r1 a b 1\n");
    Copy("title\n.include sub/a.cir\n");
    EXPECT_EQ(mFolder.Read("part2.cir"), "r1 a b 1\n");
}

TEST_F(NetlistCopy, AFileOfItsOwnIsCopiedWhereALibraryLineHasNoSection)
{
    mUsers.Write("old.lib", "*# shell ls\n");
    EXPECT_EQ(Copy("title\n.lib old.lib\n"), "* imported\n.lib \"part1.cir\"\n");
    EXPECT_EQ(mFolder.Read("part1.cir"), "*\n");
}

TEST_F(NetlistCopy, Refuses)
{
    EXPECT_THAT(ErrorOf(std::string("title\nr1\0", 9)), HasSubstr("isn't text"));
    EXPECT_THAT(ErrorOf("title\n.include nowhere.cir\n"),
                HasSubstr("netlist.cir' includes 'nowhere.cir', which isn't there"));
    EXPECT_THAT(ErrorOf("title\n.include .\n"), HasSubstr("includes '.', which isn't there"));
    EXPECT_THAT(ErrorOf("title\n.model p d_process(process_file=\"x\")\n"),
                HasSubstr("has code to load or to run"));
    mUsers.Write("a.cir", ".include b.cir\n");
    mUsers.Write("b.cir", ".include a.cir\n");
    EXPECT_THAT(ErrorOf("title\n.include a.cir\n"), HasSubstr("a.cir' includes itself"));
}

TEST_F(NetlistCopy, RefusesAPipe)
{
    ASSERT_EQ(::mkfifo(mUsers.Path("pipe").c_str(), 0600), 0);
    EXPECT_THAT(ErrorOf("title\n.include pipe\n"), HasSubstr("can't read"));
}

TEST_F(NetlistCopy, RefusesAMissingNetlist)
{
    try {
        static_cast<void>(mCopy.Copy(mUsers.Path("nowhere.cir")));
        FAIL() << "no error";
    } catch (const CImportError& rError) {
        EXPECT_EQ(rError.what(), "there is no netlist '" + mUsers.Path("nowhere.cir") + "'");
    }
}

} // namespace
} // namespace quorvawiz::ngspice
