#include "platform/base/TypeName.h"

#include <cxxabi.h>

#include <cstdlib>
#include <memory>
#include <string>
#include <unordered_map>

namespace
{

std::string Demangle(const char* pMangled)
{
    struct TFree {
        void operator()(char* pText) const noexcept
        {
            std::free(pText); // the demangler allocates with malloc
        }
    };
    int nStatus = 0;
    const std::unique_ptr<char, TFree> pName(
        abi::__cxa_demangle(pMangled, nullptr, nullptr, &nStatus));
    return nStatus == 0 && pName ? std::string(pName.get()) : std::string(pMangled);
}

} // namespace

std::string_view gTypeName(const std::type_info& rType)
{
    // Never destroyed: a window that is destroyed at the very end may still ask for its name.
    // By a copy of the compiler's name: a type goes with its library, and another one may come to
    // stand in its place.
    static auto& rNames = *new std::unordered_map<std::string, std::string>;

    const auto [it, bNew] = rNames.try_emplace(rType.name());
    if (bNew) {
        it->second = Demangle(rType.name());
    }
    return it->second; // the map never moves its nodes
}
