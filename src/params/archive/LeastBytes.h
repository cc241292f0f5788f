#pragma once

#include "params/CircuitParams.h"
#include "params/Netlist.h"

#include <boost/variant/variant.hpp>

#include <deque>
#include <map>
#include <set>
#include <type_traits>
#include <utility>
#include <vector>

/// How many bytes a value takes in a text archive at the least, with the white space behind each of
/// its tokens. What is told once per class doesn't count. A count of elements that could not stand
/// in what is left of a file is wrong.
template <class T> struct TLeastBytes;

/// The least bytes of several values.
template <class... T> inline constexpr unsigned kLeastBytes = (0U + ... + TLeastBytes<T>::value);

/// A constant under the name that traits use.
template <unsigned n> using TLeast = std::integral_constant<unsigned, n>;

template <> struct TLeastBytes<bool> : TLeast<2> {
};
template <> struct TLeastBytes<int> : TLeast<2> {
};
template <> struct TLeastBytes<double> : TLeast<2> {
};
/// Its length, one byte, and the white space behind it.
template <> struct TLeastBytes<CStringU> : TLeast<3> {
};
/// The number of null.
template <class T> struct TLeastBytes<T*> : TLeast<3> {
};
/// An id and an index, behind which the library reads nothing where it is negative.
template <> struct TLeastBytes<TParamValue> : TLeast<5> {
};

template <class TFirst, class TSecond>
struct TLeastBytes<std::pair<TFirst, TSecond>>
    : TLeast<kLeastBytes<std::remove_const_t<TFirst>, TSecond>> {
};

// Containers: a count and a version.
template <class TKey, class T, class TLess>
struct TLeastBytes<std::map<TKey, T, TLess>> : TLeast<4> {
};
template <class T> struct TLeastBytes<std::set<T>> : TLeast<4> {
};
template <class T> struct TLeastBytes<std::vector<T>> : TLeast<4> {
};
template <class T> struct TLeastBytes<std::deque<T>> : TLeast<4> {
};
template <> struct TLeastBytes<TParamDefs> : TLeastBytes<std::vector<TParamDef>> {
};

template <>
struct TLeastBytes<TParamDef>
    : TLeast<kLeastBytes<CStringU, bool, CStringU, CStringU, std::set<CStringU>, int, bool>> {
};
template <>
struct TLeastBytes<TModelClassHeader>
    : TLeast<kLeastBytes<CStringU, CStringU, int, double, CStringU>> {
};
// Those with an id of their own begin with it.
template <>
struct TLeastBytes<TModelClassDef>
    : TLeast<kLeastBytes<int, TModelClassHeader, TParamDefs, TParamDefs, TParamDefs>> {
};
template <>
struct TLeastBytes<TModelHeader> : TLeast<kLeastBytes<int, CStringU, CStringU, CStringU>> {
};
template <> struct TLeastBytes<TDeviceHeader> : TLeast<kLeastBytes<int, CStringU>> {
};
template <>
struct TLeastBytes<TModelData>
    : TLeast<kLeastBytes<int, TModelHeader, TModelClassDef*, TParamValues>> {
};
template <>
struct TLeastBytes<TDeviceData> : TLeast<kLeastBytes<TDeviceHeader, TModelHeader, TModelClassDef*,
                                                     TModelData*, TParamValues, TParamValues>> {
};
template <>
struct TLeastBytes<quorvaapi::TSubcktDefinition> : TLeast<kLeastBytes<CStringU, int, int, double>> {
};
template <>
struct TLeastBytes<quorvaapi::TDevicePin>
    : TLeast<kLeastBytes<int, CStringU, int, std::vector<std::pair<int, int>>>> {
};
