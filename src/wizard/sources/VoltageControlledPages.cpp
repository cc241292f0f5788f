#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/sources/VoltageControlledForm.h"

// The pages of a current and a voltage source that follow voltages.

namespace
{
using namespace VoltageControlled;

/// The radio buttons of the mode beside each other.
constexpr auto ModeLine()
{
    const auto button = [](int nId, const char* pLabel, int nX, int nWidth, unsigned nFlags) {
        return At(Row(nId, "mode", EControl::RadioButton, pLabel,
                      {nX, 0, nWidth, PageLayout::kChoiceHeight}, nFlags));
    };
    return SameTop(button(kLinear, "&Linear", 21, 41, kFirstOfGroup),
                   button(kPolynomial, "&Polynomial", 74, 56, kNoFlags),
                   button(kExpression, "&Non-linear expression", 142, 86, kNoFlags));
}

/// The gain, and the coefficients in its place; one label stands for whichever is shown.
constexpr auto GainLine(const TColumns& rColumns, const TTwin& rTwin)
{
    auto gain =
        OnLayers(kLinearLayer, EditLine(rColumns, kGain, "gain", Unmarked(rTwin.linear.pGain)));
    gain.rows[0].row.nLayers |= kPolynomialLayer;
    TPlacedRow coefficients = gain.rows[1];
    coefficients.row.nId = kCoefficients;
    coefficients.row.pKey = "coefficients";
    coefficients.row.kind = EControl::MultilineEdit;
    coefficients.row.rect.h = 22;
    coefficients.row.nFlags = kWantReturn | kSharesLabel;
    coefficients.row.nLayers = kPolynomialLayer;
    return SameTop(gain, TBlock<1>{{coefficients}, coefficients.row.rect.h, gain.nGap});
}

constexpr auto FurtherPairs(const TColumns& rColumns)
{
    return OnLayers(kPolynomialLayer, Tight(EditLine(rColumns, kSecondPositive, "second-positive",
                                                     "Controllin&g positive terminal #2:"),
                                            EditLine(rColumns, kSecondNegative, "second-negative",
                                                     "Controlling negative ter&minal #2 (GND):"),
                                            EditLine(rColumns, kThirdPositive, "third-positive",
                                                     "Controlling po&sitive terminal #3:"),
                                            EditLine(rColumns, kThirdNegative, "third-negative",
                                                     "Controlling negative termin&al #3 (GND):")));
}

constexpr auto Rows(const TTwin& rTwin)
{
    constexpr TColumns kFields{.nField = 149};
    return PageRows(GroupBox(
        kSourceGroup, "voltage-controlled-source-group", rTwin.pGroup,
        Tight(
            EditLine(kFields, kSourceName, "name", rTwin.pNameLabel),
            EditLine(kFields, kPositiveTerminal, "positive-terminal", "P&ositive terminal:"),
            EditLine(kFields, kNegativeTerminal, "negative-terminal", "N&egative terminal (GND):"),
            GroupBox(kModeGroup, "mode-group", "Sources", ModeLine()),
            EditLine(kFields, kFirstControl, "first-control-field", Unmarked(kControllingPositive)),
            OnLayers(rTwin.nSecondControlLayers,
                     EditLine(kFields, kSecondControl, "second-control-field",
                              Unmarked(kControllingNegative))),
            GainLine(kFields, rTwin), FurtherPairs(kFields))));
}

constexpr auto kCurrentRows = Rows(kCurrent);
constexpr auto kVoltageRows = Rows(kVoltage);
constexpr DialogTemplate kCurrentTemplate{"Voltage-controlled", kPageSize, kCurrentRows};
constexpr DialogTemplate kVoltageTemplate{"Voltage-controlled", kPageSize, kVoltageRows};

Remembered<TVoltageControlledFields> sCurrent;
Remembered<TVoltageControlledFields> sVoltage;
} // namespace

/// Builds the line of a current source that follows voltages: G... with a transconductance, a
/// polynomial, or an expression for the current and one for the charge.
class CCurrentSourceVoltageControlledPage : public CCommandPage
{
public:
    CCurrentSourceVoltageControlledPage()
        : CCommandPage(kCurrentTemplate), mForm(*this, kCurrent, sCurrent)
    {
    }

    TMessageMap GetMessageMap() const override
    {
        using TPage = CCurrentSourceVoltageControlledPage;
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&TPage::OnMode>(ENotify::Clicked, kLinear),
            On<&TPage::OnMode>(ENotify::Clicked, kPolynomial),
            On<&TPage::OnMode>(ENotify::Clicked, kExpression),
        };
        return kHandlers;
    }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    void OnMode(int nMode) { mForm.ShowMode(nMode); }

    VoltageControlledForm mForm;
};

/// Builds the line of a voltage source that follows voltages: E... with a gain, a polynomial or an
/// expression for the voltage.
class CVoltageSourceVoltageControlledPage : public CCommandPage
{
public:
    CVoltageSourceVoltageControlledPage()
        : CCommandPage(kVoltageTemplate), mForm(*this, kVoltage, sVoltage)
    {
    }

    TMessageMap GetMessageMap() const override
    {
        using TPage = CVoltageSourceVoltageControlledPage;
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&TPage::OnMode>(ENotify::Clicked, kLinear),
            On<&TPage::OnMode>(ENotify::Clicked, kPolynomial),
            On<&TPage::OnMode>(ENotify::Clicked, kExpression),
        };
        return kHandlers;
    }
    void DoDataExchange(CDataExchange* pDX) override { mForm.Exchange(pDX); }
    bool OnInitDialog() override { return mForm.InitDialog(); }
    bool BuildCommand(CString& rsCommand) override { return mForm.Build(rsCommand); }

private:
    void OnMode(int nMode) { mForm.ShowMode(nMode); }

    VoltageControlledForm mForm;
};

template const CRuntimeClass& gRuntimeClass<CCurrentSourceVoltageControlledPage>();
template const CRuntimeClass& gRuntimeClass<CVoltageSourceVoltageControlledPage>();
