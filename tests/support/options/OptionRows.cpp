#include "support/options/OptionRows.h"

namespace optionRows
{
namespace
{
constexpr TOption kOptions[] = {
    {0, "absdv", "absdv", "edit", "", "&Value (default is 0.5):", "volts"},
    {1, "absi (abstol)", "absi", "edit", "", "&Value (default is 1e-010):", "amps"},
    {2, "absq (chargetol)", "absq", "edit", "", "&Value (default is 1e-014):", "coulombs"},
    {3, "absv", "absv", "edit", "", "&Value (default is 1.0e-6):", "volts"},
    {4, "acct", "acct", "on/off", "Off", "&Value (default is off):", ""},
    {5, "accurate", "accurate", "on/off", "Off", "&Value (default is off):", ""},
    {6, "acout", "acout", "edit", "", "&Value (default is 1):", ""},
    {7, "autostop", "autostop", "on/off", "Off", "&Value (default is off):", ""},
    {8, "captab", "captab", "on/off", "Off", "&Value (default is off):", ""},
    {9, "casesensitive", "casesensitive", "on/off", "Off", "&Value (default is off):", ""},
    {10, "compat", "compat", "list", "HSPICE", "&Value (default is HSPICE):", ""},
    {11, "conncheck", "conncheck", "on/off", "On", "&Value (default is on):", ""},
    {12, "cshunt", "cshunt", "edit", "", "&Value (default is 0.0):", "farads"},
    {13, "csv", "csv", "edit", "", "&Value (default is 0):", ""},
    {14, "dcap", "dcap", "edit", "", "&Value (default is 2):", ""},
    {15, "dccap", "dccap", "edit", "", "&Value (default is off):", ""},
    {16, "dchomotopy", "dchomotopy", "list", "All", "&Value (default is All):", ""},
    {17, "dcmethod", "dcmethod", "list", "Standard", "&Value (default is Standard):", ""},
    {18, "dcstep", "dcstep", "edit", "", "&Value (default is 0.0):", ""},
    {19, "defad", "defad", "edit", "", "&Value (default is 0):", "sq m"},
    {20, "defas", "defas", "edit", "", "&Value (default is 0):", "sq m"},
    {21, "defl", "defl", "edit", "", "&Value (default is 1e-4):", "m"},
    {22, "defnrd", "defnrd", "edit", "", "&Value (default is 0):", "squares"},
    {23, "defnrs", "defnrs", "edit", "", "&Value (default is 0):", "squares"},
    {24, "defpd", "defpd", "edit", "", "&Value (default is 0):", "meters"},
    {25, "defps", "defps", "edit", "", "&Value (default is 0):", "meters"},
    {26, "defw", "defw", "edit", "", "&Value (default is 1e-4):", "m"},
    {27, "deriv", "deriv", "on/off", "Off", "&Value (default is 0):", ""},
    {28, "dnout", "dnout", "edit", "", "&Value (default is 0):", ""},
    {29, "expert", "expert", "on/off", "Off", "&Value (default is off):", ""},
    {30, "extraiterations", "extraiterations", "edit", "", "&Value (default is 0):", ""},
    {31, "fast", "fast", "on/off", "Off", "&Value (default is off):", ""},
    {32, "filetype", "filetype", "list", "quorvasimdb", "&Value (default is quorvasimdb):", ""},
    {33, "ft", "ft", "edit", "", "&Value (default is 0.25):", ""},
    {34, "gmin", "gmin", "edit", "", "&Value (default is 1.0e-12):", "Mhos"},
    {35, "gmindc", "gmindc", "edit", "", "&Value (default is 1.0e-12):", "Mhos"},
    {36, "gramp", "gramp", "edit", "", "&Value (default is 0.0):", ""},
    {37, "gshunt", "gshunt", "edit", "", "&Value (default is 0.0):", "Mhos"},
    {38, "ingold", "ingold", "edit", "", "&Value (default is 0):", ""},
    {39, "kcltest", "kcltest", "on/off", "On", "&Value (default is on):", ""},
    {40, "kvltest", "kvltest", "on/off", "Off", "&Value (default is off):", ""},
    {41, "linearsolver", "linearsolver", "list", "best", "&Value (default is best):", ""},
    {42, "list", "list", "on/off", "Off", "&Value (default is off):", ""},
    {43, "lvltim", "lvltim", "edit", "", "&Value (default is 1):", ""},
    {44, "macmod", "macmod", "edit", "", "&Value (default is 0, disabled):", ""},
    {45, "maxdcfailures", "maxdcfailures", "edit", "", "&Value (default is 4):", ""},
    {46, "maxmsg", "maxmsg", "edit", "", "&Value (default is 5):", ""},
    {47, "maxord", "maxord", "edit", "", "&Value (default is 2):", ""},
    {48, "measform", "measform", "edit", "", "&Value (default is 0):", ""},
    {49, "measinfo", "measinfo", "edit", "", "&Value (default is 0):", ""},
    {50, "method", "method", "list", "trapezoidal", "&Value (default is trap):", ""},
    {51, "mindcratio", "mindcratio", "edit", "", "&Value (default is 1e-4):", ""},
    {52, "minresistance", "resmin", "edit", "", "&Value (default is 1e-5):", "ohms"},
    {53, "minsrcstep", "minsrcstep", "edit", "", "&Value (default is 1e-10):", ""},
    {54, "mintimeratio", "mintimeratio", "edit", "", "&Value (default is 1e-9):", "sec"},
    {55, "mintimestep", "mintimestep", "edit", "", "&Value (default is 5e-016):", "sec"},
    {56, "modmonte", "modmonte", "on/off", "Off", "&Value (default is off):", ""},
    {57, "monteinfo", "monteinfo", "edit", "", "&Value (default is 1):", ""},
    {58, "moscap", "moscap", "on/off", "Off", "&Value (default is off):", ""},
    {59, "mout", "mout", "edit", "", "&Value (default is 0):", ""},
    {60, "mu", "mu", "edit", "", "&Value (default is 0.5):", ""},
    {61, "node", "node", "on/off", "Off", "&Value (default is off):", ""},
    {62, "nomod", "nomod", "on/off", "Off", "&Value (default is off):", ""},
    {63, "numdgt", "numdgt", "edit", "", "&Value (default is 4):", "digits"},
    {64, "numnd (itl1)", "numnd", "edit", "", "&Value (default is 250):", "iterations"},
    {65, "numns (itl6)", "numns", "edit", "", "&Value (default is 50):", "iterations"},
    {66, "numnt (itl4)", "numnt", "edit", "", "&Value (default is 10):", "iterations"},
    {67, "numntreduce (itl3)", "numntreduce", "edit", "", "&Value (default is 3):", "iterations"},
    {68, "numnx (itl2)", "numnx", "edit", "", "&Value (default is 100):", "iterations"},
    {69, "numnxramp", "numnxramp", "edit", "", "&Value (default is 50):", "iterations"},
    {70, "opts", "opts", "on/off", "Off", "&Value (default is off):", ""},
    {71, "outputall", "outputall", "on/off", "Off", "&Value (default is off):", ""},
    {72, "parhier", "parhier", "list", "local", "&Value (default is local)", ""},
    {73, "pathnum", "pathnum", "on/off", "Off", "&Value (default is off):", ""},
    {74, "persist", "persist", "edit", "", "&Value (default is 1):", ""},
    {75, "pivtol", "pivtol", "edit", "", "&Value (default is 1.0e-14):", ""},
    {76, "poweruplen", "poweruplen", "edit", "", "&Value (default is 0.1% of sim. length):", "sec"},
    {77, "precise", "precise", "on/off", "Off", "&Value (default is off):", ""},
    {78, "probei", "probei", "on/off", "Off", "&Value (default is off):", ""},
    {79, "probeq", "probeq", "on/off", "Off", "&Value (default is off):", ""},
    {80, "probev", "probev", "on/off", "On", "&Value (default is on):", ""},
    {81, "prtdel", "prtdel", "edit", "",
     "&Value (default is 0.0, internal timestep intervals):", "sec"},
    {82, "prtinterp", "prtinterp", "on/off", "Off", "&Value (default is off):", ""},
    {83, "rampuplen", "rampuplen", "edit", "", "&Value (default is 0.1% of sim. length):", "sec"},
    {84, "reldv", "reldv", "edit", "", "&Value (default is 0.35):", ""},
    {85, "reli (reltol)", "reli", "edit", "", "&Value (default is 1e-4):", ""},
    {86, "relq (relchargetol)", "relq", "edit", "", "&Value (default is reli):", ""},
    {87, "relv", "relv", "edit", "", "&Value (default is 0.001):", ""},
    {88, "resdelete", "resdelete", "on/off", "Off", "&Value (default is off):", ""},
    {89, "rmax", "rmax", "edit", "", "&Value (default is 2.0):", ""},
    {90, "scale", "scale", "edit", "", "&Value (default is 1.0):", ""},
    {91, "scalm", "scalm", "edit", "", "&Value (default is 1.0):", ""},
    {92, "search", "search", "edit", "", "&Value", ""},
    {93, "spice", "spice", "on/off", "Off", "&Value (default is off):", ""},
    {94, "threads", "threads", "edit", "", "&Value (default is 1):", ""},
    {95, "tnom", "tnom", "edit", "", "&Value (default is 25.0):", "deg C"},
    {96, "tolmult", "tolmult", "edit", "", "&Value (default is 1.0):", ""},
    {97, "trtol", "trtol", "edit", "", "&Value (default is 10):", ""},
    {98, "verbose", "verbose", "edit", "", "&Value (default is 1):", ""},
    {99, "wl", "wl", "on/off", "Off", "&Value (default is off):", ""},
    {100, "xref", "xref", "on/off", "Off", "&Value (default is off):", ""},
    {101, "zpivtol", "zpivtol", "edit", "", "&Value (default is 1.0e-6):", ""},
};
} // namespace

std::span<const TOption> gOptions()
{
    return kOptions;
}

const std::vector<TList>& gLists()
{
    static const std::vector<TList> sLists{
        {"compat", {"HSPICE", "SPICE", "PSPICE"}, {"HSPICE", "SPICE", "PSPICE"}},
        {"dchomotopy",
         {"None", "gminstepping", "sourcestepping", "multiratesourcestepping", "pseudotransient",
          "All"},
         {"none", "gminstepping", "sourcestepping", "multirate", "pseudotransient", "all"}},
        {"dcmethod",
         {"Standard", "gminstepping", "sourcestepping", "multiratesourcestepping",
          "pseudotransient"},
         {"standard", "gminstepping", "sourcestepping", "multirate", "pseudotransient"}},
        {"filetype",
         {"iccap", "rawascii", "rawbinary", "quorvasimdb"},
         {"iccap", "rawascii", "rawbinary", "quorvasimdb"}},
        {"linearsolver", {"best", "KLU", "Sparse"}, {"best", "KLU", "Sparse"}},
        {"method", {"gear", "trapezoidal"}, {"gear", "trap"}},
        {"parhier", {"local", "global"}, {"local", "global"}},
    };
    return sLists;
}

TList gChoicesOf(const TOption& rOption)
{
    const std::string sControl = rOption.pControl;
    if (sControl == "edit")
        return {rOption.pKey, {}, {}};
    for (const TList& rList : gLists())
        if (std::string(rList.pKey) == rOption.pKey)
            return rList;
    return {rOption.pKey, {"Off", "On"}, {"0", "1"}};
}
} // namespace optionRows
