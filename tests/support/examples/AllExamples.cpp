#include "support/examples/ExampleLines.h"

TExampleLines gAllExamples()
{
    TExampleLines all;
    for (const TExampleLines* pExamples :
         {&gAnalysisExamples(), &gSetupExamples(), &gWaveformExamples(), &gDigitalSourceExamples(),
          &gControlledSourceExamples(), &gOptimizationExamples()})
        all.insert(all.end(), pExamples->begin(), pExamples->end());
    return all;
}
