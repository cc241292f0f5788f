#include "support/examples/ExampleLines.h"

#include <utility>

TExampleLine gNamed(std::string sName, TExampleLine example)
{
    example.sName = std::move(sName);
    return example;
}

TExampleLines gAllExamples()
{
    TExampleLines all;
    for (const TExampleLines* pExamples :
         {&gAnalysisExamples(), &gOutputExamples(), &gSetupExamples(), &gWaveformExamples(),
          &gDigitalSourceExamples(), &gControlledSourceExamples(), &gOptimizationExamples()})
        all.insert(all.end(), pExamples->begin(), pExamples->end());
    return all;
}
