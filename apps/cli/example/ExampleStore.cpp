#include "cli/example/ExampleStore.h"

#include "cli/example/ExampleClasses.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvawiz::cli
{
namespace
{
constexpr int kDevicesPerSubckt = 200;

/// Draws numbers by a rule of its own, as those of the standard library differ between systems.
class CDraw
{
public:
    explicit CDraw(std::uint64_t nSeed) : mnState(nSeed) {}

    /// A number from 0 to nCount less 1.
    int Below(int nCount) { return static_cast<int>(Next() % static_cast<std::uint64_t>(nCount)); }

    /// A number in [0, 1) with all its digits.
    double Fraction() { return static_cast<double>(Next() >> 11U) * 0x1p-53; }

private:
    std::uint64_t Next()
    {
        mnState += 0x9E3779B97F4A7C15U;
        std::uint64_t n = mnState;
        n = (n ^ (n >> 30U)) * 0xBF58476D1CE4E5B9U;
        n = (n ^ (n >> 27U)) * 0x94D049BB133111EBU;
        return n ^ (n >> 31U);
    }

    std::uint64_t mnState;
};

/// A value around the default, or anywhere in the usual range of a state.
TParamValue DrawValue(CDraw& rDraw, const TExampleParam& rParam, bool bMayBeUnset)
{
    if (std::isnan(rParam.dDefault)) {
        if (bMayBeUnset && rDraw.Below(20) == 0)
            return kUninitializedParamValue;
        return std::ldexp(rDraw.Fraction() - 0.5, -rDraw.Below(30));
    }
    if (std::string_view(rParam.pName) == "m")
        return 1 + rDraw.Below(8);
    const double dBase = rParam.dDefault == 0 ? 1e-12 : rParam.dDefault;
    return dBase * (0.5 + rDraw.Fraction());
}

/// Those of models are always set: in them the file has NaN as it is, which not every reader takes.
void DrawValues(CDraw& rDraw, std::span<const TExampleParam> params, int nOutOfTen,
                bool bMayBeUnset, TParamValues& rValues)
{
    for (const TExampleParam& rParam : params)
        if (rDraw.Below(10) < nOutOfTen)
            rValues[rParam.pName] = DrawValue(rDraw, rParam, bMayBeUnset);
}

CStringU SubcktName(int nSubckt)
{
    static constexpr const char* kKinds[]{"xadc", "xpll",           "xbuf",
                                          "xosc", "xfilter_\u00B5", "xverst\u00E4rker"};
    const std::string sName = kKinds[nSubckt % 6] + std::to_string(nSubckt);
    return {sName, TTextKind::Utf8IfNeeded};
}

void AddModels(TCircuitParams& rStore, CDraw& rDraw, int nSubckt,
               std::vector<TModelHeader>& rHeaders)
{
    rHeaders.clear();
    for (const TExampleClass& rClass : gExampleClasses()) {
        TModelData model;
        model.mModelHeader = {nSubckt, std::string(rClass.pType) + "_typ", rClass.pName,
                              rClass.pType};
        DrawValues(rDraw, rClass.model, 7, false, model.mModelParamValues);
        if (rDraw.Below(4) == 0)
            model.mModelParamValues["corner"] =
                CStringU("typ\u00AD\u2013slow", TTextKind::Utf8IfNeeded);
        rStore.AddModel(model);
        rHeaders.push_back(model.mModelHeader);
    }
}

TDeviceData MakeDevice(CDraw& rDraw, int nSubckt, int nNumber,
                       const std::vector<TModelHeader>& rModels)
{
    // By their places in gExampleClasses: MOS transistors are the most frequent.
    static constexpr std::size_t kMix[]{0, 0, 0, 0, 1, 2, 3, 3, 4, 4};
    const std::size_t nClass = kMix[rDraw.Below(10)];
    const TExampleClass& rClass = gExampleClasses()[nClass];
    TDeviceData device;
    device.mDeviceHeader = {nSubckt, rClass.chDevice + std::to_string(nNumber)};
    device.mModelHeader = rModels[nClass];
    // Resistors and capacitors do without a model card now and then.
    if (nClass > 2 && rDraw.Below(2) == 0)
        device.mModelHeader.msName.Empty();
    DrawValues(rDraw, rClass.device, 8, true, device.mDeviceParamValues);
    DrawValues(rDraw, rClass.state, 10, true, device.mStateParamValues);
    device.mDeviceParamValues["off"] = rDraw.Below(9) == 0;
    return device;
}
} // namespace

void gFillExample(TCircuitParams& rStore, int nDevices, std::uint64_t nSeed)
{
    CDraw draw(nSeed);
    for (const TExampleClass& rClass : gExampleClasses())
        rStore.AddModelClass(gMakeExampleClass(rClass));
    rStore.AddOpticalClass(gMakeExampleClass(gExampleOpticalClass()));
    std::vector<TModelHeader> models;
    for (int n = 0, nSubckt = 0; n == 0 || n < nDevices; ++nSubckt) {
        rStore.AddSubckt(nSubckt == 0 ? CStringU("top") : SubcktName(nSubckt), nSubckt);
        AddModels(rStore, draw, nSubckt, models);
        const int nEnd = std::min(nDevices, n + kDevicesPerSubckt);
        for (; n < nEnd; ++n)
            rStore.AddDevice(MakeDevice(draw, nSubckt, n + 1, models));
        if (nDevices == 0)
            break;
    }
}

} // namespace quorvawiz::cli
