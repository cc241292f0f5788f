#pragma once

#include "support/examples/ExampleLines.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

/// A test that runs once for each example:
/// `INSTANTIATE_TEST_SUITE_P(All, ExampleTest, testing::ValuesIn(gAllExamples()), gExampleName);`
class ExampleTest : public testing::TestWithParam<TExampleLine>
{
};

/// How the report of a failed test shows an example.
void PrintTo(const TExampleLine& rExample, std::ostream* pOut);

/// The name of an example among tests: its own, or the page with a number.
std::string gExampleName(const testing::TestParamInfo<TExampleLine>& rInfo);
