#include "platform/base/ProgramFile.h"

#include "platform/base/CodePage.h"

#include <link.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

namespace
{

/// The search for the module that holds an address.
struct TSearch {
    std::uintptr_t mnAddress;
    std::optional<std::string> mName; ///< empty for the program itself
};

int VisitModule(dl_phdr_info* pInfo, std::size_t /*nSize*/, void* pData)
{
    auto& rSearch = *static_cast<TSearch*>(pData);
    for (int n = 0; n < pInfo->dlpi_phnum; ++n) {
        const auto& rHeader = pInfo->dlpi_phdr[n];
        const std::uintptr_t nBegin = pInfo->dlpi_addr + rHeader.p_vaddr;
        if (rHeader.p_type == PT_LOAD && rSearch.mnAddress >= nBegin &&
            rSearch.mnAddress < nBegin + rHeader.p_memsz) {
            rSearch.mName = pInfo->dlpi_name;
            return 1;
        }
    }
    return 0;
}

std::u16string FullName(const std::string& rsName)
{
    std::error_code error;
    const std::filesystem::path full = std::filesystem::canonical(rsName, error);
    return error ? std::u16string() : gMultiByteToWide(full.native(), kCodePageUtf8);
}

} // namespace

std::u16string gGetProgramFile()
{
    return FullName("/proc/self/exe");
}

std::u16string gGetModuleFile(const void* pAddress)
{
    TSearch search{reinterpret_cast<std::uintptr_t>(pAddress), std::nullopt};
    ::dl_iterate_phdr(VisitModule, &search);
    if (!search.mName) {
        return {};
    }
    return search.mName->empty() ? gGetProgramFile() : FullName(*search.mName);
}
