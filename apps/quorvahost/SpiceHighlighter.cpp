#include "quorvahost/SpiceHighlighter.h"

#include "quorvahost/SpiceColours.h"
#include "quorvahost/SpiceTokens.h"

namespace quorvawiz::host
{

CSpiceHighlighter::CSpiceHighlighter(QObject* pParent) : QSyntaxHighlighter(pParent) {}

void CSpiceHighlighter::SetDark(bool bDark)
{
    if (mbDark == bDark)
        return;
    mbDark = bDark;
    rehighlight();
}

void CSpiceHighlighter::highlightBlock(const QString& rsText)
{
    for (const TToken& rToken : gTokenize(rsText))
        setFormat(static_cast<int>(rToken.nStart), static_cast<int>(rToken.nLength),
                  gFormatOf(rToken.kind, mbDark));
}

} // namespace quorvawiz::host
