#include "wizard/frame/Remembered.h"

namespace
{
// Built on first use: the remembered values of other sources register themselves at load.
CRememberedBase*& First()
{
    static CRememberedBase* spFirst = nullptr;
    return spFirst;
}
} // namespace

CRememberedBase::CRememberedBase() : mpNext(First())
{
    First() = this;
}

CRememberedBase::~CRememberedBase()
{
    CRememberedBase** ppLink = &First();
    while (*ppLink != this)
        ppLink = &(*ppLink)->mpNext;
    *ppLink = mpNext;
}

void CRememberedBase::ResetAll()
{
    for (CRememberedBase* p = First(); p; p = p->mpNext)
        p->Reset();
}
