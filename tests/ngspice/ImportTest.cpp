// Imports from the installed simulator, by the program and by the function behind it.

#include "simulators/ngspice/Import.h"

#include "params/CircuitParams.h"
#include "params/ReadParamsFile.h"
#include "simulators/TellValue.h"
#include "simulators/ngspice/process/ImportError.h"
#include "support/RunProgram.h"
#include "support/TempFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <iterator>
#include <set>
#include <stop_token>
#include <string>
#include <vector>

namespace
{

using ::testing::HasSubstr;
using ::testing::StartsWith;

std::string Example(const std::string& rsName)
{
    return QUORVAWIZ_SOURCE_DIR "/examples/" + rsName;
}

class Import : public ::testing::Test
{
protected:
    /// Imports a netlist by the program, which keeps its cache in a folder of all these tests.
    TProgramRun Run(const std::string& rsNetlist, const std::vector<std::string>& rMore = {})
    {
        std::vector<std::string> arguments{"XDG_CACHE_HOME=" + sCache.Path("cache"),
                                           QUORVAWIZ_CLI_PATH,
                                           "import",
                                           rsNetlist,
                                           "-o",
                                           mFolder.Path("out.params")};
        arguments.insert(arguments.end(), rMore.begin(), rMore.end());
        return gRunProgram("env", arguments);
    }

    void RunWell(const std::string& rsNetlist)
    {
        const TProgramRun run = Run(rsNetlist);
        ASSERT_EQ(run.nExitCode, 0) << run.sError;
        TReadParamsFile read = gReadParamsFile(CStringU(mFolder.Path("out.params")));
        ASSERT_EQ(read.msMessage, CStringU());
        mpStore = read.mpStore;
    }

    const TDeviceData& Device(const char* pSubckt, const char* pName) const
    {
        const TDeviceData* const pDevice =
            mpStore->GetDeviceData(CStringU(pSubckt), CStringU(pName));
        if (pDevice == nullptr) {
            throw std::runtime_error(std::string("no device ") + pSubckt + " " + pName);
        }
        return *pDevice;
    }

    std::string ValuesOf(const char* pSubckt, const char* pName) const
    {
        return gTellValues(Device(pSubckt, pName).mDeviceParamValues);
    }

    std::set<std::string> ClassesOfDevices() const
    {
        std::set<std::string> names;
        for (const TDeviceListEntry& rEntry : mpStore->GetDeviceList(-1)) {
            const TDeviceData* const pDevice =
                mpStore->GetDeviceData(rEntry.mnSubckt, rEntry.msName);
            names.insert(std::string(pDevice->mModelHeader.msClass.Text()));
        }
        return names;
    }

    bool HasOut() const { return std::filesystem::exists(mFolder.Path("out.params")); }

