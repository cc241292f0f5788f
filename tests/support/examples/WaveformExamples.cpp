#include "support/examples/ExampleLines.h"

#include <initializer_list>

namespace
{
/// A source of this kind from node a to the ground.
TExampleLine Source(const std::string& rsPage, std::initializer_list<const char*> fields,
                    std::string sLine)
{
    std::vector<std::string> arguments{"positive-terminal=a"};
    arguments.insert(arguments.end(), fields.begin(), fields.end());
    return {rsPage, std::move(arguments), std::move(sLine)};
}

TExampleLine Refused(std::string sPage, std::vector<std::string> arguments, std::string sMessage)
{
    return {std::move(sPage), std::move(arguments), "", std::move(sMessage)};
}
} // namespace

const TExampleLines& gWaveformExamples()
{
    static const TExampleLines sExamples{
        gNamed("CurrentConstantWithMagnitudeAndPhase",
               Source("Current source/Constant",
                      {"name=1", "dc-value=5m", "ac-magnitude=1", "ac-phase=90"},
                      "I1 a GND 5m AC 1 90")),
        Source("Current source/Constant", {"name=v1", "dc-value=1"}, "Iv1 a GND 1"),
        // Meant: a magnitude alone is followed by a blank.
        gNamed("VoltageConstantWithAMagnitudeAloneEndsInABlank",
               Source("Voltage source/Constant",
                      {"name=v2", "negative-terminal=b", "dc-value=3", "ac-magnitude=1"},
                      "v2 a b 3 AC 1 ")),
        gNamed("VoltageConstantOfANameWithTheOtherLetter",
               Source("Voltage source/Constant", {"name=i1", "dc-value=3", "ac-phase=90"},
                      "Vi1 a GND 3 AC 90")),

        gNamed("CurrentPulseWithAPeriod",
               {"Current source/Pulse",
                {"name=load", "positive-terminal=out", "peak=1m", "rise-time=1n", "fall-time=1n",
                 "width=10n", "period=20n", "ac-magnitude=1"},
                "Iload out GND PULSE (0 1m 0 1n 1n 10n 20n) AC 1"}),
        gNamed(
            "VoltagePulseWithDCAndDelayAndRounding",
            {"Voltage source/Pulse",
             {"name=clk", "positive-terminal=c", "peak=5", "delay=2n", "rounding=1p", "dc-value=0"},
             "Vclk c GND dc 0 PULSE (0 5 2n) ROUND=1p"}),
        // Meant: the slot of the empty width.
        gNamed("VoltagePulseWithRiseAndFallKeepsTheSlotOfTheWidth",
               {"Voltage source/Pulse",
                {"name=p", "positive-terminal=c", "peak=5", "rise-time=1n", "fall-time=2n"},
                "Vp c GND PULSE (0 5 0 1n 2n )"}),
        gNamed(
            "CurrentPulseWithAWidthAndNoPeriod",
            Source("Current source/Pulse",
                   {"name=p", "peak=5", "rise-time=1n", "fall-time=2n", "width=3n", "dc-value= 1"},
                   "Ip a GND dc 1 PULSE (0 5 0 1n 2n 3n)")),
        // Meant: a blank is a DC value here.
        gNamed("VoltagePulseWithABlankAsDC",
               Source("Voltage source/Pulse", {"name=p", "peak=5", "dc-value= "},
                      "Vp a GND dc   PULSE (0 5)")),

        gNamed("VoltagePiecewiseLinearOnTwoLines",
               {"Voltage source/Piecewise linear",
                {"name=w", "positive-terminal=in", "corners=0 0\n1n 5", "rounding=1p",
                 "ac-magnitude=1", "ac-phase=90"},
                "Vw in GND PWL (0 0 1n 5) ROUND=1p AC 1 90"}),
        Source("Voltage source/Piecewise linear", {"name=w", "corners=0 0 1n 5"},
               "Vw a GND PWL (0 0 1n 5)"),
        Source("Current source/Piecewise linear",
               {"name=w", "corners=0 0 \n1n 5m", "dc-value=1m", "ac-phase=90"},
               "Iw a GND dc 1m PWL (0 0  1n 5m) AC 90"),
        gNamed("CurrentPiecewiseLinearOfTwoWords",
               Source("Current source/Piecewise linear", {"name=w", "corners=a b"},
                      "Iw a GND PWL (a b)")),

        gNamed("VoltageSinusoidalWithAPhaseAdvance",
               {"Voltage source/Sinusoidal",
                {"name=s", "positive-terminal=in", "peak-amplitude=1", "frequency=1k",
                 "phase-advance=45"},
                "Vs in GND SIN (0 1 1k 0 0 45)"}),
        gNamed(
            "VoltageSinusoidalWithNothingButNameAndTerminal",
            {"Voltage source/Sinusoidal", {"name=s", "positive-terminal=in"}, "Vs in GND SIN ()"}),
        Source("Current source/Sinusoidal", {"name=s", "offset=2"}, "Is a GND SIN (2)"),
        Source("Current source/Sinusoidal", {"name=s", "peak-amplitude=2"}, "Is a GND SIN (0 2)"),
        gNamed("CurrentSinusoidalWithADelay",
               Source("Current source/Sinusoidal",
                      {"name=s", "peak-amplitude=1", "frequency=1k", "delay=2n", "ac-magnitude=1"},
                      "Is a GND SIN (0 1 1k 2n) AC 1")),
        gNamed("VoltageSinusoidalWithADampingAndASmallLetter",
               Source("Voltage source/Sinusoidal",
                      {"name=v1", "offset=1", "peak-amplitude=1", "frequency=1k", "damping=3"},
                      "v1 a GND SIN (1 1 1k 0 3)")),
        // Meant: a capital letter gets a second one.
        gNamed("CurrentSinusoidalDoublesACapitalLetter",
               Source("Current source/Sinusoidal",
                      {"name=I1", "peak-amplitude=1", "frequency=1k", "dc-value=1"},
                      "II1 a GND dc 1 SIN (0 1 1k)")),
        gNamed("VoltageSinusoidalDoublesACapitalLetter",
               Source("Voltage source/Sinusoidal", {"name=V1", "peak-amplitude=1", "frequency=1k"},
                      "VV1 a GND SIN (0 1 1k)")),

        gNamed("CurrentExponentialWithAFallDelay",
               Source("Current source/Exponential",
                      {"name=e", "initial=0", "peak=1m", "rise-time-constant=1n", "fall-delay=5n"},
                      "Ie a GND EXP (0 1m 0 1n 5n)")),
        Source("Current source/Exponential", {"name=e", "initial=0", "peak=1m"},
               "Ie a GND EXP (0 1m 0)"),
        Source("Voltage source/Exponential",
               {"name=e", "initial=1", "peak=5", "rise-delay=1n", "rise-time-constant=2n",
                "fall-delay=3n", "fall-time-constant=4n", "dc-value=1", "ac-magnitude=1"},
               "Ve a GND dc 1 EXP (1 5 1n 2n 3n 4n) AC 1 "),

        gNamed("VoltageFMWithASignal",
               Source("Voltage source/FM",
                      {"name=f", "peak-amplitude=1", "carrier-frequency=1meg", "modulation-index=5",
                       "signal-frequency=1k"},
                      "Vf a GND SFFM (0 1 1meg 5 1k)")),
        Source("Voltage source/FM", {"name=f", "offset=1", "peak-amplitude=1", "dc-value=1"},
               "Vf a GND dc 1 SFFM (1 1)"),
        // Meant: the signal frequency takes the place of the index.
        Source("Current source/FM",
               {"name=f", "peak-amplitude=1m", "carrier-frequency=1meg", "signal-frequency=1k",
                "ac-magnitude=1", "ac-phase=90"},
               "If a GND SFFM (0 1m 1meg 1k) AC 1 90"),

        // --- what is refused
        Refused("Current source/Constant", {}, "Missing current source name"),
        Refused("Voltage source/Constant", {"name=1", "positive-terminal=a"}, "Missing DC value"),
        Refused("Voltage source/Pulse", {"name=1", "positive-terminal=a"}, "Missing peak voltage."),
        Refused("Current source/Pulse", {"name=1", "positive-terminal=a", "peak=1", "period=1"},
                "Missing rise time specification."),
        Refused("Voltage source/Piecewise linear", {"name=1", "positive-terminal=a"},
                "Missing waveform corners points."),
        Refused("Current source/Piecewise linear",
                {"name=1", "positive-terminal=a", "corners=0 0 1n"},
                "Odd number of values in corner list."),
        Refused("Voltage source/Sinusoidal", {"name=1", "positive-terminal=a", "frequency=1k"},
                "Missing peak amplitude."),
        Refused("Current source/Exponential", {"name=1", "positive-terminal=a"},
                "Missing initial current."),
        Refused("Current source/FM", {"name=1"}, "Missing postive terminal name."),
        Refused("Voltage source/FM",
                {"name=1", "positive-terminal=a", "peak-amplitude=1", "signal-frequency=1k"},
                "Missing carrier frequency"),
    };
    return sExamples;
}
