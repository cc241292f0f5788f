#include "platform/headless/HeadlessDesktop.h"

#include "platform/ui/Dialog.h"
#include "platform/ui/MessagePump.h"

HeadlessDesktop::HeadlessDesktop(TNextAction nextAction)
    : mpBefore(gSetDesktop(this)), mNextAction(std::move(nextAction))
{
}

HeadlessDesktop::~HeadlessDesktop()
{
    gSetDesktop(mpBefore);
}

void HeadlessDesktop::RunModal(CDialog& rDialog)
{
    while (!rDialog.HasEnded()) {
        if (!mNextAction || !mNextAction(rDialog))
            return;
        gPumpPostedMessages();
    }
}

int HeadlessDesktop::ShowMessageBox(const TMessageBox& rBox)
{
    int nResult = IDOK;
    if ((rBox.nFlags & MB_TYPEMASK) == MB_YESNO) {
        nResult = IDNO;
        if (!mAnswers.empty()) {
            nResult = mAnswers.front() ? IDYES : IDNO;
            mAnswers.pop_front();
        }
    }
    std::string sOwnerClass(rBox.pOwner ? gClassName(*rBox.pOwner) : std::string_view());
    mBoxes.push_back({rBox, std::move(sOwnerClass), nResult});
    return nResult;
}

TFileChoice HeadlessDesktop::ChooseFile(const TFileDialog& rDialog)
{
    mFileDialogs.push_back(rDialog);
    if (mFileChoices.empty())
        return {};
    TFileChoice choice = std::move(mFileChoices.front());
    mFileChoices.pop_front();
    return choice;
}

std::optional<CString> HeadlessDesktop::ReadProfile(const CString& rsSection,
                                                    const CString& rsEntry)
{
    const auto found = mProfile.find({rsSection.GetString(), rsEntry.GetString()});
    return found == mProfile.end() ? std::nullopt : std::optional(found->second);
}

bool HeadlessDesktop::WriteProfile(const CString& rsSection, const CString& rsEntry,
                                   const CString& rsValue)
{
    mProfile[{rsSection.GetString(), rsEntry.GetString()}] = rsValue;
    return true;
}

CString HeadlessDesktop::GetApplicationName() const
{
    return "quorvawiz";
}
