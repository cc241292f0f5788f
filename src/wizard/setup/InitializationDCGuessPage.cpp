#include "platform/ui/DataExchange.h"
#include "platform/ui/Fields.h"
#include "platform/ui/RuntimeClassDefinition.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageLayout.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

namespace
{
// The cells of set 2 follow that of set 1, and so on.
enum EControlId {
    kGuesses = 1001,
    kNodeTitle,
    kReferenceTitle,
    kValueTitle,
    kFirstNode = 1010,
    kFirstReference = 1020,
    kFirstValue = 1030,
};

constexpr int kSets = 6;

constexpr const char* kNodeKeys[kSets] = {"node-1", "node-2", "node-3",
                                          "node-4", "node-5", "node-6"};
constexpr const char* kReferenceKeys[kSets] = {"reference-1", "reference-2", "reference-3",
                                               "reference-4", "reference-5", "reference-6"};
constexpr const char* kValueKeys[kSets] = {"value-1", "value-2", "value-3",
                                           "value-4", "value-5", "value-6"};

constexpr int kReferenceX = 77;
constexpr int kValueX = 159;

/// A line of the grid: a control in each of its columns.
constexpr auto GridLine(TControlRow node, TControlRow reference, TControlRow value, int nHeight)
{
    using namespace PageLayout;
    node.rect = {kLeft, 0, kReferenceX - 6 - kLeft, nHeight};
    reference.rect = {kReferenceX, 0, kValueX - 6 - kReferenceX, nHeight};
    value.rect = {kValueX, 0, kRight - kValueX, nHeight};
    return SameTop(At(node), At(reference), At(value));
}

constexpr TControlRow Title(int nId, const char* pKey, const char* pText)
{
    return Row(nId, pKey, EControl::Static, pText, {});
}

constexpr auto SetLine(int nSet)
{
    const auto cell = [nSet](int nFirst, const char* const* pKeys, bool bEnabled) {
        return Row(nFirst + nSet - 1, pKeys[nSet - 1], EControl::Edit, "", {},
                   bEnabled ? kUnlabelled : kUnlabelled | kDisabled);
    };
    return GridLine(cell(kFirstNode, kNodeKeys, nSet == 1),
                    cell(kFirstReference, kReferenceKeys, false),
                    cell(kFirstValue, kValueKeys, false), kEditHeight);
}

constexpr auto kRows = PageRows(
    GroupBox(kGuesses, "guesses-group", "DC node voltage guesses",
             GridLine(Title(kNodeTitle, "node-title", "Node"),
                      Title(kReferenceTitle, "reference-title", "Reference node (GND)"),
                      Title(kValueTitle, "value-title", "DC voltage guess (V)"), kLabelHeight),
             SetLine(1), SetLine(2), SetLine(3), SetLine(4), SetLine(5), SetLine(6)));
constexpr DialogTemplate kTemplate{"DC guess", kPageSize, kRows};

constexpr const char* kMissingValue[kSets] = {
    "__$$Translatable$$_Missing initial guess value for DC guess set 1.",
    "__$$Translatable$$_Missing initial guess value for DC guess set 2.",
    "__$$Translatable$$_Missing initial guess value for DC guess set 3.",
    "__$$Translatable$$_Missing initial guess value for DC guess set 4.",
    "__$$Translatable$$_Missing initial guess value for DC guess set 5.",
    "__$$Translatable$$_Missing initial guess value for DC guess set 6.",
};

struct TFields {
    CString msFirstNode;
    CString msFirstReference;
    CString msFirstValue;
    CString mNodes[kSets - 1]; ///< those of set 2 and on
    CString mReferences[kSets - 1];
    CString mValues[kSets - 1];
    int mnSetCount = 0; ///< how many sets the command takes: the set whose node was edited last

    CString& Node(int nSet) { return nSet == 1 ? msFirstNode : mNodes[nSet - 2]; }
    CString& Reference(int nSet) { return nSet == 1 ? msFirstReference : mReferences[nSet - 2]; }
    CString& Value(int nSet) { return nSet == 1 ? msFirstValue : mValues[nSet - 2]; }
};

Remembered<TFields> sRemembered;

// The cells unlock each other step by step: node 1, reference 1 with value 1, node 2, and so on. A
// step's gate, its node or its value, opens the next step.
constexpr int kLastStep = 2 * kSets - 1;

constexpr bool IsNodeStep(int nStep)
{
    return nStep % 2 == 0;
}

constexpr int SetOf(int nStep)
{
    return nStep / 2 + 1;
}

constexpr int StepOf(int nGateId)
{
    return nGateId >= kFirstValue ? 2 * (nGateId - kFirstValue) + 1 : 2 * (nGateId - kFirstNode);
}

// Meant: a change of value 3, or of a gate behind it, looks at its text without blanks around it;
// before that a blank is a text.
constexpr int kFirstTrimmedStep = StepOf(kFirstValue + 2);
} // namespace

