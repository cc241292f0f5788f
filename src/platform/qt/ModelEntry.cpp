#include "platform/qt/ModelEntry.h"

#include "platform/ui/Dialog.h"
#include "platform/ui/UserKey.h"

#include <QScopedValueRollback>
#include <utility>

CModelEntry::CLoop::CLoop(CModelEntry& rEntry, CDialog* pDialog, std::function<void()> leave)
    : mrEntry(rEntry), mpDialog(pDialog), mLeave(std::move(leave))
{
    mrEntry.mLoops.push_back(this);
}

CModelEntry::CLoop::~CLoop()
{
    std::erase(mrEntry.mLoops, this);
}

void CModelEntry::CLoop::RethrowFailure()
{
    if (mrEntry.mpFailure)
        std::rethrow_exception(std::exchange(mrEntry.mpFailure, nullptr));
}

void CModelEntry::Enter(const std::function<void()>& rCall)
{
    try {
        rCall();
    } catch (...) {
        if (mLoops.empty())
            throw;
        if (!mpFailure)
            mpFailure = std::current_exception();
        if (CDialog* const pDialog = mLoops.back()->mpDialog)
            pDialog->EndDialog(IDCANCEL);
        else
            mLoops.back()->mLeave();
    }
    LeaveEndedLoops();
}

void CModelEntry::EnterKey(const TUserKey& rKey)
{
    const QScopedValueRollback<bool> inKey(mbInKey, true);
    Enter([&rKey] { gUserKey(rKey); });
}

void CModelEntry::LeaveEndedLoops()
{
    // Loops end from the inside out. A box in front of a dialog that has ended goes with it.
    for (auto loop = mLoops.rbegin(); loop != mLoops.rend(); ++loop) {
        const CDialog* const pDialog = (*loop)->mpDialog;
        if (!pDialog)
            continue;
        if (pDialog->HasEnded())
            mLoops.back()->mLeave();
        return;
    }
}
