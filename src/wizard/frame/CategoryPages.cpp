#include "wizard/frame/CategoryPages.h"

#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CategoryTemplate.h"
#include "wizard/frame/TreeSelectPage.h"

namespace
{
// The numbers are the places of the categories among the root nodes.
enum ECategory : int {
    kAnalysis = 0,
    kCurrentSource = 1,
    kFiles = 2,
    kInitialization = 3,
    kOutput = 4,
    kSettings = 5,
    kVoltageSource = 6,
    kOptimization = 7,
};

// A button's place is the place of the page that it selects. Meant: on the files page
// "Table" leads to the page "Delete library file" and the button of that name to none; on the
// settings page "Partition" leads to none; the hyphen of the voltage page's "Piecewise-linear".
constexpr auto kAnalysisRows = CategoryRows(
    "Analysis", std::array{"AC", "DC operating point", "DC transfer sweep", "Fourier", "Noise",
                           "Stability", "Transient", "Transfer function", "Parametric sweep"});
constexpr auto kCurrentSourceRows =
    CategoryRows("Current source",
                 std::array{"Bit", "Bus", "Constant", "Current-controlled", "Exponential", "FM",
                            "Piecewise linear", "Pulse", "Sinusoidal", "Voltage-controlled"});
constexpr auto kFilesRows =
    CategoryRows("Files", std::array{"Include", "Library", "Table", "Delete library file"});
constexpr auto kInitializationRows =
    CategoryRows("Initialization", std::array{"DC guess", "Initial condition"});
constexpr auto kOutputRows =
    CategoryRows("Output", std::array{"AC results", "AC small-signal model", "DC results", "Power",
                                      "Transient results", "Noise results", "Measure"});
constexpr auto kSettingsRows =
    CategoryRows("Settings", std::array{"Bus definition", "Global nodes", "Parameters",
                                        "Simulation options", "Temperature", "Partition"});
constexpr auto kVoltageSourceRows =
    CategoryRows("Voltage source",
                 std::array{"Bit", "Bus", "Constant", "Current-controlled", "Exponential", "FM",
                            "Piecewise-linear", "Pulse", "Sinusoidal", "Voltage-controlled"});
constexpr auto kOptimizationRows = CategoryRows("Optimization", std::array{"Wizard"});
constexpr DialogTemplate kAnalysisTemplate{"Analysis", kPageSize, kAnalysisRows};
constexpr DialogTemplate kCurrentSourceTemplate{"Current source", kPageSize, kCurrentSourceRows};
constexpr DialogTemplate kFilesTemplate{"Files", kPageSize, kFilesRows};
constexpr DialogTemplate kInitializationTemplate{"Initialization", kPageSize, kInitializationRows};
constexpr DialogTemplate kOutputTemplate{"Output", kPageSize, kOutputRows};
constexpr DialogTemplate kSettingsTemplate{"Settings", kPageSize, kSettingsRows};
constexpr DialogTemplate kVoltageSourceTemplate{"Voltage source", kPageSize, kVoltageSourceRows};
constexpr DialogTemplate kOptimizationTemplate{"Optimization", kPageSize, kOptimizationRows};
} // namespace

CCategoryPage::CCategoryPage(const DialogTemplate& rTemplate, int nCategory)
    : CCommandPage(rTemplate), mnButtons(rTemplate.rows.size() - 1), mnCategory(nCategory)
{
}

TMessageMap CCategoryPage::GetMessageMap() const
{
    return TMessageMap(kCategoryHandlers<&CCategoryPage::OnButton>).first(mnButtons);
}

void CCategoryPage::DoDataExchange(CDataExchange*) {}

void CCategoryPage::OnButton(int nId)
{
    PostMessage(WM_TREE_SELECT_PAGE, static_cast<WPARAM>(mnCategory), nId - kFirstCategoryButton);
}

bool CCategoryPage::BuildCommand(CString&)
{
    return false;
}

CAnalysisPage::CAnalysisPage() : CCategoryPage(kAnalysisTemplate, kAnalysis) {}
CCurrentSourcePage::CCurrentSourcePage() : CCategoryPage(kCurrentSourceTemplate, kCurrentSource) {}
CFilesPage::CFilesPage() : CCategoryPage(kFilesTemplate, kFiles) {}
CInitializationPage::CInitializationPage() : CCategoryPage(kInitializationTemplate, kInitialization)
{
}
COutputPage::COutputPage() : CCategoryPage(kOutputTemplate, kOutput) {}
CSettingsPage::CSettingsPage() : CCategoryPage(kSettingsTemplate, kSettings) {}
CVoltageSourcePage::CVoltageSourcePage() : CCategoryPage(kVoltageSourceTemplate, kVoltageSource) {}
COptimizationPage::COptimizationPage() : CCategoryPage(kOptimizationTemplate, kOptimization) {}

template const CRuntimeClass& gRuntimeClass<CAnalysisPage>();
template const CRuntimeClass& gRuntimeClass<CCurrentSourcePage>();
template const CRuntimeClass& gRuntimeClass<CFilesPage>();
template const CRuntimeClass& gRuntimeClass<CInitializationPage>();
template const CRuntimeClass& gRuntimeClass<COutputPage>();
template const CRuntimeClass& gRuntimeClass<CSettingsPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourcePage>();
template const CRuntimeClass& gRuntimeClass<COptimizationPage>();
