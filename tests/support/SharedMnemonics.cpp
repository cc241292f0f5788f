#include "support/SharedMnemonics.h"

#include "platform/ui/FieldView.h"
#include "platform/ui/Mnemonics.h"

std::string gSharedMnemonics(CDialog& rDialog)
{
    const std::string sNamed = gCurrentPane(rDialog).GetTemplate().pSharedMnemonics;
    std::string sShared;
    for (char c = 'a'; c <= 'z'; ++c)
        if (gMnemonicTargets(rDialog, c).size() > 1 && sNamed.find(c) == std::string::npos)
            sShared += c;
    return sShared;
}
