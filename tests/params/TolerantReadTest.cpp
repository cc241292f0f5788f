// What isn't as a writer makes it, and is read all the same.

#include "params/DamagedForms.h"
#include "params/PrintParams.h"
#include "params/TextStore.h"
#include "params/archive/MemorySource.h"

#include <boost/variant/get.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <regex>
#include <string>

namespace
{

std::string Replaced(const std::string& rsText, const std::string& rsFrom, const std::string& rsTo)
{
    return TDamagedForm{"", rsFrom, rsTo, "", {}, ""}.Damage(rsText);
}

/// Every LF as the other platform's text mode writes it.
std::string InTextMode(const std::string& rsText)
{
    return std::regex_replace(rsText, std::regex("\n"), "\r\n");
}

TEST(TolerantReadTest, EveryVersionOfOneGrammar)
{
    for (int nVersion = 6; nVersion <= 19; ++nVersion) {
        const std::string sVersion = std::to_string(nVersion);
        const std::string sFile =
            Replaced(gSampleFile(), "archive 17 ", "archive " + sVersion + ' ');
        CMemorySource source(sFile);
        TCircuitParams store;
        EXPECT_EQ(gLoadText(source, store), nVersion);
        EXPECT_EQ(gOursOf(store), gSampleFile()); // 17 again
    }
}

TEST(TolerantReadTest, WhiteSpaceAndSigns)
{
    const std::string sFile =
        Replaced(gSampleFile(), " 4 nmos 1 1.5", "\t\v\f4 nmos +01 \r\n +1.5");
    TCircuitParams store;
    gReadOurs("\n \t" + sFile + "what follows isn't read", store);
    EXPECT_EQ(gOursOf(store), gSampleFile());
}

TEST(TolerantReadTest, TextModeCountsCrLfAsLfInsideTextsToo)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddSubckt("two\nlines\r\n\r", 2);
    store.AddSubckt("\n", 3);
    store.mModelClasses["MOS1"].mHeader.msDescription = std::string(300'000, '\n');
    const std::string sFile = gOursOf(store);
    TCircuitParams read;
    gReadOurs(InTextMode(sFile), read);
    EXPECT_EQ(gOursOf(read), sFile);
}

TEST(TolerantReadTest, ATextWithCrLfDoesNotMakeATextModeFile)
{
    TCircuitParams store;
    gFillSample(store);
    store.AddSubckt("a\r\nb", 2); // in front of all other line ends
    const std::string sFile = gOursOf(store);
    TCircuitParams read;
    gReadOurs(sFile, read);
    EXPECT_EQ(gOursOf(read), sFile);
}

TEST(TolerantReadTest, TextModeCountsCrLfBehindALengthAsOneByte)
{
    TCircuitParams read;
    gReadOurs(Replaced(InTextMode(gSampleFile()), " 4 nmos 1 1.5", " 4\r\nnmos 1 1.5"), read);
    EXPECT_EQ(gOursOf(read), gSampleFile());
    // Without that mode the LF is the text's first byte.
    TCircuitParams plain;
    gReadOurs(Replaced(gSampleFile(), " 4 nmos 1 1.5", " 5\r\nnmos 1 1.5"), plain);
    EXPECT_EQ(plain.mModelClasses.at("MOS1").mHeader.msType, "\nnmos");
}

TEST(TolerantReadTest, NumbersTooSmallForADoubleAreWhatTheLibraryMakesOfThem)
{
    const std::string sLong = "0." + std::string(340, '0') + '1';
    for (const std::string& rsNumber :
         {std::string("1e-400"), std::string("-1e-400"), std::string("2e-324"),
          std::string("3e-324"), std::string("1.5e-310"), std::string("+1e-999999"), sLong}) {
        const std::string sFile = Replaced(gSampleFile(), "1.50000000000000000e+00", rsNumber);
        TCircuitParams ours;
        gReadOurs(sFile, ours);
        TCircuitParams stock;
        gReadStock(sFile, stock);
        EXPECT_EQ(gDescribe(ours), gDescribe(stock)) << rsNumber;
        EXPECT_LT(std::fabs(ours.mModelClasses.at("MOS1").mHeader.mdVersion), 1e-300);
    }
}

TEST(TolerantReadTest, InfinitiesAndNan)
{
    for (const char* const pNumber : {"inf", "-inf", "nan", "-nan", "-nan(ind)"}) {
        const std::string sFile = Replaced(gSampleFile(), "6.50000000000000022e-01", pNumber);
        TCircuitParams store;
        gReadOurs(sFile, store);
        const double dRead =
            boost::get<double>(store.mCircuitModelDatasets.at(0).at("n1").mModelParamValues["vto"]);
        EXPECT_EQ(std::signbit(dRead), pNumber[0] == '-') << pNumber;
        EXPECT_EQ(std::isnan(dRead), std::string(pNumber).find("nan") != std::string::npos);
        EXPECT_FALSE(std::isfinite(dRead));
    }
}

TEST(TolerantReadTest, WhichOf3AndOf7BothReadAText)
{
    for (const char* const pWhich : {"3", "7", "-1"}) {
        const std::string sFile =
            Replaced(gSampleFile(), "2 6.99999999999999956e-01", std::string(pWhich) + " 4 text");
        TCircuitParams store;
        gReadOurs(sFile, store);
        EXPECT_EQ(boost::get<CStringU>(store.mModelClasses["MOS1"].mModelParamDefs[0].mValue),
                  "text");
    }
}

TEST(TolerantReadTest, BehindANegativeKindNoValueIsRead)
{
    const std::string sFile = Replaced(gSampleFile(), "\n2 2 6.50000000000000022e-01", "\n2 -3");
    TCircuitParams ours;
    gReadOurs(sFile, ours);
    EXPECT_EQ(ours.mCircuitModelDatasets.at(0).at("n1").mModelParamValues["vto"], TParamValue());
    TCircuitParams stock;
    gReadStock(sFile, stock);
    EXPECT_EQ(gDescribe(ours), gDescribe(stock));
}

TEST(TolerantReadTest, KeysOutOfOrderAndTwice)
{
    const std::string sTable = "2 x1 1 3 top 0 ";
    const struct {
        const char* pName;
        std::string sFrom;
        std::string sTo;
    } cases[] = {
        {"out of order", sTable, "3 top 0 2 x1 1 "},
        {"twice: the later one is dropped", sTable, "2 x1 1 2 x1 7 "},
        {"a model twice", "\n3 1 2 n2", "\n3 1 2 n2"},
    };
    for (const auto& row : cases) {
        const std::string sFile = Replaced(gSampleFile(), row.sFrom, row.sTo);
        TCircuitParams ours;
        gReadOurs(sFile, ours);
        TCircuitParams stock;
        gReadStock(sFile, stock);
        EXPECT_EQ(gDescribe(ours), gDescribe(stock)) << row.pName;
    }
}

// A store with one model, whose file is then given the same model once more.
TEST(TolerantReadTest, PointersToADroppedModelLeadToTheOneInItsPlace)
{
    TCircuitParams store;
    store.AddSubckt("t", 0);
    store.AddModel(gModel(0, "n1", "", ""));
    store.AddModel(gModel(0, "n2", "", ""));
    store.AddDevice(gDevice(0, "d", {0, "n2", "", ""}));
    std::string sFile = Replaced(gOursOf(store), " 2 n2\n", " 2 n1\n"); // the key of the second
    TCircuitParams ours;
    gReadOurs(sFile, ours);
    ASSERT_EQ(ours.mCircuitModelDatasets.at(0).size(), 1U);
    EXPECT_EQ(ours.mCircuitDeviceDatasets.at(0).at("d").mpModelData,
              &ours.mCircuitModelDatasets.at(0).at("n1"));
}

TEST(TolerantReadTest, PointersIntoADroppedDatasetAreNull)
{
    TCircuitParams store;
    store.AddSubckt("t", 5);
    store.AddSubckt("u", 6);
    store.AddModel(gModel(6, "n1", "", ""));
    store.AddDevice(gDevice(5, "d", {6, "n1", "", ""}));
    std::string sFile = gOursOf(store);
    // The key of the second dataset, behind the empty first one.
    const auto nKey = sFile.find("0 0 6 1 0 ");
    ASSERT_NE(nKey, std::string::npos) << sFile;
    sFile.replace(nKey, 5, "0 0 5");
    TCircuitParams ours;
    gReadOurs(sFile, ours);
    EXPECT_TRUE(ours.mCircuitModelDatasets.at(5).empty());
    EXPECT_EQ(ours.mCircuitDeviceDatasets.at(5).at("d").mpModelData, nullptr);
}

} // namespace
