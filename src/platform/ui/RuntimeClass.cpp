#include "platform/ui/RuntimeClass.h"

#include "platform/base/TypeName.h"

#include <typeinfo>

namespace
{
CRuntimeClass* spLastRegistered = nullptr;
}

CRuntimeClass::CRuntimeClass(std::string_view sName, TIsInstance pIsInstance, TCreate pCreate)
    : msName(sName), mpIsInstance(pIsInstance), mpCreate(pCreate), mpNext(spLastRegistered)
{
    spLastRegistered = this;
}

CRuntimeClass::~CRuntimeClass()
{
    CRuntimeClass** ppClass = &spLastRegistered;
    while (*ppClass != this)
        ppClass = &(*ppClass)->mpNext;
    *ppClass = mpNext;
}

const CRuntimeClass* CRuntimeClass::FromName(std::string_view sName)
{
    const CRuntimeClass* pClass = spLastRegistered;
    while (pClass && pClass->msName != sName)
        pClass = pClass->mpNext;
    return pClass;
}

bool CObject::IsKindOf(const CRuntimeClass& rClass) const
{
    return rClass.IsInstance(*this);
}

std::string_view gClassName(const CObject& rObject)
{
    return gTypeName(typeid(rObject));
}
