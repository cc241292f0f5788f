#pragma once

#include "foundation/UnitScale.h"

#include <boost/logic/tribool.hpp>

/// What number formatting and parsing fall back to where a caller leaves something open. A
/// default-constructed object holds the library's own defaults: 6 digits, the SPICE scale, trailing
/// zeros and zero exponents removed, SPICE suffixes when parsing.
class TEngineeringFormatSettings
{
public:
    /// The digit count that stands for 0; at least 1.
    [[nodiscard]] unsigned GetDefaultEngineeringFormatDigits() const noexcept { return mnDigits; }

    /// The scale that stands for Undefined; never Undefined itself.
    [[nodiscard]] TeUnitScale GetDefaultEngineeringFormatUnitScale() const noexcept
    {
        return meUnitScale;
    }

    /// The scale to use.
    /// @param eScale what the caller wants
    /// @return that, or the default for Undefined and for a value that is no scale
    [[nodiscard]] TeUnitScale GetValidEngineeringFormatUnitScale(TeUnitScale eScale) const noexcept;

    /// Whether to remove trailing zeros.
    /// @param bRemove what the caller wants
    /// @return that, or the default when it is indeterminate
    [[nodiscard]] bool
    GetValidEngineeringFormatRemoveTrailingZeroes(boost::tribool bRemove) const noexcept;

    /// Whether to remove an exponent of 0; as GetValidEngineeringFormatRemoveTrailingZeroes.
    [[nodiscard]] bool
    GetValidEngineeringFormatRemoveZeroExponents(boost::tribool bRemove) const noexcept;

    /// Whether the parser reads SI suffixes; as GetValidEngineeringFormatRemoveTrailingZeroes.
    [[nodiscard]] bool
    GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(boost::tribool bUseSi) const noexcept;

    /// Sets the digit count that stands for 0.
    /// @param nDigits at least 1
    /// @throws CInvalidArgException for 0; the setting stays as it was
    void SetDefaultEngineeringFormatDigits(unsigned nDigits);

    /// Sets the scale that stands for Undefined.
    /// @param eScale one of the five scales
    /// @throws CInvalidArgException for any other value; the setting stays as it was
    void SetDefaultEngineeringFormatUnitScale(TeUnitScale eScale);

    /// Sets whether trailing zeros are removed where the caller leaves it open.
    void SetDefaultEngineeringFormatRemoveTrailingZeroes(bool bRemove) noexcept
    {
        mbRemoveTrailingZeroes = bRemove;
    }

    /// Sets whether an exponent of 0 is removed where the caller leaves it open.
    void SetDefaultEngineeringFormatRemoveZeroExponents(bool bRemove) noexcept
    {
        mbRemoveZeroExponents = bRemove;
    }

    /// Sets whether the parser reads SI suffixes where the caller leaves it open.
    void SetDefaultEngineeringFormatUseSiSuffixInsteadOfSpice(bool bUseSi) noexcept
    {
        mbUseSiSuffix = bUseSi;
    }

private:
    unsigned mnDigits = 6;
    TeUnitScale meUnitScale = TeUnitScale::Spice;
    bool mbRemoveTrailingZeroes = true;
    bool mbRemoveZeroExponents = true;
    bool mbUseSiSuffix = false;
};

/// The settings of the process. A host sets them once when it starts; assigning a
/// default-constructed object puts the library's defaults back. Unguarded: no thread may format or
/// parse while another one changes them.
[[nodiscard]] TEngineeringFormatSettings& gGetEngineeringFormatSettings() noexcept;
