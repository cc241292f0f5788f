#include "foundation/UnixSide.h"

#include "foundation/CanonicalForm.h"
#include "foundation/PathText.h"
#include "platform/base/CodePage.h"
#include "platform/base/IsWine.h"
#include "platform/base/NamedExports.h"

#include <algorithm>
#include <memory>
#include <string>

namespace
{

// The exports' signatures. The first two return a block of the process heap, which is the caller's;
// the value of a variable stays the other side's.
using TGetDosFileName = char16_t*(const char* pUnixName);
using TGetUnixStrippedFileName = char*(const char16_t* pDosName);
using TGetUnixEnvironment = const char*(const char* pName);
using TSetUnixEnvironment = int(const char* pName, const char* pValue, int nOverwrite);
using TChangeUnixEnvironment = int(const char* pText);

/// An export; null with the plain rules and where it isn't there.
template <class TFunction> TFunction* FindExport(std::string_view sName)
{
    return gIsWine() ? reinterpret_cast<TFunction*>(gGetNamedExports()->Find(sName)) : nullptr;
}

/// Frees a block of the process heap.
struct TFreeBlock {
    void operator()(void* pBlock) const { gGetNamedExports()->FreeHeapBlock(pBlock); }
};

/// Text as the Unix side has it.
std::string ToUnixText(const CStringU& rText)
{
    return gWideToMultiByte(rText.ToWide(), kCodePageUtf8);
}

CStringU FromUnixText(const char* pText)
{
    return gMultiByteToWide(pText, kCodePageUtf8);
}

int ChangeEnvironment(std::string_view sExport, const CStringU& rText)
{
    auto* const pChange = FindExport<TChangeUnixEnvironment>(sExport);
    return pChange != nullptr ? pChange(ToUnixText(rText).c_str()) : -1;
}

} // namespace

CStringU gToDosPath(const CStringU& rPath)
{
    std::u16string sPath = rPath.ToWide();
    if (sPath.starts_with(u'/')) {
        auto* const pTranslate = FindExport<TGetDosFileName>("wine_get_dos_file_name");
        if (pTranslate == nullptr) {
            return rPath;
        }
        const std::unique_ptr<char16_t, TFreeBlock> name(pTranslate(ToUnixText(rPath).c_str()));
        return name ? CStringU(name.get()) : rPath;
    }
    if (!gIsAbsoluteText(sPath)) {
        return rPath;
    }
    std::ranges::replace(sPath, u'/', u'\\');
    return sPath;
}

CStringU gToUnixPath(const CStringU& rPath)
{
    if (!gIsWine()) {
        return rPath;
    }
    std::u16string sPath = rPath.ToWide();
    if (!gIsAbsoluteText(sPath)) {
        std::ranges::replace(sPath, u'\\', u'/');
        return sPath;
    }
    auto* const pTranslate =
        FindExport<TGetUnixStrippedFileName>("wine_get_unix_stripped_file_name");
    if (pTranslate == nullptr) {
        return rPath;
    }
    const std::unique_ptr<char, TFreeBlock> name(pTranslate(sPath.c_str()));
    return name ? FromUnixText(name.get()) : rPath;
}

CStringU gGetUnixEnv(const CStringU& rName)
{
    auto* const pGet = FindExport<TGetUnixEnvironment>("wine_get_unix_env");
    const char* const pValue = pGet != nullptr ? pGet(ToUnixText(rName).c_str()) : nullptr;
    return pValue != nullptr ? FromUnixText(pValue) : CStringU();
}

int gSetUnixEnv(const CStringU& rName, const CStringU& rValue, int nOverwrite)
{
    auto* const pSet = FindExport<TSetUnixEnvironment>("wine_set_unix_env");
    return pSet != nullptr ? pSet(ToUnixText(rName).c_str(), ToUnixText(rValue).c_str(), nOverwrite)
                           : -1;
}

int gUnsetUnixEnv(const CStringU& rName)
{
    return ChangeEnvironment("wine_unset_unix_env", rName);
}

int gPutUnixEnv(const CStringU& rAssignment)
{
    return ChangeEnvironment("wine_put_unix_env", rAssignment);
}
