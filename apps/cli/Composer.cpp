#include "cli/Composer.h"

#include "cli/ComposeStep.h"
#include "cli/Failure.h"
#include "cli/PageRun.h"
#include "cli/Quote.h"
#include "cli/ShownFields.h"
#include "cli/StepError.h"
#include "platform/base/Utf8Text.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <stdexcept>

namespace quorvawiz::cli
{
namespace
{
/// The wizard goes no further, without a fault of the arguments.
class CStopped : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The user of one composition.
class CComposer
{
public:
    CComposer(HeadlessDesktop& rDesktop, const std::vector<TComposeArgument>& rArguments)
        : mrDesktop(rDesktop), mrArguments(rArguments)
    {
    }

    bool Act(CDialog& rInnermost);

    std::vector<TShownBox> TakeBoxes();

private:
    void NoteOpenDialogs();
    void Expect(bool bCame, const std::string& rsOtherwise);
    void Press(CDialog& rInnermost, const std::string& rsKey);
    void ActOn(CDialog& rInnermost, const TComposeArgument& rArgument);
    void Insert();

    HeadlessDesktop& mrDesktop;
    const std::vector<TComposeArgument>& mrArguments;
    std::size_t mnNext = 0;
    std::vector<std::string> mOpen; ///< the buttons that opened the dialogs, outermost first
    std::string msPressed;          ///< the button pressed last
    TComposeMove mLast;             ///< the move made last
    std::size_t mnDepthBefore = 0;  ///< how many dialogs were open before it
    std::vector<TShownBox> mBoxes;
    std::size_t mnBoxesBefore = 0; ///< how many boxes had been shown before it
    bool mbInserted = false;
};

/// What stands in front of the key.
std::string PrefixOf(const TComposeArgument& rArgument)
{
    std::string sPrefix;
    for (const std::string& rsKey : rArgument.prefix)
        sPrefix += rsKey + '.';
    return sPrefix;
}

bool IsButton(const TFieldView& rField)
{
    return rField.kind == EControl::PushButton || rField.kind == EControl::DefaultButton;
}

std::vector<TShownBox> CComposer::TakeBoxes()
{
    std::ranges::move(mrDesktop.TakeBoxes(), std::back_inserter(mBoxes));
    return std::move(mBoxes);
}

/// A dialog that has appeared belongs to the button pressed last.
void CComposer::NoteOpenDialogs()
{
    const std::size_t nOpen = gDesktop().Thread().mModalRuns.size() - 1;
    if (mOpen.size() > nOpen)
        mOpen.resize(nOpen);
    while (mOpen.size() < nOpen)
        mOpen.push_back(msPressed);
}

/// A message that was shown meanwhile says why; without one the arguments are at fault.
void CComposer::Expect(bool bCame, const std::string& rsOtherwise)
{
    if (bCame)
        return;
    if (mBoxes.size() > mnBoxesBefore)
        throw CStopped(rsOtherwise);
    throw CUsageError(rsOtherwise);
}

bool CComposer::Act(CDialog& rInnermost)
{
    if (mbInserted)
        return false;
    NoteOpenDialogs();
    std::ranges::move(mrDesktop.TakeBoxes(), std::back_inserter(mBoxes));
    if (mLast.kind == TComposeMove::EKind::Open)
        Expect(mOpen.size() > mnDepthBefore, gQuoted(mLast.sKey) + " opened no dialog");
    if (mLast.kind == TComposeMove::EKind::Accept)
        Expect(mOpen.size() < mnDepthBefore,
               "the dialog of " + gQuoted(mOpen.empty() ? "" : mOpen.back()) + " stayed open");

    const TComposeArgument* const pNext =
        mnNext < mrArguments.size() ? &mrArguments[mnNext] : nullptr;
    const bool bJustRefused = mLast.kind == TComposeMove::EKind::Act && msPressed == "accept" &&
                              mOpen.size() == mnDepthBefore;
    mLast = gNextMove(mOpen, pNext);
    if (mLast.kind == TComposeMove::EKind::Accept)
        Expect(!bJustRefused, "the dialog of " + gQuoted(mOpen.back()) + " stayed open");
    mnDepthBefore = mOpen.size();
    mnBoxesBefore = mBoxes.size();
    switch (mLast.kind) {
    case TComposeMove::EKind::Act:
        ++mnNext;
        ActOn(rInnermost, *pNext);
        break;
    case TComposeMove::EKind::Open:
        Press(rInnermost, mLast.sKey);
        break;
    case TComposeMove::EKind::Accept:
        Press(rInnermost, "accept");
        break;
    case TComposeMove::EKind::Insert:
        Insert();
        break;
    }
    return true;
}

void CComposer::Press(CDialog& rInnermost, const std::string& rsKey)
{
    ActOn(rInnermost, {mOpen, rsKey, std::nullopt});
}

void CComposer::ActOn(CDialog& rInnermost, const TComposeArgument& rArgument)
{
    const std::string sPrefix = PrefixOf(rArgument);
    std::vector<TFieldView> fields = gShownFields(rInnermost);
    const auto field = std::ranges::find(fields, rArgument.sKey, &TFieldView::sKey);
    if (field == fields.end()) {
        if (mLast.kind == TComposeMove::EKind::Open) // a dialog is only behind a button
            std::erase_if(fields, [](const TFieldView& rField) { return !IsButton(rField); });
        throw CUsageError(gNoField(fields, rArgument.sKey, sPrefix));
    }
    msPressed = rArgument.sKey;
    const TStep step = gComposeStep(*field, sPrefix + rArgument.sKey, rArgument.value);
    const TStepResult result = gRunStep(rInnermost, step);
    if (!result.IsDone())
        throw CUsageError(gStepError(rInnermost, step, result, sPrefix));
}

void CComposer::Insert()
{
    mbInserted = true;
    CDialog& rWizardDialog = *gOutermostDialog();
    const TStep step{.op = EStep::Click, .sKey = "insert", .bOnFrame = true};
    if (!gRunStep(rWizardDialog, step).IsDone())
        throw CStopped("the page on display has no command to insert");
}

std::string LinesOf(CString sText)
{
    sText.Replace("\r\n", "\n");
    return gToUtf8(sText);
}
} // namespace

TComposition gCompose(const TWizard& rWizard, const TPage& rPage,
                      const std::vector<TComposeArgument>& rArguments)
{
    TComposition composition;
    HeadlessDesktop desktop;
    CCommandCollector target;
    CComposer composer(desktop, rArguments);
    try {
        gRunOnPage(desktop, rWizard, rPage, target,
                   [&composer](CDialog& rInnermost) { return composer.Act(rInnermost); });
    } catch (const CUsageError& rError) {
        composition.sMisuse = rError.what();
    } catch (const CStopped& rStopped) {
        composition.sRefusal = rStopped.what();
    } catch (const std::exception& rException) {
        composition.sFailure = gPrintable(rException.what());
    }

    for (const CString& rsCommand : target.Take())
        composition.command = LinesOf(rsCommand);
    const std::vector<TShownBox> shownBoxes = composer.TakeBoxes();
    composition.boxes.reserve(shownBoxes.size());
    for (const TShownBox& rShown : shownBoxes)
        composition.boxes.push_back(
            {LinesOf(rShown.box.sText), (rShown.box.nFlags & MB_TYPEMASK) == MB_YESNO});
    return composition;
}

} // namespace quorvawiz::cli
