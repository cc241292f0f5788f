#include "wizard/frame/WizardPages.h"

// A page joins the wizard by its row.
// Nothing else has to know the class; its own source instantiates gRuntimeClass for it.

namespace
{
template <class TPage> TTreeRow Category(const char* pLabel)
{
    const CRuntimeClass& rClass = gRuntimeClass<TPage>();
    return {0, pLabel, rClass.GetName(), &rClass, true};
}

template <class TPage> TTreeRow Page(int nOrder, const char* pLabel)
{
    const CRuntimeClass& rClass = gRuntimeClass<TPage>();
    return {nOrder, pLabel, rClass.GetName(), &rClass, false};
}

} // namespace

// At global scope, since each row declares the class that it names.
// clang-format off
const TTreeRow kTree[] = {
    Category<class CAnalysisPage>("__$$Translatable$$_Analysis"),
    Page<class CAnalysisAC1Page>(0, "__$$Translatable$$_AC"),
    Page<class CAnalysisDCOpPage>(1, "__$$Translatable$$_DC operating point"),
    Page<class CAnalysisDCTransferSweepPage>(2, "__$$Translatable$$_DC transfer sweep"),
    Page<class CAnalysisFourierPage>(3, "__$$Translatable$$_Fourier"),
    Page<class CAnalysisNoisePage>(4, "__$$Translatable$$_Noise"),
    Page<class CAnalysisStabilityPage>(5, "__$$Translatable$$_Stability"),
    Page<class CAnalysisTransientPage>(7, "__$$Translatable$$_Transient"),
    Page<class CAnalysisTransferFunctionPage>(6, "__$$Translatable$$_Transfer function"),
    Page<class CAnalysisParametricSweepPage>(8, "__$$Translatable$$_Parametric sweep"),

    Category<class CCurrentSourcePage>("__$$Translatable$$_Current source"),
    Page<class CCurrentSourceBitPage>(0, "__$$Translatable$$_Bit"),
    Page<class CCurrentSourceBusPage>(1, "__$$Translatable$$_Bus"),
    Page<class CCurrentSourceConstantPage>(3, "__$$Translatable$$_Constant"),
    Page<class CCurrentSourceCurrentControlledPage>(2, "__$$Translatable$$_Current-controlled"),
    Page<class CCurrentSourceExponentialPage>(4, "__$$Translatable$$_Exponential"),
    Page<class CCurrentSourceFMPage>(5, "__$$Translatable$$_FM"),
    Page<class CCurrentSourcePiecewiseLinearPage>(6, "__$$Translatable$$_Piecewise linear"),
    Page<class CCurrentSourcePulsePage>(7, "__$$Translatable$$_Pulse"),
    Page<class CCurrentSourceSinusoidalPage>(8, "__$$Translatable$$_Sinusoidal"),
    Page<class CCurrentSourceVoltageControlledPage>(9, "__$$Translatable$$_Voltage-controlled"),

    Category<class CFilesPage>("__$$Translatable$$_Files"),
    Page<class CFilesIncludePage>(0, "__$$Translatable$$_Include file"),
    Page<class CFilesLibraryPage>(1, "__$$Translatable$$_Library file"),
    Page<class CFilesDeleteLibraryPage>(2, "__$$Translatable$$_Delete library file"),

    Category<class CInitializationPage>("__$$Translatable$$_Initialization"),
    Page<class CInitializationDCGuessPage>(0, "__$$Translatable$$_DC guess"),
    Page<class CInitializationInitialConditionPage>(1, "__$$Translatable$$_Initial condition"),

    Category<class COutputPage>("__$$Translatable$$_Output"),
    Page<class COutputACResultsPage>(0, "__$$Translatable$$_AC results"),
    Page<class COutputACSmallSignalModelPage>(1, "__$$Translatable$$_AC small-signal model"),
    Page<class COutputDCResultsPage>(2, "__$$Translatable$$_DC results"),
    Page<class COutputPowerPage>(3, "__$$Translatable$$_Power"),
    Page<class COutputTransientResultsPage>(4, "__$$Translatable$$_Transient results"),
    Page<class COutputNoiseResultsPage>(5, "__$$Translatable$$_Noise results"),
    Page<class COutputMeasurePage>(6, "__$$Translatable$$_Measure"),

    Category<class CSettingsPage>("__$$Translatable$$_Settings"),
    Page<class CSettingsBusDefinitionPage>(0, "__$$Translatable$$_Bus definition"),
    Page<class CSettingsGlobalNodesPage>(1, "__$$Translatable$$_Global nodes"),
    Page<class CSettingsParametersPage>(2, "__$$Translatable$$_Parameters"),
    Page<class CSettingsSimulationOptionsPage>(3, "__$$Translatable$$_Simulation options"),
    Page<class CSettingsTemperaturePage>(4, "__$$Translatable$$_Temperature"),

    Category<class CVoltageSourcePage>("__$$Translatable$$_Voltage source"),
    Page<class CVoltageSourceBitPage>(0, "__$$Translatable$$_Bit"),
    Page<class CVoltageSourceBusPage>(1, "__$$Translatable$$_Bus"),
    Page<class CVoltageSourceConstantPage>(3, "__$$Translatable$$_Constant"),
    Page<class CVoltageSourceCurrentControlledPage>(2, "__$$Translatable$$_Current-controlled"),
    Page<class CVoltageSourceExponentialPage>(4, "__$$Translatable$$_Exponential"),
    Page<class CVoltageSourceFMPage>(5, "__$$Translatable$$_FM"),
    Page<class CVoltageSourcePiecewiseLinearPage>(6, "__$$Translatable$$_Piecewise linear"),
    Page<class CVoltageSourcePulsePage>(7, "__$$Translatable$$_Pulse"),
    Page<class CVoltageSourceSinusoidalPage>(8, "__$$Translatable$$_Sinusoidal"),
    Page<class CVoltageSourceVoltageControlledPage>(9, "__$$Translatable$$_Voltage-controlled"),

    Category<class COptimizationPage>("__$$Translatable$$_Optimization"),
    Page<class COptimizationWizardPage>(0, "__$$Translatable$$_Wizard"),
};
// clang-format on

// Evaluated at load like the tree, so that the classes are registered.
const CRuntimeClass* const kWithoutNode[] = {&gRuntimeClass<class CAnalysisACPage>(),
                                             &gRuntimeClass<class CAnalysisDCSweepPage>()};

std::span<const TTreeRow> gWizardTree()
{
    return kTree;
}

std::span<const CRuntimeClass* const> gWizardPagesWithoutNode()
{
    return kWithoutNode;
}
