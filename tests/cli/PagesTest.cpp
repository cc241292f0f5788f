#include "support/RunProgram.h"
#include "wizard/frame/WizardPages.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

// The whole list of pages, to the letter; every one of them is built.

namespace
{
struct TExpectedPage {
    std::string sPath; ///< empty without a node
    std::string sClass;
};

/// The nodes from top to bottom.
const std::vector<TExpectedPage> kNodes{
    {"Analysis", "CAnalysisPage"},
    {"Analysis/AC", "CAnalysisAC1Page"},
    {"Analysis/DC operating point", "CAnalysisDCOpPage"},
    {"Analysis/DC transfer sweep", "CAnalysisDCTransferSweepPage"},
    {"Analysis/Fourier", "CAnalysisFourierPage"},
    {"Analysis/Noise", "CAnalysisNoisePage"},
    {"Analysis/Stability", "CAnalysisStabilityPage"},
    {"Analysis/Transient", "CAnalysisTransientPage"},
    {"Analysis/Transfer function", "CAnalysisTransferFunctionPage"},
    {"Analysis/Parametric sweep", "CAnalysisParametricSweepPage"},
    {"Current source", "CCurrentSourcePage"},
    {"Current source/Bit", "CCurrentSourceBitPage"},
    {"Current source/Bus", "CCurrentSourceBusPage"},
    {"Current source/Constant", "CCurrentSourceConstantPage"},
    {"Current source/Current-controlled", "CCurrentSourceCurrentControlledPage"},
    {"Current source/Exponential", "CCurrentSourceExponentialPage"},
    {"Current source/FM", "CCurrentSourceFMPage"},
    {"Current source/Piecewise linear", "CCurrentSourcePiecewiseLinearPage"},
    {"Current source/Pulse", "CCurrentSourcePulsePage"},
    {"Current source/Sinusoidal", "CCurrentSourceSinusoidalPage"},
    {"Current source/Voltage-controlled", "CCurrentSourceVoltageControlledPage"},
    {"Files", "CFilesPage"},
    {"Files/Include file", "CFilesIncludePage"},
    {"Files/Library file", "CFilesLibraryPage"},
    {"Files/Delete library file", "CFilesDeleteLibraryPage"},
    {"Initialization", "CInitializationPage"},
    {"Initialization/DC guess", "CInitializationDCGuessPage"},
    {"Initialization/Initial condition", "CInitializationInitialConditionPage"},
    {"Output", "COutputPage"},
    {"Output/AC results", "COutputACResultsPage"},
    {"Output/AC small-signal model", "COutputACSmallSignalModelPage"},
    {"Output/DC results", "COutputDCResultsPage"},
    {"Output/Power", "COutputPowerPage"},
    {"Output/Transient results", "COutputTransientResultsPage"},
    {"Output/Noise results", "COutputNoiseResultsPage"},
    {"Output/Measure", "COutputMeasurePage"},
    {"Settings", "CSettingsPage"},
    {"Settings/Bus definition", "CSettingsBusDefinitionPage"},
    {"Settings/Global nodes", "CSettingsGlobalNodesPage"},
    {"Settings/Parameters", "CSettingsParametersPage"},
    {"Settings/Simulation options", "CSettingsSimulationOptionsPage"},
    {"Settings/Temperature", "CSettingsTemperaturePage"},
    {"Voltage source", "CVoltageSourcePage"},
    {"Voltage source/Bit", "CVoltageSourceBitPage"},
    {"Voltage source/Bus", "CVoltageSourceBusPage"},
    {"Voltage source/Constant", "CVoltageSourceConstantPage"},
    {"Voltage source/Current-controlled", "CVoltageSourceCurrentControlledPage"},
    {"Voltage source/Exponential", "CVoltageSourceExponentialPage"},
    {"Voltage source/FM", "CVoltageSourceFMPage"},
    {"Voltage source/Piecewise linear", "CVoltageSourcePiecewiseLinearPage"},
    {"Voltage source/Pulse", "CVoltageSourcePulsePage"},
    {"Voltage source/Sinusoidal", "CVoltageSourceSinusoidalPage"},
    {"Voltage source/Voltage-controlled", "CVoltageSourceVoltageControlledPage"},
    {"Optimization", "COptimizationPage"},
    {"Optimization/Wizard", "COptimizationWizardPage"},
};

std::vector<TExpectedPage> ExpectedPages()
{
    std::vector<TExpectedPage> pages = kNodes;
    const auto withoutNode = gWizardPagesWithoutNode();
    pages.reserve(pages.size() + withoutNode.size());
    for (const CRuntimeClass* const pClass : withoutNode)
        pages.push_back({"", std::string(pClass->GetName())});
    return pages;
}

std::string Padded(std::string sText, std::size_t nWidth)
{
    sText.resize(nWidth + 2, ' ');
    return sText;
}

TEST(Pages, TheWholeList)
{
    const std::vector<TExpectedPage> pages = ExpectedPages();
    std::size_t nPath = 0;
    std::size_t nClass = 0;
    for (const TExpectedPage& rPage : pages) {
        nPath = std::max(nPath, rPage.sPath.size());
        nClass = std::max(nClass, rPage.sClass.size());
    }
    std::string sExpected;
    for (const TExpectedPage& rPage : pages)
        sExpected += Padded(rPage.sPath.empty() ? "-" : rPage.sPath, nPath) +
                     Padded(rPage.sClass, nClass) + "ready\n";
    EXPECT_EQ(gRunQuorvawiz({"pages"}), (TProgramRun{sExpected, "", 0}));
}

TEST(Pages, TheWholeListAsJson)
{
    std::string sExpected;
    for (const TExpectedPage& rPage : ExpectedPages()) {
        const bool bCategory = !rPage.sPath.empty() && rPage.sPath.find('/') == std::string::npos;
        sExpected += std::string(sExpected.empty() ? "[" : ",") +
                     "{\"path\":" + (rPage.sPath.empty() ? "null" : '"' + rPage.sPath + '"') +
                     ",\"class\":\"" + rPage.sClass +
                     "\",\"category\":" + (bCategory ? "true" : "false") + ",\"built\":true}";
    }
    EXPECT_EQ(gRunQuorvawiz({"pages", "--json"}), (TProgramRun{sExpected + "]\n", "", 0}));
}
} // namespace
