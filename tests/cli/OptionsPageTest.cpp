// The page of simulation options, as scripts see and use it.

#include "cli/DescribeCommand.h"
#include "cli/SessionTranscript.h"
#include "support/options/OptionRows.h"
#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace
{
using nlohmann::json;
using quorvawiz::cli::gSpiceWizard;

constexpr const char* kOpen = R"({"op":"open","page":"Settings/Simulation options"})";

TEST(OptionsPage, IsDescribedWithAllItsOptions)
{
    CRememberedBase::ResetAll();
    const json controls = json::parse(quorvawiz::cli::gDescribePage(
        gSpiceWizard(), {"Settings/Simulation options", true}))["controls"];
    std::vector<std::string> keys;
    for (const json& rControl : controls)
        keys.push_back(rControl["key"]);
    EXPECT_EQ(keys, (std::vector<std::string>{"option-list", "explanation-title", "explanation",
                                              "value-text", "value-list", "unit"}));
    std::vector<std::string> entries;
    for (const optionRows::TOption& rOption : optionRows::gOptions())
        entries.emplace_back(rOption.pEntry);
    EXPECT_EQ(controls[0]["entries"], json(entries));
    EXPECT_EQ(controls[2]["start_value"], optionRows::gExplanations()[0].pText);
    EXPECT_EQ(controls[3]["label"], "&Value (default is 0.5):");
    EXPECT_EQ(controls[4]["visible"], false);
    EXPECT_EQ(controls[5]["start_value"], "volts");
}

TEST(OptionsPage, TheKindsOfControlTakeTheirTurnsInASession)
{
    CRememberedBase::ResetAll();
    gExpectTranscript(
        gSpiceWizard(),
        {
            {kOpen, R"({"ok":true,"fields":{"option-list":{"index":0},"unit":{"text":"volts"}}})"},
            {R"({"op":"set","field":"value-text","text":" 1m "})", R"({"ok":true})"},
            {R"({"op":"select","field":"option-list","entry":"minresistance"})",
             R"({"ok":true,"fields":{
                 "value-text":{"label":"&Value (default is 1e-5):","text":" 1m ","visible":true},
                 "value-list":{"visible":false},"unit":{"text":"ohms"}}})"},
            {R"({"op":"insert"})", R"({"ok":true,"inserted":[".options resmin=1m"]})"},
            {R"({"op":"select","field":"option-list","entry":"method"})",
             "{\"ok\":true,\"fields\":{"
             "\"explanation\":{\"text\":\"Selects the method of numerical integration for "
             "estimating the time derivative of the system\u2019s charge components during a "
             "transient simulation.\"},\"value-text\":{\"visible\":false},"
             "\"value-list\":{\"label\":\"&Value (default is trap):\",\"visible\":true,"
             "\"items\":[\"gear\",\"trapezoidal\"],\"index\":1,\"text\":\"trapezoidal\"}}}"},
            {R"({"op":"set","field":"value-text","text":"1"})", R"({"ok":false})"},
            {R"({"op":"insert"})", R"({"ok":true,"inserted":[".options method=trap"]})"},
            {R"({"op":"select","field":"value-list","entry":"gear"})", R"({"ok":true})"},
            {R"({"op":"insert"})", R"({"ok":true,"inserted":[".options method=gear"]})"},
            {R"({"op":"reopen"})", R"({"ok":true})"},
            {kOpen, R"({"ok":true,"fields":{
                 "option-list":{"text":"method"},"value-list":{"text":"trapezoidal"}}})"},
            {R"({"op":"select","field":"option-list","index":92})",
             R"({"ok":true,"fields":{"value-text":{"label":"&Value","text":"1m"}}})"},
            {R"({"op":"set","field":"value-text","text":" \t"})", R"({"ok":true})"},
            {R"({"op":"insert"})",
             R"({"ok":true,"inserted":[],"command":".options search=",
                 "boxes":[{"text":"Missing option value.","caption":"SPICE","flags":64,
                           "owner":"CSettingsSimulationOptionsPage"}]})"},
        });
}
} // namespace
