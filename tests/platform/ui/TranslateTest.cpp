#include "platform/ui/Translate.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace
{
using xlang::gSetCatalogue;
using xlang::gTranslate;

class TranslateTest : public testing::Test
{
protected:
    void TearDown() override { gSetCatalogue({}); }
};

struct TCase {
    const char* pLiteral;
    const char* pEnglish;
};

constexpr TCase kCases[] = {
    {"__$$Translatable$$_Missing name.", "Missing name."},
    {"Missing name.", "Missing name."},
    {"__$$Translatable$$_", ""},
    {"", ""},
    {nullptr, ""},
    // Only what stands in front, once and to the letter, is the marker.
    {"__$$Translatable$$___$$Translatable$$_x", "__$$Translatable$$_x"},
    {" __$$Translatable$$_x", " __$$Translatable$$_x"},
    {"__$$translatable$$_x", "__$$translatable$$_x"},
    {"__$$Translatable$$x", "__$$Translatable$$x"},
};

TEST_F(TranslateTest, TakesTheMarkerAway)
{
    for (const TCase& rCase : kCases) {
        EXPECT_EQ(gTranslate(rCase.pLiteral), rCase.pEnglish);
    }
}

TEST_F(TranslateTest, AsksTheCatalogueForTheEnglishText)
{
    std::vector<std::string> asked;
    gSetCatalogue([&asked](std::string_view sEnglish) {
        asked.emplace_back(sEnglish);
        return "<" + CString(sEnglish) + ">";
    });
    std::vector<std::string> expected;
    for (const TCase& rCase : kCases) {
        EXPECT_EQ(gTranslate(rCase.pLiteral), "<" + CString(rCase.pEnglish) + ">");
        expected.emplace_back(rCase.pEnglish);
    }
    EXPECT_EQ(asked, expected);
}

TEST_F(TranslateTest, ACatalogueIsReplacedAndTakenAway)
{
    gSetCatalogue([](std::string_view) { return CString("one"); });
    EXPECT_EQ(gTranslate("x"), "one");
    gSetCatalogue([](std::string_view) { return CString("two"); });
    EXPECT_EQ(gTranslate("x"), "two");
    gSetCatalogue({});
    EXPECT_EQ(gTranslate("x"), "x");
}

TEST_F(TranslateTest, TheMarkerIsWhatLiteralsCarry)
{
    EXPECT_EQ(xlang::kTranslationMarker, "__$$Translatable$$_");
}
} // namespace