    static inline CTempFolder sCache;
    CTempFolder mFolder;
    boost::shared_ptr<TCircuitParams> mpStore;
};

TEST_F(Import, AnRcFilter)
{
    RunWell(Example("rc-filter.cir"));
    EXPECT_EQ(ValuesOf("top", "r1"), "resistance: double 10k");
    EXPECT_EQ(ValuesOf("top", "c1"), "capacitance: double 1.6n");
    EXPECT_EQ(ClassesOfDevices(), (std::set<std::string>{"Capacitor", "Resistor", "Vsource"}));
    EXPECT_TRUE(mpStore->GetModelList().empty());
}

TEST_F(Import, ABipolarAmplifier)
{
    RunWell(Example("bjt-amplifier.cir"));
    const TDeviceData& rTransistor = Device("top", "q1");
    EXPECT_EQ(rTransistor.mModelHeader.msType, CStringU("npn"));
    ASSERT_NE(rTransistor.mpModelData, nullptr);
    const TModelData& rModel = *rTransistor.mpModelData;
    EXPECT_EQ(gTellValue(rModel.GetParamValue("bf")), "double 416");
    EXPECT_EQ(gTellValue(rModel.GetParamValue("is")), "double 6.73f");
    // Merged with the defaults of the class.
    int nSet = 0;
    for (const TParamDef& rParam : rModel.GetParams()) {
        nSet += rParam.mIsSet ? 1 : 0;
        if (rParam.msName == CStringU("nf")) {
            EXPECT_EQ(gTellValue(rParam.mValue), "double 1");
            EXPECT_FALSE(rParam.mIsSet);
        }
    }
    EXPECT_EQ(nSet, 28); // the 27 parameters and the type
    const double dCurrent = boost::get<double>(rTransistor.mStateParamValues.at("ic"));
    EXPECT_GT(dCurrent, 0.5e-3);
    EXPECT_LT(dCurrent, 2e-3);
}

TEST_F(Import, ARingOscillatorInNestedSubcircuits)
{
    RunWell(Example("ring-oscillator.cir"));
    EXPECT_EQ(ValuesOf("x6.x2", "mp"), "l: double 180n; w: double 1.25u; ad: double 625f; "
                                       "pd: double 3.5u");
    const TDeviceData& rTransistor = Device("x6.x2", "mp");
    EXPECT_EQ(rTransistor.mModelHeader.msClass, CStringU("Mos1"));
    EXPECT_EQ(rTransistor.mModelHeader.mnSubckt, 0);
    EXPECT_EQ(mpStore->GetDeviceList(-1).size(), 23U);
    EXPECT_EQ(mpStore->mSubcktTable.GetCount(), 9U);
}

TEST_F(Import, ADiodeClamp)
{
    RunWell(Example("diode-clamp.cir"));
    EXPECT_EQ(ClassesOfDevices(),
              (std::set<std::string>{"BSIM4", "Capacitor", "Diode", "Resistor", "Vsource"}));
    EXPECT_EQ(ValuesOf("xpad", "dh"), "area: double 4");
    EXPECT_EQ(gTellValue(mpStore->GetModelData("xpad", "dclamp")->GetParamValue("cjo")),
              "double 900f");
    EXPECT_NEAR(mpStore->GetModelClass("BSIM4")->mHeader.mdVersion, 4.8, 1e-9);
}

TEST_F(Import, ClassesHaveDescriptionsAndDefaults)
{
    RunWell(Example("rc-filter.cir"));
    EXPECT_GT(mpStore->mModelClasses.size(), 100U);
    std::size_t nDescribed = 0;
    std::size_t nWithDefault = 0;
    for (const auto& [rsName, rClass] : mpStore->mModelClasses) {
        for (const TParamDef& rDef : rClass.mModelParamDefs) {
            nDescribed += rDef.msDescription.IsEmpty() ? 0 : 1;
            nWithDefault += gTellValue(rDef.mValue) == "none" ? 0 : 1;
        }
    }
    EXPECT_GT(nDescribed, 8000U);
    EXPECT_GT(nWithDefault, 7000U);
    EXPECT_THAT(std::string(mpStore->GetModelClass("Resistor")->mHeader.msDescription.Text()),
                StartsWith("Simple linear resistor (ngspice-"));
}

TEST_F(Import, TenThousandDevices)
{
    std::string sNetlist = "ten thousand\n.model dd d(is=1e-15)\nvdd vdd 0 1\n";
    constexpr int count = 3333;
    for (int n = 0; n < count; ++n) {
        const std::string s = std::to_string(n);
        sNetlist += "r" + s + " vdd n" + s + " " + std::to_string(1000 + n) + "\nd" + s + " n" + s +
                    " 0 dd\nc" + s + " n" + s + " 0 1p\n";
    }
    RunWell(mFolder.Write("big.cir", sNetlist));
    EXPECT_EQ(mpStore->GetDeviceList(-1).size(), 3 * count + 1U);
    EXPECT_EQ(ValuesOf("top", "r3332"), "resistance: double 4.332k");
}

TEST_F(Import, ModelsWithLongNamesAreToldApart)
{
    std::string sNetlist = "names\nvdd vdd 0 1\n";
    for (int n = 0; n < 20; ++n) {
        const std::string s = std::to_string(n);
        sNetlist += "d" + s + " vdd 0 a_model_whose_name_is_cut_" + s + "\n.model " +
                    "a_model_whose_name_is_cut_" + s + " d(is=" + std::to_string(n + 1) + "e-15)\n";
    }
    RunWell(mFolder.Write("names.cir", sNetlist));
    for (int n = 0; n < 20; ++n) {
        const TDeviceData& rDevice = Device("top", ("d" + std::to_string(n)).c_str());
        ASSERT_NE(rDevice.mpModelData, nullptr);
        EXPECT_EQ(gTellValue(rDevice.mpModelData->GetParamValue("is")),
                  "double " + std::to_string(n + 1) + "f");
    }
}

/// Every way into the simulator's commands that a netlist has.
TEST_F(Import, RunsNoCommandOfTheNetlist)
{
    const std::string sTouch = "shell touch " + mFolder.Path("ran") + "\n";
    const std::string sWrite = "echo x > " + mFolder.Path("ran") + "\n";
    mFolder.Write("part.cir", "*# " + sTouch + ".control\n" + sTouch + sWrite + ".endc\n");
    mFolder.Write("part.lib", ".lib TT\n.CONTROL\n" + sTouch + sWrite + ".endc\n.endl TT\n");
    const std::string sBody = "v1 a 0 1\nr1 a 0 1k\n.include part.cir\n.lib part.lib TT\n"
                              ".inc '" +
                              mFolder.Path("part.cir") +
                              "'\n"
                              ".con\rtrol\n" +
                              sTouch + sWrite + "pre_" + sTouch + ".endc\n*#" + sTouch +
                              ".end\n.control\n" + sTouch;
    for (const char* const pTitle :
         {"title\n", "*ng_script\n", ".control\n", ".include part.cir\n"}) {
        const TProgramRun run = Run(mFolder.Write("netlist.cir", pTitle + sBody));
        EXPECT_EQ(run.nExitCode, 0) << pTitle << run.sError;
        EXPECT_THAT(run.sError, HasSubstr("blocks or lines of commands"));
        EXPECT_FALSE(std::filesystem::exists(mFolder.Path("ran"))) << pTitle;
    }
    // Which is what would happen without the importer.
    gRunProgram("ngspice", {"-n", "-b", mFolder.Path("netlist.cir")});
    EXPECT_TRUE(std::filesystem::exists(mFolder.Path("ran")));
}

struct TFailure {
    const char* pName;
    const char* pNetlist;
    const char* pWords;
};

TEST_F(Import, TellsWhatTheSimulatorSaysOfANetlistThatFails)
{
    constexpr TFailure failures[] = {
        {"no model", "title\nm1 a b c d nomodel\n", "can't find model 'nomodel'"},
        {"no section", "title\n.lib nowhere.lib TT\nr1 a 0 1\n", "nowhere.lib"},
        {"no such section", "title\n.lib part.lib nosuch\nr1 a 0 1\n", "/part.lib"},
        {"no parameter", "title\nr1 a 0 {nothing}\n", "Undefined parameter [nothing]"},
    };
    mFolder.Write("out.params", "what was there");
    mFolder.Write("part.lib", ".lib TT\n.endl TT\n");
    for (const TFailure& rFailure : failures) {
        const TProgramRun run = Run(mFolder.Write("netlist.cir", rFailure.pNetlist));
        EXPECT_EQ(run.nExitCode, 1) << rFailure.pName;
        EXPECT_THAT(run.sError, StartsWith("quorvawiz: the simulator fails at the netlist: "))
            << rFailure.pName;
        EXPECT_THAT(run.sError, HasSubstr(rFailure.pWords)) << rFailure.pName;
        EXPECT_EQ(run.sOut, "");
        EXPECT_EQ(mFolder.Read("out.params"), "what was there") << rFailure.pName;
    }
}

TEST_F(Import, TellsThatThereIsNoOperatingPoint)
{
    const TProgramRun run =
        Run(mFolder.Write("netlist.cir", "title\nd1 a 0 dm\n.model dm d(is=1e-14)\nr1 a 0 1\n"
                                         "b1 a 0 v=1e6*exp(100*sin(1e7*v(a)))\n"
                                         ".option itl1=2 gminsteps=0 srcsteps=0 noopiter\n"));
    EXPECT_EQ(run.nExitCode, 1);
    EXPECT_THAT(run.sError,
                StartsWith("quorvawiz: the simulator finds no operating point of the netlist\n"));
    EXPECT_THAT(run.sError, HasSubstr("Transient op failed"));
    EXPECT_FALSE(HasOut());
    const TProgramRun twoSources = Run(mFolder.Write("netlist.cir", "title\nv1 a 0 1\nv2 a 0 2\n"));
    EXPECT_THAT(twoSources.sError, HasSubstr("singular matrix"));
    EXPECT_THAT(twoSources.sError, HasSubstr("op simulation(s) aborted"));
    EXPECT_EQ(twoSources.sError.find("Trying gmin"), std::string::npos);
}

TEST_F(Import, TellsThatANetlistHasNoDevice)
{
    for (const char* const pNetlist : {"", "title\n", "title\n.param a=1\n"}) {
        EXPECT_EQ(Run(mFolder.Write("netlist.cir", pNetlist)),
                  (TProgramRun{"", "quorvawiz: the netlist has no device\n", 1}));
    }
}

TEST_F(Import, TellsWhatIsMissing)
{
    EXPECT_EQ(
        Run(mFolder.Path("nowhere.cir")),
        (TProgramRun{"", "quorvawiz: there is no netlist '" + mFolder.Path("nowhere.cir") + "'\n",
                     1}));
    EXPECT_EQ(Run(Example("rc-filter.cir"), {"--simulator", "nowhere"}),
              (TProgramRun{"",
                           "quorvawiz: there is no simulator 'nowhere'; on Debian the package "
                           "ngspice has it\n",
                           1}));
    EXPECT_FALSE(HasOut());
}

TEST_F(Import, TellsWhereNothingCanBeWrittenBeforeItSimulates)
{
    const auto failure = [](const std::string& rsWords) {
        return TProgramRun{"", "quorvawiz: can't write '" + rsWords + "\n", 1};
    };
    const auto runTo = [](const std::string& rsOut) {
        return gRunProgram(QUORVAWIZ_CLI_PATH, {"import", Example("rc-filter.cir"), "-o", rsOut,
                                                "--simulator", "never asked for"});
    };
    const std::string sNowhere = mFolder.Path("nowhere/out.params");
    EXPECT_EQ(runTo(sNowhere), failure(sNowhere + "': No such file or directory"));
    const std::string sFile = mFolder.Write("file", "") + "/out.params";
    EXPECT_EQ(runTo(sFile), failure(sFile + "': Not a directory"));
    EXPECT_EQ(runTo(mFolder.Path("")), failure(mFolder.Path("") + "': Is a directory"));
    EXPECT_EQ(runTo(""), failure("': No such file or directory"));
}

TEST_F(Import, TellsWhyThereIsNoTemporaryFolder)
{
    const TProgramRun run =
        gRunProgram("env", {"TMPDIR=/no/such/folder", QUORVAWIZ_CLI_PATH, "import",
                            Example("rc-filter.cir"), "-o", mFolder.Path("out.params")});
    EXPECT_EQ(run.nExitCode, 1);
    EXPECT_THAT(run.sError,
                StartsWith("quorvawiz: can't make a temporary folder in '/no/such/folder': "));
}

TEST_F(Import, TellsWhichTimeIsAllowed)
{
    for (const std::string sTime : {"0", "-5", "x", "1000001"}) {
        EXPECT_EQ(Run(Example("rc-filter.cir"), {"--timeout=" + sTime}),
                  (TProgramRun{"",
                               "quorvawiz: --timeout takes a number from 1 to 1000000, not \"" +
                                   sTime + "\"\n",
                               2}));
    }
}

TEST_F(Import, ReplacesNoNetlist)
{
    const std::string sNetlist = mFolder.Write("out.params", "title\nr1 a 0 1\n");
    EXPECT_EQ(Run(sNetlist),
              (TProgramRun{"", "quorvawiz: the params file would replace the netlist\n", 2}));
}

TEST_F(Import, TellsItsStages)
{
    RunWell(Example("rc-filter.cir")); // so that the classes are known
    EXPECT_EQ(Run(Example("rc-filter.cir"), {"--progress"}).sError,
              "progress: netlist\nprogress: simulation\nprogress: store\nprogress: file\n");
}

/// The folders of imports among the temporary files.
std::size_t CountFolders(const std::string& rsTemporary)
{
    const std::filesystem::directory_iterator all(rsTemporary);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

TEST_F(Import, EndsBySignalAndLeavesNothing)
{
    const std::string sTemporary = mFolder.Path("temporary");
    std::filesystem::create_directory(sTemporary);
    for (const char* const pSignal : {"TERM", "INT", "HUP"}) {
        const std::string sSimulator =
            mFolder.Write("simulator", std::string("#!/bin/sh\nkill -") + pSignal +
                                           " $PPID\nwhile :; do :; done\n");
        std::filesystem::permissions(sSimulator, std::filesystem::perms::owner_all);
        const TProgramRun run = gRunProgram(
            "env", {"TMPDIR=" + sTemporary, QUORVAWIZ_CLI_PATH, "import", Example("rc-filter.cir"),
                    "-o", mFolder.Path("out.params"), "--simulator", sSimulator});
        EXPECT_EQ(run, (TProgramRun{"", "quorvawiz: the import was cancelled\n", 1})) << pSignal;
        EXPECT_EQ(CountFolders(sTemporary), 0U) << pSignal;
        EXPECT_FALSE(HasOut());
    }
}

TEST_F(Import, ANewSimulatorIsAskedOnce)
{
    using namespace quorvawiz::ngspice;
    TImportOptions options;
    options.netlist = Example("rc-filter.cir");
    options.cache = mFolder.Path("cache");
    int nAsked = 0;
    const auto count = [&](const TImportProgress& rProgress) {
        nAsked += rProgress.eStage == EImportStage::Classes ? 1 : 0;
    };
    EXPECT_EQ(gImport(options, {}, count).nDevices, 6U);
    EXPECT_GT(nAsked, 50);
    nAsked = 0;
    EXPECT_EQ(gImport(options, {}, count).nDevices, 6U);
    EXPECT_EQ(nAsked, 0);
    for (const auto& rEntry : std::filesystem::directory_iterator(mFolder.Path("cache"))) {
        std::filesystem::resize_file(rEntry.path(), 1000);
    }
    EXPECT_EQ(gImport(options, {}, count).nDevices, 6U);
    EXPECT_GT(nAsked, 50);
}

} // namespace
