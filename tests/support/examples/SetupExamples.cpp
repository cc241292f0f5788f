#include "support/examples/ExampleLines.h"

namespace
{
TExampleLine Refused(std::string sPage, std::vector<std::string> arguments, std::string sMessage)
{
    return {std::move(sPage), std::move(arguments), "", std::move(sMessage)};
}
} // namespace

const TExampleLines& gSetupExamples()
{
    static const TExampleLines sExamples{
        {"Files/Include file", {"file=C:\\models\\nmos.md"}, ".include \"C:\\models\\nmos.md\""},
        {"Files/Library file", {"file=lib/tech.lib", "section=TT"}, ".lib \"lib/tech.lib\" TT"},
        {"Files/Library file", {"file=lib/tech.lib"}, ".lib \"lib/tech.lib\""},
        {"Files/Delete library file",
         {"file=lib/tech.lib", "section=TT"},
         ".del lib \"lib/tech.lib\" TT"},

        {"Initialization/DC guess", {"node-1=a", "value-1=1"}, ".nodeset v(a)=1"},
        {"Initialization/DC guess",
         {"node-1=a", "reference-1=b", "value-1=1.5", "node-2=c", "value-2=0", "node-3=d",
          "reference-3=gnd2", "value-3=2"},
         ".nodeset v(a,b)=1.5 v(c)=0 v(d,gnd2)=2"},

        {"Initialization/Initial condition", {"name=out", "value=3.3"}, ".ic v(out)=3.3"},
        {"Initialization/Initial condition",
         {"name=out", "second=ref", "value=1"},
         ".ic v(out,ref)=1"},
        {"Initialization/Initial condition", {"mode=#1", "name=L1", "second=2m"}, ".ic i(L1)=2m"},
        {"Initialization/Initial condition",
         {"name=a", "value=1", "add", "mode=Inductor current", "name=L2", "second=0", "add"},
         ".ic v(a)=1 i(L2)=0"},

        {"Settings/Bus definition",
         {"bus-name=  addr ", "node-list=a0 a1\na2"},
         ".vector addr {a0 a1 a2}"},
        {"Settings/Bus definition", {"bus-name=b", "node-list=   "}, ".vector b {   }"},
        {"Settings/Global nodes", {"node-list=vdd vss"}, ".global vdd vss"},
        {"Settings/Global nodes", {"node-list=   "}, ".global    "},

        {"Settings/Parameters", {"second=w", "third=2u"}, ".param w=2u"},
        {"Settings/Parameters",
         {"parameter-type=Monte Carlo", "first=r", "second=1k", "third=0.1"},
         ".param r=unif(1k,0.1)"},
        {"Settings/Parameters",
         {"parameter-type=Monte Carlo", "distribution=Uniform (absolute variation)", "first=r",
          "second=1k", "third=5", "fifth=2"},
         ".param r=aunif(1k,5,2)"},
        {"Settings/Parameters",
         {"parameter-type=Monte Carlo", "distribution=Gaussian (relative variation)", "first=r",
          "second=1k", "third=0.1", "fourth=3", "fifth=2"},
         ".param r=gauss(1k,0.1,3,2)"},
        // Meant: nothing parts sigma and multiplier.
        {"Settings/Parameters",
         {"parameter-type=Monte Carlo", "distribution=#3", "first=r", "second=1k", "third=5",
          "fourth=3", "fifth=2"},
         ".param r=agauss(1k,5,32)"},
        {"Settings/Parameters",
         {"parameter-type=Monte Carlo", "distribution=Random limit (absolute variation)", "first=r",
          "second=1k", "third=5"},
         ".param r=limit(1k,5)"},
        {"Settings/Parameters",
         {"parameter-type=Optimization", "first=w", "sixth=r1", "second=1", "third=0", "fourth=2",
          "fifth=0.1"},
         ".param w=optr1(1,0,2,0.1)"},
        // Meant: without a delta only the list's entry is closed.
        {"Settings/Parameters",
         {"parameter-type=Optimization", "first=w", "sixth=r1", "second=1", "third=0", "fourth=2"},
         ".param w=optr1(1,0,2"},
        {"Settings/Parameters",
         {"parameter-type=Optimization", "first=w", "sixth=r1", "second=1", "third=0", "fourth=2",
          "add"},
         ".param w=optr1(1,0,2)"},
        {"Settings/Parameters",
         {"second=a", "third=1", "add", "parameter-type=Monte Carlo", "first=b", "second=1",
          "third=0.1", "add"},
         ".param a=1 b=unif(1,0.1)"},

        {"Settings/Temperature", {"temperature-list= 0 27\n85 "}, ".temp 0 27 85"},

        // --- what is refused
        Refused("Files/Include file", {"file=  "}, "Missing include file name."),
        Refused("Files/Library file", {"section=TT"}, "Missing library file name."),
        Refused("Files/Delete library file", {}, "Missing library file name."),
        Refused("Files/Delete library file", {"file=a.lib"}, "Missing library section."),
        Refused("Initialization/DC guess", {}, "No initial guesses specified."),
        Refused("Initialization/DC guess",
                {"node-1=a", "value-1=1", "node-2=b", "value-2=2", "value-1="},
                "Missing initial guess value for DC guess set 1."),
        Refused("Initialization/Initial condition", {}, "Missing node name."),
        Refused("Initialization/Initial condition", {"name=a"}, "Missing initial voltage."),
        Refused("Initialization/Initial condition", {"mode=#1", "name=x1"},
                "Illegal inductor name (Must begin with 'L')."),
        Refused("Initialization/Initial condition", {"mode=#1", "name=L1"},
                "Missing initial inductor current."),
        Refused("Settings/Bus definition", {}, "Missing bus name."),
        Refused("Settings/Bus definition", {"bus-name=b"}, "Missing node list for bus."),
        Refused("Settings/Global nodes", {}, "No global nodes specified."),
        Refused("Settings/Parameters", {}, "Missing parameter name and value."),
        Refused("Settings/Parameters", {"parameter-type=Monte Carlo", "first=r"},
                "Missing nominal value."),
        Refused("Settings/Parameters", {"parameter-type=Optimization", "first=w"},
                "Missing optimization run name."),
        Refused("Settings/Temperature", {"temperature-list=   "}, "Missing temperature value."),
    };
    return sExamples;
}
