#pragma once

#include "wizard/analysis/StepSweepPage.h"
#include "wizard/frame/PageLayout.h"

/// Where a sweep button's two summaries stand: the ids behind the button's.
constexpr int FirstSummaryOf(int nButton)
{
    return nButton + 1;
}
constexpr int SecondSummaryOf(int nButton)
{
    return nButton + 2;
}

/// A sweep button with the two summaries of its sweep to the right of it.
/// `pSummaryKey1`, `pSummaryKey2`: the summaries' keys; the ids are those above.
constexpr TBlock<3> SweepLine(int nButton, const char* pKey, const char* pLabel,
                              const char* pSummaryKey1, const char* pSummaryKey2,
                              unsigned nFlags = kNoFlags)
{
    const TControlRow button =
        Row(nButton, pKey, EControl::PushButton, pLabel, {7, 0, 61, 14}, nFlags);
    return {{{{button, true},
              {Row(FirstSummaryOf(nButton), pSummaryKey1, EControl::Static, "Not used",
                   {78, 3, 70, kLabelHeight})},
              {Row(SecondSummaryOf(nButton), pSummaryKey2, EControl::Static, "",
                   {154, 3, 80, kLabelHeight})}}},
            button.rect.h,
            PageLayout::kLineGap};
}

/// A sweep of a page: its clause, its dialog, and the summaries on the page. A page starts without
/// a sweep in each run of the wizard.
class SweepSlot
{
public:
    /// `rPage` has a `SweepLine` of this button and lives longer than this.
    SweepSlot(CWnd& rPage, int nButton);

    /// A press on the button: runs the dialog, takes over what it holds however it ended, and shows
    /// the summary. `rsPrefix`: what the clause starts with.
    void Press(const CString& rsPrefix);

    bool IsUsed() const { return mType != ESweepType::NotUsed; }
    /// The clause with its prefix, as it was accepted last; left over when the sweep isn't used.
    const CString& GetText() const { return msText; }

private:
    void ShowSummary();

    CWnd& mrPage;
    int mnButton;
    CString msText;
    ESweepType mType = ESweepType::NotUsed;
    ESweepParameter mParameter = ESweepParameter::ModelParameter;
    CStepSweepPage mDialog;
};
