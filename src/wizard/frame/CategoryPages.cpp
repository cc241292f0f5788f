#include "wizard/frame/CategoryPages.h"

#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CategoryTemplate.h"
#include "wizard/frame/TreeSelectPage.h"

namespace
{
// The numbers are the places of the categories among the root nodes.
enum ECategory : WPARAM {
    kAnalysis = 0,
    kCurrentSource = 1,
    kFiles = 2,
    kInitialization = 3,
    kOutput = 4,
    kSettings = 5,
    kVoltageSource = 6,
    kOptimization = 7,
};

// A button's place is the place of the page that it selects. Meant as they are: on the files page
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

void SelectPage(CWnd& rPage, ECategory category, int nButtonId)
{
    rPage.PostMessage(WM_TREE_SELECT_PAGE, category, nButtonId - kFirstCategoryButton);
}
} // namespace

CAnalysisPage::CAnalysisPage() : CCommandPage(kAnalysisTemplate) {}

TMessageMap CAnalysisPage::GetMessageMap() const
{
    return kCategoryHandlers<&CAnalysisPage::OnButton, kAnalysisRows.size() - 1>;
}

void CAnalysisPage::DoDataExchange(CDataExchange*) {}

void CAnalysisPage::OnButton(int nId)
{
    SelectPage(*this, kAnalysis, nId);
}

bool CAnalysisPage::BuildCommand(CString&)
{
    return false;
}

template const CRuntimeClass& gRuntimeClass<CAnalysisPage>();

CCurrentSourcePage::CCurrentSourcePage() : CCommandPage(kCurrentSourceTemplate) {}

TMessageMap CCurrentSourcePage::GetMessageMap() const
{
    return kCategoryHandlers<&CCurrentSourcePage::OnButton, kCurrentSourceRows.size() - 1>;
}

void CCurrentSourcePage::DoDataExchange(CDataExchange*) {}

void CCurrentSourcePage::OnButton(int nId)
{
    SelectPage(*this, kCurrentSource, nId);
}

bool CCurrentSourcePage::BuildCommand(CString&)
{
    return false;
}

template const CRuntimeClass& gRuntimeClass<CCurrentSourcePage>();

CFilesPage::CFilesPage() : CCommandPage(kFilesTemplate) {}

TMessageMap CFilesPage::GetMessageMap() const
{
    return kCategoryHandlers<&CFilesPage::OnButton, kFilesRows.size() - 1>;
}

void CFilesPage::DoDataExchange(CDataExchange*) {}

void CFilesPage::OnButton(int nId)
{
    SelectPage(*this, kFiles, nId);
}

bool CFilesPage::BuildCommand(CString&)
{
    return false;
}

template const CRuntimeClass& gRuntimeClass<CFilesPage>();

CInitializationPage::CInitializationPage() : CCommandPage(kInitializationTemplate) {}

TMessageMap CInitializationPage::GetMessageMap() const
{
    return kCategoryHandlers<&CInitializationPage::OnButton, kInitializationRows.size() - 1>;
}

void CInitializationPage::DoDataExchange(CDataExchange*) {}

void CInitializationPage::OnButton(int nId)
{
    SelectPage(*this, kInitialization, nId);
}

bool CInitializationPage::BuildCommand(CString&)
{
    return false;
}

template const CRuntimeClass& gRuntimeClass<CInitializationPage>();

COutputPage::COutputPage() : CCommandPage(kOutputTemplate) {}

TMessageMap COutputPage::GetMessageMap() const
{
    return kCategoryHandlers<&COutputPage::OnButton, kOutputRows.size() - 1>;
}

void COutputPage::DoDataExchange(CDataExchange*) {}

void COutputPage::OnButton(int nId)
{
    SelectPage(*this, kOutput, nId);
}

bool COutputPage::BuildCommand(CString&)
{
    return false;
}

template const CRuntimeClass& gRuntimeClass<COutputPage>();

CSettingsPage::CSettingsPage() : CCommandPage(kSettingsTemplate) {}

TMessageMap CSettingsPage::GetMessageMap() const
{
    return kCategoryHandlers<&CSettingsPage::OnButton, kSettingsRows.size() - 1>;
}

void CSettingsPage::DoDataExchange(CDataExchange*) {}

void CSettingsPage::OnButton(int nId)
{
    SelectPage(*this, kSettings, nId);
}

bool CSettingsPage::BuildCommand(CString&)
{
    return false;
}

template const CRuntimeClass& gRuntimeClass<CSettingsPage>();

CVoltageSourcePage::CVoltageSourcePage() : CCommandPage(kVoltageSourceTemplate) {}

TMessageMap CVoltageSourcePage::GetMessageMap() const
{
    return kCategoryHandlers<&CVoltageSourcePage::OnButton, kVoltageSourceRows.size() - 1>;
}

void CVoltageSourcePage::DoDataExchange(CDataExchange*) {}

void CVoltageSourcePage::OnButton(int nId)
{
    SelectPage(*this, kVoltageSource, nId);
}

bool CVoltageSourcePage::BuildCommand(CString&)
{
    return false;
}

template const CRuntimeClass& gRuntimeClass<CVoltageSourcePage>();

COptimizationPage::COptimizationPage() : CCommandPage(kOptimizationTemplate) {}

TMessageMap COptimizationPage::GetMessageMap() const
{
    return kCategoryHandlers<&COptimizationPage::OnButton, kOptimizationRows.size() - 1>;
}

void COptimizationPage::DoDataExchange(CDataExchange*) {}

void COptimizationPage::OnButton(int nId)
{
    SelectPage(*this, kOptimization, nId);
}

bool COptimizationPage::BuildCommand(CString&)
{
    return false;
}

template const CRuntimeClass& gRuntimeClass<COptimizationPage>();
