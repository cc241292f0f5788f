#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

class CDynLinkLibrary;

/// A shared library that extends the platform, from its load to its unload. The library keeps one
/// in static storage. Used while libraries are loaded and unloaded, so on one thread at a time.
class AFX_EXTENSION_MODULE
{
public:
    AFX_EXTENSION_MODULE();
    ~AFX_EXTENSION_MODULE();
    AFX_EXTENSION_MODULE(const AFX_EXTENSION_MODULE&) = delete;
    AFX_EXTENSION_MODULE& operator=(const AFX_EXTENSION_MODULE&) = delete;

    /// True from AfxInitExtensionModule to AfxTermExtensionModule.
    [[nodiscard]] bool IsInitialized() const noexcept { return !msName.empty(); }

    /// The name that it was initialised with; empty outside.
    [[nodiscard]] const std::string& GetName() const noexcept { return msName; }

private:
    friend bool AfxInitExtensionModule(AFX_EXTENSION_MODULE& rModule, std::string_view sName);
    friend void AfxTermExtensionModule(AFX_EXTENSION_MODULE& rModule) noexcept;
    friend class CDynLinkLibrary;

    std::string msName;
    std::unique_ptr<CDynLinkLibrary> mpLibrary;
};

/// Begins the life of an extension module: the library calls it when it is loaded, and then
/// registers itself by `CDynLinkLibrary::Register`.
/// @param sName the library's name, not empty
/// @return false, and nothing done, if the module is initialised already
/// @throws CInvalidArgException for an empty name
bool AfxInitExtensionModule(AFX_EXTENSION_MODULE& rModule, std::string_view sName);

/// Ends it: the library calls it when it is unloaded. Its registration ends with it. Without effect
/// on a module that isn't initialised.
void AfxTermExtensionModule(AFX_EXTENSION_MODULE& rModule) noexcept;

/// One entry in the platform's registry of extension modules.
class CDynLinkLibrary
{
public:
    ~CDynLinkLibrary();
    CDynLinkLibrary(const CDynLinkLibrary&) = delete;
    CDynLinkLibrary& operator=(const CDynLinkLibrary&) = delete;

    /// Registers an initialised module, which owns its entry; without effect on one that is
    /// registered.
    /// @throws CInvalidArgException for a module that isn't initialised
    static void Register(AFX_EXTENSION_MODULE& rModule);

    /// How many modules are registered in this process.
    [[nodiscard]] static std::size_t Count() noexcept;

    /// Tells whether a module of exactly this name is registered.
    [[nodiscard]] static bool IsRegistered(std::string_view sName) noexcept;

private:
    explicit CDynLinkLibrary(const AFX_EXTENSION_MODULE& rModule);

    const AFX_EXTENSION_MODULE& mrModule;
    CDynLinkLibrary* mpNext; ///< registered before this one
};
