#include "simulators/ngspice/catalogue/BareCircuits.h"

#include <algorithm>
#include <array>

namespace quorvawiz::ngspice
{
namespace
{

// Values stand where a device can't do without, and where what is shown of them is memory that was
// never filled: reciproctc and reciprocm. One row is one class.
// clang-format off
constexpr auto kCircuits = std::to_array<TBareCircuit>({
    {"Resistor", "r", 0, "rdut n0 0 1\nrtwin n0 0 2\n"},
    {"Capacitor", "c", 0, "cdut n0 0 1p\nctwin n0 0 2p\n"},
    {"Inductor", "l", 0, "ldut n1 0 1u\nltwin n1 0 2u\nr1 n1 0 1\n"},
    {"mutual", "k", 0, 
     "l1 n1 0 1u\n"
     "l2 n2 0 1u\n"
     "l3 n3 0 1u\n"
     "l4 n4 0 1u\n"
     "r1 n1 0 1\n"
     "r2 n2 0 1\n"
     "r3 n3 0 1\n"
     "r4 n4 0 1\n"
     "kdut l1 l2 0.5\n"
     "ktwin l3 l4 0.25\n"},
    {"Vsource", "v", 0, "vdut n1 0\nr1 n1 0 1\n"},
    {"Isource", "i", 0, "idut n0 0\n"},
    {"VCVS", "e", 0, "edut n1 0 n0 0 1\nr1 n1 0 1\netwin n2 0 n0 0 2\nr2 n2 0 1\n"},
    {"VCCS", "g", 0, "gdut n0 0 n0 0 1\ngtwin n0 0 n0 0 2\n"},
    {"CCCS", "f", 0, "fdut n0 0 v0 1\nv1 n1 0 0\nftwin n0 0 v1 2\n"},
    {"CCVS", "h", 0, 
     "hdut n1 0 v0 1\n"
     "r1 n1 0 1\n"
     "v1 n2 0 0\n"
     "htwin n3 0 v1 2\n"
     "r3 n3 0 1\n"},
    {"ASRC", "b", 0, "bdut n0 0 i=0\nbtwin n0 0 i=1 reciproctc=1 reciprocm=1\n"},
    {"Switch", "sw", 1,
     "sdut n0 0 n0 0 dutmodel\n"
     "stwin n1 n2 n0 0 dutmodel\n"
     "r1 n1 0 1\n"
     "r2 n2 0 1\n"
     ".model dutmodel sw\n"},
    {"CSwitch", "csw", 1,
     "wdut n0 0 v0 dutmodel\n"
     "v1 n1 0 0\n"
     "wtwin n0 0 v1 dutmodel\n"
     ".model dutmodel csw\n"},
    {"Tranline", "t", 0, "tdut n0 0 n0 0 z0=50 td=1n\nttwin n0 0 n0 0 z0=60 td=2n\n"},
    {"LTRA", "ltra", 1, "odut n0 0 n0 0 dutmodel\n.model dutmodel ltra r=1 l=1n c=1p len=1\n"},
    {"URC", "urc", 1, 
     "udut n0 n1 0 dutmodel l=1\n"
     "r1 n1 0 1\n"
     "utwin n0 n2 0 dutmodel l=2\n"
     "r2 n2 0 1\n"
     ".model dutmodel urc\n"},
    {"TransLine", "txl", 1,
     "ydut n0 0 n1 0 dutmodel len=1\n"
     "r1 n1 0 1\n"
     "ytwin n0 0 n2 0 dutmodel len=2\n"
     "r2 n2 0 1\n"
     ".model dutmodel txl r=1 l=1n g=0 c=1p length=1\n"},
    {"CplLines", "cpl", 1,
     "pdut n0 n1 0 n2 n3 0 dutmodel len=1\n"
     "r1 n1 0 1\n"
     "r2 n2 0 1\n"
     "r3 n3 0 1\n"
     "ptwin n4 0 n5 0 twinmodel len=2\n"
     "r4 n4 0 1\n"
     "r5 n5 0 1\n"
     ".model dutmodel cpl r=1 0 1 l=1n 0.1n 1n g=0 0 0 c=1p -0.1p 1p length=1\n"
     ".model twinmodel cpl r=1 l=1n g=0 c=1p length=1\n"},
    {"Diode", "d", 1, "ddut n0 0 dutmodel\n.model dutmodel d\n"},
    {"BJT", "npn", 1, "qdut n0 n0 0 dutmodel\n.model dutmodel npn\n"},
    {"VBIC", "npn", 4, "qdut n0 n0 0 dutmodel\n.model dutmodel npn level=4\n"},
    {"hicum2", "npn", 8, "qdut n0 n0 0 0 dutmodel\n.model dutmodel npn level=8\n"},
    {"JFET", "njf", 1, "jdut n0 n0 0 dutmodel\n.model dutmodel njf\n"},
    {"JFET2", "njf", 2, "jdut n0 n0 0 dutmodel\n.model dutmodel njf level=2\n"},
    {"MES", "nmf", 1, "zdut n0 n0 0 dutmodel\n.model dutmodel nmf\n"},
    {"MESA", "nmf", 2, "zdut n0 n0 0 dutmodel\n.model dutmodel nmf level=2\n"},
    {"HFET1", "nmf", 5, "zdut n0 n0 0 dutmodel\n.model dutmodel nmf level=5\n"},
    {"HFET2", "nmf", 6, "zdut n0 n0 0 dutmodel\n.model dutmodel nmf level=6\n"},
    {"Mos1", "nmos", 1, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=1\n"},
    {"Mos2", "nmos", 2, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=2\n"},
    {"Mos3", "nmos", 3, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=3\n"},
    {"BSIM1", "nmos", 4, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=4\n"},
    {"BSIM2", "nmos", 5, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=5\n"},
    {"Mos6", "nmos", 6, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=6\n"},
    {"BSIM3", "nmos", 8, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=8\n"},
    {"BSIM3v32", "nmos", 8,
     "mdut n0 n0 0 0 dutmodel\n"
     ".model dutmodel nmos level=8 version=3.2.4\n"},
    {"BSIM3v1", "nmos", 8, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=8 version=3.1\n"},
    {"BSIM3v0", "nmos", 8, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=8 version=3.0\n"},
    {"Mos9", "nmos", 9, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=9\n"},
    {"B4SOI", "nmos", 10, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=10\n"},
    {"BSIM4", "nmos", 14, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=14\n"},
    {"BSIM4v7", "nmos", 14, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=14 version=4.7\n"},
    {"BSIM4v6", "nmos", 14,
     "mdut n0 n0 0 0 dutmodel\n"
     ".model dutmodel nmos level=14 version=4.6.5\n"},
    {"BSIM4v5", "nmos", 14, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=14 version=4.5\n"},
    {"B3SOIFD", "nmos", 55, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=55\n"},
    {"B3SOIDD", "nmos", 56, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=56\n"},
    {"B3SOIPD", "nmos", 57, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=57\n"},
    {"HiSIM2", "nmos", 68, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=68\n"},
    {"HiSIMHV1", "nmos", 73,
     "mdut n0 n0 0 0 dutmodel\n"
     ".model dutmodel nmos level=73 version=1.2\n"},
    {"HiSIMHV2", "nmos", 73, "mdut n0 n0 0 0 dutmodel\n.model dutmodel nmos level=73\n"},
    {"VDMOS", "vdmos", 1, "mdut n0 n0 0 dutmodel\n.model dutmodel vdmos\n"},
});
// clang-format on

} // namespace

std::span<const TBareCircuit> gBareCircuits() noexcept
{
    return kCircuits;
}

const TBareCircuit* gFindBareCircuit(std::string_view sClass) noexcept
{
    const auto found = std::ranges::find(kCircuits, sClass, &TBareCircuit::sClass);
    return found != kCircuits.end() ? &*found : nullptr;
}

} // namespace quorvawiz::ngspice
