#pragma once

#include "platform/ui/Desktop.h"
#include "platform/ui/FileDialog.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

/// A message box that was shown, and what was answered.
struct TShownBox {
    TMessageBox box;
    std::string sOwnerClass; ///< class of the owner, empty without one
    int nResult = IDOK;
};

/// A desktop without a screen: somebody in the program acts as the user. Message boxes are answered
/// at once and kept, file dialogs are answered from a queue, the profile lives in memory.
///
/// It is the current desktop from its construction to its end, and then puts back the one before.
class HeadlessDesktop : public IDesktop
{
public:
    /// Makes the user's next action in the innermost dialog. False: there is none any more, and the
    /// run ends early.
    using TNextAction = std::function<bool(CDialog& rInnermost)>;

    explicit HeadlessDesktop(TNextAction nextAction = {});
    ~HeadlessDesktop() override;
    HeadlessDesktop(const HeadlessDesktop&) = delete;
    HeadlessDesktop& operator=(const HeadlessDesktop&) = delete;

    void SetNextAction(TNextAction nextAction) { mNextAction = std::move(nextAction); }

    /// Queues the answer to a yes/no question; without one a question is answered no.
    void Answer(bool bYes) { mAnswers.push_back(bYes); }
    /// Drops the answers that wait and queues these.
    void SetAnswers(std::deque<bool> answers) { mAnswers = std::move(answers); }
    /// Queues the end of a file dialog; without one it is cancelled.
    void AnswerFile(TFileChoice choice) { mFileChoices.push_back(std::move(choice)); }

    /// The boxes shown since the last call, oldest first.
    std::vector<TShownBox> TakeBoxes() { return std::exchange(mBoxes, {}); }
    /// The file dialogs shown since the last call, oldest first.
    std::vector<TFileDialog> TakeFileDialogs() { return std::exchange(mFileDialogs, {}); }

    void RunModal(CDialog& rDialog) override;
    int ShowMessageBox(const TMessageBox& rBox) override;
    TFileChoice ChooseFile(const TFileDialog& rDialog) override;
    std::optional<CString> ReadProfile(const CString& rsSection, const CString& rsEntry) override;
    bool WriteProfile(const CString& rsSection, const CString& rsEntry,
                      const CString& rsValue) override;
    CString GetApplicationName() const override;

private:
    IDesktop* mpBefore;
    TNextAction mNextAction;
    std::deque<bool> mAnswers;
    std::deque<TFileChoice> mFileChoices;
    std::vector<TShownBox> mBoxes;
    std::vector<TFileDialog> mFileDialogs;
    std::map<std::pair<std::string, std::string>, CString> mProfile;
};
