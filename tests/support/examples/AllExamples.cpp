#include "support/examples/ExampleLines.h"

TExampleLines gAllExamples()
{
    TExampleLines all;
    for (const TExampleLines* pExamples :
         {&gAnalysisExamples(), &gOutputExamples(), &gSetupExamples(), &gWaveformExamples(),
          &gDigitalSourceExamples(), &gControlledSourceExamples()})
        all.insert(all.end(), pExamples->begin(), pExamples->end());
    return all;
}
