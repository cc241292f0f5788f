#pragma once

#include "cli/RequestError.h"
#include "cli/call/CallValue.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace quorvawiz::cli
{

/// A function that can be called by name.
struct TCallFunction {
    std::string sName;
    std::vector<std::string_view> argumentTypes;
    std::size_t nRequired = 0; ///< how many arguments must be given
    std::function<TJson(std::span<const TJson> arguments)> call;
};

/// How a function is called, as in "CStringU.Mid(text, integer, [integer])".
std::string gSignature(const TCallFunction& rFunction);

/// Throws the error of an argument that can't be read.
/// @param nIndex its place, from 0
/// @param pWhat what it isn't
[[noreturn]] void gThrowArgument(std::size_t nIndex, const char* pWhat);

namespace detail
{
template <class T> struct TIsOptional : std::false_type {
};
template <class T> struct TIsOptional<std::optional<T>> : std::true_type {
};

template <class T> T ReadAt(std::span<const TJson> arguments, std::size_t nIndex)
{
    try {
        if constexpr (TIsOptional<T>::value) {
            return nIndex < arguments.size()
                       ? T(gReadArgument<typename T::value_type>(arguments[nIndex]))
                       : T();
        } else {
            return gReadArgument<T>(arguments[nIndex]);
        }
    } catch (const CRequestError& rError) {
        gThrowArgument(nIndex, rError.what());
    }
}

template <class T> std::string_view NameOf()
{
    if constexpr (TIsOptional<T>::value)
        return kArgumentName<typename T::value_type>;
    else
        return kArgumentName<T>;
}

/// Reads all arguments. The braces see to it that the first one is read first, so that of two wrong
/// ones the first is told.
template <class... Arguments, std::size_t... Indices>
std::tuple<Arguments...> ReadAll([[maybe_unused]] std::span<const TJson> arguments,
                                 std::index_sequence<Indices...>)
{
    return std::tuple<Arguments...>{ReadAt<Arguments>(arguments, Indices)...};
}

template <class R, class... Arguments>
TCallFunction Bind(std::string sName, R (*pFunction)(Arguments...))
{
    constexpr std::size_t required =
        (std::size_t{0} + ... + (TIsOptional<std::decay_t<Arguments>>::value ? 0 : 1));
    return {std::move(sName),
            {NameOf<std::decay_t<Arguments>>()...},
            required,
            [pFunction](std::span<const TJson> arguments) {
                auto values = ReadAll<std::decay_t<Arguments>...>(
                    arguments, std::index_sequence_for<Arguments...>());
                if constexpr (std::is_void_v<R>) {
                    std::apply(pFunction, std::move(values));
                    return TJson();
                } else {
                    return gToResult(std::apply(pFunction, std::move(values)));
                }
            }};
}
} // namespace detail

/// Makes a function callable: its arguments are read by their types, its result is written by its
/// type, none as null. A last argument of type std::optional may be left out.
/// @param sName the name to call it by
/// @param pFunction the function
template <class R, class... Arguments>
TCallFunction gCallable(std::string sName, R (*pFunction)(Arguments...))
{
    return detail::Bind(std::move(sName), pFunction);
}

/// The same for a lambda without captures.
template <class TLambda> TCallFunction gCallable(std::string sName, TLambda lambda)
{
    return gCallable(std::move(sName), +lambda);
}

} // namespace quorvawiz::cli
