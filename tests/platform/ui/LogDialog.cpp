#include "platform/ui/LogDialog.h"

#include "platform/headless/Step.h"
#include "platform/ui/Button.h"
#include "platform/ui/ComboBox.h"
#include "platform/ui/FieldView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace
{
constexpr std::array<std::pair<std::string_view, EStep>, 11> kOperations{{
    {"set", EStep::Set},
    {"select", EStep::Select},
    {"entry", EStep::SelectEntry},
    {"check", EStep::Check},
    {"choose", EStep::Choose},
    {"click", EStep::Click},
    {"double-click", EStep::DoubleClick},
    {"focus", EStep::Focus},
    {"path", EStep::SelectPath},
    {"expand", EStep::Expand},
    {"collapse", EStep::Collapse},
}};

std::string Reason(EUserResult result)
{
    switch (result) {
    case EUserResult::Done:
        return {};
    case EUserResult::Disabled:
        return "disabled";
    case EUserResult::Hidden:
        return "hidden";
    case EUserResult::Blocked:
        return "blocked";
    case EUserResult::ReadOnly:
        return "read-only";
    case EUserResult::Invalid:
        return "invalid";
    case EUserResult::Ignored:
        return "ignored";
    }
    return "?";
}

std::string Reason(const TStepResult& rResult)
{
    switch (rResult.end) {
    case EStepEnd::Done:
        return {};
    case EStepEnd::UnknownField:
        return "unknown field";
    case EStepEnd::WrongKind:
        return "wrong kind";
    case EStepEnd::UnknownEntry:
        return "unknown entry";
    case EStepEnd::Refused:
        return Reason(rResult.refusal);
    }
    return "?";
}

TStep ParseStep(std::string_view sAction)
{
    const auto nBlank = sAction.find(' ');
    const std::string_view sName = sAction.substr(0, nBlank);
    const std::string_view sRest = sAction.substr(nBlank + 1);
    TStep step;
    if (sName == "key") {
        step.op = EStep::Key;
        if (!gParseKeyName(sRest, step.key))
            throw std::invalid_argument("no such key: " + std::string(sAction));
        return step;
    }
    const auto operation =
        std::ranges::find(kOperations, sName, &std::pair<std::string_view, EStep>::first);
    if (operation == kOperations.end())
        throw std::invalid_argument("no such action: " + std::string(sAction));
    step.op = operation->second;
    const auto nEqual = sRest.find('=');
    step.sKey = sRest.substr(0, nEqual);
    if (nEqual == std::string_view::npos)
        return step;
    step.sText = sRest.substr(nEqual + 1);
    if (step.op == EStep::Select || step.op == EStep::Choose || step.op == EStep::Check)
        step.nIndex = std::stoi(std::string(sRest.substr(nEqual + 1)));
    return step;
}
} // namespace

std::string gNotifyName(ENotify code)
{
    switch (code) {
    case ENotify::Clicked:
        return "clicked";
    case ENotify::DoubleClicked:
        return "double-clicked";
    case ENotify::Change:
        return "change";
    case ENotify::EditChange:
        return "edit-change";
    case ENotify::SelChange:
        return "sel-change";
    case ENotify::SelEndOk:
        return "sel-end-ok";
    case ENotify::SetFocus:
        return "set-focus";
    case ENotify::KillFocus:
        return "kill-focus";
    }
    return "?";
}

std::string gControlPlace(const CWnd& rWnd)
{
    std::string sName = *rWnd.GetKey() ? rWnd.GetKey() : "(dialog)";
    const auto* const pButton = dynamic_cast<const CButton*>(&rWnd);
    if (pButton && pButton->IsRadio()) {
        const auto group = pButton->GetRadioGroup();
        sName += '#' + std::to_string(std::ranges::find(group, pButton) - group.begin());
    }
    return sName;
}

std::string gFocusName()
{
    const CWnd* const pFocus = CWnd::GetFocus();
    return pFocus ? gControlPlace(*pFocus) : "(none)";
}

bool CLogDialog::OnInitDialog()
{
    const bool bChoose = CDialog::OnInitDialog();
    return mAtInit ? mAtInit() : bChoose;
}

bool CLogDialog::OnCommand(ENotify code, int nId)
{
    const bool bFocus = code == ENotify::SetFocus || code == ENotify::KillFocus;
    if (!bFocus || mbLogFocus) {
        const CWnd* const pFrom = GetDlgItem(nId);
        const std::string sLine = gControlPlace(*pFrom) + ':' + gNotifyName(code);
        Write(sLine);
        if (const auto found = mReactions.find(sLine); found != mReactions.end())
            found->second();
    }
    return CDialog::OnCommand(code, nId);
}

void CLogDialog::DoDataExchange(CDataExchange* pDX)
{
    if (mExchange)
        mExchange(pDX);
}

int gRunTurns(HeadlessDesktop& rDesktop, CDialog& rDialog, std::vector<TTurn> turns)
{
    std::size_t nNext = 0;
    rDesktop.SetNextAction([&turns, &nNext](CDialog& rInnermost) {
        if (nNext == turns.size())
            return false;
        turns[nNext++](rInnermost);
        return true;
    });
    const int nResult = rDialog.DoModal();
    rDesktop.SetNextAction({});
    EXPECT_EQ(nNext, turns.size()) << "the run ended before the user's last turn";
    return nResult;
}

int gLookInto(CDialog& rDialog, const std::function<void()>& rLook)
{
    HeadlessDesktop desktop;
    return gRunTurns(desktop, rDialog, {[&rLook](CDialog&) { rLook(); }});
}

std::string gAct(CDialog& rDialog, std::string_view sAction)
{
    constexpr std::string_view sMove = "move ";
    if (!sAction.starts_with(sMove))
        return Reason(gRunStep(rDialog, ParseStep(sAction)));
    sAction.remove_prefix(sMove.size());
    const auto nEqual = sAction.find('=');
    const TFieldView field = gFindField(rDialog, sAction.substr(0, nEqual));
    auto& rCombo = dynamic_cast<CComboBox&>(*field.pControl);
    return Reason(rCombo.UserMoveSelection(std::stoi(std::string(sAction.substr(nEqual + 1)))));
}
