#include "cli/Session.h"

#include "browser/Export.h"
#include "cli/Failure.h"
#include "cli/FieldJson.h"
#include "cli/PageRun.h"
#include "cli/StepError.h"
#include "cli/TableJson.h"
#include "wizard/frame/Remembered.h"
#include "wizard/frame/SinglePageDlg.h"
#include "wizard/frame/TreeDlg.h"

#include <nlohmann/json.hpp>

#include <exception>
#include <stdexcept>
#include <system_error>
#include <utility>
#include <variant>

namespace quorvawiz::cli
{
namespace
{
/// Empty where the current folder has been removed.
std::filesystem::path CurrentFolder()
{
    std::error_code error;
    return std::filesystem::current_path(error);
}

CDialog& WhileOpen(CDialog* pInnermost)
{
    if (!pInnermost)
        throw CRequestError("the wizard is closed");
    return *pInnermost;
}

/// The dialog that a step is for: the wizard's own for one on the frame. In the parameter browser
/// each dialog has a frame, on which there is nothing but "Close".
CDialog& DialogOf(const TStep& rStep, CDialog& rInnermost)
{
    CDialog& rOutermost = *gOutermostDialog();
    if (!rStep.bOnFrame)
        return rInnermost;
    if (dynamic_cast<CTreeDlg*>(&rOutermost))
        return rOutermost;
    if (rStep.sKey != "close")
        throw CRequestError("the wizard is closed");
    return rInnermost;
}

void RefuseInFront(const CDialog* pInnermost)
{
    if (pInnermost && pInnermost != gOutermostDialog())
        throw CRequestError(dynamic_cast<CTreeDlg*>(gOutermostDialog())
                                ? "a dialog is open in front of the wizard"
                                : "a dialog is open in front of another");
}
} // namespace

CSession::CSession(TWizard wizard, std::istream& rIn, std::ostream& rOut)
    : mWizard(std::move(wizard)), mrIn(rIn), mrOut(rOut), mPages(gListPages(mWizard)),
      mStartFolder(CurrentFolder())
{
}

void CSession::Run()
{
    mDesktop.emplace();
    mNext = TOpening{};
    while (!mbEndOfInput) {
        if (std::exchange(mbForget, false))
            Forget();
        if (const auto opening = std::exchange(mNext, std::nullopt))
            RunOpening(*opening);
        else
            Serve(nullptr);
    }
    if (mrIn.bad())
        throw std::runtime_error("can't read the session's requests");
    if (!mrOut)
        throw std::runtime_error("can't write the session's replies");
}

void CSession::RunOpening(const TOpening& rOpening)
{
    mbLeaving = false;
    mDesktop->SetNextAction([this](CDialog& rInnermost) { return ActIn(rInnermost); });
    try {
        if (!rOpening.browse) {
            RunWizard(rOpening);
            return;
        }
        const TBrowserEnd end{rOpening.browse()};
        if (!mbLeaving)
            mEnd = end;
    } catch (const std::exception& rException) {
        if (!mbReplyIsDue)
            throw; // nobody would hear of it
        const std::string sEnded = rOpening.browse ? "the dialog" : "the wizard";
        mError = sEnded + " ended by an exception: " + rException.what();
    }
}

void CSession::RunWizard(const TOpening& rOpening)
{
    if (!rOpening.pPage)
        mWizard.run(mTarget);
    else
        gRunOnPage(*mDesktop, mWizard, *rOpening.pPage, mTarget,
                   [this](CDialog& rInnermost) { return ActIn(rInnermost); });
}

/// All that is open closes first.
void CSession::OpenNext(TOpening opening)
{
    mNext = std::move(opening);
    mbLeaving = true;
}

bool CSession::ActIn(CDialog& rInnermost)
{
    if (!mbLeaving)
        Serve(&rInnermost);
    return !mbLeaving;
}

void CSession::Serve(CDialog* pInnermost)
{
    Reply(pInnermost);
    const std::optional<std::string> line = ReadLine();
    if (!line) {
        mbEndOfInput = true;
        mbLeaving = true;
        return;
    }
    const unsigned long long nRequest = ++mnRequests;
    mbReplyIsDue = true;
    mError.reset();
    mRows.reset();
    try {
        std::visit([this, pInnermost](const auto& rRequest) { Do(rRequest, pInnermost); },
                   gParseRequest(*line));
    } catch (const CRequestError& rError) {
        // A step that ran a dialog has been answered; the reply that is due is a later one's.
        if (nRequest == mnRequests)
            mError = rError.what();
    }
}

std::optional<std::string> CSession::ReadLine()
{
    std::string sLine;
    if (!mrOut || !std::getline(mrIn, sLine))
        return std::nullopt;
    return sLine;
}

void CSession::Reply(CDialog* pInnermost)
{
    if (!std::exchange(mbReplyIsDue, false))
        return;
    const TSessionEvents events{mDesktop->TakeBoxes(), mDesktop->TakeFileDialogs(), mTarget.Take(),
                                std::exchange(mRows, std::nullopt),
                                std::exchange(mEnd, std::nullopt)};
    mrOut << gToLine(gComposeReply(mError, events, mPages, pInnermost)) << '\n' << std::flush;
}

// --- the requests

void CSession::Do(const TStepRequest& rRequest, CDialog* pInnermost)
{
    CDialog& rDialog = DialogOf(rRequest.step, WhileOpen(pInnermost));
    const TStepResult result = gRunStep(rDialog, rRequest.step);
    if (!result.IsDone())
        throw CRequestError(gStepError(rDialog, rRequest.step, result));
}

void CSession::Do(const TOpenRequest& rRequest, CDialog* pInnermost)
{
    CDialog& rDialog = WhileOpen(pInnermost);
    RefuseInFront(pInnermost);
    const TPage* pPage = nullptr;
    try {
        pPage = &gFindBuiltPage(mPages, rRequest.sPage);
    } catch (const CUsageError& rError) {
        throw CRequestError(rError.what());
    }
    const bool bInWizard =
        dynamic_cast<CTreeDlg*>(&rDialog) && !dynamic_cast<CSinglePageDlg*>(&rDialog);
    if (bInWizard && pPage->HasNode())
        gSelectPage(rDialog, *pPage);
    else
        OpenNext({.pPage = pPage});
}

void CSession::Do(const TAnswersRequest& rRequest, CDialog*)
{
    mDesktop->SetAnswers(rRequest.answers);
}

void CSession::Do(const TFileRequest& rRequest, CDialog*)
{
    mDesktop->AnswerFile(rRequest.choice);
}

void CSession::Do(const TStateRequest&, CDialog*) {}

void CSession::Do(const TReopenRequest&, CDialog*)
{
    OpenNext({});
}

void CSession::Do(const TFreshRequest&, CDialog*)
{
    mbForget = true;
    OpenNext({});
}

void CSession::Do(const TLoadRequest& rRequest, CDialog*)
{
    mBrowser.Load(rRequest);
}

void CSession::Do(const TBrowseRequest& rRequest, CDialog* pInnermost)
{
    Browse(mBrowser.Open(rRequest), pInnermost);
}

void CSession::Do(const TDeviceDetailsRequest& rRequest, CDialog* pInnermost)
{
    Browse(mBrowser.Open(rRequest), pInnermost);
}

void CSession::Browse(TRunBrowser browse, const CDialog* pInnermost)
{
    RefuseInFront(pInnermost);
    OpenNext({.browse = std::move(browse)});
}

void CSession::Do(const TRowsRequest& rRequest, CDialog* pInnermost)
{
    if (!gShownGrid(WhileOpen(pInnermost)))
        throw CRequestError("the dialog has no table to tell rows of");
    mRows = rRequest;
}

void CSession::Forget()
{
    CRememberedBase::ResetAll();
    mDesktop.emplace();
    mTarget.Take();
    mBrowser.Forget();
    gGetLastExportPath() = {};
    std::error_code ignored; // the folder may have been removed meanwhile
    std::filesystem::current_path(mStartFolder, ignored);
}

} // namespace quorvawiz::cli
