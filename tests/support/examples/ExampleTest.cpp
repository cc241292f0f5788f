#include "support/examples/ExampleTest.h"

#include <cctype>

void PrintTo(const TExampleLine& rExample, std::ostream* pOut)
{
    *pOut << rExample.sPage;
    for (const std::string& rsArgument : rExample.arguments)
        *pOut << " '" << rsArgument << '\'';
    *pOut << " -> " << rExample.sLine << rExample.sMessage;
}

std::string gExampleName(const testing::TestParamInfo<TExampleLine>& rInfo)
{
    if (!rInfo.param.sName.empty())
        return rInfo.param.sName;
    std::string sName;
    for (const char c : rInfo.param.sPage)
        if (std::isalnum(static_cast<unsigned char>(c)))
            sName += c;
    return sName + '_' + std::to_string(rInfo.index);
}
