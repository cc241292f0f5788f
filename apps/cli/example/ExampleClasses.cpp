#include "cli/example/ExampleClasses.h"

#include <string_view>

namespace quorvawiz::cli
{
namespace
{
constexpr double kNone = kUninitializedParamValue;

constexpr TExampleParam kMosModel[]{
    {"vto", "V", "Zero-bias threshold voltage", 0.7, "vt0"},
    {"kp", "A/V^2", "Transconductance parameter", 2e-5},
    {"gamma", "V^0.5", "Body effect parameter", 0.37},
    {"phi", "V", "Surface potential", 0.65},
    {"lambda", "1/V", "Channel-length modulation", 0.02},
    {"tox", "m", "Oxide thickness", 1e-7},
    {"nsub", "1/cm^3", "Substrate doping", 1e15},
    {"uo", "cm^2/(V s)", "Surface mobility", 600, "u0"},
    {"cgso", "F/m", "Gate-source overlap capacitance per width", 4e-11},
    {"cgdo", "F/m", "Gate-drain overlap capacitance per width", 4e-11},
    {"tnom", "\u00B0C", "Temperature at which the parameters were measured", 27, "tref"},
};
constexpr TExampleParam kMosDevice[]{
    {"w", "m", "Channel width", 1e-6},
    {"l", "m", "Channel length", 1e-6},
    {"ad", "m^2", "Area of the drain", 0},
    {"as", "m^2", "Area of the source", 0},
    {"pd", "m", "Perimeter of the drain", 0},
    {"ps", "m", "Perimeter of the source", 0},
    {"nrd", "squares", "Squares of the drain", 1},
    {"nrs", "squares", "Squares of the source", 1},
    {"m", "", "How many in parallel", 1, "mult"},
};
constexpr TExampleParam kMosState[]{
    {"vgs", "V", "Gate-source voltage", kNone},    {"vds", "V", "Drain-source voltage", kNone},
    {"vbs", "V", "Bulk-source voltage", kNone},    {"id", "A", "Drain current", kNone, "ids"},
    {"gm", "S", "Transconductance", kNone},        {"gds", "S", "Output conductance", kNone},
    {"vth", "V", "Threshold voltage", kNone},      {"cgs", "F", "Gate-source capacitance", kNone},
    {"cgd", "F", "Gate-drain capacitance", kNone},
};
constexpr TExampleParam kBipolarModel[]{
    {"is", "A", "Saturation current", 1e-16},
    {"bf", "", "Forward current gain", 100, "beta"},
    {"br", "", "Reverse current gain", 1},
    {"vaf", "V", "Forward Early voltage", 74, "va"},
    {"rb", "\u03A9", "Base resistance", 100},
    {"re", "\u03A9", "Emitter resistance", 0.5},
    {"rc", "\u03A9", "Collector resistance", 10},
    {"cje", "F", "Base-emitter capacitance", 1e-12},
    {"cjc", "F", "Base-collector capacitance", 5e-13},
    {"tf", "s", "Forward transit time", 3e-10},
};
constexpr TExampleParam kBipolarDevice[]{
    {"area", "", "Area relative to the model", 1},
    {"areab", "", "Area of the base", 1},
    {"areac", "", "Area of the collector", 1},
    {"dtemp", "K", "Temperature above the circuit's", 0},
    {"m", "", "How many in parallel", 1, "mult"},
};
constexpr TExampleParam kBipolarState[]{
    {"vbe", "V", "Base-emitter voltage", kNone}, {"vbc", "V", "Base-collector voltage", kNone},
    {"ic", "A", "Collector current", kNone},     {"ib", "A", "Base current", kNone},
    {"gm", "S", "Transconductance", kNone},      {"gpi", "S", "Input conductance", kNone},
    {"go", "S", "Output conductance", kNone},
};
constexpr TExampleParam kDiodeModel[]{
    {"is", "A", "Saturation current", 1e-14},   {"n", "", "Emission coefficient", 1},
    {"rs", "\u03A9", "Series resistance", 0},   {"cjo", "F", "Zero-bias capacitance", 0, "cj0"},
    {"vj", "V", "Junction potential", 1, "pb"}, {"bv", "V", "Breakdown voltage", kNone},
};
constexpr TExampleParam kDiodeDevice[]{
    {"area", "", "Area relative to the model", 1},
    {"pj", "m", "Perimeter", 0},
    {"dtemp", "K", "Temperature above the circuit's", 0},
    {"m", "", "How many in parallel", 1, "mult"},
};
constexpr TExampleParam kDiodeState[]{
    {"vd", "V", "Voltage", kNone},
    {"id", "A", "Current", kNone},
    {"gd", "S", "Conductance", kNone},
    {"cd", "F", "Capacitance", kNone},
};
constexpr TExampleParam kResistorModel[]{
    {"rsh", "\u03A9/square", "Sheet resistance", 50},
    {"tc1", "1/K", "Linear temperature coefficient", 0},
    {"tc2", "1/K^2", "Quadratic temperature coefficient", 0},
};
constexpr TExampleParam kResistorDevice[]{
    {"r", "\u03A9", "Resistance", 1000},
    {"w", "m", "Width", 1e-6},
    {"l", "m", "Length", 1e-5},
    {"tc1", "1/K", "Linear temperature coefficient", 0},
    {"tc2", "1/K^2", "Quadratic temperature coefficient", 0},
    {"m", "", "How many in parallel", 1, "mult"},
};
constexpr TExampleParam kResistorState[]{
    {"v", "V", "Voltage", kNone},
    {"i", "A", "Current", kNone},
    {"p", "W", "Power", kNone},
    {"reff", "\u03A9", "Effective resistance", kNone},
};
constexpr TExampleParam kCapacitorModel[]{
    {"cj", "F/m^2", "Capacitance per area", 5e-5},
    {"cjsw", "F/m", "Capacitance per perimeter", 2e-11},
};
constexpr TExampleParam kCapacitorDevice[]{
    {"c", "F", "Capacitance", 1e-12},
    {"ic", "V", "Initial voltage", kNone},
    {"w", "m", "Width", 1e-6},
    {"l", "m", "Length", 1e-5},
    {"m", "", "How many in parallel", 1, "mult"},
};
constexpr TExampleParam kCapacitorState[]{
    {"v", "V", "Voltage", kNone},
    {"q", "C", "Charge", kNone},
    {"ceff", "F", "Effective capacitance", kNone},
};
constexpr TExampleParam kLaserModel[]{
    {"eta", "W/A", "Slope efficiency", 0.3},
    {"ith", "A", "Threshold current", 0.01},
};

constexpr TExampleClass kClasses[]{
    {"MOS3", "nmos", 3, 3.2, "Semi-empirical MOS transistor", 'M', kMosModel, kMosDevice,
     kMosState},
    {"GUMMEL_POON", "npn", 1, 1.0, "Gummel\u2013Poon bipolar transistor", 'Q', kBipolarModel,
     kBipolarDevice, kBipolarState},
    {"DIODE", "d", 1, 2.0, "Junction diode", 'D', kDiodeModel, kDiodeDevice, kDiodeState},
    {"R", "r", 1, 1.0, "Resistor", 'R', kResistorModel, kResistorDevice, kResistorState},
    {"C", "c", 1, 1.0, "Capacitor", 'C', kCapacitorModel, kCapacitorDevice, kCapacitorState},
};

constexpr TExampleClass kOpticalClass{
    "LASER_DIODE", "laser", 1, 1.1, "Fabry\u2013P\u00E9rot laser diode", 'L', kLaserModel, {}, {}};

CStringU FromUtf8(const char* pText)
{
    return {pText, TTextKind::Utf8IfNeeded};
}

TParamDefs MakeDefs(std::span<const TExampleParam> params)
{
    TParamDefs defs;
    for (const TExampleParam& rParam : params) {
        TParamDef def;
        def.msName = rParam.pName;
        def.mValue = rParam.dDefault;
        if (std::string_view(rParam.pName) == "m")
            def.mValue = 1; // the one that counts
        def.msUnits = FromUtf8(rParam.pUnits);
        def.msDescription = FromUtf8(rParam.pDescription);
        if (rParam.pAlias != nullptr)
            def.mAliases.insert(rParam.pAlias);
        defs.push_back(def);
    }
    return defs;
}
} // namespace

std::span<const TExampleClass> gExampleClasses()
{
    return kClasses;
}

const TExampleClass& gExampleOpticalClass()
{
    return kOpticalClass;
}

TModelClassDef gMakeExampleClass(const TExampleClass& rClass)
{
    TModelClassDef made;
    made.mHeader = {rClass.pName, rClass.pType, rClass.nLevel, rClass.dVersion,
                    FromUtf8(rClass.pDescription)};
    made.mModelParamDefs = MakeDefs(rClass.model);
    made.mDeviceParamDefs = MakeDefs(rClass.device);
    made.mStateParamDefs = MakeDefs(rClass.state);
    return made;
}

} // namespace quorvawiz::cli
