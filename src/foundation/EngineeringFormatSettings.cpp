#include "foundation/EngineeringFormatSettings.h"

#include "platform/base/Exceptions.h"

namespace
{

bool ValueOr(boost::tribool bWanted, bool bDefault)
{
    return boost::indeterminate(bWanted) ? bDefault : static_cast<bool>(bWanted);
}

bool IsUndefined(TeUnitScale eScale)
{
    return gNormalizeUnitScale(static_cast<int>(eScale)) == TeUnitScale::Undefined;
}

} // namespace

TeUnitScale
TEngineeringFormatSettings::GetValidEngineeringFormatUnitScale(TeUnitScale eScale) const noexcept
{
    return IsUndefined(eScale) ? meUnitScale : eScale;
}

bool TEngineeringFormatSettings::GetValidEngineeringFormatRemoveTrailingZeroes(
    boost::tribool bRemove) const noexcept
{
    return ValueOr(bRemove, mbRemoveTrailingZeroes);
}

bool TEngineeringFormatSettings::GetValidEngineeringFormatRemoveZeroExponents(
    boost::tribool bRemove) const noexcept
{
    return ValueOr(bRemove, mbRemoveZeroExponents);
}

bool TEngineeringFormatSettings::GetValidEngineeringFormatUseSiSuffixInsteadOfSpice(
    boost::tribool bUseSi) const noexcept
{
    return ValueOr(bUseSi, mbUseSiSuffix);
}

void TEngineeringFormatSettings::SetDefaultEngineeringFormatDigits(unsigned nDigits)
{
    if (nDigits == 0) {
        gThrowInvalidArg("a default of 0 digits");
    }
    mnDigits = nDigits;
}

void TEngineeringFormatSettings::SetDefaultEngineeringFormatUnitScale(TeUnitScale eScale)
{
    if (IsUndefined(eScale)) {
        gThrowInvalidArg("an undefined default scale");
    }
    meUnitScale = eScale;
}

TEngineeringFormatSettings& gGetEngineeringFormatSettings() noexcept
{
    static TEngineeringFormatSettings settings;
    return settings;
}
