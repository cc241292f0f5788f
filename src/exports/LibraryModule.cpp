#include "platform/base/ExtensionModule.h"

namespace
{
/// Loaded with the shared library, and unloaded with it. A program that links the archive doesn't
/// have this file: nothing in it is called.
class CLibraryModule
{
public:
    CLibraryModule()
    {
        if (AfxInitExtensionModule(mModule, "quorvawiz"))
            CDynLinkLibrary::Register(mModule);
    }
    ~CLibraryModule() { AfxTermExtensionModule(mModule); }
    CLibraryModule(const CLibraryModule&) = delete;
    CLibraryModule& operator=(const CLibraryModule&) = delete;

private:
    AFX_EXTENSION_MODULE mModule;
};

const CLibraryModule sLibraryModule;
} // namespace
