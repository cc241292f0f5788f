#include "cli/Session.h"

#include "cli/Failure.h"
#include "cli/FieldJson.h"
#include "cli/PageRun.h"
#include "cli/SessionReply.h"
#include "cli/StepError.h"
#include "wizard/frame/Remembered.h"
#include "wizard/frame/SinglePageDlg.h"

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
} // namespace

CSession::CSession(TWizard wizard, std::istream& rIn, std::ostream& rOut)
    : mWizard(std::move(wizard)), mrIn(rIn), mrOut(rOut), mPages(gListPages(mWizard)),
      mStartFolder(CurrentFolder())
{
}

void CSession::Run()
{
    mDesktop.emplace();
    mNext = TOpening{nullptr};
    while (!mbEndOfInput) {
        if (std::exchange(mbForget, false))
            Forget();
        if (const auto opening = std::exchange(mNext, std::nullopt))
            RunWizard(*opening);
        else
            Serve(nullptr);
    }
    if (mrIn.bad())
        throw std::runtime_error("can't read the session's requests");
    if (!mrOut)
        throw std::runtime_error("can't write the session's replies");
}

void CSession::RunWizard(const TOpening& rOpening)
{
    mbLeaving = false;
    mDesktop->SetNextAction([this](CDialog& rInnermost) { return ActIn(rInnermost); });
    try {
        if (!rOpening.pPage)
            mWizard.run(mTarget);
        else
            gRunOnPage(*mDesktop, mWizard, *rOpening.pPage, mTarget,
                       [this](CDialog& rInnermost) { return ActIn(rInnermost); });
    } catch (const std::exception& rException) {
        if (!mbReplyIsDue)
            throw; // nobody would hear of it
        mError = "the wizard ended by an exception: " + std::string(rException.what());
    }
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
    const TSessionEvents events{mDesktop->TakeBoxes(), mDesktop->TakeFileDialogs(), mTarget.Take()};
    mrOut << gToLine(gComposeReply(mError, events, mPages, pInnermost)) << '\n' << std::flush;
}

// --- the requests

void CSession::Do(const TStepRequest& rRequest, CDialog* pInnermost)
{
    WhileOpen(pInnermost);
    CDialog& rDialog = rRequest.step.bOnFrame ? *gOutermostDialog() : *pInnermost;
    const TStepResult result = gRunStep(rDialog, rRequest.step);
    if (!result.IsDone())
        throw CRequestError(gStepError(rDialog, rRequest.step, result));
}

void CSession::Do(const TOpenRequest& rRequest, CDialog* pInnermost)
{
    CDialog& rDialog = WhileOpen(pInnermost);
    if (&rDialog != gOutermostDialog())
        throw CRequestError("a dialog is open in front of the wizard");
    const TPage* pPage = nullptr;
    try {
        pPage = &gFindBuiltPage(mPages, rRequest.sPage);
    } catch (const CUsageError& rError) {
        throw CRequestError(rError.what());
    }
    const bool bInWizard = dynamic_cast<CSinglePageDlg*>(&rDialog) == nullptr;
    if (bInWizard && pPage->HasNode()) {
        gSelectPage(rDialog, *pPage);
    } else {
        mNext = TOpening{pPage};
        mbLeaving = true;
    }
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
    mNext = TOpening{nullptr};
    mbLeaving = true;
}

void CSession::Do(const TFreshRequest&, CDialog*)
{
    mNext = TOpening{nullptr};
    mbForget = true;
    mbLeaving = true;
}

void CSession::Forget()
{
    CRememberedBase::ResetAll();
    mDesktop.emplace();
    mTarget.Take();
    std::error_code ignored; // the folder may have been removed meanwhile
    std::filesystem::current_path(mStartFolder, ignored);
}

} // namespace quorvawiz::cli
