#pragma once

#include <string>
#include <vector>

/// A command as a user writes it for the command line, and what comes of it.
struct TExampleLine {
    std::string sPage;                  ///< path in the tree, or the class of a page without a node
    std::vector<std::string> arguments; ///< `key=value`, `button.key=value` in that button's dialog
    std::string sLine;         ///< what is inserted, lines joined by LF; empty when nothing is
    std::string sMessage = {}; ///< what the page says when it refuses; empty when it says nothing
    std::string sName = {};    ///< of its tests; without one they are called after the page
};

using TExampleLines = std::vector<TExampleLine>;

/// The example under a name of its own, one word such as "CurrentPulseWithAPeriod".
TExampleLine gNamed(std::string sName, TExampleLine example);

/// The examples of the pages of a category, or of a family of sources.
const TExampleLines& gAnalysisExamples();
const TExampleLines& gOutputExamples();
const TExampleLines& gSetupExamples();
const TExampleLines& gWaveformExamples();
const TExampleLines& gDigitalSourceExamples();
const TExampleLines& gControlledSourceExamples();
const TExampleLines& gOptimizationExamples();

/// All of them.
TExampleLines gAllExamples();
