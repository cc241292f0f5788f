// Links the platform alone and loads and unloads the wizard's library, as a host with plug-ins
// does. Says what it sees, one line per step.

#include "platform/base/ExtensionModule.h"
#include "platform/qt/QtDesktop.h"
#include "platform/ui/RuntimeClass.h"

#include <dlfcn.h>

#include <QApplication>
#include <QTemporaryDir>
#include <iostream>

namespace
{
constexpr const char* kFunction =
    "_ZN9quorvawiz25gInvokeSpiceCommandWizardEP4CWndPNS_25QuorvaCommandWizardTargetE";
using TFunction = void (*)(CWnd*, void*);

void Say(const char* pWhen)
{
    std::cout << pWhen << ": " << CDynLinkLibrary::Count() << " modules, quorvawiz "
              << (CDynLinkLibrary::IsRegistered("quorvawiz") ? "is" : "isn't") << " one, its pages "
              << (CRuntimeClass::FromName("CSettingsTemperaturePage") ? "are" : "aren't")
              << " known\n";
}
} // namespace

int main(int nCount, char** pArguments)
{
    const QApplication application(nCount, pArguments);
    const QTemporaryDir folder;
    QtDesktop desktop(folder.filePath(QStringLiteral("profile.ini")));
    const char* const pPath = pArguments[1];
    Say("at the start");
    for (int i = 0; i < 3; ++i) {
        void* const pLibrary = ::dlopen(pPath, RTLD_NOW | RTLD_LOCAL);
        if (!pLibrary) {
            std::cerr << ::dlerror() << '\n';
            return 1;
        }
        Say("loaded");
        QMetaObject::invokeMethod(
            QApplication::instance(),
            [&desktop] { desktop.EnterModel([&desktop] { desktop.EndModalRuns(); }); },
            Qt::QueuedConnection);
        reinterpret_cast<TFunction>(::dlsym(pLibrary, kFunction))(nullptr, nullptr);
        Say("called");
        ::dlclose(pLibrary);
        Say("unloaded");
        if (::dlopen(pPath, RTLD_NOW | RTLD_NOLOAD)) {
            std::cerr << "the library is still there\n";
            return 1;
        }
    }
    return 0;
}
