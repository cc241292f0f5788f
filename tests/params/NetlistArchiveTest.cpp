#include "params/PrintParams.h"
#include "params/SerializeNetlist.h"
#include "params/archive/MemorySource.h"
#include "params/archive/MemoryTarget.h"
#include "params/archive/TextIArchive.h"
#include "params/archive/TextOArchive.h"

#include <boost/archive/text_iarchive.hpp>
#include <boost/archive/text_oarchive.hpp>
#include <gtest/gtest.h>

#include <locale>
#include <sstream>
#include <string>

namespace
{

template <class T> std::string StockOf(const T& rValue)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << "22 serialization::archive 17 ";
    {
        boost::archive::text_oarchive archive(stream, boost::archive::no_header);
        archive << rValue;
    }
    return stream.str();
}

template <class T> std::string OursOf(const T& rValue)
{
    CMemoryTarget target;
    CTextOArchive archive(target);
    archive << rValue;
    archive.Finish();
    return target.GetBytes();
}

/// Writes with both, reads each with the other's, and writes what was read.
template <class T> void ExpectBothAlike(const T& rValue, const std::string& rsExpected)
{
    const std::string sHead = "22 serialization::archive 17 ";
    EXPECT_EQ(OursOf(rValue), sHead + rsExpected);
    EXPECT_EQ(StockOf(rValue), sHead + rsExpected);
    T ours{};
    const std::string sStock = StockOf(rValue);
    CMemorySource source(sStock);
    CTextIArchive archive(source);
    archive >> ours;
    EXPECT_EQ(OursOf(ours), sHead + rsExpected);
    T stock{};
    std::istringstream stream(OursOf(rValue));
    stream.imbue(std::locale::classic());
    boost::archive::text_iarchive stockArchive(stream);
    stockArchive >> stock;
    EXPECT_EQ(StockOf(stock), sHead + rsExpected);
}

TEST(NetlistArchiveTest, DevicePinAtVersion1)
{
    ExpectBothAlike(quorvaapi::TDevicePin{3, "m1", 2, {{1, 4}, {5, 6}}},
                    "0 1 3 0 0 2 m1 2 0 0 2 0 0 0 1 4 5 6\n");
}

TEST(NetlistArchiveTest, SubcktDefinitionAtVersion1)
{
    ExpectBothAlike(quorvaapi::TSubcktDefinition{"x1", 1, 0, 2.5},
                    "0 1 0 0 2 x1 1 0 2.50000000000000000e+00\n");
}

TEST(NetlistArchiveTest, LexiconInTheOrderWithoutCase)
{
    const quorvaapi::TSubcktLexicon lexicon{{{"x1", 1, 0, 1}, {"X10", 2, 1, 2}},
                                            {{"X10", 1}, {"x1", 0}, {"a", 7}}};
    ExpectBothAlike(lexicon, "0 1 0 0 2 1 0 1 0 0 2 x1 1 0 1.00000000000000000e+00 "
                             "3 X10 2 1 2.00000000000000000e+00 "
                             "0 0 3 0 0 0 1 a 7 2 x1 0 3 X10 1\n");
}

TEST(NetlistArchiveTest, ConnectionsByNode)
{
    const quorvaapi::TNodeDeviceConnections connections{
        {{"out", 0}, {"IN", 1}}, {{{1, "r1", 0, {}}}, {}}, "0"};
    ExpectBothAlike(connections, "0 1 0 0 2 0 0 0 0 0 2 IN 1 3 out 0 0 0 2 0 0 0 1 1 0 1 1 2 r1 0 "
                                 "0 0 0 0 0 1 1 0\n");
}

} // namespace
