#include "params/SetParamValue.h"

#include "params/CompareTolerant.h"

#include <boost/variant/get.hpp>

#include <algorithm>
#include <cmath>
#include <limits>

namespace
{

/// The source by its type: a double last, whose cast refuses every other type.
template <class TResult, class TFromDouble>
TResult Convert(const boost::any& rSource, TFromDouble fromDouble)
{
    if (const auto* const pBool = boost::any_cast<bool>(&rSource)) {
        return static_cast<TResult>(*pBool);
    }
    if (const auto* const pInt = boost::any_cast<int>(&rSource)) {
        return static_cast<TResult>(*pInt);
    }
    return fromDouble(boost::any_cast<double>(rSource));
}

bool ToBool(double dValue)
{
    constexpr double tolerance = 1e-12;
    return CompareTolerant(dValue, 0, tolerance) != 0;
}

int ToInt(double dValue)
{
    if (std::isnan(dValue)) {
        return 0;
    }
    using TLimits = std::numeric_limits<int>;
    return static_cast<int>(std::clamp(std::round(dValue), static_cast<double>(TLimits::min()),
                                       static_cast<double>(TLimits::max())));
}

template <class T> void Write(T value, TParamValue& rTarget)
{
    const T* const pHeld = boost::get<T>(&rTarget);
    if (pHeld == nullptr || !(*pHeld == value)) {
        rTarget = value;
    }
}

} // namespace

void SetParamValue(int nKind, const boost::any& rSource, TParamValue& rTarget)
{
    switch (nKind) {
    case TParamSourceKind::Bool:
        Write(Convert<bool>(rSource, ToBool), rTarget);
        break;
    case TParamSourceKind::Int:
        Write(Convert<int>(rSource, ToInt), rTarget);
        break;
    case TParamSourceKind::Double:
        Write(Convert<double>(rSource, [](double dValue) { return dValue; }), rTarget);
        break;
    case TParamSourceKind::Text:
        Write(boost::any_cast<CStringU>(rSource), rTarget);
        break;
    case TParamSourceKind::Uninitialized:
        Write(kUninitializedParamValue, rTarget);
        break;
    default:
        break;
    }
}
