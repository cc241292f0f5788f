#pragma once

#include "wizard/setup/SimulationOption.h"

// The options of the simulator. All that differs between them stands here, and nowhere else.

namespace SimulationOptionTable
{
inline constexpr TOptionChoice kOffOn[] = {{"__$$Translatable$$_Off", "0"},
                                           {"__$$Translatable$$_On", "1"}};
inline constexpr TOptionChoice kCompat[] = {{"__$$Translatable$$_HSPICE", "HSPICE"},
                                            {"__$$Translatable$$_SPICE", "SPICE"},
                                            {"__$$Translatable$$_PSPICE", "PSPICE"}};
inline constexpr TOptionChoice kDchomotopy[] = {
    {"__$$Translatable$$_None", "none"},
    {"__$$Translatable$$_gminstepping", "gminstepping"},
    {"__$$Translatable$$_sourcestepping", "sourcestepping"},
    {"__$$Translatable$$_multiratesourcestepping", "multirate"},
    {"__$$Translatable$$_pseudotransient", "pseudotransient"},
    {"__$$Translatable$$_All", "all"}};
inline constexpr TOptionChoice kDcmethod[] = {
    {"__$$Translatable$$_Standard", "standard"},
    {"__$$Translatable$$_gminstepping", "gminstepping"},
    {"__$$Translatable$$_sourcestepping", "sourcestepping"},
    {"__$$Translatable$$_multiratesourcestepping", "multirate"},
    {"__$$Translatable$$_pseudotransient", "pseudotransient"}};
inline constexpr TOptionChoice kFiletype[] = {{"__$$Translatable$$_iccap", "iccap"},
                                              {"__$$Translatable$$_rawascii", "rawascii"},
                                              {"__$$Translatable$$_rawbinary", "rawbinary"},
                                              {"__$$Translatable$$_quorvasimdb", "quorvasimdb"}};
inline constexpr TOptionChoice kLinearsolver[] = {{"__$$Translatable$$_best", "best"},
                                                  {"__$$Translatable$$_KLU", "KLU"},
                                                  {"__$$Translatable$$_Sparse", "Sparse"}};
inline constexpr TOptionChoice kMethod[] = {{"__$$Translatable$$_gear", "gear"},
                                            {"__$$Translatable$$_trapezoidal", "trap"}};
inline constexpr TOptionChoice kParhier[] = {{"__$$Translatable$$_local", "local"},
                                             {"__$$Translatable$$_global", "global"}};
inline constexpr TOptionControl kEdit{};

/// `nDefault`: 0 for off, 1 for on.
constexpr TOptionControl OffOn(int nDefault)
{
    return {EOptionKind::OnOff, kOffOn, nDefault};
}

constexpr TOptionControl OneOf(std::span<const TOptionChoice> choices, int nDefault)
{
    return {EOptionKind::List, choices, nDefault};
}

constexpr int kOff = 0;
constexpr int kOn = 1;

/// In the order of their entries, which is alphabetical.
// Meant: the key of "minresistance"; the labels of "dccap" and "deriv", which don't match what
// their controls take; the words and the full stops of the explanations.
inline constexpr TSimulationOption kTable[] = {
    {"absdv", "absdv", kEdit, "0.5", "volts",
     "Threshold absolute voltage change between two consecutive time steps; used to calculate "
     "voltage variance when lvltim=1 | 3."},
    {"absi (abstol)", "absi", kEdit, "1e-010", "amps", "Absolute residual current tolerance."},
    {"absq (chargetol)", "absq", kEdit, "1e-014", "coulombs",
     "Absolute tolerance for charge time derivative discretization; affects time step size."},
    {"absv", "absv", kEdit, "1.0e-6", "volts", "Absolute residual voltage tolerance."},
    {"acct", "acct", OffOn(kOff), "off", "",
     "When on, simulation statistics such as iteration counts are displayed."},
    {"accurate", "accurate", OffOn(kOff), "off", "",
     "Triggers changes to other option settings to increase simulation accuracy."},
    {"acout", "acout", kEdit, "1", "",
     "Selects the calculation method for AC magnitude or phase differences requested in .print and "
     ".probe statements. (0 = compute the norm of the difference, 1 = compute the difference of "
     "the norm)"},
    {"autostop", "autostop", OffOn(kOff), "off", "",
     "When on, SPICE automatically terminates any transient analysis when all .measure results "
     "have been found."},
    {"captab", "captab", OffOn(kOff), "off", "",
     "Lists the capacitances for each node in the netlist, and identifies the node with the "
     "greatest capacitance."},
    {"casesensitive", "casesensitive", OffOn(kOff), "off", "",
     "Controls case sensitivity for names of models, subcircuits, library sections, parameters, "
     "and nodes."},
    {"compat", "compat", OneOf(kCompat, 0), "HSPICE", "",
     "Selects the SPICE compatibility mode for resolving syntax idioms and for establishing "
     "simulation settings.."},
    {"conncheck", "conncheck", OffOn(kOn), "on", "", "Controls connectivity error checking."},
    {"cshunt", "cshunt", kEdit, "0.0", "farads", "Capacitance added from each node to ground.."},
    {"csv", "csv", kEdit, "0", "",
     "Generate a CSV (comma-separated value) output file (0=off, 1=.print outputs, 2=all output)"},
    {"dcap", "dcap", kEdit, "2", "",
     "Selects model used to calculate depletion capacitance for BJT and diodes. 1: Berkeley SPICE "
     "diode equations; 2: revised equations."},
    {"dccap", "dccap", kEdit, "off", "",
     "Causes SPICE to compute charge and capacitance values in DC mode, for .print output."},
    {"dchomotopy", "dchomotopy", OneOf(kDchomotopy, 5), "All", "",
     "Selects the algorithm for resolving DC operating point non-convergence problems."},
    {"dcmethod", "dcmethod", OneOf(kDcmethod, 0), "Standard", "",
     "Selects the algorithm for DC operating point computation."},
    {"dcstep", "dcstep", kEdit, "0.0", "",
     "Value which is used to a conductance added across the terminals of each capacitor in the "
     "netlist. g = C / dcstep"},
    {"defad", "defad", kEdit, "0", "sq m", "Default MOSFET transistor drain area."},
    {"defas", "defas", kEdit, "0", "sq m", "Default MOSFET transistor source area."},
    {"defl", "defl", kEdit, "1e-4", "m", "Default MOSFET transistor length."},
    {"defnrd", "defnrd", kEdit, "0", "squares",
     "Default MOSFET transistor drain diffusion squares."},
    {"defnrs", "defnrs", kEdit, "0", "squares",
     "Default MOSFET transistor source diffusion squares."},
    {"defpd", "defpd", kEdit, "0", "meters", "Default MOSFET transistor drain perimeter."},
    {"defps", "defps", kEdit, "0", "meters", "Default MOSFET transistor source perimeter."},
    {"defw", "defw", kEdit, "1e-4", "m", "Default MOSFET transistor width."},
    {"deriv", "deriv", OffOn(kOff), "0", "",
     "Selects the default method for computing all device dq/dv and di/dv derivatives. 0 : "
     "Computes analytical derivatives where possible. (Available for level= 49 MOSFETS, diodes, "
     "and BJTs.) 1 : Numerical, finite- difference derivatives."},
    {"dnout", "dnout", kEdit, "0", "",
     "Selects noise spectral density units. 0 : Volts / sqrt(Hz),  1 : Volts^2 / Hz"},
    {"expert", "expert", OffOn(kOff), "off", "",
     "Request for extensive diagnostic information about non-convergent nodes and elements."},
    {"extraiterations", "extraiterations", kEdit, "0", "",
     "Number of additional iterative steps to calculate after convergence criteria have been met."},
    {"fast", "fast", OffOn(kOff), "off", "",
     "Triggers changes to other option settings to maximize simulation speed."},
    {"filetype", "filetype", OneOf(kFiletype, 3), "quorvasimdb", "",
     "Selects the Output file type."},
    {"ft", "ft", kEdit, "0.25", "",
     "Fraction by which the timestep is decreased after a set of iterations does not converge."},
    {"gmin", "gmin", kEdit, "1.0e-12", "Mhos",
     "Specifies a conductance that is added in parallel with all pn junctions during transient "
     "analysis."},
    {"gmindc", "gmindc", kEdit, "1.0e-12", "Mhos",
     "Specifies a conductance that is added in parallel with all pn junctions during DC analysis."},
    {"gramp", "gramp", kEdit, "0.0", "",
     "Specifies the range over which the gmin value will be swept. The value of gramp is specified "
     "as a power of 10."},
    {"gshunt", "gshunt", kEdit, "0.0", "Mhos",
     "Specifies a conductance that is added between each node and global ground."},
    {"ingold", "ingold", kEdit, "0", "",
     "Selects the real number output format. 0 : engineering format, 1 : g format, 2 : e format."},
    {"kcltest", "kcltest", OffOn(kOn), "on", "",
     "Flag to enable the current tolerance test for convergence."},
    {"kvltest", "kvltest", OffOn(kOff), "off", "",
     "Flag to enable the voltage tolerance test for convergence (Transient analysis)."},
    {"linearsolver", "linearsolver", OneOf(kLinearsolver, 0), "best", "",
     "Selects method for solving linear systems of equations."},
    {"list", "list", OffOn(kOff), "off", "",
     "Creates a summary of each element in the netlist that includes model name, effective sizes, "
     "pins, and other key values."},
    {"lvltim", "lvltim", kEdit, "1", "",
     "Algorithm used to control timestep sizes in transient analysis:\n1 = Iteration count "
     "algorithm with voltage variance test, 2 = Local Truncation Error algorithm, 3 = Iteration "
     "count algorithm with voltage variance and timestep reversal."},
    {"macmod", "macmod", kEdit, "0, disabled", "",
     "Enable subcircuit and MOSFET model substitutions.\n1 = replace missing MOSFET models with "
     "subcircuits, 2 = replace missing subcircuits with MOSFETs, 3 = perform MOSFET and subcircuit "
     "substitutions."},
    {"maxdcfailures", "maxdcfailures", kEdit, "4", "",
     "Maximum number of non-convergence failures allowed in a DC sweep simulation."},
    {"maxmsg", "maxmsg", kEdit, "5", "",
     "Maximum number of duplicate warning messages to print out."},
    {"maxord", "maxord", kEdit, "2", "", "Maximum order of time integration method (1-4)."},
    {"measform", "measform", kEdit, "0", "",
     "Select the .measure results file format (0=historic, 1=one block of results per inner "
     "sweep)."},
    {"measinfo", "measinfo", kEdit, "0", "",
     "Control what outputs are generated for .measure commands (0=measured value only, 1=verbose "
     "output with measured at value)."},
    {"method", "method", OneOf(kMethod, 1), "trap", "",
     "Selects the method of numerical integration for estimating the time derivative of the "
     "system\x92s charge components during a transient simulation."},
    {"mindcratio", "mindcratio", kEdit, "1e-4", "", "Minimum DC transfer source stepping ratio."},
    {"minresistance", "resmin", kEdit, "1e-5", "ohms",
     "Minimum (floor) resistance value for all resistors."},
    {"minsrcstep", "minsrcstep", kEdit, "1e-10", "",
     "Minimum step size in source stepping (source step parameter is stepped from 0 to 1)."},
    {"mintimeratio", "mintimeratio", kEdit, "1e-9", "sec",
     "Relative minimum timestep size for transient simulations."},
    {"mintimestep", "mintimestep", kEdit, "5e-016", "sec",
     "Minimum time step for transient simulations."},
    {"modmonte", "modmonte", OffOn(kOff), "off", "",
     "Vary model parameters for each device during Monte Carlo analysis."},
    {"monteinfo", "monteinfo", kEdit, "1", "",
     "Control what information and outputs are generated during Monte Carlo sweeps (0=summary "
     "info, 1=also variable values, 2=also all print output)."},
    {"moscap", "moscap", OffOn(kOff), "off", "",
     "When on, estimate MOSFET source and drain areas and perimeters."},
    {"mout", "mout", kEdit, "0", "",
     "M multiplier output mode, 1=single device terms, 0=multi device terms."},
    {"mu", "mu", kEdit, "0.5", "",
     "Coefficient for varying integration between the backward Euler formula and the trapezoidal "
     "formula. Used when method = trap."},
    {"node", "node", OffOn(kOff), "off", "",
     "Prints a node cross-reference table listing each node and all the elements connected to it."},
    {"nomod", "nomod", OffOn(kOff), "off", "",
     "Prints a listing of all models and their parameter values."},
    {"numdgt", "numdgt", kEdit, "4", "digits",
     "Number of significant digits after decimal point for simulation output."},
    {"numnd (itl1)", "numnd", kEdit, "250", "iterations",
     "Maximum number of Newton iterations when solving nonlinear systems in DC analysis."},
    {"numns (itl6)", "numns", kEdit, "50", "iterations",
     "Maximum number of Newton iterations during DC analysis source stepping."},
    {"numnt (itl4)", "numnt", kEdit, "10", "iterations",
     "Maximum number of Newton iterations when solving nonlinear systems for transient analysis "
     "time steps."},
    {"numntreduce (itl3)", "numntreduce", kEdit, "3", "iterations",
     "If more than numntreduce Newton iterations are required on a time step, the time step size "
     "is reduced."},
    {"numnx (itl2)", "numnx", kEdit, "100", "iterations",
     "Maximum number of Newton iterations when solving nonlinear systems for DC transfer "
     "analysis."},
    {"numnxramp", "numnxramp", kEdit, "50", "iterations",
     "Maximum number of Newton iterations for each step of DC sweep analysis source ramping "
     "operations."},
    {"opts", "opts", OffOn(kOff), "off", "", "Prints the current settings of all control options."},
    {"outputall", "outputall", OffOn(kOff), "off", "",
     "Causes all listings of nodes, devices, or options to include items that are internal or "
     "normally hidden to the user."},
    {"parhier", "parhier", OneOf(kParhier, 0), "local", "",
     "Selects the parameter hierarchy pririty - local mode: local (subcircuit) settings override "
     "global values; global mode: global settings override local values.",
     ")"},
    {"pathnum", "pathnum", OffOn(kOff), "off", "",
     "Causes all node and device names to use numeric subcircuit path references, rather than the "
     "fully qualified names."},
    {"persist", "persist", kEdit, "1", "",
     "Instructs SPICE to continue simulation when the specified levels of warnings or errors are "
     "generated."},
    {"pivtol", "pivtol", kEdit, "1.0e-14", "", "Minimum pivoting tolerance."},
    {"poweruplen", "poweruplen", kEdit, "0.1% of sim. length", "sec",
     "Length of powerup ramp in transient powerup simulations."},
    {"precise", "precise", OffOn(kOff), "off", "",
     "Triggers changes to other option settings to maximize simulation accuracy."},
    {"probei", "probei", OffOn(kOff), "off", "",
     "Includes device terminal current values in the output data from .probe and .print (when used "
     "without arguments)."},
    {"probeq", "probeq", OffOn(kOff), "off", "",
     "Includes device terminal charge values in the output data from .probe and .print (when used "
     "without arguments)."},
    {"probev", "probev", OffOn(kOn), "on", "",
     "Includes node voltage values in the output data from .probe and .print (when used without "
     "arguments)."},
    {"prtdel", "prtdel", kEdit, "0.0, internal timestep intervals", "sec",
     "Output print interval."},
    {"prtinterp", "prtinterp", OffOn(kOff), "off", "",
     "When the prtdel option is set, prtinterp controls whether output points should be "
     "interpolated from the internal timestep points (prtinterp=1) or explicitly computed "
     "(prtinterp=0)."},
    {"rampuplen", "rampuplen", kEdit, "0.1% of sim. length", "sec",
     "Length of initial ramp in transient rampup simulations."},
    {"reldv", "reldv", kEdit, "0.35", "",
     "Maximum relative voltage change allowed at any node in the circuit between transient "
     "analysis time steps."},
    {"reli (reltol)", "reli", kEdit, "1e-4", "", "Relative residual current tolerance."},
    {"relq (relchargetol)", "relq", kEdit, "reli", "",
     "Relative tolerance for charge time derivative discretization, affects time step size."},
    {"relv", "relv", kEdit, "0.001", "", "Relative residual voltage tolerance."},
    {"resdelete", "resdelete", OffOn(kOff), "off", "",
     "delete resistors that fall below the resmin threshold, rather than limiting R."},
    {"rmax", "rmax", kEdit, "2.0", "",
     "Multiple of the internal time step by which the next time step is increased if a solution "
     "converges with fewer than numntreduce iterations."},
    {"scale", "scale", kEdit, "1.0", "",
     "Scale factor which multiplies MOSFET and MESFET device geometry parameters."},
    {"scalm", "scalm", kEdit, "1.0", "", "Multiplies resistor model parameters dlr, dw, and l."},
    {"search", "search", kEdit, nullptr, "", "Search path for library and include files."},
    {"spice", "spice", OffOn(kOff), "off", "",
     "Changes other option settings to be compatible with Berkeley SPICE."},
    {"threads", "threads", kEdit, "1", "",
     "number of threads to use for multithreading (0=disable multi-threading, 1=automatic "
     "selection, n=use n threads)."},
    {"tnom", "tnom", kEdit, "25.0", "deg C", "Default nominal temperature for models."},
    {"tolmult", "tolmult", kEdit, "1.0", "",
     "Multiplicative scaling factor for all absolute and relative tolerance values."},
    {"trtol", "trtol", kEdit, "10", "",
     "Corrective factor for estimation of the local truncation error (LTE) when lvltim=2."},
    {"verbose", "verbose", kEdit, "1", "",
     "Controls quantity of output such as device counts and option values (0, 1, or 2)."},
    {"wl", "wl", OffOn(kOff), "off", "", "Reverses MOSFET length and width specifications."},
    {"xref", "xref", OffOn(kOff), "off", "",
     "Generate cross-reference listings for subcircuits, parameters, and conditional statements."},
    {"zpivtol", "zpivtol", kEdit, "1.0e-6", "",
     "Minimum pivoting tolerance for complex linear systems."},
};
} // namespace SimulationOptionTable

/// The options in the order of their entries; an option's index is its place in it.
inline constexpr std::span<const TSimulationOption> kSimulationOptions =
    SimulationOptionTable::kTable;
