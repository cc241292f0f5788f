#include "platform/base/Environment.h"

#include "platform/base/Exceptions.h"
#include "platform/base/MapEnvironment.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace
{

constexpr const char* kName = "QUORVAWIZ_ENVIRONMENT_TEST";

/// Every test goes both over the process and over a source of its own.
class EnvironmentTest : public testing::TestWithParam<bool>
{
protected:
    void SetUp() override
    {
        if (GetParam()) {
            gSetEnvironmentSource(std::make_shared<CMapEnvironment>());
        }
        gUnsetEnvironment(kName);
    }

    void TearDown() override
    {
        gResetEnvironmentSource();
        gUnsetEnvironment(kName);
    }
};

TEST_P(EnvironmentTest, IsSetReplacedAndRemoved)
{
    EXPECT_EQ(gGetEnvironment(kName), std::nullopt);
    gSetEnvironment(kName, "one");
    EXPECT_EQ(gGetEnvironment(kName), "one");
    gSetEnvironment(kName, "two=2");
    EXPECT_EQ(gGetEnvironment(kName), "two=2");
    gSetEnvironment(kName, "");
    EXPECT_EQ(gGetEnvironment(kName), "");
    gUnsetEnvironment(kName);
    EXPECT_EQ(gGetEnvironment(kName), std::nullopt);
    gUnsetEnvironment(kName);
    EXPECT_EQ(gGetEnvironment(kName), std::nullopt);
}

TEST_P(EnvironmentTest, NamesAreExact)
{
    const std::string sName(kName);
    gSetEnvironment(sName, "x");
    EXPECT_EQ(gGetEnvironment(sName + "_"), std::nullopt);
    EXPECT_EQ(gGetEnvironment(sName.substr(1)), std::nullopt);
    EXPECT_EQ(gGetEnvironment("quorvawiz_environment_test"), std::nullopt);
    EXPECT_EQ(gGetEnvironment(std::string_view(sName + "tail").substr(0, sName.size())), "x");
}

TEST_P(EnvironmentTest, InvalidNamesAreNotSetAndCannotBe)
{
    using namespace std::string_view_literals;
    for (const std::string_view sName : {""sv, "="sv, "A=B"sv, "A\0B"sv}) {
        EXPECT_EQ(gGetEnvironment(sName), std::nullopt);
        EXPECT_THROW(gSetEnvironment(sName, "x"), CInvalidArgException);
        EXPECT_THROW(gUnsetEnvironment(sName), CInvalidArgException);
        EXPECT_EQ(gGetEnvironment(sName), std::nullopt);
    }
    EXPECT_THROW(gSetEnvironment(kName, "a\0b"sv), CInvalidArgException);
    EXPECT_EQ(gGetEnvironment(kName), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Sources, EnvironmentTest, testing::Bool(),
                         [](const testing::TestParamInfo<bool>& rInfo) {
                             return rInfo.param ? "Map" : "Process";
                         });

TEST(EnvironmentSourceTest, TheProcessIsTheSourceAtTheStart)
{
    ASSERT_EQ(::setenv(kName, "from the process", 1), 0);
    EXPECT_EQ(gGetEnvironment(kName), "from the process");
    gSetEnvironment(kName, "to the process");
    EXPECT_STREQ(std::getenv(kName), "to the process");
    gUnsetEnvironment(kName);
    EXPECT_EQ(std::getenv(kName), nullptr);
}

TEST(EnvironmentSourceTest, AnotherSourceInheritsNothingAndChangesNothing)
{
    gSetEnvironment(kName, "process");
    gSetEnvironmentSource(
        std::make_shared<CMapEnvironment>(CMapEnvironment::TVariables{{"ONLY", "this"}}));
    EXPECT_EQ(gGetEnvironment(kName), std::nullopt);
    EXPECT_EQ(gGetEnvironment("PATH"), std::nullopt);
    EXPECT_EQ(gGetEnvironment("ONLY"), "this");
    gSetEnvironment(kName, "map");
    EXPECT_STREQ(std::getenv(kName), "process");

    gResetEnvironmentSource();
    EXPECT_EQ(gGetEnvironment(kName), "process");
    EXPECT_EQ(gGetEnvironment("ONLY"), std::nullopt);
    gUnsetEnvironment(kName);
}

TEST(EnvironmentSourceTest, NullGoesBackToTheProcess)
{
    gSetEnvironment(kName, "process");
    gSetEnvironmentSource(std::make_shared<CMapEnvironment>());
    gSetEnvironmentSource(nullptr);
    EXPECT_EQ(gGetEnvironment(kName), "process");
    gUnsetEnvironment(kName);
}

} // namespace
