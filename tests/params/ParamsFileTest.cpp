// Files on the disk: ReadThis and WriteThis.

#include "params/DamagedForms.h"
#include "params/ParamsFileError.h"
#include "params/PrintParams.h"
#include "support/TempFolder.h"
#include "support/Unprivileged.h"

#include <boost/variant/get.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cmath>
#include <csignal>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace
{

constexpr const char* kOpenFailed = "Params file open failed!";
constexpr const char* kReadFailed = "Params file ReadThis() operation failed!";
constexpr const char* kWriteFailed = "Params file WriteThis() operation failed!";

/// What a call throws.
std::string ThrownBy(const std::function<void()>& rCall)
{
    try {
        rCall();
    } catch (const CParamsFileError& rError) {
        EXPECT_FALSE(rError.GetDetail().empty());
        return rError.what();
    }
    return "nothing";
}

std::string WriteSample(const CStringU& rsPath, const char* pFormat = "")
{
    TCircuitParams store;
    gFillSample(store);
    return ThrownBy([&] { store.WriteThis(rsPath, pFormat); });
}

std::string ReadIt(const CStringU& rsPath, const char* pFormat = "")
{
    TCircuitParams store;
    return ThrownBy([&] { store.ReadThis(rsPath, pFormat); });
}

/// The names in a folder.
std::vector<std::string> NamesIn(const CTempFolder& rFolder)
{
    std::vector<std::string> names;
    for (const auto& rEntry : std::filesystem::directory_iterator(rFolder.Path(""))) {
        names.push_back(rEntry.path().filename().string());
    }
    return names;
}

TEST(ParamsFileTest, AnEmptyStoreRoundTrips)
{
    const CTempFolder folder;
    const TCircuitParams store;
    store.WriteThis(folder.Path("p"), "");
    EXPECT_EQ(folder.Read("p"),
              "22 serialization::archive 17 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 "
              "0 0 0 0 0 0 0\n");
    TCircuitParams read;
    EXPECT_EQ(read.ReadThis(folder.Path("p"), ""), 17);
    EXPECT_EQ(gDescribe(read), gDescribe(store));
}

TEST(ParamsFileTest, ASampleRoundTripsAndItsPointersLeadIntoTheNewStore)
{
    const CTempFolder folder;
    ASSERT_EQ(WriteSample(folder.Path("p\xC3\xA9")), "nothing");
    EXPECT_EQ(folder.Read("p\xC3\xA9"), gSampleFile());
    TCircuitParams read;
    read.ReadThis(folder.Path("p\xC3\xA9"), "");
    const TDeviceData& rDevice = read.mCircuitDeviceDatasets.at(0).at("m1");
    EXPECT_EQ(rDevice.mpModelData, &read.mCircuitModelDatasets.at(0).at("n1"));
    EXPECT_EQ(rDevice.mpModelClassDef, &read.mModelClasses.at("MOS1"));
    const TDeviceData& rAlone = read.mCircuitDeviceDatasets.at(1).at("r10");
    EXPECT_EQ(rAlone.mpModelData, nullptr); // the tag of null
    EXPECT_EQ(rAlone.mpModelClassDef, nullptr);
}

TEST(ParamsFileTest, ANullPointerInTheFileIsMendedByALookup)
{
    const CTempFolder folder;
    TCircuitParams store;
    gFillSample(store);
    store.mCircuitDeviceDatasets.at(0).at("m1").mpModelData = nullptr;
    store.mCircuitDeviceDatasets.at(0).at("m1").mpModelClassDef = nullptr;
    store.WriteThis(folder.Path("p"), "");
    TCircuitParams read;
    read.ReadThis(folder.Path("p"), "");
    EXPECT_EQ(read.mCircuitDeviceDatasets.at(0).at("m1").mpModelData, nullptr);
    EXPECT_EQ(read.GetDeviceData(0, "m1")->mpModelData, read.GetModelData(0, "n1"));
}

/// One value in each place where there are values.
struct TPlaces {
    TParamValue mDef, mModel, mDevice, mState;
};

void SetAll(TCircuitParams& rStore, const TParamValue& rValue)
{
    gFillSample(rStore);
    rStore.mModelClasses.at("MOS1").mModelParamDefs[0].mValue = rValue;
    rStore.mCircuitModelDatasets.at(0).at("n1").mModelParamValues["vto"] = rValue;
    TDeviceData& rDevice = rStore.mCircuitDeviceDatasets.at(0).at("m1");
    rDevice.mDeviceParamValues["w"] = rValue;
    rDevice.mStateParamValues["on"] = rValue;
}

TPlaces GetAll(const TCircuitParams& rStore)
{
    const TDeviceData& rDevice = rStore.mCircuitDeviceDatasets.at(0).at("m1");
    return {rStore.mModelClasses.at("MOS1").mModelParamDefs[0].mValue,
            rStore.mCircuitModelDatasets.at(0).at("n1").mModelParamValues.at("vto"),
            rDevice.mDeviceParamValues.at("w"), rDevice.mStateParamValues.at("on")};
}

TEST(ParamsFileTest, NanAndItsSubstitute)
{
    const CTempFolder folder;
    for (const double dValue :
         {std::nan(""), -std::nan(""), kUninitializedParamValue, 123456789.0}) {
        TCircuitParams store;
        SetAll(store, dValue);
        store.WriteThis(folder.Path("p"), "");
        const TPlaces after = GetAll(store);
        const bool bNan = std::isnan(dValue);
        EXPECT_EQ(std::isnan(boost::get<double>(after.mDef)), bNan);   // the object stays
        EXPECT_EQ(std::isnan(boost::get<double>(after.mModel)), bNan); // no step for models
        EXPECT_EQ(after.mDevice, TParamValue(123456789.0));            // replaced by the save
        EXPECT_EQ(after.mState, TParamValue(123456789.0));
        TCircuitParams read;
        read.ReadThis(folder.Path("p"), "");
        const TPlaces back = GetAll(read);
        EXPECT_EQ(ParamValueToText(back.mDef), "<uninitialized>");
        EXPECT_EQ(ParamValueToText(back.mDevice), "<uninitialized>");
        EXPECT_EQ(ParamValueToText(back.mState), "<uninitialized>");
        EXPECT_EQ(ParamValueToText(back.mModel), bNan ? "NaN" : "123.456789X");
    }
}

TEST(ParamsFileTest, OtherKindsOfTheSubstituteStay)
{
    const CTempFolder folder;
    TCircuitParams store;
    SetAll(store, 123456789);
    store.WriteThis(folder.Path("p"), "");
    TCircuitParams read;
    read.ReadThis(folder.Path("p"), "");
    EXPECT_EQ(GetAll(read).mDef, TParamValue(123456789));
    EXPECT_EQ(GetAll(read).mDevice, TParamValue(123456789));
}

TEST(ParamsFileTest, WhatCanNotBeOpened)
{
    const CTempFolder folder;
    EXPECT_EQ(ReadIt(folder.Path("none")), kOpenFailed);
    EXPECT_EQ(ReadIt(folder.Path("")), kOpenFailed); // a folder
    EXPECT_EQ(ReadIt(""), kOpenFailed);
    EXPECT_EQ(WriteSample(folder.Path("none/p")), kOpenFailed);
    EXPECT_EQ(WriteSample(folder.Path("")), kOpenFailed);
    EXPECT_EQ(WriteSample(""), kOpenFailed);
    EXPECT_EQ(WriteSample(folder.Path("none/")), kOpenFailed);
}

TEST(ParamsFileTest, WhatMayNotBeWritten)
{
    const CTempFolder folder; // where only its owner may write
    const std::string sPath = folder.Write("p", "old");
    std::filesystem::permissions(sPath, std::filesystem::perms(0666));
    const std::string sOpen = folder.Path("open");
    std::filesystem::create_directory(sOpen);
    std::filesystem::permissions(sOpen, std::filesystem::perms(0777));
    const std::string sClosed = folder.Write("open/p", "old");
    std::filesystem::permissions(sClosed, std::filesystem::perms(0444));
    const CUnprivileged nobody;
    EXPECT_EQ(WriteSample(sPath), kOpenFailed); // only the file beside it can't be made
    EXPECT_EQ(WriteSample(sClosed), kOpenFailed);
    EXPECT_EQ(folder.Read("p"), "old");
    EXPECT_EQ(folder.Read("open/p"), "old");
}

TEST(ParamsFileTest, WhatIsNoParamsFile)
{
    const CTempFolder folder;
    for (const char* const pText : {"", "\n", "x", "22 serialization::archive", "<?xml?>"}) {
        EXPECT_EQ(ReadIt(folder.Write("p", pText)), kReadFailed) << pText;
        EXPECT_EQ(ReadIt(folder.Write("p", pText), "XML"), kReadFailed) << pText;
    }
    for (const TDamagedForm& rForm : gDamagedForms()) {
        EXPECT_EQ(ReadIt(folder.Write("p", rForm.Damage(gSampleFile()))), kReadFailed)
            << rForm.msName;
    }
}

TEST(ParamsFileTest, TheDetailTellsByteAndReason)
{
    const CTempFolder folder;
    TCircuitParams store;
    try {
        store.ReadThis(folder.Write("p", "22 serialization::archive 99 "), "");
        ADD_FAILURE();
    } catch (const CParamsFileError& rError) {
        EXPECT_EQ(rError.GetDetail(), "byte 26: an archive of an unknown version");
    }
}

TEST(ParamsFileTest, ARefusalOfTheSystemHasItsByteToo)
{
    TCircuitParams store;
    try {
        store.ReadThis("/proc/self/mem", ""); // which can be opened; nothing is at its begin
        ADD_FAILURE();
    } catch (const CParamsFileError& rError) {
        EXPECT_STREQ(rError.what(), kReadFailed);
        EXPECT_EQ(rError.GetDetail(), "byte 0: the system can't read the file here");
    }
}

TEST(ParamsFileTest, AFileInTextModeOnTheDisk)
{
    const CTempFolder folder;
    std::string sFile;
    for (const char chByte : gSampleFile()) {
        sFile += chByte == '\n' ? "\r\n" : std::string(1, chByte);
    }
    TCircuitParams store;
    store.ReadThis(folder.Write("p", sFile), "");
    EXPECT_EQ(gOursOf(store), gSampleFile());
}

TEST(ParamsFileTest, FormatXmlInAnyCaseAndNothingElse)
{
    const CTempFolder folder;
    for (const char* const pFormat : {"XML", "xml", "Xml"}) {
        const TCircuitParams store;
        store.WriteThis(folder.Path("p"), pFormat);
        EXPECT_TRUE(folder.Read("p").starts_with("<?xml")) << pFormat;
        EXPECT_EQ(ReadIt(folder.Path("p")), kReadFailed);
    }
    for (const char* const pFormat : {"", "text", "XML ", "xmlx", "XM"}) {
        ASSERT_EQ(WriteSample(folder.Path("p"), pFormat), "nothing");
        EXPECT_EQ(folder.Read("p"), gSampleFile()) << pFormat;
        EXPECT_EQ(ReadIt(folder.Path("p"), pFormat), "nothing");
    }
}

TEST(ParamsFileTest, XmlHasItsElementsAndDoesNotRoundTrip)
{
    const CTempFolder folder;
    TCircuitParams store;
    store.AddSubckt("a<b", 0);
    store.AddModel(gModel(0, "n1", "", ""));
    store.WriteThis(folder.Path("p"), "XML");
    const std::string sXml = folder.Read("p");
    EXPECT_THAT(sXml, testing::HasSubstr("\n<cCircuitParams class_id=\"0\" tracking_level=\"0\" "
                                         "version=\"0\">\n\t<mSubcktTable class_id=\"1\""));
    EXPECT_THAT(sXml,
                testing::HasSubstr("<boost_serialization signature=\"serialization::archive\" "
                                   "version=\"17\">"));
    for (const char* const pElement :
         {"mIndex", "count", "item_version", "item", "first", "second", "s", "mTable",
          "mModelClasses", "mOpticalClasses", "mCircuitModelDatasets", "mCircuitDeviceDatasets",
          "mModelHeader", "mnSubckt", "msName", "msClass", "msType", "mpModelClassDef",
          "mModelParamValues"}) {
        EXPECT_THAT(sXml, testing::HasSubstr(std::string("<") + pElement)) << pElement;
    }
    EXPECT_THAT(sXml, testing::HasSubstr("<s>a&lt;b</s>"));
    EXPECT_TRUE(sXml.ends_with("</cCircuitParams>\n</boost_serialization>\n\n"));
    EXPECT_EQ(ReadIt(folder.Path("p"), "XML"), kReadFailed); // the other name of the element
    // Under the name that the reader expects it is read up to its end.
    std::string sOther = sXml;
    sOther.replace(sOther.find("cCircuitParams"), 14, "CircuitParams");
    sOther.replace(sOther.find("cCircuitParams"), 14, "CircuitParams");
    for (const char* const pFormat : {"XML", "xml", "xMl"}) {
        TCircuitParams read;
        EXPECT_EQ(read.ReadThis(folder.Write("q", sOther), pFormat), 0);
        EXPECT_EQ(gDescribe(read), gDescribe(store)) << pFormat;
    }
    EXPECT_EQ(ReadIt(folder.Path("q"), "XML "), kReadFailed); // no text archive
}

TEST(ParamsFileTest, XmlOfAnyClassCanNotBeWritten)
{
    const CTempFolder folder;
    const std::string sOld = folder.Write("p", "old");
    EXPECT_EQ(WriteSample(folder.Path("p"), "XML"), kWriteFailed);
    EXPECT_EQ(folder.Read("p"), "old");
    EXPECT_THAT(NamesIn(folder), testing::ElementsAre("p"));
}

TEST(ParamsFileTest, APointerOutOfTheStoreIsNotWritten)
{
    const CTempFolder folder;
    const TModelClassDef elsewhere;
    TCircuitParams store;
    gFillSample(store);
    store.mCircuitModelDatasets.at(0).at("n1").mpModelClassDef = &elsewhere;
    EXPECT_EQ(ThrownBy([&] { store.WriteThis(folder.Path("p"), ""); }), kWriteFailed);
    EXPECT_THAT(NamesIn(folder), testing::IsEmpty());
}

TEST(ParamsFileTest, SavingReplacesAFileAndKeepsItsPermissions)
{
    const CTempFolder folder;
    const std::string sPath = folder.Write("p", "old");
    std::filesystem::permissions(sPath, std::filesystem::perms(0640));
    ASSERT_EQ(WriteSample(sPath), "nothing");
    EXPECT_EQ(folder.Read("p"), gSampleFile());
    EXPECT_EQ(std::filesystem::status(sPath).permissions(), std::filesystem::perms(0640));
    EXPECT_THAT(NamesIn(folder), testing::ElementsAre("p"));
}

TEST(ParamsFileTest, ANewFileHasTheUsualPermissions)
{
    const CTempFolder folder;
    const mode_t nMask = ::umask(027);
    const std::string sThrown = WriteSample(folder.Path("p"));
    ::umask(nMask);
    ASSERT_EQ(sThrown, "nothing");
    EXPECT_EQ(std::filesystem::status(folder.Path("p")).permissions(),
              std::filesystem::perms(0640));
}

TEST(ParamsFileTest, LinksAreFollowed)
{
    const CTempFolder folder;
    std::filesystem::create_directory(folder.Path("d"));
    std::filesystem::create_symlink("d/link", folder.Path("link"));
    std::filesystem::create_symlink("file", folder.Path("d/link"));
    ASSERT_EQ(WriteSample(folder.Path("link")), "nothing"); // leads to nothing yet
    EXPECT_EQ(folder.Read("d/file"), gSampleFile());
    folder.Write("d/file", "old");
    ASSERT_EQ(WriteSample(folder.Path("link")), "nothing");
    EXPECT_EQ(folder.Read("d/file"), gSampleFile());
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link")));
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("d/link")));
    std::filesystem::create_symlink("loop", folder.Path("loop"));
    EXPECT_EQ(WriteSample(folder.Path("loop")), kOpenFailed);
}

TEST(ParamsFileTest, ADeviceIsWrittenDirectly)
{
    EXPECT_EQ(WriteSample("/dev/null"), "nothing");
    EXPECT_EQ(WriteSample("/dev/full"), kWriteFailed);
    const TCircuitParams store;
    EXPECT_EQ(ThrownBy([&] { store.WriteThis("/dev/full", "XML"); }), kWriteFailed);
}

TEST(ParamsFileTest, AFullDiskLeavesTheOldFile)
{
    const CTempFolder folder;
    const std::string sPath = folder.Write("p", "old");
    rlimit old{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit few{100, old.rlim_max}; // bytes that a file may have
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &few), 0);
    const std::string sThrown = WriteSample(sPath);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &old), 0);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(sThrown, kWriteFailed);
    EXPECT_EQ(folder.Read("p"), "old");
    EXPECT_THAT(NamesIn(folder), testing::ElementsAre("p"));
}

} // namespace
