#include "platform/ui/Desktop.h"

#include "platform/ui/FileDialog.h"

#include <exception>
#include <stdexcept>

namespace
{
IDesktop* spDesktop = nullptr;

/// While it lives, the windows take no user action.
class COpenBox
{
public:
    explicit COpenBox(TUiThread& rThread) : mrThread(rThread) { ++mrThread.mnOpenBoxes; }
    ~COpenBox() { --mrThread.mnOpenBoxes; }
    COpenBox(const COpenBox&) = delete;
    COpenBox& operator=(const COpenBox&) = delete;

private:
    TUiThread& mrThread;
};

/// The peer of a window that nothing draws.
class CBlindPeer final : public IWindowPeer
{
public:
    void OnChanged(EAspect aspect) override;
};

void CBlindPeer::OnChanged(EAspect) {}
} // namespace

std::unique_ptr<IWindowPeer> IDesktop::MakePeer(CWnd&)
{
    return std::make_unique<CBlindPeer>();
}

void IDesktop::OnMessagePosted() {}

void IDesktop::EndModalRuns()
{
    if (!mThread.mModalRuns.empty())
        mThread.EndRuns(*mThread.mModalRuns.front(), IDCANCEL);
}

IDesktop* gFindDesktop()
{
    return spDesktop;
}

IDesktop& gDesktop()
{
    if (!spDesktop)
        throw std::logic_error("no desktop is set: windows need one to be created");
    return *spDesktop;
}

IDesktop* gSetDesktop(IDesktop* pDesktop)
{
    IDesktop* const pBefore = spDesktop;
    spDesktop = pDesktop;
    return pBefore;
}

int gShowMessageBox(const TMessageBox& rBox)
{
    IDesktop& rDesktop = gDesktop();
    const COpenBox openBox(rDesktop.Thread());
    return rDesktop.ShowMessageBox(rBox);
}

int AfxMessageBox(const CString& rsText, UINT nFlags)
{
    return gShowMessageBox({nullptr, rsText, std::nullopt, nFlags});
}

TFileChoice gChooseFile(const TFileDialog& rDialog)
{
    IDesktop& rDesktop = gDesktop();
    const COpenBox openBox(rDesktop.Thread());
    return rDesktop.ChooseFile(rDialog);
}

TFileChoice gChooseFileOrCancel(const TFileDialog& rDialog)
{
    try {
        return gChooseFile(rDialog);
    } catch (const std::exception&) {
        return {};
    }
}
