#include "support/examples/ExampleLines.h"

const TExampleLines& gSetupExamples()
{
    static const TExampleLines sExamples{
        {"Settings/Temperature", {"temperature-list= 0 27\n85 "}, ".temp 0 27 85"},
        {"Settings/Temperature", {"temperature-list=   "}, "", "Missing temperature value."},
    };
    return sExamples;
}
