#include "support/options/OptionRows.h"

namespace optionRows
{
namespace
{
constexpr TExplanation kExplanations[] = {
    {"absdv", "Threshold absolute voltage change between two consecutive time steps; used to "
              "calculate voltage variance when lvltim=1 | 3."},
    {"absi", "Absolute residual current tolerance."},
    {"absq",
     "Absolute tolerance for charge time derivative discretization; affects time step size."},
    {"absv", "Absolute residual voltage tolerance."},
    {"acct", "When on, simulation statistics such as iteration counts are displayed."},
    {"accurate", "Triggers changes to other option settings to increase simulation accuracy."},
    {"acout", "Selects the calculation method for AC magnitude or phase differences requested in "
              ".print and .probe statements. (0 = compute the norm of the difference, 1 = compute "
              "the difference of the norm)"},
    {"autostop", "When on, SPICE automatically terminates any transient analysis when all .measure "
                 "results have been found."},
    {"captab", "Lists the capacitances for each node in the netlist, and identifies the node with "
               "the greatest capacitance."},
    {"casesensitive", "Controls case sensitivity for names of models, subcircuits, library "
                      "sections, parameters, and nodes."},
    {"compat", "Selects the SPICE compatibility mode for resolving syntax idioms and for "
               "establishing simulation settings.."},
    {"conncheck", "Controls connectivity error checking."},
    {"cshunt", "Capacitance added from each node to ground.."},
    {"csv",
     "Generate a CSV (comma-separated value) output file (0=off, 1=.print outputs, 2=all output)"},
    {"dcap", "Selects model used to calculate depletion capacitance for BJT and diodes. 1: "
             "Berkeley SPICE diode equations; 2: revised equations."},
    {"dccap",
     "Causes SPICE to compute charge and capacitance values in DC mode, for .print output."},
    {"dchomotopy",
     "Selects the algorithm for resolving DC operating point non-convergence problems."},
    {"dcmethod", "Selects the algorithm for DC operating point computation."},
    {"dcstep", "Value which is used to a conductance added across the terminals of each capacitor "
               "in the netlist. g = C / dcstep"},
    {"defad", "Default MOSFET transistor drain area."},
    {"defas", "Default MOSFET transistor source area."},
    {"defl", "Default MOSFET transistor length."},
    {"defnrd", "Default MOSFET transistor drain diffusion squares."},
    {"defnrs", "Default MOSFET transistor source diffusion squares."},
    {"defpd", "Default MOSFET transistor drain perimeter."},
    {"defps", "Default MOSFET transistor source perimeter."},
    {"defw", "Default MOSFET transistor width."},
    {"deriv", "Selects the default method for computing all device dq/dv and di/dv derivatives. 0 "
              ": Computes analytical derivatives where possible. (Available for level= 49 MOSFETS, "
              "diodes, and BJTs.) 1 : Numerical, finite- difference derivatives."},
    {"dnout", "Selects noise spectral density units. 0 : Volts / sqrt(Hz),  1 : Volts^2 / Hz"},
    {"expert",
     "Request for extensive diagnostic information about non-convergent nodes and elements."},
    {"extraiterations",
     "Number of additional iterative steps to calculate after convergence criteria have been met."},
    {"fast", "Triggers changes to other option settings to maximize simulation speed."},
    {"filetype", "Selects the Output file type."},
    {"ft",
     "Fraction by which the timestep is decreased after a set of iterations does not converge."},
    {"gmin", "Specifies a conductance that is added in parallel with all pn junctions during "
             "transient analysis."},
    {"gmindc",
     "Specifies a conductance that is added in parallel with all pn junctions during DC analysis."},
    {"gramp", "Specifies the range over which the gmin value will be swept. The value of gramp is "
              "specified as a power of 10."},
    {"gshunt", "Specifies a conductance that is added between each node and global ground."},
    {"ingold",
     "Selects the real number output format. 0 : engineering format, 1 : g format, 2 : e format."},
    {"kcltest", "Flag to enable the current tolerance test for convergence."},
    {"kvltest", "Flag to enable the voltage tolerance test for convergence (Transient analysis)."},
    {"linearsolver", "Selects method for solving linear systems of equations."},
    {"list", "Creates a summary of each element in the netlist that includes model name, effective "
             "sizes, pins, and other key values."},
    {"lvltim", "Algorithm used to control timestep sizes in transient analysis:\n1 = Iteration "
               "count algorithm with voltage variance test, 2 = Local Truncation Error algorithm, "
               "3 = Iteration count algorithm with voltage variance and timestep reversal."},
    {"macmod", "Enable subcircuit and MOSFET model substitutions.\n1 = replace missing MOSFET "
               "models with subcircuits, 2 = replace missing subcircuits with MOSFETs, 3 = perform "
               "MOSFET and subcircuit substitutions."},
    {"maxdcfailures",
     "Maximum number of non-convergence failures allowed in a DC sweep simulation."},
    {"maxmsg", "Maximum number of duplicate warning messages to print out."},
    {"maxord", "Maximum order of time integration method (1-4)."},
    {"measform", "Select the .measure results file format (0=historic, 1=one block of results per "
                 "inner sweep)."},
    {"measinfo", "Control what outputs are generated for .measure commands (0=measured value only, "
                 "1=verbose output with measured at value)."},
    {"method", "Selects the method of numerical integration for estimating the time derivative of "
               "the system\x92s charge components during a transient simulation."},
    {"mindcratio", "Minimum DC transfer source stepping ratio."},
    {"resmin", "Minimum (floor) resistance value for all resistors."},
    {"minsrcstep",
     "Minimum step size in source stepping (source step parameter is stepped from 0 to 1)."},
    {"mintimeratio", "Relative minimum timestep size for transient simulations."},
    {"mintimestep", "Minimum time step for transient simulations."},
    {"modmonte", "Vary model parameters for each device during Monte Carlo analysis."},
    {"monteinfo", "Control what information and outputs are generated during Monte Carlo sweeps "
                  "(0=summary info, 1=also variable values, 2=also all print output)."},
    {"moscap", "When on, estimate MOSFET source and drain areas and perimeters."},
    {"mout", "M multiplier output mode, 1=single device terms, 0=multi device terms."},
    {"mu", "Coefficient for varying integration between the backward Euler formula and the "
           "trapezoidal formula. Used when method = trap."},
    {"node",
     "Prints a node cross-reference table listing each node and all the elements connected to it."},
    {"nomod", "Prints a listing of all models and their parameter values."},
    {"numdgt", "Number of significant digits after decimal point for simulation output."},
    {"numnd", "Maximum number of Newton iterations when solving nonlinear systems in DC analysis."},
    {"numns", "Maximum number of Newton iterations during DC analysis source stepping."},
    {"numnt", "Maximum number of Newton iterations when solving nonlinear systems for transient "
              "analysis time steps."},
    {"numntreduce", "If more than numntreduce Newton iterations are required on a time step, the "
                    "time step size is reduced."},
    {"numnx", "Maximum number of Newton iterations when solving nonlinear systems for DC transfer "
              "analysis."},
    {"numnxramp", "Maximum number of Newton iterations for each step of DC sweep analysis source "
                  "ramping operations."},
    {"opts", "Prints the current settings of all control options."},
    {"outputall", "Causes all listings of nodes, devices, or options to include items that are "
                  "internal or normally hidden to the user."},
    {"parhier", "Selects the parameter hierarchy pririty - local mode: local (subcircuit) settings "
                "override global values; global mode: global settings override local values."},
    {"pathnum", "Causes all node and device names to use numeric subcircuit path references, "
                "rather than the fully qualified names."},
    {"persist", "Instructs SPICE to continue simulation when the specified levels of warnings or "
                "errors are generated."},
    {"pivtol", "Minimum pivoting tolerance."},
    {"poweruplen", "Length of powerup ramp in transient powerup simulations."},
    {"precise", "Triggers changes to other option settings to maximize simulation accuracy."},
    {"probei", "Includes device terminal current values in the output data from .probe and .print "
               "(when used without arguments)."},
    {"probeq", "Includes device terminal charge values in the output data from .probe and .print "
               "(when used without arguments)."},
    {"probev", "Includes node voltage values in the output data from .probe and .print (when used "
               "without arguments)."},
    {"prtdel", "Output print interval."},
    {"prtinterp", "When the prtdel option is set, prtinterp controls whether output points should "
                  "be interpolated from the internal timestep points (prtinterp=1) or explicitly "
                  "computed (prtinterp=0)."},
    {"rampuplen", "Length of initial ramp in transient rampup simulations."},
    {"reldv", "Maximum relative voltage change allowed at any node in the circuit between "
              "transient analysis time steps."},
    {"reli", "Relative residual current tolerance."},
    {"relq",
     "Relative tolerance for charge time derivative discretization, affects time step size."},
    {"relv", "Relative residual voltage tolerance."},
    {"resdelete", "delete resistors that fall below the resmin threshold, rather than limiting R."},
    {"rmax", "Multiple of the internal time step by which the next time step is increased if a "
             "solution converges with fewer than numntreduce iterations."},
    {"scale", "Scale factor which multiplies MOSFET and MESFET device geometry parameters."},
    {"scalm", "Multiplies resistor model parameters dlr, dw, and l."},
    {"search", "Search path for library and include files."},
    {"spice", "Changes other option settings to be compatible with Berkeley SPICE."},
    {"threads", "number of threads to use for multithreading (0=disable multi-threading, "
                "1=automatic selection, n=use n threads)."},
    {"tnom", "Default nominal temperature for models."},
    {"tolmult", "Multiplicative scaling factor for all absolute and relative tolerance values."},
    {"trtol",
     "Corrective factor for estimation of the local truncation error (LTE) when lvltim=2."},
    {"verbose",
     "Controls quantity of output such as device counts and option values (0, 1, or 2)."},
    {"wl", "Reverses MOSFET length and width specifications."},
    {"xref",
     "Generate cross-reference listings for subcircuits, parameters, and conditional statements."},
    {"zpivtol", "Minimum pivoting tolerance for complex linear systems."},
};
} // namespace

std::span<const TExplanation> gExplanations()
{
    return kExplanations;
}
} // namespace optionRows
