// The names of XML elements, class by class, in the order of the archive.

#include "params/SampleStore.h"
#include "params/Serialize.h"

#include <boost/archive/xml_oarchive.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <locale>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

namespace
{

using testing::ElementsAre;

/// An archive that only takes down the names of what it is given.
class CNames
{
public:
    using is_saving = std::true_type;
    using is_loading = std::false_type;

    template <class T> CNames& operator&(const boost::serialization::nvp<T>& rNamed)
    {
        mNames.emplace_back(rNamed.name());
        return *this;
    }

    std::vector<std::string> mNames;
};

template <class T> std::vector<std::string> NamesOf(T object)
{
    CNames names;
    serialize(names, object, 0);
    return names.mNames;
}

TEST(XmlNamesTest, OfEveryClass)
{
    EXPECT_THAT(NamesOf(CStringU("a")), ElementsAre("s"));
    CNames store;
    TCircuitParams empty;
    serialize(store, empty, 0);
    EXPECT_THAT(store.mNames, ElementsAre("mSubcktTable", "mModelClasses", "mOpticalClasses",
                                          "mCircuitModelDatasets", "mCircuitDeviceDatasets"));
    EXPECT_THAT(NamesOf(TBidirectionalStringToIntMap()), ElementsAre("mIndex", "mTable"));
    EXPECT_THAT(NamesOf(TModelClassDef()),
                ElementsAre("mHeader", "mModelParamDefs", "mDeviceParamDefs", "mStateParamDefs"));
    EXPECT_THAT(NamesOf(TModelClassHeader()),
                ElementsAre("msName", "msType", "mnLevel", "mdVersion", "msDescription"));
    EXPECT_THAT(NamesOf(TParamDefs()), ElementsAre("static_cast<std::vector<TParamDef>&>(*this)"));
    EXPECT_THAT(NamesOf(TModelHeader()), ElementsAre("mnSubckt", "msName", "msClass", "msType"));
    EXPECT_THAT(NamesOf(TDeviceHeader()), ElementsAre("mnSubckt", "msName"));
    EXPECT_THAT(NamesOf(TModelData()),
                ElementsAre("mModelHeader", "mpModelClassDef", "mModelParamValues"));
    EXPECT_THAT(NamesOf(TDeviceData()),
                ElementsAre("mDeviceHeader", "mModelHeader", "mpModelClassDef", "mpModelData",
                            "mDeviceParamValues", "mStateParamValues"));
}

TEST(XmlNamesTest, OfADefinitionWithEachKindOfValue)
{
    const struct {
        TParamValue mValue;
        const char* pName;
    } cases[] = {{true, "bValue"}, {1, "nValue"}, {1.0, "dValue"}, {CStringU("a"), "sValue"}};
    for (const auto& row : cases) {
        EXPECT_THAT(NamesOf(gDef("p", row.mValue)),
                    ElementsAre("msName", "mIsSet", "msUnits", "msDescription", "mAliases",
                                "nWhich", row.pName));
    }
}

/// What the library's XML archive writes of an object, without its head and foot.
template <class T> std::string XmlOf(const T& rObject)
{
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    {
        boost::archive::xml_oarchive archive(stream, boost::archive::no_header);
        archive << boost::serialization::make_nvp("x", rObject);
    }
    return stream.str();
}

TEST(XmlNamesTest, OfADefinitionInTheLibrarysArchive)
{
    TParamDef def = gDef("vto", 0.5);
    def.mIsSet = true;
    def.msUnits = "V";
    def.mAliases = {"vt0"};
    EXPECT_THAT(XmlOf(def), testing::MatchesRegex(
                                "<x class_id=\"0\" tracking_level=\"0\" version=\"0\">\n"
                                "\t<msName class_id=\"1\" tracking_level=\"0\" version=\"0\">\n"
                                "\t\t<s>vto</s>\n\t</msName>\n"
                                "\t<mIsSet>1</mIsSet>\n"
                                "\t<msUnits>\n\t\t<s>V</s>\n\t</msUnits>\n"
                                "\t<msDescription>\n\t\t<s></s>\n\t</msDescription>\n"
                                "\t<mAliases class_id=\"2\" tracking_level=\"0\" version=\"0\">\n"
                                "\t\t<count>1</count>\n\t\t<item_version>0</item_version>\n"
                                "\t\t<item>\n\t\t\t<s>vt0</s>\n\t\t</item>\n\t</mAliases>\n"
                                "\t<nWhich>2</nWhich>\n"
                                "\t<dValue>5.00000000000000000e-01</dValue>\n"
                                "</x>\n+"));
}

TEST(XmlNamesTest, OfADevicesValuesInTheLibrarysArchive)
{
    TDeviceData device = gDevice(1, "m1", {1, "n1", "MOS1", "nmos"});
    device.mDeviceParamValues["w"] = 2;
    device.mStateParamValues["on"] = true;
    const std::string sXml = XmlOf(device);
    for (const char* const pPiece :
         {"<mDeviceHeader class_id=", "<mModelHeader class_id=", "<mpModelClassDef class_id=\"-1\"",
          "<mpModelData class_id=\"-1\"", "<mDeviceParamValues class_id=", "<first>",
          "<second class_id=", "<which>1</which>", "<value>2</value>", "<mStateParamValues>",
          "<which>0</which>", "<value>1</value>"}) {
        EXPECT_THAT(sXml, testing::HasSubstr(pPiece));
    }
}

} // namespace
