#include "cli/params/StoreArguments.h"

#include "cli/RequestError.h"

#include <boost/variant/apply_visitor.hpp>

namespace quorvawiz::cli
{
namespace
{
double ReadNumber(const TJson& rValue)
{
    return rValue == "uninitialized" ? kUninitializedParamValue : gReadArgument<double>(rValue);
}

/// A value of a stated kind.
TParamValue ReadKind(const TJson& rValue)
{
    if (rValue.size() == 2 && rValue.contains("kind") && rValue.contains("value")) {
        const TJson& rHeld = rValue["value"];
        if (rValue["kind"] == "bool")
            return gReadArgument<bool>(rHeld);
        if (rValue["kind"] == "int")
            return gReadArgument<int>(rHeld);
        if (rValue["kind"] == "double")
            return ReadNumber(rHeld);
        if (rValue["kind"] == "text")
            return gReadArgument<CStringU>(rHeld);
    }
    throw CRequestError("isn't a value: an object has \"kind\", which is bool, int, double or "
                        "text, and \"value\"");
}
} // namespace

template <> TParamValue gReadArgument<TParamValue>(const TJson& rValue)
{
    if (rValue.is_boolean())
        return rValue.get<bool>();
    if (rValue.is_number_integer())
        return gReadArgument<int>(rValue);
    if (rValue.is_number())
        return rValue.get<double>();
    if (rValue.is_string() || (rValue.is_object() && rValue.contains("hex")))
        return gReadArgument<CStringU>(rValue);
    if (rValue.is_object())
        return ReadKind(rValue);
    throw CRequestError("isn't a value: true, false, a number, a text, or an object of kind and "
                        "value");
}

template <> TStoreNumber gReadArgument<TStoreNumber>(const TJson& rValue)
{
    return {ReadNumber(rValue)};
}

template <> TTypedValue gReadArgument<TTypedValue>(const TJson& rValue)
{
    if (rValue.is_null())
        return {};
    return {boost::apply_visitor([](const auto& rHeld) { return boost::any(rHeld); },
                                 gReadArgument<TParamValue>(rValue))};
}

template <> TModelClassHeader gReadArgument<TModelClassHeader>(const TJson& rValue)
{
    if (!rValue.is_object())
        throw CRequestError("isn't a class header: an object");
    TModelClassHeader header;
    for (const auto& [sMember, rMember] : rValue.items()) {
        if (sMember == "name")
            header.msName = gReadArgument<CStringU>(rMember);
        else if (sMember == "type")
            header.msType = gReadArgument<CStringU>(rMember);
        else if (sMember == "level")
            header.mnLevel = gReadArgument<int>(rMember);
        else if (sMember == "version")
            header.mdVersion = ReadNumber(rMember);
        else if (sMember == "description")
            header.msDescription = gReadArgument<CStringU>(rMember);
        else
            throw CRequestError("isn't a class header: its members are name, type, level, version "
                                "and description");
    }
    return header;
}

template <> TTableOperations gReadArgument<TTableOperations>(const TJson& rValue)
{
    constexpr const char* wanted =
        "isn't a list of operations, each a list that begins with a name";
    if (!rValue.is_array())
        throw CRequestError(wanted);
    for (const TJson& rOperation : rValue)
        if (!rOperation.is_array() || rOperation.empty() || !rOperation.front().is_string())
            throw CRequestError(wanted);
    return {rValue.get_ref<const TJson::array_t&>()};
}

} // namespace quorvawiz::cli
