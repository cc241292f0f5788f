#include "wizard/analysis/ExampleLines.h"

const std::vector<TExampleLine>& gAnalysisExamples()
{
    static const std::vector<TExampleLine> sExamples{
        {"Analysis/AC",
         {"sampling-type=decade", "number-of-samples=10", "start-frequency=1",
          "final-frequency=1meg"},
         ".ac dec 10 1 1meg"},
        {"Analysis/AC", {"sampling-type=list", "list-of-values=1k\n2k"}, ".ac list 1k 2k"},
        {"Analysis/AC",
         {"sampling-type=poi", "count-of-listed-values=2", "list-of-values=1k\n2k"},
         ".ac poi 2 1k 2k"},
        {"Analysis/AC",
         {"sampling-type=linear", "number-of-samples=100", "start-frequency=1",
          "final-frequency=100", "sweep.sweep-type=List", "sweep.parameter-type=Temperature",
          "sweep.list-of-values=25\n75"},
         ".ac lin 100 1 100 sweep list temp 25 75"},

        {"Analysis/DC operating point", {}, ".op"},
        {"Analysis/DC operating point", {"suppress=on"}, ".op noprint"},
        {"Analysis/DC operating point", {"suppress=off"}, ".op"},

        {"Analysis/DC transfer sweep",
         {"sweep-1.sweep-type=Linear", "sweep-1.parameter-type=Source",
          "sweep-1.parameter-name=vdd", "sweep-1.start=0", "sweep-1.stop=5",
          "sweep-1.increment=0.1", "sweep-2.sweep-type=Decade",
          "sweep-2.parameter-type=Parameter name", "sweep-2.parameter-name=r1", "sweep-2.start=1",
          "sweep-2.stop=100", "sweep-2.number-of-points=10"},
         ".dc lin source vdd 0 5 0.1 sweep dec param r1 1 100 10"},
        {"Analysis/DC transfer sweep",
         {"sweep-1.sweep-type=Monte Carlo", "sweep-1.start=10"},
         ".dc monte=10"},

        {"Analysis/Fourier",
         {"base-frequency=1k", "signals=v(out)", "number-of-frequencies=5", "interpolate=on"},
         ".four 1k v(out) nfreqs=5 interpolate=1"},
        {"Analysis/Fourier",
         {"base-frequency=1k", "signals=v(out)", "number-of-points=1000", "interpolate=off"},
         ".four 1k v(out) npoints=1000 interpolate=0"},

        {"Analysis/Noise",
         {"output-node=out", "reference-node=in2", "input-source=vin"},
         ".noise v(out,in2) vin"},
        {"Analysis/Noise", {"output-node=out", "input-source=i1"}, ".noise v(out) i1"},

        {"Analysis/Stability", {"source-or-probe=vprobe"}, ".lstb vprobe"},

        {"Analysis/Transient", {"maximum-time-step=1n", "simulation-length=100n"}, ".tran 1n 100n"},
        {"Analysis/Transient",
         {"maximum-time-step=1n", "simulation-length=100n", "sweep.sweep-type=Linear",
          "sweep.parameter-name=vdd", "sweep.start=1", "sweep.stop=5", "sweep.increment=1"},
         ".tran 1n 100n sweep lin param vdd 1 5 1"},
        {"Analysis/Transient",
         {"mode=Powerup simulation (ramp DC sources to final values)", "maximum-time-step=1n",
          "simulation-length=100n", "output-start-time=10n", "sweep.sweep-type=Linear",
          "sweep.parameter-type=Parameter name", "sweep.parameter-name=vdd", "sweep.start=1",
          "sweep.stop=5", "sweep.increment=1"},
         ".tran 1n 100n powerup start=10n sweep lin param vdd 1 5 1"},
        {"Analysis/Transient",
         {"mode=#1", "maximum-time-step=1n", "simulation-length=100n",
          "sweep.sweep-type=Optimization", "sweep.start=run1", "sweep.stop=m1",
          "sweep.increment=om"},
         ".tran 1n 100n rampup sweep optimize=optrun1 results=m1 model=om"},

        {"Analysis/Transfer function", {"output=v(out)", "input-source=vin"}, ".tf v(out) vin"},

        {"Analysis/Parametric sweep",
         {"sweep-1.sweep-type=Linear", "sweep-1.parameter-name=vdd", "sweep-1.start=1",
          "sweep-1.stop=5", "sweep-1.increment=1", "sweep-2.sweep-type=Monte Carlo",
          "sweep-2.start=10"},
         ".step lin param vdd 1 5 1 sweep monte=10"},

        {"CAnalysisACPage",
         {"sampling-type=OCT  (by octaves)", "number-of-samples=10", "start-frequency=1",
          "final-frequency=1meg"},
         ".ac OCT 10 1 1meg"},
        {"CAnalysisDCSweepPage",
         {"source-name-1=v1", "start-1=0", "end-1=5", "increment-1=1"},
         ".dc v1 0 5 1"},
    };
    return sExamples;
}
