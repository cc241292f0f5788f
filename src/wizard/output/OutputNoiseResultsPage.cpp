#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/output/PlotForm.h"
#include "wizard/output/PlotRows.h"

namespace
{
using namespace Plot;

// The formats of this page are filled in anew, and translated then.
constexpr const char* kPhasorEntries[] = {
    "__$$Translatable$$_Magnitude", "__$$Translatable$$_Phase", "__$$Translatable$$_Real part",
    "__$$Translatable$$_Imaginary part", "__$$Translatable$$_Decibels"};
constexpr const char* kSpectrumEntries[] = {"__$$Translatable$$_Magnitude",
                                            "__$$Translatable$$_Decibels",
                                            "__$$Translatable$$_Total (integrated)"};
constexpr const char* kSpectrumTexts[] = {"m", "db", "tot"};

/// A source of noise in a device; its suffix is the format text, and closes the item.
struct TNoiseSource {
    const char* pEntry;
    const char* pSuffix;
};

// Meant: two resistors share ",RS)", and two noises ",ID)".
constexpr TNoiseSource kNoiseSources[] = {
    {"__$$Translatable$$_All", ")"},
    {"__$$Translatable$$_Total", ",TOT)"},
    {"__$$Translatable$$_Drain resistor", ",RD)"},
    {"__$$Translatable$$_Source resistor", ",RS)"},
    {"__$$Translatable$$_Gate resistor", ",RG)"},
    {"__$$Translatable$$_Base resistor", ",RB)"},
    {"__$$Translatable$$_Collector resistor", ",RC)"},
    {"__$$Translatable$$_Emitter resistor", ",RE)"},
    {"__$$Translatable$$_Channel noise", ",ID)"},
    {"__$$Translatable$$_Flicker noise", ",FN)"},
    {"__$$Translatable$$_Base shot noise", ",IB)"},
    {"__$$Translatable$$_Collector shot noise", ",IC)"},
    {"__$$Translatable$$_Diode series resistor", ",RS)"},
    {"__$$Translatable$$_Diode shot noise", ",ID)"},
    {"__$$Translatable$$_Transfer function", ",RX)"},
};
constexpr auto kNoiseSourceEntries = EntriesOf(kNoiseSources);
constexpr auto kNoiseSourceTexts = ColumnOf(kNoiseSources, &TNoiseSource::pSuffix);

constexpr TPlotType kTypes[] = {
    {.pEntry = "Voltage",
     .nLayers = kFirstLayer | kSecondLayer | kFormatLayer,
     .pFirstLabel = kNodeLabel,
     .pSecondLabel = kReferenceLabel,
     .needs = {{{kFirstName, kMissingNode}}},
     .pBody = "v%f(%1%o)",
     .formatTexts = kComplexTexts,
     .formatEntries = kPhasorEntries},
    {.pEntry = "Current (by terminal #)",
     .nLayers = kFirstLayer | kTerminalLayer | kFormatLayer,
     .pFirstLabel = kDeviceLabel,
     .pSecondLabel = kTerminalNumberLabel,
     .needs = {{{kFirstName, kMissingNode}}},
     .pBody = "i%f%t(%1)",
     .formatTexts = kComplexTexts,
     .formatEntries = kPhasorEntries},
    {.pEntry = "Current (by node name)",
     .nLayers = kFirstLayer | kSecondLayer | kFormatLayer,
     .pFirstLabel = kDeviceLabel,
     .pSecondLabel = kTerminalNodeLabel,
     .needs = {{{kFirstName, kMissingNode},
                // Meant: without a full stop on this page.
                {kSecondName, "__$$Translatable$$_Missing terminal node name"}}},
     .pBody = "i%f(%1,%2)",
     .formatTexts = kComplexTexts,
     .formatEntries = kPhasorEntries},
    {.pEntry = "Output noise",
     .nLayers = kFormatLayer,
     .pBody = "onoise(%f)",
     .formatTexts = kSpectrumTexts,
     .formatEntries = kSpectrumEntries},
    {.pEntry = "Input noise",
     .nLayers = kFormatLayer,
     .pBody = "inoise(%f)",
     .formatTexts = kSpectrumTexts,
     // Meant: the list stays as the type before has left it, and the texts needn't be its own.
     .formatEntries = {}},
    {.pEntry = "Transfer function", .pBody = "transfer"},
    {.pEntry = "Device noise contribution",
     .nLayers = kFirstLayer | kFormatLayer,
     .pFirstLabel = kDeviceLabel,
     .needs = {{{kFirstName, nullptr}}}, // Meant: Add needs it, a single item doesn't
     .pBody = "dn(%1%f",
     .formatTexts = kNoiseSourceTexts,
     .formatEntries = kNoiseSourceEntries},
    {.pEntry = "Expression",
     .nLayers = kExpressionLayer,
     .needs = {{{kExpression, kMissingExpression}}},
     .pBody = "'%x'"},
};

constexpr TOptionalTrims kUntrimmed{.name = ETrim::None, .unit = ETrim::None};
constexpr TPlotPage kPage{
    .pKeyword = ".print noise",
    .types = kTypes,
    .bFormats = true,
    .bOpensRefreshed = true,
    .add = kUntrimmed,
    .build = kUntrimmed,
};

constexpr TTexts kTexts{.pGroup = "Print noise analysis results",
                        .pExpressionNote = "Expression may involve AC voltages, currents, inoise, "
                                           "onoise, transfer parameters, and frequency."};
constexpr auto kEntries = EntriesOf(kTypes);
constexpr auto kRows = Rows(kTexts, kEntries, FormatLine(), FirstLine(), SecondLine());
constexpr DialogTemplate kTemplate{"Noise results", kPageSize, kRows};

Remembered<TPlotFields> sRemembered;
} // namespace

/// Builds ".print noise" and plot items: voltages, currents, noises, the transfer function and
/// expressions of a noise analysis.
class COutputNoiseResultsPage : public CCommandPage
{
public:
    COutputNoiseResultsPage() : CCommandPage(kTemplate), mForm(*this, kPage, sRemembered) {}

    TMessageMap GetMessageMap() const override { return Handlers<COutputNoiseResultsPage>(); }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }
    PlotForm& Form() { return mForm; }

private:
    PlotForm mForm;
};

template const CRuntimeClass& gRuntimeClass<COutputNoiseResultsPage>();
