#pragma once

#include "cli/PageList.h"
#include "cli/SessionBrowser.h"
#include "cli/SessionReply.h"
#include "cli/SessionRequest.h"
#include "cli/Wizard.h"
#include "platform/headless/HeadlessDesktop.h"

#include <filesystem>
#include <istream>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace quorvawiz::cli
{

/// The whole life of the wizard, and of the parameter browser, on a headless desktop, driven by
/// requests (docs/session.md).
///
/// A reply is written when the next request is about to be read. So a request that opens a modal
/// dialog is answered from inside that dialog's run, and the requests that follow act in it.
class CSession
{
public:
    /// @param wizard the wizard; its run is a CTreeDlg
    /// @param rIn requests, one line each; lives longer than this
    /// @param rOut replies, one line each, flushed; lives longer than this
    CSession(TWizard wizard, std::istream& rIn, std::ostream& rOut);

    /// Opens the wizard and serves until the input ends; then everything is closed. Exceptions of
    /// the wizard end its run and are told in the reply.
    /// @throws std::runtime_error if the input can't be read or the output can't be written
    void Run();

private:
    /// What is open, or is to be opened: the wizard, one page without a node, or a dialog of the
    /// parameter browser.
    struct TOpening {
        const TPage* pPage = nullptr; ///< to be displayed at once; null: as the wizard opens
        TRunBrowser browse{};         ///< instead of any page
    };

    void RunOpening(const TOpening& rOpening);
    void RunWizard(const TOpening& rOpening);
    void OpenNext(TOpening opening);
    bool ActIn(CDialog& rInnermost);
    void Serve(CDialog* pInnermost);
    std::optional<std::string> ReadLine();
    void Reply(CDialog* pInnermost);

    void Do(const TStepRequest& rRequest, CDialog* pInnermost);
    void Do(const TOpenRequest& rRequest, CDialog* pInnermost);
    void Do(const TAnswersRequest& rRequest, CDialog* pInnermost);
    void Do(const TFileRequest& rRequest, CDialog* pInnermost);
    void Do(const TStateRequest& rRequest, CDialog* pInnermost);
    void Do(const TReopenRequest& rRequest, CDialog* pInnermost);
    void Do(const TFreshRequest& rRequest, CDialog* pInnermost);
    void Do(const TLoadRequest& rRequest, CDialog* pInnermost);
    void Do(const TBrowseRequest& rRequest, CDialog* pInnermost);
    void Do(const TDeviceDetailsRequest& rRequest, CDialog* pInnermost);
    void Do(const TRowsRequest& rRequest, CDialog* pInnermost);
    void Browse(TRunBrowser browse, const CDialog* pInnermost);
    void Forget();

    TWizard mWizard;
    std::istream& mrIn;
    std::ostream& mrOut;
    std::vector<TPage> mPages;
    std::optional<HeadlessDesktop> mDesktop;
    CCommandCollector mTarget;
    CSessionBrowser mBrowser;
    std::filesystem::path mStartFolder;
    std::optional<TOpening> mNext; ///< opened as soon as nothing is open
    bool mbLeaving = false;        ///< every dialog that runs ends
    bool mbForget = false;         ///< the process starts anew before the next opening
    bool mbEndOfInput = false;
    bool mbReplyIsDue = false;
    std::optional<std::string> mError; ///< of the reply that is due
    std::optional<TRowsRequest> mRows; ///< that the reply tells
    std::optional<TBrowserEnd> mEnd;   ///< of a dialog, not told yet
    unsigned long long mnRequests = 0; ///< how many have been read
};

} // namespace quorvawiz::cli
