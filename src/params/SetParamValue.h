#pragma once

#include "params/ParamValue.h"

#include <boost/any.hpp>

/// The declared kinds of parameters that SetParamValue knows. Others are allowed, and do nothing.
struct TParamSourceKind {
    static constexpr int Bool = 1;          ///< becomes a bool
    static constexpr int Int = 2;           ///< becomes an int
    static constexpr int Double = 3;        ///< becomes a double
    static constexpr int Text = 5;          ///< becomes a CStringU
    static constexpr int Uninitialized = 7; ///< becomes kUninitializedParamValue
};

/// Converts a typed value into the value of a parameter. The target is written only where it
/// differs from what it holds.
/// @param nKind the declared kind of the parameter, of TParamSourceKind. A bool is true for a
/// number
///              that CompareTolerant with 1e-12 tells from 0; an int is the number rounded, halves
///              away from zero, and limited to the range of int, 0 for NaN
/// @param rSource bool, int or double for the kinds 1, 2 and 3; CStringU for the kind 5; anything
///                for the others
/// @param rTarget receives the value
/// @throws boost::bad_any_cast for a source of any other type
void SetParamValue(int nKind, const boost::any& rSource, TParamValue& rTarget);
