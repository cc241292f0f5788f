#include "wizard/frame/PageText.h"

#include "platform/base/Ascii.h"
#include "platform/ui/Translate.h"
#include "platform/ui/Wnd.h"

#include <algorithm>
#include <string_view>

void gAppendIfAny(CString& rsCommand, const char* pBefore, const CString& rsField)
{
    if (!rsField.IsEmpty())
        rsCommand += pBefore + rsField;
}

bool gBeginsWithLetter(const CString& rsName, char chCapital)
{
    return gToUpperAscii(rsName[0]) == chCapital;
}

CString gJoinLines(const CString& rsText)
{
    // Meant: a lone LF is dropped; a lone CR is kept; what follows a run of CR
    // LF pairs is copied unseen, so that a lone LF survives there while a lone CR is dropped.
    const int nLength = rsText.GetLength();
    CString sJoined;
    for (int i = 0; i < nLength; ++i) {
        if (rsText[i] == '\r' && rsText[i + 1] == '\n') {
            for (; rsText[i] == '\r' && rsText[i + 1] == '\n' && i + 2 < nLength; i += 2)
                sJoined += ' ';
            if (rsText[i] != '\r')
                sJoined += rsText[i];
        } else if (rsText[i] != '\n') {
            sJoined += rsText[i];
        }
    }
    return sJoined;
}

CString gShownText(const char* pLiteral)
{
    const bool bMarked = std::string_view(pLiteral).starts_with(xlang::kTranslationMarker);
    return bMarked ? xlang::gTranslate(pLiteral) : CString(pLiteral);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
bool gReportMessage(CWnd& rOwner, CString sMessage)
{
    rOwner.MessageBox(sMessage, "SPICE", MB_OK | MB_ICONINFORMATION);
    return false;
}

bool gReportFailure(CWnd& rPage, CString& rsMessage, const char* pLiteral)
{
    rsMessage = gShownText(pLiteral);
    return gReportMessage(rPage, rsMessage);
}

bool gReportFailure(CWnd& rPage, const char* pLiteral)
{
    return gReportMessage(rPage, gShownText(pLiteral));
}

bool gAreFilled(CWnd& rPage, CString& rsMessage, std::initializer_list<TRequiredField> required)
{
    const auto* const pMissing = std::ranges::find_if(
        required, [](const TRequiredField& rRequired) { return rRequired.rsField.IsEmpty(); });
    return pMissing == required.end() || gReportFailure(rPage, rsMessage, pMissing->pMissing);
}
