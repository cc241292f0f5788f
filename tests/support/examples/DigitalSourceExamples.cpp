#include "support/examples/ExampleLines.h"

const TExampleLines& gDigitalSourceExamples()
{
    static const TExampleLines sExamples{
        gNamed("CurrentBitWithoutAParameter", {"Current source/Bit",
                                               {"name=1", "positive-terminal=a", "bit-stream=0110"},
                                               "I1 a GND BIT ({0110})"}),
        gNamed("VoltageBitWithAllParts",
               {"Voltage source/Bit",
                {"name=v2", "positive-terminal=a", "negative-terminal=b", "bit-stream=0101",
                 "pulse-width=5n", "on-value=3.3", "rise-time=1n", "ac-magnitude=1", "rounding=1p",
                 "dc-value=0"},
                "v2 a b dc 0 BIT ({0101} pw=5n on=3.3 rt=1n) AC 1 ROUND=1p"}),
        gNamed("VoltageBitWithAPhaseAndNoMagnitude",
               {"Voltage source/Bit",
                {"name=1", "positive-terminal=a", "bit-stream=01", "ac-phase=90"},
                "V1 a GND BIT ({01}) AC 90"}),
        gNamed("CurrentBusOnAReferenceNode", {"Current source/Bus",
                                              {"name=i7", "bus-name=addr", "reference-node=n0",
                                               "bit-stream=11", "low-time=5n", "rounding=1p"},
                                              "i7 addr n0 BUS ({11} lt=5n) ROUND=1p"}),
        gNamed("VoltageBusWithADelay", {"Voltage source/Bus",
                                        {"name=b", "bus-name=data", "bit-stream=1010", "delay=2n"},
                                        "Vb data GND BUS ({1010} delay=2n)"}),

        // --- what is refused
        {"Current source/Bit", {}, "", "Missing current source name."},
        {"Voltage source/Bit", {}, "", "Missing voltage source name."},
        {"Current source/Bit", {"name=1", "positive-terminal=a"}, "", "Missing bit stream."},
        {"Current source/Bus", {"name=1"}, "", "Missing bus name."},
        {"Voltage source/Bus", {"bus-name=1"}, "", "Missing voltage source name."},
    };
    return sExamples;
}
