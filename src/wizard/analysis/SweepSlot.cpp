#include "wizard/analysis/SweepSlot.h"

namespace
{
// Meant: in English in every language, and not the entries of the dialog's lists.

const char* SummaryOf(ESweepType type)
{
    switch (type) {
    case ESweepType::NotUsed:
        return "Not used";
    case ESweepType::Linear:
        return "Linear";
    case ESweepType::Decade:
        return "Decade";
    case ESweepType::Octave:
        return "Octave";
    case ESweepType::List:
        return "List";
    case ESweepType::Poi:
        return "Poi";
    case ESweepType::Data:
        return "Data";
    case ESweepType::MonteCarlo:
        return "Monte";
    case ESweepType::Optimization:
        return "Optimize";
    }
    return "";
}

const char* SummaryOf(ESweepParameter parameter)
{
    switch (parameter) {
    case ESweepParameter::ModelParameter:
        return "Model parameter";
    case ESweepParameter::Parameter:
        return "Parameter";
    case ESweepParameter::ParameterName:
        return "Parameter name";
    case ESweepParameter::Source:
        return "Source name";
    case ESweepParameter::Temperature:
        return "Temperature";
    }
    return "";
}
} // namespace

SweepSlot::SweepSlot(CWnd& rPage, int nButton) : mrPage(rPage), mnButton(nButton), mDialog(&rPage)
{
}

void SweepSlot::Press(const CString& rsPrefix)
{
    mDialog.Prepare(rsPrefix, !IsUsed());
    mDialog.DoModal();
    msText = mDialog.GetResult();
    mType = mDialog.GetResultType();
    mParameter = mDialog.GetResultParameter();
    ShowSummary();
}

void SweepSlot::ShowSummary()
{
    mrPage.GetDlgItem(FirstSummaryOf(mnButton))->SetWindowText(SummaryOf(mType));
    mrPage.GetDlgItem(SecondSummaryOf(mnButton))
        ->SetWindowText(gVariesParameter(mType) ? SummaryOf(mParameter) : "");
}
