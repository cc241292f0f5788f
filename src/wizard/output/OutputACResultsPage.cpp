#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/output/PlotForm.h"
#include "wizard/output/PlotRows.h"

namespace
{
using namespace Plot;

constexpr TPlotType kTypes[] = {
    {.pEntry = "Voltage",
     .nLayers = kFirstLayer | kSecondLayer | kFormatLayer,
     .pFirstLabel = kNodeLabel,
     .pSecondLabel = kReferenceLabel,
     .needs = {{{kFirstName, kMissingNode}}},
     .pBody = "v%f(%1%o)",
     .formatTexts = kComplexTexts},
    {.pEntry = "Current (by terminal #)",
     .nLayers = kFirstLayer | kTerminalLayer | kFormatLayer,
     .pFirstLabel = kDeviceLabel,
     .pSecondLabel = kTerminalNumberLabel,
     .needs = {{{kFirstName, kMissingNode}}}, // Meant: not the device
     .pBody = "i%f%t(%1)",
     .formatTexts = kComplexTexts},
    {.pEntry = "Current (by node name)",
     .nLayers = kFirstLayer | kSecondLayer | kFormatLayer,
     .pFirstLabel = kDeviceLabel,
     .pSecondLabel = kTerminalNodeLabel,
     .needs = {{{kFirstName, "__$$Translatable$$_Missing device name."},
                {kSecondName, kMissingTerminalNode}}},
     .pBody = "i%f(%1,%2)",
     .formatTexts = kComplexTexts},
    {.pEntry = "Expression",
     .nLayers = kExpressionLayer,
     .needs = {{{kExpression, kMissingExpression}}},
     .pBody = "'%x'"},
};

constexpr TOptionalTrims kNameTrimmed{.name = ETrim::Both, .unit = ETrim::None};
constexpr TPlotPage kPage{
    .pKeyword = ".print ac",
    .types = kTypes,
    .bFormats = true,
    .bOpensRefreshed = false, // Meant, other than its siblings
    .add = kNameTrimmed,
    .build = kNameTrimmed,
};

constexpr TTexts kTexts{
    .pGroup = "Print AC analysis results",
    .pExpressionNote =
        "Expression may involve AC voltages, currents, charges, parameters, and frequency."};
constexpr auto kEntries = EntriesOf(kTypes);
constexpr auto kRows = Rows(kTexts, kEntries, FormatLine(), FirstLine(), SecondLine());
constexpr DialogTemplate kTemplate{"AC results", kPageSize, kRows};

Remembered<TPlotFields> sRemembered;
} // namespace

/// Builds ".print ac" and plot items: voltages, currents and expressions of a small-signal
/// analysis.
class COutputACResultsPage : public CCommandPage
{
public:
    COutputACResultsPage() : CCommandPage(kTemplate), mForm(*this, kPage, sRemembered) {}

    TMessageMap GetMessageMap() const override { return Handlers<COutputACResultsPage>(); }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }
    PlotForm& Form() { return mForm; }

private:
    PlotForm mForm;
};

template const CRuntimeClass& gRuntimeClass<COutputACResultsPage>();
