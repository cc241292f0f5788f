#include "platform/base/Exceptions.h"

void gThrowInvalidArg(const char* pWhat)
{
    throw CInvalidArgException(pWhat != nullptr ? pWhat : "");
}
