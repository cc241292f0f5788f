#pragma once

#include "platform/base/TypeName.h"
#include "platform/ui/RuntimeClass.h"

#include <type_traits>
#include <typeinfo>

// Only a class's own source includes this file and ends with
//     template const CRuntimeClass& gRuntimeClass<CThatClass>();
// so that tables can name the class without including its header.

template <class TClass> const CRuntimeClass& gRuntimeClass()
{
    static_assert(std::is_default_constructible_v<TClass> || std::is_abstract_v<TClass>,
                  "a concrete class is created by its name, without arguments");
    constexpr auto isInstance = [](const CObject& rObject) {
        return dynamic_cast<const TClass*>(&rObject) != nullptr;
    };
    CRuntimeClass::TCreate pCreate = nullptr;
    if constexpr (std::is_default_constructible_v<TClass>)
        pCreate = []() -> std::unique_ptr<CObject> { return std::make_unique<TClass>(); };

    static const CRuntimeClass sClass(gTypeName(typeid(TClass)), isInstance, pCreate);
    return sClass;
}
