#include "simulators/ngspice/listings/ValueOf.h"

#include "simulators/TellValue.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::ngspice
{
namespace
{

struct TCase {
    const char* pName;
    EValueKind eKind;
    std::vector<std::string_view> values;
    const char* pExpected; ///< "junk" for a value that isn't believed
};

const TCase kCases[] = {
    {"a real", EValueKind::Real, {"1.5e-06"}, "double 1.5u"},
    {"a negative real", EValueKind::Real, {"-0.25"}, "double -250m"},
    {"zero", EValueKind::Real, {"0"}, "double 0"},
    {"minus zero", EValueKind::Real, {"-0"}, "double -0"},
    {"the least normal double",
     EValueKind::Real,
     {"2.2250738585072014e-308"},
     "double 22.25073859e-309"},
    {"a denormal, which is memory", EValueKind::Real, {"1.01856e-312"}, "junk"},
    {"nearly the greatest double", EValueKind::Real, {"1.79768e+308"}, "double 179.768e306"},
    {"the greatest double, for no value", EValueKind::Real, {"1.79769e+308"}, "junk"},
    {"its negative", EValueKind::Real, {"-1.79769e+308"}, "junk"},
    {"too small for any double", EValueKind::Real, {"1e-400"}, "junk"},
    {"too big", EValueKind::Real, {"1e400"}, "junk"},
    {"an error", EValueKind::Real, {"<<NAN, error = 7>>"}, "junk"},
    {"nan", EValueKind::Real, {"nan"}, "junk"},
    {"minus nan", EValueKind::Real, {"-nan"}, "junk"},
    {"inf", EValueKind::Real, {"inf"}, "junk"},
    {"nothing to show", EValueKind::Real, {"-"}, "junk"},
    {"not to be asked for", EValueKind::Real, {"---------"}, "junk"},
    {"a number with more behind it", EValueKind::Real, {"1k"}, "junk"},
    {"no line", EValueKind::Real, {}, "junk"},
    {"an empty line", EValueKind::Real, {""}, "junk"},

    {"an integer", EValueKind::Integer, {"14"}, "int 14"},
    {"a negative integer", EValueKind::Integer, {"-1"}, "int -1"},
    {"the greatest that is believed", EValueKind::Integer, {"10000000"}, "int 10000000"},
    {"the first that isn't", EValueKind::Integer, {"10000001"}, "junk"},
    {"the least that is believed", EValueKind::Integer, {"-10000000"}, "int -10000000"},
    {"the first below that isn't", EValueKind::Integer, {"-10000001"}, "junk"},
    {"half a pointer", EValueKind::Integer, {"-1334832672"}, "junk"},
    {"the other half", EValueKind::Integer, {"21845"}, "int 21845"},
    {"beyond 32 bits", EValueKind::Integer, {"99999999999"}, "junk"},
    {"an integer with a point", EValueKind::Integer, {"1.5"}, "junk"},

    {"a flag that is set", EValueKind::Flag, {"1"}, "bool true"},
    {"a flag that isn't", EValueKind::Flag, {"0"}, "bool false"},
    {"a flag that was never filled", EValueKind::Flag, {"32"}, "junk"},

    {"numbers", EValueKind::Numbers, {"0", "0.01", "1000"}, "text 0 0.01 1000"},
    {"one junk among numbers", EValueKind::Numbers, {"6.95261e-310", "0"}, "junk"},
    {"no numbers", EValueKind::Numbers, {"-"}, "junk"},

    {"a text", EValueKind::Text, {"4.8.0"}, "text 4.8.0"},
    {"a text in UTF-8", EValueKind::Text, {"\u00B5"}, "text \u00B5"},
    {"the first of two lines", EValueKind::Text, {"a", "b"}, "text a"},
    {"texts", EValueKind::Texts, {"n0", "n1"}, "text n0 n1"},
    {"one junk among texts", EValueKind::Texts, {"n0", "-"}, "junk"},
    {"an expression", EValueKind::Expression, {"v(a)"}, "text v(a)"},
    {"a text that is none", EValueKind::Text, {"-"}, "junk"},
    {"a text that is an error", EValueKind::Text, {"<<NAN, error = 7>>"}, "junk"},
};

TEST(ValueOf, IsWhatIsToBeBelieved)
{
    for (const TCase& rCase : kCases) {
        const auto value = gValueOf(rCase.eKind, rCase.values);
        EXPECT_EQ(value ? gTellValue(*value) : "junk", rCase.pExpected) << rCase.pName;
    }
}

TEST(ValueOf, KindsOfTypes)
{
    EXPECT_EQ(gKindOfType("flag"), EValueKind::Flag);
    EXPECT_EQ(gKindOfType("integer"), EValueKind::Integer);
    EXPECT_EQ(gKindOfType("real"), EValueKind::Real);
    EXPECT_EQ(gKindOfType("realvec"), EValueKind::Numbers);
    EXPECT_EQ(gKindOfType("complex"), EValueKind::Numbers);
    for (const char* const pType : {"string", "instance", "", "of the future"}) {
        EXPECT_EQ(gKindOfType(pType), EValueKind::Text) << pType;
    }
    EXPECT_EQ(gKindOfType("stringvec"), EValueKind::Texts);
    EXPECT_EQ(gKindOfType("parsetree"), EValueKind::Expression);
}

TEST(ValueOf, WithoutAValueOnlyTextsAreEmpty)
{
    for (const EValueKind eKind : {EValueKind::Text, EValueKind::Texts, EValueKind::Expression}) {
        EXPECT_EQ(gTellValue(gNoValue(eKind)), "text ");
    }
    for (const EValueKind eKind :
         {EValueKind::Flag, EValueKind::Integer, EValueKind::Real, EValueKind::Numbers}) {
        EXPECT_EQ(gTellValue(gNoValue(eKind)), "none");
    }
}

} // namespace
} // namespace quorvawiz::ngspice
