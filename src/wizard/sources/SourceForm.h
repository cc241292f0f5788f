#pragma once

#include "platform/base/StringA.h"
#include "wizard/frame/CommandPage.h"
#include "wizard/frame/PageText.h"
#include "wizard/frame/Remembered.h"

#include <initializer_list>

/// What a page of a source hands its work on to, so that its twin can do the same: the fields, the
/// remembered values of the page's class, and the message that it has shown last. The form of a
/// kind derives from it and adds `Exchange`, the data exchange of its fields, and `Build`, which
/// does what `BuildCommand` of a page does. The page itself is a shell of one line each.
/// `TTwin`: what differs between the twins of the kind.
template <class TFields, class TTwin> class SourceForm
{
public:
    /// All of them live longer than this.
    SourceForm(CCommandPage& rPage, const TTwin& rTwin, Remembered<TFields>& rRemembered)
        : mrPage(rPage), mrTwin(rTwin), mrRemembered(rRemembered)
    {
    }

    /// As `OnInitDialog` of a page: shows what the last success has left. Result: true.
    bool InitDialog()
    {
        mrPage.CDialog::OnInitDialog();
        mFields = mrRemembered.Get();
        mrPage.UpdateData(false);
        return true;
    }

protected:
    void Read() { mrPage.UpdateData(true); }
    void Remember() { mrRemembered.Set(mFields); }
    /// Reports the first empty field of these. Result: whether there is none.
    bool AreFilled(std::initializer_list<TRequiredField> required)
    {
        return gAreFilled(mrPage, msMessage, required);
    }
    /// Reports a failed check. Result: false.
    bool Fail(const char* pLiteral) { return gReportFailure(mrPage, msMessage, pLiteral); }

    CCommandPage& mrPage;
    const TTwin& mrTwin;
    CString msMessage;
    TFields mFields;

private:
    Remembered<TFields>& mrRemembered;
};
