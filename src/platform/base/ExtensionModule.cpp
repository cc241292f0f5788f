#include "platform/base/ExtensionModule.h"

#include "platform/base/Exceptions.h"

namespace
{
// A list of the entries themselves: libraries are loaded before, and unloaded after, most static
// objects live.
CDynLinkLibrary* spLastRegistered = nullptr;
} // namespace

AFX_EXTENSION_MODULE::AFX_EXTENSION_MODULE() = default;

AFX_EXTENSION_MODULE::~AFX_EXTENSION_MODULE() = default;

bool AfxInitExtensionModule(AFX_EXTENSION_MODULE& rModule, std::string_view sName)
{
    if (sName.empty())
        gThrowInvalidArg("extension module: the name is empty");
    if (rModule.IsInitialized())
        return false;
    rModule.msName = sName;
    return true;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& rModule) noexcept
{
    rModule.mpLibrary.reset();
    rModule.msName.clear();
}

CDynLinkLibrary::CDynLinkLibrary(const AFX_EXTENSION_MODULE& rModule)
    : mrModule(rModule), mpNext(spLastRegistered)
{
    spLastRegistered = this;
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    CDynLinkLibrary** ppEntry = &spLastRegistered;
    while (*ppEntry != this)
        ppEntry = &(*ppEntry)->mpNext;
    *ppEntry = mpNext;
}

void CDynLinkLibrary::Register(AFX_EXTENSION_MODULE& rModule)
{
    if (!rModule.IsInitialized())
        gThrowInvalidArg("extension module: it isn't initialised");
    if (!rModule.mpLibrary)
        rModule.mpLibrary.reset(new CDynLinkLibrary(rModule));
}

std::size_t CDynLinkLibrary::Count() noexcept
{
    std::size_t nCount = 0;
    for (const CDynLinkLibrary* pEntry = spLastRegistered; pEntry; pEntry = pEntry->mpNext)
        ++nCount;
    return nCount;
}

bool CDynLinkLibrary::IsRegistered(std::string_view sName) noexcept
{
    const CDynLinkLibrary* pEntry = spLastRegistered;
    while (pEntry && pEntry->mrModule.GetName() != sName)
        pEntry = pEntry->mpNext;
    return pEntry != nullptr;
}