/// Builds ".nodeset" and guesses of voltages, in volts, from which the operating point is sought.
class CInitializationDCGuessPage : public CCommandPage
{
public:
    CInitializationDCGuessPage() : CCommandPage(kTemplate) {}

    TMessageMap GetMessageMap() const override
    {
        using TPage = CInitializationDCGuessPage;
        static constexpr TMessageMapEntry kHandlers[] = {
            On<&TPage::OnGate>(ENotify::Change, kFirstNode),
            On<&TPage::OnGate>(ENotify::Change, kFirstValue),
            On<&TPage::OnGate>(ENotify::Change, kFirstNode + 1),
            On<&TPage::OnGate>(ENotify::Change, kFirstValue + 1),
            On<&TPage::OnGate>(ENotify::Change, kFirstNode + 2),
            On<&TPage::OnGate>(ENotify::Change, kFirstValue + 2),
            On<&TPage::OnGate>(ENotify::Change, kFirstNode + 3),
            On<&TPage::OnGate>(ENotify::Change, kFirstValue + 3),
            On<&TPage::OnGate>(ENotify::Change, kFirstNode + 4),
            On<&TPage::OnGate>(ENotify::Change, kFirstValue + 4),
            On<&TPage::OnGate>(ENotify::Change, kFirstNode + 5),
        };
        return kHandlers;
    }

    void DoDataExchange(CDataExchange* pDX) override
    {
        CCommandPage::DoDataExchange(pDX);
        for (int nSet = 1; nSet <= kSets; ++nSet) {
            DDX_Text(pDX, kFirstNode + nSet - 1, mFields.Node(nSet));
            DDX_Text(pDX, kFirstReference + nSet - 1, mFields.Reference(nSet));
            DDX_Text(pDX, kFirstValue + nSet - 1, mFields.Value(nSet));
        }
    }

    bool OnInitDialog() override
    {
        CDialog::OnInitDialog();
        mFields = sRemembered.Get();
        UpdateData(false);
        OnGate(kFirstValue);
        for (int nSet = 1; nSet <= kSets; ++nSet)
            OnGate(kFirstNode + nSet - 1);
        return true;
    }

    bool BuildCommand(CString& rsCommand) override
    {
        UpdateData(true);
        for (int nSet = 1; nSet <= kSets; ++nSet)
            gTrimLeft(mFields.Node(nSet), mFields.Reference(nSet), mFields.Value(nSet));
        rsCommand = ".nodeset"; // Meant: before the checks, so that a failed one leaves it there
        if (mFields.mnSetCount == 0)
            return gReportFailure(*this, msMessage,
                                  "__$$Translatable$$_No initial guesses specified.");
        CString sGuesses;
        for (int nSet = mFields.mnSetCount; nSet >= 1; --nSet) {
            if (mFields.Value(nSet).IsEmpty())
                return gReportFailure(*this, msMessage, kMissingValue[nSet - 1]);
            sGuesses = " " + Guess(nSet) + sGuesses;
        }
        rsCommand += sGuesses;
        sRemembered.Set(mFields);
        return true;
    }

private:
    /// Meant: a node is never missed.
    CString Guess(int nSet)
    {
        CString sGuess = "v(" + mFields.Node(nSet);
        gAppendIfAny(sGuess, ",", mFields.Reference(nSet));
        return sGuess + ")=" + mFields.Value(nSet);
    }

    void OnGate(int nId)
    {
        UpdateData(true);
        const int nStep = StepOf(nId);
        CString& rsGate = Gate(nStep);
        if (nStep >= kFirstTrimmedStep)
            gTrim(rsGate);
        if (rsGate.IsEmpty()) {
            for (int nBehind = nStep + 1; nBehind <= kLastStep; ++nBehind)
                EnableStep(nBehind, false);
            return;
        }
        // Meant: not the highest set in use; an empty node doesn't lower it either.
        if (IsNodeStep(nStep))
            mFields.mnSetCount = SetOf(nStep);
        for (int nOpen = nStep; nOpen < kLastStep && !Gate(nOpen).IsEmpty(); ++nOpen)
            EnableStep(nOpen + 1, true);
    }

    CString& Gate(int nStep)
    {
        return IsNodeStep(nStep) ? mFields.Node(SetOf(nStep)) : mFields.Value(SetOf(nStep));
    }

    void EnableStep(int nStep, bool bEnable)
    {
        const int nOffset = SetOf(nStep) - 1;
        if (IsNodeStep(nStep)) {
            gEnableField(*this, kFirstNode + nOffset, bEnable);
        } else {
            gEnableField(*this, kFirstReference + nOffset, bEnable);
            gEnableField(*this, kFirstValue + nOffset, bEnable);
        }
    }

    CString msMessage;
    TFields mFields;
};

template const CRuntimeClass& gRuntimeClass<CInitializationDCGuessPage>();
