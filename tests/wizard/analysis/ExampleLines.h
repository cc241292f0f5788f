#pragma once

#include <string>
#include <vector>

/// A command as a user writes it for the command line, and the line that comes of it.
struct TExampleLine {
    std::string sPage;                  ///< path in the tree, or the class of a page without a node
    std::vector<std::string> arguments; ///< `key=value`, `sweep.key=value` in the sweep's dialog
    std::string sLine;
};

/// The examples of all pages of the analysis category.
const std::vector<TExampleLine>& gAnalysisExamples();
