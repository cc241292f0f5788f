#pragma once

#include "params/CircuitParams.h"

#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <string_view>

/// Draws stores of any shape: empty maps, null pointers, pointers of both sorts of classes, texts
/// of any bytes, all kinds of values, keys that aren't the names of what they lead to.
class CRandomStore
{
public:
    /// @param nSeed the same seed draws the same stores
    explicit CRandomStore(unsigned nSeed) : mEngine(nSeed) {}

    /// Fills an empty store.
    /// @param bOnlyNumbers without NaN in the values of models, and without infinities; but with
    ///        texts that another save would change
    void Fill(TCircuitParams& rStore, bool bOnlyNumbers)
    {
        mbOnlyNumbers = bOnlyNumbers;
        for (int n = Number(3); n > 0; --n) {
            rStore.AddSubckt(Text(), Number(6));
        }
        for (int n = Number(2); n > 0; --n) {
            rStore.mModelClasses[Text()] = Class();
        }
        for (int n = Number(1); n > 0; --n) {
            rStore.mOpticalClasses[Text()] = Class();
        }
        for (int n = Number(3); n > 0; --n) {
            TModelData model;
            model.mModelHeader = Header();
            model.mpModelClassDef = ClassOf(rStore);
            model.mModelParamValues = Values(false);
            rStore.mCircuitModelDatasets[Number(4) - 1].insert_or_assign(Text(), model);
        }
        for (int n = Number(3); n > 0; --n) {
            TDeviceData device;
            device.mDeviceHeader = {Int(), Text()};
            device.mModelHeader = Header();
            device.mpModelClassDef = ClassOf(rStore);
            device.mpModelData = ModelOf(rStore);
            device.mDeviceParamValues = Values(true);
            device.mStateParamValues = Values(true);
            rStore.mCircuitDeviceDatasets[Number(4) - 1].insert_or_assign(Text(), device);
        }
    }

    /// A number from 0 to nMost.
    int Number(int nMost) { return std::uniform_int_distribution<int>(0, nMost)(mEngine); }

    /// A text; many are short, some hold any bytes.
    CStringU Text()
    {
        using namespace std::string_view_literals;
        static constexpr std::string_view kBytes = "ab1 _\n\r\t\0\x7F\xC3\xA9\x80\xE2\x82\xAC<&"sv;
        std::string sText;
        const int nMost = Number(9) == 0 ? 60 : 6;
        const bool bPlain = Number(1) == 0;
        for (int n = Number(nMost); n > 0; --n) {
            sText +=
                bPlain
                    ? static_cast<char>('a' + Number(25))
                    : kBytes[static_cast<std::size_t>(Number(static_cast<int>(kBytes.size()) - 1))];
        }
        const auto kind = Number(3) == 0 ? TTextKind::Plain : TTextKind::Utf8IfNeeded;
        const CStringU text(sText, kind);
        // A stray 0x80 in front reads back as a marker, one further with each time.
        const bool bStable = CStringU(text.Text(), TTextKind::Utf8IfNeeded).Text() == text.Text();
        return bStable || mbOnlyNumbers ? text : CStringU("stray");
    }

    /// Any int.
    int Int()
    {
        using TLimits = std::numeric_limits<int>;
        static constexpr std::array<int, 6> kEnds{0, 1, -1, 7, TLimits::min(), TLimits::max()};
        return Number(1) == 0 ? Number(1000) : kEnds[static_cast<std::size_t>(Number(5))];
    }

    /// Any double.
    double Double(bool bMayBeNan)
    {
        for (;;) {
            const double d = AnyDouble();
            const bool bNan = d != d;
            const bool bInfinite = d - d != 0 && !bNan;
            if ((!bNan || bMayBeNan) && !(mbOnlyNumbers && bInfinite)) {
                return d;
            }
        }
    }

private:
    double AnyDouble()
    {
        using TLimits = std::numeric_limits<double>;
        static constexpr std::array<double, 12> kDoubles{0.0,
                                                         -0.0,
                                                         1.0,
                                                         1e-12,
                                                         123456789.0,
                                                         kUninitializedParamValue,
                                                         TLimits::quiet_NaN(),
                                                         TLimits::infinity(),
                                                         -TLimits::infinity(),
                                                         TLimits::max(),
                                                         TLimits::denorm_min(),
                                                         4.7e3};
        if (Number(1) == 0) {
            return kDoubles[static_cast<std::size_t>(Number(11))];
        }
        return std::bit_cast<double>(std::uniform_int_distribution<std::uint64_t>()(mEngine));
    }

    TParamValue Value(bool bMayBeNan)
    {
        switch (Number(3)) {
        case 0:
            return Number(1) == 0;
        case 1:
            return Int();
        case 2:
            return Double(bMayBeNan);
        default:
            return Text();
        }
    }

    TParamValues Values(bool bDevice)
    {
        TParamValues values;
        for (int n = Number(4); n > 0; --n) {
            values[Text()] = Value(bDevice || !mbOnlyNumbers);
        }
        return values;
    }

    TParamDefs Defs()
    {
        TParamDefs defs;
        for (int n = Number(2); n > 0; --n) {
            TParamDef def{Value(true), Text(), Number(1) == 0, Text(), Text(), {}};
            for (int nAlias = Number(2); nAlias > 0; --nAlias) {
                def.mAliases.insert(Text());
            }
            defs.push_back(def);
        }
        return defs;
    }

    TModelClassDef Class()
    {
        return {{Text(), Text(), Int(), Double(!mbOnlyNumbers), Text()}, Defs(), Defs(), Defs()};
    }

    TModelHeader Header() { return {Int(), Text(), Text(), Text()}; }

    const TModelClassDef* ClassOf(const TCircuitParams& rStore)
    {
        const auto& rClasses = Number(1) == 0 ? rStore.mModelClasses : rStore.mOpticalClasses;
        return rClasses.empty() ? nullptr : &rClasses.begin()->second;
    }

    const TModelData* ModelOf(const TCircuitParams& rStore)
    {
        for (const auto& [nId, rModels] : rStore.mCircuitModelDatasets) {
            if (!rModels.empty() && Number(1) == 0) {
                return &rModels.rbegin()->second;
            }
        }
        return nullptr;
    }

    std::mt19937_64 mEngine;
    bool mbOnlyNumbers = true;
};
