#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/output/PlotForm.h"
#include "wizard/output/PlotRows.h"

// The pages that print the results of a DC and of a transient analysis.

namespace
{
using namespace Plot;

constexpr TPlotType kTypes[] = {
    {.pEntry = "Voltage",
     .nLayers = kFirstLayer | kSecondLayer,
     .pFirstLabel = kNodeLabel,
     .pSecondLabel = kReferenceLabel,
     .needs = {{{kFirstName, kMissingNode}}},
     .pBody = "v(%1%o)"},
    // Meant: all types miss a node, also where the label says device.
    {.pEntry = "Current (by terminal #)",
     .nLayers = kFirstLayer | kTerminalLayer,
     .pFirstLabel = kDeviceLabel,
     .pSecondLabel = kTerminalNumberLabel,
     .needs = {{{kFirstName, kMissingNode}}},
     .pBody = "i%t(%1)"},
    {.pEntry = "Current (by node name)",
     .nLayers = kFirstLayer | kSecondLayer,
     .pFirstLabel = kDeviceLabel,
     .pSecondLabel = kTerminalNodeLabel,
     .needs = {{{kFirstName, kMissingNode}, {kSecondName, kMissingTerminalNode}}},
     .pBody = "i(%1,%2)"},
    {.pEntry = "Charge (by terminal #)",
     .nLayers = kFirstLayer | kTerminalLayer,
     .pFirstLabel = kDeviceLabel,
     .pSecondLabel = kTerminalNumberLabel,
     .needs = {{{kFirstName, kMissingNode}}},
     .pBody = "q%t(%1)"},
    {.pEntry = "Charge (by node name)",
     .nLayers = kFirstLayer | kSecondLayer,
     .pFirstLabel = kDeviceLabel,
     .pSecondLabel = kTerminalNodeLabel,
     .needs = {{{kFirstName, kMissingNode}, {kSecondName, kMissingTerminalNode}}},
     .pBody = "q(%1,%2)"},
    {.pEntry = "Power",
     .nLayers = kFirstLayer | kPowerLayer,
     .pFirstLabel = "__$$Translatable$$_&Voltage source or resistor name:",
     .needs = {{{kFirstName, kMissingNode}}},
     .pBody = "p(%1)"},
    {.pEntry = "Expression",
     .nLayers = kExpressionLayer,
     .needs = {{{kExpression, kMissingExpression}}},
     .pBody = "'%x'"},
};

constexpr TPlotPage kDC{
    .pKeyword = ".print dc",
    .types = kTypes,
    .bFormats = false,
    .bOpensRefreshed = true,
    .add = {.name = ETrim::Both, .unit = ETrim::None},
    .build = {.name = ETrim::Both, .unit = ETrim::None},
};
// Meant: an item of the list keeps blanks that one of its own doesn't, and the other way round.
constexpr TPlotPage kTransient{
    .pKeyword = ".print tran",
    .types = kTypes,
    .bFormats = false,
    .bOpensRefreshed = true,
    .add = {.name = ETrim::Left, .unit = ETrim::Right},
    .build = {.name = ETrim::None, .unit = ETrim::None},
};

constexpr TTexts kDCTexts{
    .pGroup = "Print DC analysis results",
    .pExpressionNote =
        "Expression may involve DC voltages, currents, charges, power, and parameters.",
    // Meant: with a blank behind the hyphen.
    .pNameLabel = "Na&me (user- defined):",
    .pUnitLabel = "&Unit (user- defined):"};
constexpr TTexts kTransientTexts{.pGroup = "Print transient analysis results",
                                 .pExpressionNote = "Expression may involve transient voltages, "
                                                    "currents, charges, power, parameters, and "
                                                    "time."};

constexpr auto kEntries = EntriesOf(kTypes);
constexpr auto kLines = Lines(FirstLine(), SameTop(SecondLine(), PowerNote()));
constexpr auto kDCRows = Rows(kDCTexts, kEntries, kLines);
constexpr auto kTransientRows = Rows(kTransientTexts, kEntries, kLines);
constexpr DialogTemplate kDCTemplate{"DC results", kPageSize, kDCRows};
constexpr DialogTemplate kTransientTemplate{"Transient results", kPageSize, kTransientRows};

Remembered<TPlotFields> sDC;
Remembered<TPlotFields> sTransient;
} // namespace

/// Builds ".print dc" and plot items: voltages, currents, charges, powers and expressions of a DC
/// analysis.
class COutputDCResultsPage : public CCommandPage
{
public:
    COutputDCResultsPage() : CCommandPage(kDCTemplate), mForm(*this, kDC, sDC) {}

    TMessageMap GetMessageMap() const override { return Handlers<COutputDCResultsPage>(); }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }
    PlotForm& Form() { return mForm; }

private:
    PlotForm mForm;
};

/// Builds ".print tran" and plot items: voltages, currents, charges, powers and expressions of a
/// transient analysis.
class COutputTransientResultsPage : public CCommandPage
{
public:
    COutputTransientResultsPage()
        : CCommandPage(kTransientTemplate), mForm(*this, kTransient, sTransient)
    {
    }

    TMessageMap GetMessageMap() const override { return Handlers<COutputTransientResultsPage>(); }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }
    PlotForm& Form() { return mForm; }

private:
    PlotForm mForm;
};

template const CRuntimeClass& gRuntimeClass<COutputDCResultsPage>();
template const CRuntimeClass& gRuntimeClass<COutputTransientResultsPage>();
