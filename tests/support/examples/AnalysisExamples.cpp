#include "support/examples/ExampleLines.h"

namespace
{
/// A transient whose only particular is its sweep.
TExampleLine Sweep(std::vector<std::string> fields, const std::string& rsClause)
{
    for (std::string& rsField : fields)
        rsField.insert(0, "sweep.");
    fields.insert(fields.begin(), {"maximum-time-step=1n", "simulation-length=100n"});
    return {"Analysis/Transient", fields, ".tran 1n 100n " + rsClause};
}

TExampleLine Refused(std::string sPage, std::vector<std::string> arguments, std::string sMessage)
{
    return {std::move(sPage), std::move(arguments), "", std::move(sMessage)};
}
} // namespace

const TExampleLines& gAnalysisExamples()
{
    static const TExampleLines sExamples{
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

        // --- every clause of the sweep's dialog
        Sweep({"sweep-type=Linear", "parameter-name=r1", "start=1", "stop=5", "increment=1"},
              "sweep lin param r1 1 5 1"),
        Sweep({"sweep-type=Linear", "parameter-name=r1", "start=1", "stop=5", "number-of-points=3"},
              "sweep param r1 lin 3 1 5"),
        Sweep({"sweep-type=Linear", "parameter-type=Model parameter", "parameter-name=w",
               "model-name=nmos", "start=1u", "stop=2u", "increment=0.5u"},
              "sweep lin modparam w(nmos) 1u 2u 0.5u"),
        Sweep({"sweep-type=Decade", "parameter-type=Temperature", "start=1", "stop=100",
               "number-of-points=5"},
              "sweep dec temp 1 100 5"),
        Sweep({"sweep-type=Octave", "parameter-type=Source", "parameter-name=vin", "start=1",
               "stop=8", "number-of-points=2"},
              "sweep oct source vin 1 8 2"),
        Sweep({"sweep-type=List", "parameter-type=Parameter", "parameter-name=r1",
               "list-of-values=1\n2"},
              "sweep list r1 1 2"),
        Sweep({"sweep-type=Poi", "parameter-type=Source", "parameter-name=vin", "stop=2",
               "list-of-values=1\n2"},
              "sweep source vin poi 2 1 2"),
        // Meant: a plain parameter has one blank more.
        Sweep({"sweep-type=Poi", "parameter-type=Parameter", "parameter-name=r1", "stop=2",
               "list-of-values=1\n2"},
              "sweep  r1 poi 2 1 2"),
        Sweep({"sweep-type=Data", "start=d1"}, "sweep data=d1"),
        Sweep({"sweep-type=Monte Carlo", "start=10", "stop=3"}, "sweep monte=10 seed=3"),
        Sweep({"sweep-type=Optimization", "start=run1", "stop=m1", "increment=om"},
              "sweep optimize=optrun1 results=m1 model=om"),
        Sweep({"sweep-type=Optimization", "start=opt1", "stop=m1", "increment=om"},
              "sweep optimize=opt1 results=m1 model=om"),
        Sweep({"sweep-type=Optimization", "start=myopt", "stop=m1", "increment=om"},
              "sweep optimize=optmyopt results=m1 model=om"),
        {"Analysis/DC transfer sweep",
         {"sweep-1.sweep-type=Data", "sweep-1.start=a", "sweep-2.sweep-type=Data",
          "sweep-2.start=b", "sweep-3.sweep-type=Data", "sweep-3.start=c"},
         ".dc data=a sweep data=b sweep data=c"},
        {"Analysis/Parametric sweep",
         {"sweep-1.sweep-type=Poi", "sweep-1.parameter-type=Parameter", "sweep-1.parameter-name=r1",
          "sweep-1.stop=2", "sweep-1.list-of-values=1 2", "sweep-2.sweep-type=Poi",
          "sweep-2.parameter-type=Parameter", "sweep-2.parameter-name=r2", "sweep-2.stop=2",
          "sweep-2.list-of-values=3 4"},
         ".step  r1 poi 2 1 2 sweep  r2 poi 2 3 4"},

        // --- what is refused
        Refused("Analysis/DC transfer sweep", {}, ""), // meant: not a word
        Refused("Analysis/Parametric sweep", {}, ""),
        Refused("Analysis/AC", {}, "Missing number of frequency samples."),
        Refused("Analysis/AC", {"sampling-type=octave"}, "Missing number of frequency samples."),
        Refused("Analysis/AC", {"number-of-samples=1", "final-frequency=2"},
                "Missing starting frequency."),
        Refused("Analysis/AC", {"number-of-samples=1", "start-frequency=2"},
                "Missing final frequency."),
        Refused("Analysis/AC", {"sampling-type=poi"}, "Missing list of frequency values."),
        Refused("Analysis/AC", {"sampling-type=poi", "list-of-values=1"},
                "Missing the number of frequency values listed."),
        Refused("Analysis/Fourier", {"signals=v(1)"}, "Missing base frequency."),
        Refused("Analysis/Fourier", {"base-frequency=1"}, "Missing plot list."),
        Refused("Analysis/Noise", {"output-node=out"},
                "Missing input voltage or current source name."),
        Refused("Analysis/Noise", {"input-source=v1"}, "Missing output node."),
        Refused("Analysis/Transient", {"simulation-length=1"}, "Missing maximum time step value."),
        Refused("Analysis/Transient", {"maximum-time-step=1"},
                "Missing total simulation time value."),
        Refused("CAnalysisDCSweepPage", {"source-name-1=v1"},
                "Incomplete specification for sweep direction 1."),
        Refused("CAnalysisACPage", {}, "Missing number of frequency samples."),
    };
    return sExamples;
}
